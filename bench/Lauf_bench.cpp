// What a run, a load and a save of a plan cost, told beside the cost of a power: a ratio that means
// the same on any machine.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <string>

#include "Allokationen.h"
#include "persistence/Planablage.h"
#include "plan/ItemCode.h"
#include "plan/Regeln.h"
#include "simulation/RunSimulation.h"

namespace {

using namespace tarvelin;

class Schweigend final : public Meldungsausgabe {
  public:
    void Zeige(const Meldung& /*meldung*/) override {}
    void Piepton() override {}
};

/// A plan as a player would make it: within the rules, buildings and research up to levels that
/// an opening reaches, ships and defences in batches, now and then a production row, two nights of
/// sleep.
Plan MachePlan(std::size_t zeilen) {
    constexpr int kHoechsteMine = 20;
    constexpr int kHoechsteStufe = 6;
    constexpr unsigned kProduktionJede = 40;
    constexpr int kStapel = 5;
    std::minstd_rand zufall(20061118);
    Plan plan;
    plan.Parameter.UniStartZeitTag = "18";
    plan.Parameter.UniStartZeitMonat = "11";
    plan.Parameter.UniStartZeitJahr = "2006";
    plan.Schlafzeiten = {{"18.11.2006 23:00", "19.11.2006 07:00"},
                         {"19.11.2006 23:00", "20.11.2006 07:00"}};
    const Startplanet planet;
    while (plan.Liste.Zeilen().size() < zeilen) {
        const ItemZeile& zeile = ItemTabelle()[zufall() % kItemAnzahl];
        // The first four rows of the table are the mines and the power plant.
        const int hoechste = &zeile < &ItemTabelle()[4] ? kHoechsteMine : kHoechsteStufe;
        const bool einheit = zeile.Code[0] == 'W' && zeile.Item != ItemId::klSchK;
        if (zufall() % kProduktionJede == 0) {
            (void)plan.Liste.AddProdaenderungsevent({10, 10, 8}, planet);
        } else if (!Absage(zeile.Item, plan.Liste) &&
                   (einheit || plan.Liste.ListStufe(zeile.Item) < hoechste)) {
            for (int i = 0; i < (einheit ? kStapel : 1); ++i) {
                (void)plan.Liste.DragDrop(zeile.Bild, planet);
            }
        }
    }
    while (plan.Liste.Zeilen().size() > zeilen) {
        plan.Liste.Undo();
    }
    return plan;
}

std::size_t Zeilen(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

void Laufen(benchmark::State& state) {
    Plan plan = MachePlan(Zeilen(state));
    Lauf lauf;
    Schweigend meldungen;
    const std::size_t vorher = Allokationen();
    for (auto _ : state) {
        // Each run with result rows of its own, as the first one after a start.
        lauf.LV_Bauzeiten = Bauzeiten();
        benchmark::DoNotOptimize(RunSimulation(plan, lauf, meldungen, true));
    }
    state.counters["Allokationen"] = benchmark::Counter(
        static_cast<double>(Allokationen() - vorher), benchmark::Counter::kAvgIterations);
}
BENCHMARK(Laufen)->Arg(60)->Arg(254);

void Laden(benchmark::State& state) {
    Profil profil("");
    SchreibePlan(MachePlan(Zeilen(state)), profil);
    const std::string bytes = profil.Bytes();
    Schweigend meldungen;
    for (auto _ : state) {
        Plan plan;
        Lauf lauf;
        benchmark::DoNotOptimize(LadePlan(Profil(bytes), plan, lauf.Planet, meldungen) &&
                                 RunSimulation(plan, lauf, meldungen, true) ==
                                     Laufausgang::Gelaufen);
    }
}
BENCHMARK(Laden)->Arg(60)->Arg(254);

void Speichern(benchmark::State& state) {
    const Plan plan = MachePlan(Zeilen(state));
    for (auto _ : state) {
        Profil profil("");
        SchreibePlan(plan, profil);
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
    return EXIT_SUCCESS;
}
