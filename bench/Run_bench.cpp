// Measures a run, a load and a save of a plan. The run is also given as a multiple of one std::pow,
// a ratio that hardly depends on the machine.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string>
#include <utility>

#include "Allocations.h"
#include "model/ItemTable.h"
#include "persistence/PlanFile.h"
#include "plan/Rules.h"
#include "simulation/RunSimulation.h"
#include "simulation/Simulation.h"

namespace {

using namespace tarvelin;

class NullSink final : public MessageSink {
  public:
    void Show(const Message& /*message*/) override {}
    void Beep() override {}
};

class StartCounter final : public RunObserver {
  public:
    void OnStart(const StartEvent& /*event*/) override { ++starts; }

    std::size_t starts = 0;
};

/// Orders as a player would give them: they keep the rules, buildings and research end at the
/// levels of an opening, ships and defences come in batches, and production rows are rare.
OrderList MakeList(std::size_t rows) {
    constexpr int kMaxMineLevel = 20;
    constexpr int kMaxLevel = 6;
    constexpr unsigned kProductionEvery = 40;
    constexpr int kBatch = 5;
    std::minstd_rand random(20061118);
    OrderList list;
    while (list.Size() < rows) {
        const ItemRow& row = RowOf(static_cast<ItemId>(random() % kNumItems));
        // The first four items are the mines and the power plant.
        const int maxLevel = row.item < ItemId::Robo ? kMaxMineLevel : kMaxLevel;
        const bool unit = row.queue == Queue::Shipyard && row.item != ItemId::klSchK;
        if (random() % kProductionEvery == 0) {
            list.Append(Order::Of(MineFactors{{10, 10, 8}}));
        } else if (!Refusal(row.item, list) && (unit || list.ListStufe(row.item) < maxLevel)) {
            for (int i = 0; i < (unit ? kBatch : 1) && list.Size() < rows; ++i) {
                list.Append(Order::Of(row.item));
            }
        }
    }
    return list;
}

/// A plan with two nights of sleep.
Plan MakePlan(std::size_t rows) {
    Plan plan;
    plan.parameters.UniStartZeitTag = "18";
    plan.parameters.UniStartZeitMonat = "11";
    plan.parameters.UniStartZeitJahr = "2006";
    plan.LV_Schlafzeiten = {{"18.11.2006 23:00", "19.11.2006 07:00"},
                            {"19.11.2006 23:00", "20.11.2006 07:00"}};
    const OrderList list = MakeList(rows);
    for (const Order& order : list.All()) {
        (void)plan.LV_Bauliste.Replay(order.Tag(), RunConditions());
    }
    return plan;
}

RunConditions Conditions() {
    return std::get<RunConditions>(ParseRunConditions(MakePlan(1)));
}

std::size_t RowCount(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

void RecordAllocations(benchmark::State& state, std::size_t before) {
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(Allocations() - before),
                                                       benchmark::Counter::kAvgIterations);
}

/// A run that records its schedule, as the window needs it.
void Running(benchmark::State& state) {
    const OrderList list = MakeList(RowCount(state));
    const RunConditions conditions = Conditions();
    NullSink messages;
    const std::size_t before = Allocations();
    for (auto _ : state) {
        LastRun run;
        run.ResetSimulation(conditions);
        RunSimulation(list.All(), run, messages);
        benchmark::DoNotOptimize(run.state);
    }
    RecordAllocations(state, before);
}
BENCHMARK(Running)->Arg(60)->Arg(254);

/// A run with an observer that only counts.
void Counting(benchmark::State& state) {
    const OrderList list = MakeList(RowCount(state));
    const RunConditions conditions = Conditions();
    const std::size_t before = Allocations();
    for (auto _ : state) {
        StartCounter counter;
        Simulation simulation(list.All(), conditions);
        simulation.RunToEnd(counter);
        benchmark::DoNotOptimize(counter.starts);
    }
    RecordAllocations(state, before);
}
BENCHMARK(Counting)->Arg(60)->Arg(254);

/// The last third of a run, from a copy of its state.
void Resuming(benchmark::State& state) {
    const OrderList list = MakeList(RowCount(state));
    const RunConditions conditions = Conditions();
    StartCounter counter;
    Simulation prepared(list.All(), conditions);
    while (counter.starts < list.Size() * 2 / 3) {
        prepared.Step(counter);
    }
    for (auto _ : state) {
        Simulation simulation = prepared;
        simulation.RunToEnd(counter);
        benchmark::DoNotOptimize(counter.starts);
    }
}
BENCHMARK(Resuming)->Arg(60);

void Copying(benchmark::State& state) {
    const OrderList list = MakeList(1);
    const RunConditions conditions = Conditions();
    const Simulation simulation(list.All(), conditions);
    Simulation copy = simulation;
    for (auto _ : state) {
        copy = simulation;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(Copying);

/// Makes the list of orders, without texts.
void Building(benchmark::State& state) {
    const OrderList pattern = MakeList(RowCount(state));
    for (auto _ : state) {
        OrderList list;
        for (const Order& order : pattern.All()) {
            list.Append(order);
        }
        benchmark::DoNotOptimize(list);
    }
}
BENCHMARK(Building)->Arg(60);

void Loading(benchmark::State& state) {
    IniFile profile("");
    WritePlan(MakePlan(RowCount(state)), profile);
    const std::string bytes = profile.Bytes();
    NullSink messages;
    for (auto _ : state) {
        Plan plan;
        benchmark::DoNotOptimize(ReadPlan(IniFile(bytes), plan, RunConditions(), messages));
    }
}
BENCHMARK(Loading)->Arg(60)->Arg(254);

void Saving(benchmark::State& state) {
    const Plan plan = MakePlan(RowCount(state));
    for (auto _ : state) {
        IniFile profile("");
        WritePlan(plan, profile);
        benchmark::DoNotOptimize(profile.Bytes());
    }
}
BENCHMARK(Saving)->Arg(60)->Arg(254);

void PowerOf(benchmark::State& state) {
    constexpr unsigned kLevels = 64;
    unsigned n = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::pow(1.1, static_cast<double>(n)));
        n = (n + 1) % kLevels;
    }
}
BENCHMARK(PowerOf);

/// Prints the results and keeps their times, in nanoseconds.
class ResultCollector final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            m_times[run.benchmark_name()] = run.GetAdjustedCPUTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }
    [[nodiscard]] double TimeOf(const std::string& name) const {
        const auto time = m_times.find(name);
        return time == m_times.end() ? 0 : time->second;
    }

  private:
    std::map<std::string, double> m_times;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return EXIT_FAILURE;
    }
    ResultCollector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    const double power = collector.TimeOf("PowerOf");
    if (power > 0) {
        for (const int rows : {60, 254}) {
            const double run = collector.TimeOf("Running/" + std::to_string(rows));
            std::printf("An event of a run of %d rows costs %.2f powers.\n", rows,
                        run / (2 * rows) / power);
        }
    }
    const double sixty = collector.TimeOf("Counting/60");
    if (sixty > 0) {
        for (const auto& [what, name] : {std::pair("The last third", "Resuming/60"),
                                         std::pair("Making the list", "Building/60")}) {
            std::printf("%s costs %.1f %% of a run of 60 rows.\n", what,
                        100 * collector.TimeOf(name) / sixty);
        }
    }
    return EXIT_SUCCESS;
}
