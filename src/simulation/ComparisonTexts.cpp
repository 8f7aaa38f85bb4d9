// Rows of four texts.
#include "simulation/ComparisonTexts.h"

#include "simulation/RunTexts.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

Vergleichstext Zeit(std::string name, Long a, Long b) {
    return {std::move(name), Spannentext(a), Spannentext(b),
            Aenderungstext(LongSum(b, -std::int64_t{a}))};
}

Vergleichstext Zahl(std::string name, double a, double b, int stellen) {
    const auto text = [stellen](double wert) { return DecimalText(wert, stellen); };
    return {std::move(name), text(a), text(b), (b > a ? "+" : "") + text(b - a)};
}

}  // namespace

std::vector<Vergleichstext> Kennzahltexte(const Vergleich& vergleich) {
    const Kennzahlen& a = vergleich.A;
    const Kennzahlen& b = vergleich.B;
    constexpr double kRessourcenJePunkt = 1000;
    constexpr int kStellen = 3;
    std::vector<Vergleichstext> zeilen{Zeit("Dauer", a.Dauer, b.Dauer),
                                       Zahl("Punkte", a.VerbauteRessourcen / kRessourcenJePunkt,
                                            b.VerbauteRessourcen / kRessourcenJePunkt, kStellen)};
    struct Name {
        Resource Was;
        const char* Text;
    };
    for (const auto& [was, name] :
         {Name{Resource::Metall, "Metall"}, Name{Resource::Kristall, "Kristall"},
          Name{Resource::Deuterium, "Deuterium"}}) {
        zeilen.push_back(Zahl(name, static_cast<double>(a.Vorrat[was].WholePart()),
                              static_cast<double>(b.Vorrat[was].WholePart()), 0));
    }
    zeilen.push_back(Zahl("Sitzungen", a.Sitzungen, b.Sitzungen, 0));
    for (const Queue schlange : {Queue::Building, Queue::Research, Queue::Shipyard}) {
        zeilen.push_back(Zeit(std::string(Schlangenname(schlange)) + " ohne Arbeit",
                              a.Leerlauf[schlange], b.Leerlauf[schlange]));
    }
    return zeilen;
}

std::vector<Vergleichstext> Auftragstexte(const Vergleich& vergleich) {
    std::vector<Vergleichstext> zeilen;
    const auto text = [](const std::optional<SimTime>& moment) {
        return moment ? Spannentext(moment->Seconds()) : "fehlt";
    };
    for (const Vergleichszeile& zeile : vergleich.Unterschiede) {
        const auto unterschied = zeile.Unterschied();
        zeilen.push_back({Auftragstext(zeile.Order, zeile.Nummer), text(zeile.A), text(zeile.B),
                          unterschied ? Aenderungstext(*unterschied) : ""});
    }
    return zeilen;
}

}  // namespace tarvelin
