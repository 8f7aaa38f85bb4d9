// The search for a faster plan.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "search/Score.h"
#include "search/SearchTask.h"

namespace tarvelin {

/// How much is searched. The same figures give the same list, with however many threads.
struct Suchumfang {
    /// Tries in all; whole chains of `kKette` each, at least one.
    std::uint64_t Versuche = kVersuche;
    std::uint64_t Saat = 1;
    unsigned Threads = 1;
    /// A list may take so many percent longer than the fastest one if that saves sittings.
    double Nachlass = 0;

    static constexpr std::uint64_t kVersuche = 640'000;
    static constexpr std::uint64_t kKette = 20'000;
};

/// A list that ends, and what it is worth.
struct Fund {
    std::vector<Order> Orders;
    /// Which of them are pinned.
    std::vector<bool> Fest;
    tarvelin::Wertung Wertung;
};

/// How far a search has come.
struct Fortschritt {
    Long BesteDauer = 0;
    /// Seconds that it is better than the list to begin with.
    Long Gewinn = 0;
    std::uint64_t Versuche = 0;
    std::uint64_t VonVersuchen = 0;
    /// Of those that are under way or done, from 1.
    std::uint64_t Kette = 0;
    double VersucheJeSekunde = 0;
    /// Seconds since the best list was found.
    double SeitBestem = 0;
};

struct Suchergebnis {
    /// The best list; nothing if none was found that ends.
    std::optional<Fund> Bester;
    /// Fewer than there were to be if the search was stopped.
    std::uint64_t Versuche = 0;
    std::uint64_t VonVersuchen = 0;
};

/// What the orders of a list are worth; nothing if it doesn't end.
[[nodiscard]] std::optional<Fund> Bewerte(const Suchaufgabe& aufgabe,
                                          const std::vector<Order>& orders);

/// Searches until the tries are done or `halt` is set, which takes a few milliseconds. `melde` is
/// called from the caller's thread, at most ten times a second.
[[nodiscard]] Suchergebnis Suche(const Suchaufgabe& aufgabe, const Suchumfang& umfang,
                                 const std::atomic<bool>& halt,
                                 const std::function<void(const Fortschritt&)>& melde);

}  // namespace tarvelin
