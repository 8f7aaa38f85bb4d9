// Measures the search: tries per second, how much faster the default settings make some plans, and
// how many small plans they solve to optimality.
#include <benchmark/benchmark.h>

#include <string>

#include "OptimumProof.h"
#include "document/PlanRun.h"
#include "search/PlanTask.h"

namespace {

using namespace tarvelin;

const std::atomic<bool> kGoOn{false};

void Quiet(const SearchProgress& /*progress*/) {}

PlanTask Task(const std::string& file, const SearchRequest& request) {
    return std::get<PlanTask>(
        MakePlanTask(PlanRun(std::filesystem::path(TARVELIN_SOURCE_DIR) / file).plan, request));
}

/// Searches sequences of the starter plan's orders, with the given number of threads.
void Tries(benchmark::State& state) {
    const PlanTask task = Task("data/saves/basic.tvf", {});
    const SearchBudget budget{.threads = static_cast<unsigned>(state.range(0))};
    std::uint64_t tries = 0;
    for (auto _ : state) {
        tries += Search(task, budget, kGoOn, Quiet).tries;
    }
    state.counters["tries/s"] =
        benchmark::Counter(static_cast<double>(tries), benchmark::Counter::kIsRate);
}
BENCHMARK(Tries)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond);

/// The duration of a plan before and after a search with the default settings.
void Quality(benchmark::State& state, const std::string& file, const SearchRequest& request) {
    const PlanTask task = Task(file, request);
    SearchResult result;
    for (auto _ : state) {
        result = Search(task, {}, kGoOn, Quiet);
    }
    const auto before = static_cast<double>(task.before->score.duration);
    const auto after = static_cast<double>(result.best->score.duration);
    state.counters["before_s"] = before;
    state.counters["after_s"] = after;
    state.counters["gain_%"] = 100 * (1 - after / before);
}
#define QUALITY(name, file, ...)                                       \
    BENCHMARK_CAPTURE(Quality, name, file, SearchRequest{__VA_ARGS__}) \
        ->Iterations(1)                                                \
        ->Unit(benchmark::kMillisecond)
QUALITY(StarterPlan, "data/saves/basic.tvf");
QUALITY(StarterPlanGoal, "data/saves/basic.tvf", .goal = "plan");
QUALITY(Nights60, "tests/data/golden/gedraengt-01.tvf");
QUALITY(Long150, "tests/data/golden/gedraengt-03.tvf");
QUALITY(Research85, "tests/data/golden/regelgerecht-05.tvf");
QUALITY(Short43, "tests/data/golden/regelgerecht-10.tvf");
#undef QUALITY

/// Plans of 8 to 10 orders, compared with their proved optimum.
void Proven(benchmark::State& state) {
    constexpr unsigned kPlans = 100;
    unsigned optimal = 0;
    for (auto _ : state) {
        for (unsigned seed = 1; seed <= kPlans; ++seed) {
            const SearchTask task = SmallPlan(seed);
            const auto best = Search(task, {}, kGoOn, Quiet).best;
            optimal += best && best->score.duration == ProvenDuration(task) ? 1U : 0U;
        }
    }
    state.counters["optimal_of_100"] = optimal;
}
BENCHMARK(Proven)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
