// The words of a run.
#include "simulation/RunReporter.h"

#include "util/FixedPoint.h"

namespace tarvelin {

void Laufmeldungen::Schulden(const GameState& stand) {
    m_ausgabe.Show(
        {.text = "Negative Ressourcen: Metall: " + DecimalText(stand.stock[Resource::Metall]) +
                 "    Kristall:" + DecimalText(stand.stock[Resource::Kristall]) +
                 "    Deuterium: " + DecimalText(stand.stock[Resource::Deuterium]),
         .title = "Simulations-Fehler, bitte melden"});
}

void Laufmeldungen::Unbekannt(Unbekanntes was) {
    m_ausgabe.Show({.text = was == Unbekanntes::Start ? "STARTAUFTRAG NICHT ERKANNT"
                                                      : "UpgrdingensSAUFTRAG NICHT ERKANNT",
                    .title = ""});
}

}  // namespace tarvelin
