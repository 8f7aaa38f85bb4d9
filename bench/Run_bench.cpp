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

class Schweigend final : public MessageSink {
  public:
    void Show(const Message& /*meldung*/) override {}
    void Beep() override {}
};

/// Counts starts.
class Zaehler final : public RunObserver {
  public:
    void OnStart(const StartEvent& /*ereignis*/) override { ++Starts; }

    std::size_t Starts = 0;
};

/// Orders as a player would give them: within the rules, buildings and research up to levels that
/// an opening reaches, ships and defences in batches, now and then a production row.
OrderList MacheListe(std::size_t zeilen) {
    constexpr int kHoechsteMine = 20;
    constexpr int kHoechsteStufe = 6;
    constexpr unsigned kProduktionJede = 40;
    constexpr int kStapel = 5;
    std::minstd_rand zufall(20061118);
    OrderList liste;
    while (liste.Size() < zeilen) {
        const ItemRow& zeile = RowOf(static_cast<ItemId>(zufall() % kNumItems));
        // The first four items are the mines and the power plant.
        const int hoechste = zeile.item < ItemId::Robo ? kHoechsteMine : kHoechsteStufe;
        const bool einheit = zeile.queue == Queue::Shipyard && zeile.item != ItemId::klSchK;
        if (zufall() % kProduktionJede == 0) {
            liste.Append(Order::Of(MineFactors{{10, 10, 8}}));
        } else if (!Refusal(zeile.item, liste) &&
                   (einheit || liste.ListStufe(zeile.item) < hoechste)) {
            for (int i = 0; i < (einheit ? kStapel : 1) && liste.Size() < zeilen; ++i) {
                liste.Append(Order::Of(zeile.item));
            }
        }
    }
    return liste;
}

/// With two nights of sleep.
Plan MachePlan(std::size_t zeilen) {
    Plan plan;
    plan.parameters.UniStartZeitTag = "18";
    plan.parameters.UniStartZeitMonat = "11";
    plan.parameters.UniStartZeitJahr = "2006";
    plan.LV_Schlafzeiten = {{"18.11.2006 23:00", "19.11.2006 07:00"},
                            {"19.11.2006 23:00", "20.11.2006 07:00"}};
    const OrderList liste = MacheListe(zeilen);
    for (const Order& order : liste.All()) {
        (void)plan.LV_Bauliste.Replay(order.Tag(), RunConditions());
    }
    return plan;
}

RunConditions Bedingungen() {
    return std::get<RunConditions>(ParseRunConditions(MachePlan(1)));
}

