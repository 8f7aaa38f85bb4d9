// The search as the console's user calls it.
#pragma once

#include <atomic>
#include <cstdint>
#include <optional>
#include <string>

namespace tarvelin {

/// The options as they were given.
struct Suchbefehl {
    std::string Plandatei;
    std::optional<std::string> Ziel;
    std::optional<std::string> Nach;
    std::uint64_t Versuche = 0;
    unsigned Threads = 1;
    std::uint64_t Saat = 1;
    std::string Fest;
    bool Frei = false;
    std::optional<std::string> Ab;
    std::optional<double> Sitzungen;
    bool Json = false;
};

/// Searches, prints, writes the new plan. Ends early with the best so far when `halt` is set. The
/// exit code: 0, 1 for a plan that can't be searched or written, 2 for a wrong call.
int FuehreSucheAus(const Suchbefehl& befehl, const std::atomic<bool>& halt);

}  // namespace tarvelin
