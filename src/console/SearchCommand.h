// The search as the console's user calls it.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>

namespace tarvelin {

/// The options as they were given.
struct SearchCommand {
    std::string planFile;
    std::optional<std::string> goal;
    std::optional<std::string> outputFile;
    std::uint64_t tries = 0;
    unsigned threads = 1;
    std::uint64_t seed = 1;
    std::string pinned;
    bool moveProduction = false;
    std::optional<std::string> notBefore;
    std::optional<double> sittingsPercent;
    bool json = false;
};

/// Searches, prints, writes the new plan. Ends early with the best so far when `stop` is set. The
/// exit code: 0, 1 for a plan that can't be searched or written, 2 for a wrong call.
int RunSearchCommand(const SearchCommand& command, const std::atomic<bool>& stop);

}  // namespace tarvelin
