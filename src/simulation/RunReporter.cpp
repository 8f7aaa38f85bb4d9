// The words of a run.
#include "simulation/RunReporter.h"

#include "util/FixedPoint.h"

namespace tarvelin {

void Laufmeldungen::Schulden(const Spielstand& stand) {
    m_ausgabe.Show(
        {.text = "Negative Ressourcen: Metall: " + DecimalText(stand.Vorrat[Rohstoff::Metall]) +
                 "    Kristall:" + DecimalText(stand.Vorrat[Rohstoff::Kristall]) +
                 "    Deuterium: " + DecimalText(stand.Vorrat[Rohstoff::Deuterium]),
         .title = "Simulations-Fehler, bitte melden"});
}

void Laufmeldungen::Unbekannt(Unbekanntes was) {
    m_ausgabe.Show({.text = was == Unbekanntes::Start ? "STARTAUFTRAG NICHT ERKANNT"
                                                      : "UpgrdingensSAUFTRAG NICHT ERKANNT",
                    .title = ""});
}

}  // namespace tarvelin