std::size_t Zeilen(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

void MerkeAllokationen(benchmark::State& state, std::size_t vorher) {
    state.counters["Allokationen"] = benchmark::Counter(
        static_cast<double>(Allokationen() - vorher), benchmark::Counter::kAvgIterations);
}

/// With the rows of its build times, as the window shows them.
void Laufen(benchmark::State& state) {
    const OrderList liste = MacheListe(Zeilen(state));
    const RunConditions bedingungen = Bedingungen();
    Schweigend meldungen;
    const std::size_t vorher = Allokationen();
    for (auto _ : state) {
        LastRun lauf;
        lauf.ResetSimulation(bedingungen);
        RunSimulation(liste.All(), lauf, meldungen);
        benchmark::DoNotOptimize(lauf.state);
    }
    MerkeAllokationen(state, vorher);
}
BENCHMARK(Laufen)->Arg(60)->Arg(254);

/// With an observer that only counts.
void Zaehlen(benchmark::State& state) {
    const OrderList liste = MacheListe(Zeilen(state));
    const RunConditions bedingungen = Bedingungen();
    const std::size_t vorher = Allokationen();
    for (auto _ : state) {
        Zaehler zaehler;
        Simulation simulation(liste.All(), bedingungen);
        simulation.RunToEnd(zaehler);
        benchmark::DoNotOptimize(zaehler.Starts);
    }
    MerkeAllokationen(state, vorher);
}
BENCHMARK(Zaehlen)->Arg(60)->Arg(254);

/// The last third of a run, from a copy of its state.
void Fortsetzen(benchmark::State& state) {
    const OrderList liste = MacheListe(Zeilen(state));
    const RunConditions bedingungen = Bedingungen();
    Zaehler zaehler;
    Simulation stand(liste.All(), bedingungen);
    while (stand.NextListRow() < liste.Size() * 2 / 3 || stand.HasPendingOrder()) {
        stand.Step(zaehler);
    }
    for (auto _ : state) {
        Simulation simulation = stand;
        simulation.RunToEnd(zaehler);
        benchmark::DoNotOptimize(zaehler.Starts);
    }
}
BENCHMARK(Fortsetzen)->Arg(60);

void Kopieren(benchmark::State& state) {
    const OrderList liste = MacheListe(1);
    const RunConditions bedingungen = Bedingungen();
    const Simulation simulation(liste.All(), bedingungen);
    Simulation kopie = simulation;
    for (auto _ : state) {
        kopie = simulation;
        benchmark::DoNotOptimize(kopie);
    }
}
BENCHMARK(Kopieren);

/// A list of orders, without a text.
void Bauen(benchmark::State& state) {
    const OrderList vorlage = MacheListe(Zeilen(state));
    for (auto _ : state) {
        OrderList liste;
        for (const Order& order : vorlage.All()) {
            liste.Append(order);
        }
        benchmark::DoNotOptimize(liste);
    }
}
BENCHMARK(Bauen)->Arg(60);

void Laden(benchmark::State& state) {
    IniFile profil("");
    WritePlan(MachePlan(Zeilen(state)), profil);
    const std::string bytes = profil.Bytes();
    Schweigend meldungen;
    for (auto _ : state) {
        Plan plan;
        benchmark::DoNotOptimize(ReadPlan(IniFile(bytes), plan, RunConditions(), meldungen));
    }
}
BENCHMARK(Laden)->Arg(60)->Arg(254);

void Speichern(benchmark::State& state) {
    const Plan plan = MachePlan(Zeilen(state));
    for (auto _ : state) {
        IniFile profil("");
        WritePlan(plan, profil);
        benchmark::DoNotOptimize(profil.Bytes());
    }
}
BENCHMARK(Speichern)->Arg(60)->Arg(254);

void Potenz(benchmark::State& state) {
    constexpr unsigned kStufen = 64;
    unsigned n = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::pow(1.1, static_cast<double>(n)));
        n = (n + 1) % kStufen;
    }
}
BENCHMARK(Potenz);

/// Prints the table and keeps the times, in nanoseconds.
class Sammler final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& laeufe) override {
        for (const Run& lauf : laeufe) {
            m_zeiten[lauf.benchmark_name()] = lauf.GetAdjustedCPUTime();
        }
        ConsoleReporter::ReportRuns(laeufe);
    }
    [[nodiscard]] double Zeit(const std::string& name) const {
        const auto zeit = m_zeiten.find(name);
        return zeit == m_zeiten.end() ? 0 : zeit->second;
    }

  private:
    std::map<std::string, double> m_zeiten;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return EXIT_FAILURE;
    }
    Sammler sammler;
    benchmark::RunSpecifiedBenchmarks(&sammler);
    const double potenz = sammler.Zeit("Potenz");
    if (potenz > 0) {
        for (const int zeilen : {60, 254}) {
            const double lauf = sammler.Zeit("Laufen/" + std::to_string(zeilen));
            std::printf("Ein Ereignis eines Laufs von %d Zeilen kostet %.2f Potenzen.\n", zeilen,
                        lauf / (2 * zeilen) / potenz);
        }
    }
    const double sechzig = sammler.Zeit("Zaehlen/60");
    if (sechzig > 0) {
        for (const auto& [was, name] : {std::pair("Das letzte Drittel", "Fortsetzen/60"),
                                        std::pair("Der Aufbau der Liste", "Bauen/60")}) {
            std::printf("%s kostet %.1f %% eines Laufs von 60 Zeilen.\n", was,
                        100 * sammler.Zeit(name) / sechzig);
        }
    }
    return EXIT_SUCCESS;
}
