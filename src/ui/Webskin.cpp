// Order, addresses and questions of a fetch.
#include "ui/Webskin.h"

#include "persistence/Dateiersatz.h"
#include "util/Nuetzliches.h"

namespace tarvelin {

// clang-format off
const std::array<Skinbild, 24> kSkinbilder{{
    {"gebaeude", "1", "ImgMetMine"},
    {"gebaeude", "2", "ImgKrisMine"},
    {"gebaeude", "3", "ImgDeutMine"},
    {"gebaeude", "4", "ImgSKW"},
    {"gebaeude", "14", "ImgRobo"},
    {"gebaeude", "21", "ImgWerft"},
    {"gebaeude", "31", "imgFolab"},
    {"gebaeude", "401", "imgRakws"},
    {"gebaeude", "402", "imglLasers"},
    {"gebaeude", "403", "imgsLasers"},
    {"gebaeude", "212", "imgSolsats"},
    {"gebaeude", "210", "imgSpios"},
    {"gebaeude", "204", "imgLJs"},
    {"gebaeude", "113", "imgENTech"},
    {"gebaeude", "110", "imgSchTech"},
    {"gebaeude", "115", "imgVerbTech"},
    {"gebaeude", "120", "imgLaserTech"},
    {"gebaeude", "106", "imgSpioTech"},
    {"gebaeude", "202", "imgKTs"},
    {"gebaeude", "407", "imgklSchK"},
    {"images", "kristall", "Images(1)"},
    {"images", "metall", "Images(0)"},
    {"images", "deuterium", "Images(2)"},
    {"images", "energie", "Images(3)"},
}};
// clang-format on

namespace {

/// Whether the file lies there afterwards.
bool HoleDatei(const std::string& adresse, const std::filesystem::path& datei,
               const Umgebung& umgebung) {
    if (FileExists(datei)) {
        umgebung.Dateien.Loesche(datei);
    }
    if (const auto bytes = umgebung.Netz.Hole(adresse)) {
        ErsetzeDatei(datei, *bytes, umgebung.Dateien);
    }
    return FileExists(datei);
}

Frage NachFehler(const std::string& ort) {
    return {.Text = "\"" + ort +
                    "\" konnte nicht von der angegebenen URL geladen werden...\r\n\r\n"
                    "Vorgang abbrechen ?",
            .Titel = "Download-Fehler...",
            .Symbol = Meldungssymbol::Warnung};
}

}  // namespace

Webskinausgang HoleWebskin(const std::string& adresse, const std::filesystem::path& ziel,
                           const Umgebung& umgebung, const std::function<bool()>& offen) {
    umgebung.Boxen.Zeige({.Text = "Der folgende Vorgang kann einige Sekunden dauern, je nach "
                                  "Internet-Anbindung...",
                          .Titel = "Fortsetzen...",
                          .Symbol = Meldungssymbol::Hinweis});
    for (const Skinbild& bild : kSkinbilder) {
        const std::string ort = std::string("/") + bild.Ordner + "/" + bild.Name + ".gif";
        umgebung.Netz.Atme();
        const bool geholt = offen() && HoleDatei(adresse + ort, ziel / ort.substr(1), umgebung);
        if (!offen()) {
            return Webskinausgang::Abgebrochen;
        }
        if (!geholt && umgebung.Boxen.Stelle(NachFehler(ort))) {
            return Webskinausgang::Abgebrochen;
        }
    }
    return Webskinausgang::AmEnde;
}

}  // namespace tarvelin
