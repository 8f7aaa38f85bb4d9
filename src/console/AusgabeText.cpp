// Timetable and figures as aligned text and as rows of a spreadsheet.
#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "console/Ausgabe.h"

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
                          bauzeit.theText(), Datumzeittext(bauzeit.Zeit()),
                          bauzeit.Grund().Text()});
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

void SchreibeFigur(std::ostream& strom, const std::string& name, const std::string& wert) {
    constexpr std::size_t kNamensbreite = 20;
    constexpr std::size_t kWertbreite = 16;
    strom << Aufgefuellt(name + ":", kNamensbreite, false) << Aufgefuellt(wert, kWertbreite, true)
          << '\n';
}

/// The figure in a label's text: what stands behind `vorsatz` and in front of `nachsatz`.
std::string Figur(std::string_view text, std::string_view vorsatz, std::string_view nachsatz) {
    text.remove_prefix(vorsatz.size());
    text.remove_suffix(nachsatz.size());
    return std::string(text);
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
    SchreibeTabelle(strom, Zeittabelle(lauf.Gelaufen.LV_Bauzeiten));
    strom << '\n';
    const Ergebnistexte& texte = lauf.Texte;
    SchreibeFigur(strom, "Dauer", Figur(texte.LBL_Timegone, "Dauer: ", ""));
    SchreibeFigur(strom, "Metall", texte.LBL_Met);
    SchreibeFigur(strom, "Kristall", texte.LBL_Kris);
    SchreibeFigur(strom, "Deuterium", texte.LBL_Deut);
    SchreibeFigur(strom, "Energie", texte.LBL_ENergie);
    SchreibeFigur(strom, "Punkte", Figur(texte.LBL_Punkte, "", " P"));
    SchreibeFigur(strom, "Punkte inkl. Res.",
                  Figur(texte.LBL_Punkte_Hinweis, "Inkl. Res.: ", " Punkte"));
}

void SchreibeCsvKopf(std::ostream& strom) {
    strom << "\xEF\xBB\xBF";
    SchreibeCsvZeile(strom, "Plan", Kopf());
}

void SchreibeCsv(std::ostream& strom, const Planlauf& lauf) {
    for (const Zeile& zeile : Zeittabelle(lauf.Gelaufen.LV_Bauzeiten)) {
        SchreibeCsvZeile(strom, lauf.Name, zeile);
    }
}

}  // namespace tarvelin
