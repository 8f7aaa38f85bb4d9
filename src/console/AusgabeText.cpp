// Timetable and figures as aligned text and as rows of a spreadsheet.
#include "console/Ausgabe.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvelin {

namespace {

constexpr std::size_t kSpalten = 6;
using Zeile = std::array<std::string, kSpalten>;

const Zeile& Kopf() {
    static const Zeile kKopf{"Nr.", "Wochentag", "Uhrzeit", "theText", "Zeitpunkt", "Verzögerung"};
    return kKopf;
}

std::vector<Zeile> Zeittabelle(const Bauzeiten& bauzeiten) {
    std::vector<Zeile> zeilen;
    zeilen.reserve(bauzeiten.size());
    for (const Bauzeit& bauzeit : bauzeiten) {
        zeilen.push_back({std::to_string(zeilen.size() + 1), bauzeit.Wochentag(), bauzeit.Uhrzeit(),
                          bauzeit.theText(), Datumzeittext(bauzeit.Start),
                          bauzeit.VerzoegerungsGrund()});
    }
    return zeilen;
}

/// Characters of a UTF-8 text.
std::size_t Breite(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char zeichen) { return (static_cast<unsigned char>(zeichen) & 0xC0U) != 0x80U; }));
}

std::string Aufgefuellt(const std::string& text, std::size_t breite, bool rechts) {
    const std::size_t laenge = Breite(text);
    const std::string luecke(laenge < breite ? breite - laenge : 0, ' ');
    return rechts ? luecke + text : text + luecke;
}

void SchreibeTabelle(std::ostream& strom, std::vector<Zeile> zeilen) {
    zeilen.insert(zeilen.begin(), Kopf());
    std::array<std::size_t, kSpalten> breiten{};
    for (const Zeile& zeile : zeilen) {
        for (std::size_t i = 0; i < kSpalten; ++i) {
            breiten[i] = std::max(breiten[i], Breite(zeile[i]));
        }
    }
    for (const Zeile& zeile : zeilen) {
        std::string text;
        for (std::size_t i = 0; i < kSpalten; ++i) {
            text += Aufgefuellt(zeile[i], breiten[i], i == 0) + "  ";
        }
        strom << text.substr(0, text.find_last_not_of(' ') + 1) << '\n';
    }
}

/// Name and figure of what a run came to.
using Figuren = std::vector<std::pair<std::string, std::string>>;

Figuren Ergebnisfiguren(const Planlauf& lauf) {
    const Spielstand& stand = lauf.Lauf.Stand;
    return {{"Dauer:", Dauertext(stand)},
            {"Metall:", lauf.Texte.LBL_Met},
            {"Kristall:", lauf.Texte.LBL_Kris},
            {"Deuterium:", lauf.Texte.LBL_Deut},
            {"Energie:", lauf.Texte.LBL_ENergie},
            {"Punkte:", Punktetext(stand)},
            {"Punkte inkl. Res.:", PunkteMitVorratText(stand)}};
}

void SchreibeFiguren(std::ostream& strom, const Figuren& figuren) {
    std::size_t namensbreite = 0;
    std::size_t wertbreite = 0;
    for (const auto& [name, wert] : figuren) {
        namensbreite = std::max(namensbreite, Breite(name));
        wertbreite = std::max(wertbreite, Breite(wert));
    }
    for (const auto& [name, wert] : figuren) {
        strom << Aufgefuellt(name, namensbreite, false) << "  "
              << Aufgefuellt(wert, wertbreite, true) << '\n';
    }
}

std::string Csvfeld(const std::string& text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos) {
        return text;
    }
    std::string feld = "\"";
    for (const char zeichen : text) {
        feld += zeichen;
        if (zeichen == '"') {
            feld += zeichen;
        }
    }
    return feld + "\"";
}

void SchreibeCsvZeile(std::ostream& strom, const std::string& plan, const Zeile& zeile) {
    strom << Csvfeld(plan);
    for (const std::string& text : zeile) {
        strom << ';' << Csvfeld(text);
    }
    strom << "\r\n";
}

}  // namespace

void SchreibeText(std::ostream& strom, const Planlauf& lauf) {
    strom << lauf.Name << "\n\n";
    SchreibeTabelle(strom, Zeittabelle(lauf.Lauf.LV_Bauzeiten));
    strom << '\n';
    SchreibeFiguren(strom, Ergebnisfiguren(lauf));
}

void SchreibeCsvKopf(std::ostream& strom) {
    strom << "\xEF\xBB\xBF";
    SchreibeCsvZeile(strom, "Plan", Kopf());
}

void SchreibeCsv(std::ostream& strom, const Planlauf& lauf) {
    for (const Zeile& zeile : Zeittabelle(lauf.Lauf.LV_Bauzeiten)) {
        SchreibeCsvZeile(strom, lauf.Name, zeile);
    }
}

}  // namespace tarvelin
