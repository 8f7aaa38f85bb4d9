// What the library's page lacks.
#include "console/HelpPage.h"

#include "console/TextTable.h"
#include "model/ItemTable.h"

namespace tarvelin {

namespace {

constexpr const char* kBeispiele =
    "Beispiele:\n"
    "  tarvelin-cli mein-plan.tvf\n"
    "      Der Zeitplan: wann welcher Auftrag, und warum nicht früher.\n"
    "  tarvelin-cli --suche mein-plan.tvf --nach schneller.tvf\n"
    "      Sucht eine schnellere Reihenfolge und schreibt sie in eine neue Datei.\n"
    "  tarvelin-cli --suche mein-plan.tvf --ziel \"GW2 FV2 WKT1\"\n"
    "      Der schnellste Weg zu Werft 2, Verbrennungstriebwerk 2 und einem Transporter.\n";

/// "  GM    Metallmine".
std::string Codezeile(std::string_view code, std::string_view name) {
    constexpr std::size_t kBreite = 6;
    return "  " + Aufgefuellt(std::string(code), kBreite, false) + std::string(name) + "\n";
}

}  // namespace

Hilfeseite::Hilfeseite() {
    constexpr std::size_t kSpalte = 26;
    column_width(kSpalte);
}

std::string Hilfeseite::make_usage(const CLI::App* /*app*/, std::string name) const {
    return "Aufruf: " + name + " [OPTIONEN] PLAN.tvf ...\n";
}

std::string Hilfeseite::make_option_opts(const CLI::Option* option) const {
    const std::string wert = option->get_type_name();
    return wert.empty() ? "" : " " + wert;
}

std::string Hilfeseite::make_footer(const CLI::App* /*app*/) const {
    std::string text = "\nCodes in Plandateien, und mit Stufe oder Anzahl für --ziel:\n";
    for (const ItemRow& zeile : ItemTable()) {
        text += Codezeile(zeile.ItemCode, zeile.name);
    }
    return text +
           Codezeile(kProductionCode,
                     "nur in Plandateien: Produktion, etwa GX:8:10:5 für 80, 100 und 50 %") +
           "\n" + kBeispiele;
}

}  // namespace tarvelin
