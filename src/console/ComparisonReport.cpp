// The tables of a comparison.
#include "console/ComparisonReport.h"

#include <nlohmann/json.hpp>

#include "console/TextTable.h"
#include "simulation/ComparisonTexts.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

using nlohmann::json;
using Zeilen = std::vector<std::vector<std::string>>;

Zeilen MitKopf(std::vector<std::string> kopf, const std::vector<Vergleichstext>& texte) {
    Zeilen zeilen{std::move(kopf)};
    for (const Vergleichstext& text : texte) {
        zeilen.emplace_back(text.begin(), text.end());
    }
    return zeilen;
}

json AlsJson(const Planlauf& plan, const Kennzahlen& zahlen) {
    return {{"Plan", plan.Name},
            {"Sekunden", zahlen.Dauer},
            {"VerbauteRessourcen", zahlen.VerbauteRessourcen},
            {"Metall", FourDecimalsText(zahlen.Vorrat[Resource::Metall])},
            {"Kristall", FourDecimalsText(zahlen.Vorrat[Resource::Kristall])},
            {"Deuterium", FourDecimalsText(zahlen.Vorrat[Resource::Deuterium])},
            {"Sitzungen", zahlen.Sitzungen},
            {"Leerlauf",
             {{"Bauschleife", zahlen.Leerlauf[Queue::Building]},
              {"Forschungsschleife", zahlen.Leerlauf[Queue::Research]},
              {"Werftschleife", zahlen.Leerlauf[Queue::Shipyard]}}}};
}

json Sekunden(const std::optional<SimTime>& moment) {
    return moment ? json(moment->Seconds()) : json();
}

}  // namespace

void SchreibeVergleich(std::ostream& strom, const Planlauf& a, const Planlauf& b) {
    const Vergleich vergleich = Vergleiche(a.Abgespielt(), b.Abgespielt());
    constexpr const char* kUnterschied = "Unterschied";
    const std::vector<std::size_t> rechts{1, 2, 3};
    SchreibeTabelle(strom, MitKopf({"", a.Name, b.Name, kUnterschied}, Kennzahltexte(vergleich)),
                    rechts);
    strom << '\n';
    const auto auftraege = Auftragstexte(vergleich);
    if (auftraege.empty()) {
        strom << "Alle Aufträge beginnen zur selben Zeit.\n";
        return;
    }
    SchreibeTabelle(strom, MitKopf({"Auftrag", a.Name, b.Name, kUnterschied}, auftraege), rechts);
}

std::string VergleichsJson(const Planlauf& a, const Planlauf& b) {
    const Vergleich vergleich = Vergleiche(a.Abgespielt(), b.Abgespielt());
    json unterschiede = json::array();
    for (const Vergleichszeile& zeile : vergleich.Unterschiede) {
        const auto unterschied = zeile.Unterschied();
        unterschiede.push_back({{"Auftrag", Auftragsschluessel(zeile.Order, zeile.Nummer)},
                                {"Tag", zeile.Order.Tag()},
                                {"Nummer", zeile.Nummer},
                                {"A", Sekunden(zeile.A)},
                                {"B", Sekunden(zeile.B)},
                                {"Unterschied", unterschied ? json(*unterschied) : json()}});
    }
    return json{{"A", AlsJson(a, vergleich.A)},
                {"B", AlsJson(b, vergleich.B)},
                {"Unterschiede", unterschiede}}
        .dump(1);
}

}  // namespace tarvelin
