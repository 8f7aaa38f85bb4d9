// What the help page has beyond the library's own.
#include "console/HelpPage.h"

#include "export/TextTable.h"
#include "model/ItemTable.h"

namespace tarvelin {

namespace {

constexpr const char* kExamples =
    "Beispiele:\n"
    "  tarvelin-cli mein-plan.tvf\n"
    "      Der Zeitplan: wann welcher Auftrag, und warum nicht früher.\n"
    "  tarvelin-cli --suche mein-plan.tvf --nach schneller.tvf\n"
    "      Sucht eine schnellere Reihenfolge und schreibt sie in eine neue Datei.\n"
    "  tarvelin-cli --suche mein-plan.tvf --ziel \"werft 3, kl. transporter 2\"\n"
    "      Der schnellste Weg zu Werft 3 und zwei Transportern; GW3 WKT2 heißt dasselbe.\n";

/// "  GM    Metallmine".
std::string CodeLine(std::string_view code, std::string_view name) {
    constexpr std::size_t kWidth = 6;
    return "  " + Padded(std::string(code), kWidth, false) + std::string(name) + "\n";
}

}  // namespace

HelpPage::HelpPage() {
    constexpr std::size_t kColumn = 26;
    column_width(kColumn);
}

std::string HelpPage::make_usage(const CLI::App* /*app*/, std::string name) const {
    return "Aufruf: " + name + " [OPTIONEN] PLAN.tvf ...\n";
}

std::string HelpPage::make_option_opts(const CLI::Option* option) const {
    const std::string value = option->get_type_name();
    return value.empty() ? "" : " " + value;
}

std::string HelpPage::make_footer(const CLI::App* /*app*/) const {
    std::string text =
        "\nCodes in Plandateien. --ziel nimmt Codes und Namen, auch den Teil eines Namens,\n"
        "und dahinter die Stufe oder Anzahl, sonst 1:\n";
    for (const ItemRow& row : ItemTable()) {
        text += CodeLine(row.ItemCode, row.name);
    }
    return text +
           CodeLine(kProductionCode,
                    "nur in Plandateien: Produktion, etwa GX:8:10:5 für 80, 100 und 50 %") +
           "\n" + kExamples;
}

}  // namespace tarvelin
