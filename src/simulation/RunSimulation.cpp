// Rows and messages of a run.
#include "simulation/RunSimulation.h"

#include "model/Transitions.h"
#include "simulation/ObserverGroup.h"
#include "simulation/RunReporter.h"
#include "simulation/Simulation.h"

namespace tarvelin {

void Lauf::Beginne(const RunConditions& bedingungen) {
    Bedingungen = bedingungen;
    Stand = InitialState(Bedingungen);
    LV_Bauzeiten.clear();
}

void Lauf::ResetSimulation(const StartParameters& parameter) {
    Bedingungen.Temperatur = ParseTemperature(parameter).value_or(Bedingungen.Temperatur);
    Stand = InitialState(Bedingungen);
    LV_Bauzeiten.clear();
}

void RunSimulation(std::span<const Order> auftraege, Lauf& lauf, MessageSink& meldungen) {
    lauf.LV_Bauzeiten.reserve(auftraege.size());
    Bauzeitenschreiber zeilen(lauf.Bedingungen, lauf.LV_Bauzeiten);
    Laufmeldungen worte(meldungen);
    Beobachterreihe beobachter(zeilen, worte);
    Simulation simulation(auftraege, lauf.Bedingungen);
    simulation.Laufe(beobachter);
    lauf.Stand = simulation.Stand();
}

}  // namespace tarvelin
