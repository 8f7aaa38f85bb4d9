// The search: tries a second, what the default settings make of kept plans, and how many small
// plans they solve.
#include <benchmark/benchmark.h>

#include <string>

#include "OptimumProof.h"
#include "persistence/PlanRun.h"
#include "search/PlanTask.h"

namespace {

using namespace tarvelin;

const std::atomic<bool> kWeiter{false};

void Still(const SearchProgress& /*stand*/) {}

PlanTask Aufgabe(const std::string& datei, const SearchRequest& wunsch) {
    return std::get<PlanTask>(
        MakePlanTask(PlanRun(std::filesystem::path(TARVELIN_SOURCE_DIR) / datei).plan, wunsch));
}

/// The starter plan's own orders, on as many threads.
void Versuche(benchmark::State& state) {
    const PlanTask aufgabe = Aufgabe("data/saves/basic.tvf", {});
    const SearchBudget umfang{.threads = static_cast<unsigned>(state.range(0))};
    std::uint64_t versuche = 0;
    for (auto _ : state) {
        versuche += Search(aufgabe, umfang, kWeiter, Still).tries;
    }
    state.counters["Versuche/s"] =
        benchmark::Counter(static_cast<double>(versuche), benchmark::Counter::kIsRate);
}
BENCHMARK(Versuche)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

/// Seconds before and after a search by the default settings.
void Guete(benchmark::State& state, const std::string& datei, const SearchRequest& wunsch) {
    const PlanTask aufgabe = Aufgabe(datei, wunsch);
    SearchResult ergebnis;
    for (auto _ : state) {
        ergebnis = Search(aufgabe, {}, kWeiter, Still);
    }
    const auto vorher = static_cast<double>(aufgabe.before->score.duration);
    const auto nachher = static_cast<double>(ergebnis.best->score.duration);
    state.counters["vorher_s"] = vorher;
    state.counters["nachher_s"] = nachher;
    state.counters["Gewinn_%"] = 100 * (1 - nachher / vorher);
}
#define GUETE(name, datei, ...)                                       \
    BENCHMARK_CAPTURE(Guete, name, datei, SearchRequest{__VA_ARGS__}) \
        ->Iterations(1)                                               \
        ->Unit(benchmark::kMillisecond)
GUETE(Startplan, "data/saves/basic.tvf");
GUETE(StartplanZiel, "data/saves/basic.tvf", .goal = "plan");
GUETE(Naechte60, "tests/data/golden/gedraengt-01.tvf");
GUETE(Lang150, "tests/data/golden/gedraengt-03.tvf");
GUETE(Forschung85, "tests/data/golden/regelgerecht-05.tvf");
GUETE(Kurz43, "tests/data/golden/regelgerecht-10.tvf");
#undef GUETE

/// Plans of 8 to 10 orders against their proved optimum.
void Bewiesen(benchmark::State& state) {
    constexpr unsigned kPlaene = 100;
    unsigned optimal = 0;
    for (auto _ : state) {
        for (unsigned saat = 1; saat <= kPlaene; ++saat) {
            const SearchTask aufgabe = SmallPlan(saat);
            const auto bester = Search(aufgabe, {}, kWeiter, Still).best;
            optimal += bester && bester->score.duration == ProvenDuration(aufgabe) ? 1U : 0U;
        }
    }
    state.counters["optimal_von_100"] = optimal;
}
BENCHMARK(Bewiesen)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
