// Starts, history and messages of one run.
#include "simulation/RunTrace.h"

#include <algorithm>

#include "simulation/ObserverGroup.h"
#include "simulation/RunReporter.h"
#include "simulation/Simulation.h"

namespace tarvelin {

namespace {

class Startliste final : public Laufbeobachter {
  public:
    explicit Startliste(std::vector<Startereignis>& starts) : m_starts(starts) {}

    void Start(const Startereignis& ereignis) override { m_starts.push_back(ereignis); }

  private:
    std::vector<Startereignis>& m_starts;
};

}  // namespace

const Startereignis* Ablauf::StartDer(std::size_t zeile) const {
    const auto start = std::ranges::lower_bound(Starts, zeile, {}, &Startereignis::Zeile);
    return start != Starts.end() && start->Zeile == zeile ? &*start : nullptr;
}

Ablauf SpieleAb(std::span<const Order> auftraege, const RunConditions& bedingungen) {
    Ablauf ablauf;
    ablauf.Bedingungen = bedingungen;
    ablauf.Starts.reserve(auftraege.size());
    Simulation simulation(auftraege, ablauf.Bedingungen);
    Startliste starts(ablauf.Starts);
    Verlauf verlauf(simulation.Stand());
    MessageCollector liste(ablauf.Meldungen);
    Laufmeldungen worte(liste);
    Beobachterreihe beobachter(starts, verlauf, worte);
    simulation.Laufe(beobachter);
    ablauf.Ende = simulation.Stand();
    ablauf.Kurve = KurveAus(verlauf.Punkte());
    return ablauf;
}

std::vector<Verlaufspunkt> KurveAus(std::span<const Verlaufspunkt> verlauf) {
    std::vector<Verlaufspunkt> kurve;
    kurve.reserve(verlauf.size());
    for (const Verlaufspunkt& punkt : verlauf) {
        while (!kurve.empty() && kurve.back().Zeit >= punkt.Zeit) {
            kurve.pop_back();
        }
        kurve.push_back(punkt);
    }
    return kurve;
}

const Verlaufspunkt& PunktUm(std::span<const Verlaufspunkt> kurve, SimTime moment) {
    const auto naechster = std::ranges::upper_bound(kurve, moment, {}, &Verlaufspunkt::Zeit);
    return naechster == kurve.begin() ? kurve.front() : *(naechster - 1);
}

}  // namespace tarvelin
