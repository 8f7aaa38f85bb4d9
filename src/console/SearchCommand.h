// The command `--suche`.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>

namespace tarvelin {

/// The options as given.
struct SearchCommand {
    std::string planFile;
    std::optional<std::string> goal;
    std::optional<std::string> outputFile;
    /// 0: the default of the search.
    std::uint64_t tries = 0;
    unsigned threads = 1;
    std::uint64_t seed = 1;
    std::string pinned;
    bool moveProduction = false;
    std::optional<std::string> notBefore;
    std::optional<double> sittingsPercent;
    bool json = false;
};

/// Searches, writes the new plan and prints the report. Setting `stop` ends it early with the best
/// plan so far. Returns the exit code.
int RunSearchCommand(const SearchCommand& command, const std::atomic<bool>& stop);

}  // namespace tarvelin
