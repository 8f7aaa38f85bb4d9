// The words of a run.
#include "simulation/RunReporter.h"

#include "util/FixedPoint.h"

namespace tarvelin {

void Laufmeldungen::Schulden(const Spielstand& stand) {
    m_ausgabe.Zeige(
        {.Text = "Negative Ressourcen: Metall: " + Dezimaltext(stand.Vorrat[Rohstoff::Metall]) +
                 "    Kristall:" + Dezimaltext(stand.Vorrat[Rohstoff::Kristall]) +
                 "    Deuterium: " + Dezimaltext(stand.Vorrat[Rohstoff::Deuterium]),
         .Titel = "Simulations-Fehler, bitte melden"});
}

void Laufmeldungen::Unbekannt(Unbekanntes was) {
    m_ausgabe.Zeige({.Text = was == Unbekanntes::Start ? "STARTAUFTRAG NICHT ERKANNT"
                                                       : "UpgrdingensSAUFTRAG NICHT ERKANNT",
                     .Titel = ""});
}

}  // namespace tarvelin
