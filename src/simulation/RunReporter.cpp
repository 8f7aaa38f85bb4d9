// Texts of a run's messages.
#include "simulation/RunReporter.h"

#include "util/FixedPoint.h"

namespace tarvelin {

void RunReporter::OnNegativeStock(const GameState& state) {
    m_messages.Show({.text = "Negative Ressourcen: Metall: " + DecimalText(state.Metall()) +
                             "    Kristall:" + DecimalText(state.Kristall()) +
                             "    Deuterium: " + DecimalText(state.Deuterium()),
                     .title = "Simulations-Fehler, bitte melden"});
}

void RunReporter::OnUnknownOrder(UnknownOrderAt where) {
    m_messages.Show({.text = where == UnknownOrderAt::Start ? "STARTAUFTRAG NICHT ERKANNT"
                                                            : "UpgrdingensSAUFTRAG NICHT ERKANNT",
                     .title = ""});
}

}  // namespace tarvelin
