// Loading and running for the console.
#include "console/Planlauf.h"

#include "console/Meldungsliste.h"

namespace tarvelin {

Planlauf::Planlauf(const std::filesystem::path& datei, std::ostream& fehlerstrom) {
    const auto name = datei.filename().u8string();
    Name.assign(name.begin(), name.end());
    Meldungsliste meldungen(fehlerstrom);
    Ergebnis = LoadBauliste(datei, false, Geplant, Gelaufen, Texte, meldungen);
    Meldungen = meldungen.Meldungen();
}

}  // namespace tarvelin
