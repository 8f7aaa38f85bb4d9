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

Zeilen MitKopf(std::vector<std::string> kopf, const std::vector<ComparisonText>& texte) {
    Zeilen zeilen{std::move(kopf)};
    for (const ComparisonText& text : texte) {
        zeilen.emplace_back(text.begin(), text.end());
    }
    return zeilen;
}

json AlsJson(const PlanRun& plan, const RunSummary& zahlen) {
    return {{"Plan", plan.name},
            {"Sekunden", zahlen.duration},
            {"VerbauteRessourcen", zahlen.VerbauteRessourcen},
            {"Metall", FourDecimalsText(zahlen.stock[Resource::Metall])},
            {"Kristall", FourDecimalsText(zahlen.stock[Resource::Kristall])},
            {"Deuterium", FourDecimalsText(zahlen.stock[Resource::Deuterium])},
            {"Sitzungen", zahlen.sittings},
            {"Leerlauf",
             {{"Bauschleife", zahlen.idle[Queue::Building]},
              {"Forschungsschleife", zahlen.idle[Queue::Research]},
              {"Werftschleife", zahlen.idle[Queue::Shipyard]}}}};
}

json Sekunden(const std::optional<SimTime>& moment) {
    return moment ? json(moment->Seconds()) : json();
}

}  // namespace

void SchreibeVergleich(std::ostream& strom, const PlanRun& a, const PlanRun& b) {
    const Comparison vergleich = Compare(a.Trace(), b.Trace());
    constexpr const char* kUnterschied = "Unterschied";
    const std::vector<std::size_t> rechts{1, 2, 3};
    SchreibeTabelle(strom, MitKopf({"", a.name, b.name, kUnterschied}, SummaryTexts(vergleich)),
                    rechts);
    strom << '\n';
    const auto auftraege = OrderDifferences(vergleich);
    if (auftraege.empty()) {
        strom << "Alle Aufträge beginnen zur selben Zeit.\n";
        return;
    }
    SchreibeTabelle(strom, MitKopf({"Auftrag", a.name, b.name, kUnterschied}, auftraege), rechts);
}

std::string VergleichsJson(const PlanRun& a, const PlanRun& b) {
    const Comparison vergleich = Compare(a.Trace(), b.Trace());
    json unterschiede = json::array();
    for (const ComparisonRow& zeile : vergleich.differences) {
        const auto unterschied = zeile.Difference();
        unterschiede.push_back({{"Auftrag", OrderKey(zeile.order, zeile.number)},
                                {"Tag", zeile.order.Tag()},
                                {"Nummer", zeile.number},
                                {"A", Sekunden(zeile.a)},
                                {"B", Sekunden(zeile.b)},
                                {"Unterschied", unterschied ? json(*unterschied) : json()}});
    }
    return json{{"A", AlsJson(a, vergleich.a)},
                {"B", AlsJson(b, vergleich.b)},
                {"Unterschiede", unterschiede}}
        .dump(1);
}

}  // namespace tarvelin
