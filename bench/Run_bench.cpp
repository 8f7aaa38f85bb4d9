// What a run, a load and a save of a plan cost, told beside the cost of a power: a ratio that means
// the same on any machine.
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

class QuietObserver final : public MessageSink {
  public:
    void Show(const Message& /*meldung*/) override {}
    void Beep() override {}
};

/// Counts starts.
class StartCounter final : public RunObserver {
  public:
    void OnStart(const StartEvent& /*ereignis*/) override { ++starts; }

    std::size_t starts = 0;
};

/// Orders as a player would give them: within the rules, buildings and research up to levels that
/// an opening reaches, ships and defences in batches, now and then a production row.
OrderList MakeList(std::size_t rows) {
    constexpr int kHighestMine = 20;
    constexpr int kMaxLevel = 6;
    constexpr unsigned kProductionEvery = 40;
    constexpr int kBatch = 5;
    std::minstd_rand random(20061118);
    OrderList list;
    while (list.Size() < rows) {
        const ItemRow& row = RowOf(static_cast<ItemId>(random() % kNumItems));
        // The first four items are the mines and the power plant.
        const int highest = row.item < ItemId::Robo ? kHighestMine : kMaxLevel;
        const bool unit = row.queue == Queue::Shipyard && row.item != ItemId::klSchK;
        if (random() % kProductionEvery == 0) {
            list.Append(Order::Of(MineFactors{{10, 10, 8}}));
        } else if (!Refusal(row.item, list) && (unit || list.ListStufe(row.item) < highest)) {
            for (int i = 0; i < (unit ? kBatch : 1) && list.Size() < rows; ++i) {
                list.Append(Order::Of(row.item));
            }
        }
    }
    return list;
}

/// With two nights of sleep.
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
    state.counters["Allokationen"] = benchmark::Counter(static_cast<double>(Allocations() - before),
                                                        benchmark::Counter::kAvgIterations);
}

/// With the rows of its build times, as the window shows them.
void Running(benchmark::State& state) {
    const OrderList list = MakeList(RowCount(state));
    const RunConditions conditions = Conditions();
    QuietObserver messages;
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

/// With an observer that only counts.
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

/// A list of orders, without a text.
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
    QuietObserver messages;
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

/// Prints the table and keeps the times, in nanoseconds.
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
    const double power = collector.TimeOf("Potenz");
    if (power > 0) {
        for (const int rows : {60, 254}) {
            const double run = collector.TimeOf("Laufen/" + std::to_string(rows));
            std::printf("Ein Ereignis eines Laufs von %d Zeilen kostet %.2f Potenzen.\n", rows,
                        run / (2 * rows) / power);
        }
    }
    const double sixty = collector.TimeOf("Zaehlen/60");
    if (sixty > 0) {
        for (const auto& [what, name] : {std::pair("Das letzte Drittel", "Fortsetzen/60"),
                                         std::pair("Der Aufbau der Liste", "Bauen/60")}) {
            std::printf("%s kostet %.1f %% eines Laufs von 60 Zeilen.\n", what,
                        100 * collector.TimeOf(name) / sixty);
        }
    }
    return EXIT_SUCCESS;
}
