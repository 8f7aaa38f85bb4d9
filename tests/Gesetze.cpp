// The laws, each on a run of its own.
#include "Gesetze.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <numeric>
#include <optional>
#include <sstream>
#include <vector>

#include "console/Ausgabe.h"
#include "persistence/Planablage.h"
#include "plan/ItemCode.h"
#include "simulation/RunSimulation.h"
#include "util/Codepage1252.h"

namespace tarvelin {

namespace {

constexpr Long kEndeDerUhr = std::numeric_limits<Long>::max();

/// Counts debts that are told.
class Schuldenzaehler final : public Meldungsausgabe {
  public:
    void Zeige(const Meldung& meldung) override {
        Schulden += meldung.Text.starts_with("Negative Ressourcen") ? 1 : 0;
    }
    void Piepton() override {}

    int Schulden = 0;
};

std::string Bytes(const Plan& plan) {
    Profil profil("");
    SchreibePlan(plan, profil);
    return profil.Bytes();
}

std::array<const std::string*, 6> Eingaben(const Startparameter& p) {
    return {&p.UniStartZeitTag,     &p.UniStartZeitMonat,   &p.UniStartZeitJahr,
            &p.UniStartZeitStunden, &p.UniStartZeitMinuten, &p.TempMax};
}

bool IstSpeicherbar(const Plan& plan) {
    const auto eingaben = Eingaben(plan.Parameter);
    return std::ranges::all_of(eingaben, [](const auto* text) { return KommtZurueck(*text); }) &&
           std::ranges::all_of(plan.Schlafzeiten,
                               [](const SchlafzeitZeile& zeile) {
                                   return KommtZurueck(zeile.Startzeit) &&
                                          KommtZurueck(zeile.Endzeit);
                               }) &&
           std::ranges::all_of(plan.Liste.Zeilen(), [](const BaulistenZeile& zeile) {
               return KommtZurueck(zeile.Tag) && zeile.Order.Was != Auftrag::Art::Unbekannt;
           });
}

/// A plan that was run, or nothing if its inputs can't be used.
struct Gelaufener {
    Lauf Ergebnis;
    Schuldenzaehler Meldungen;
    bool Gelungen;

    explicit Gelaufener(Plan plan)
        : Gelungen(RunSimulation(plan, Ergebnis, Meldungen, true) == Laufausgang::Gelaufen) {}
};

/// The books of a run. Starts are taken from its result, everything else is worked out anew.
class Buchhaltung {
  public:
    Buchhaltung(const Plan& plan, const Lauf& lauf, int schulden)
        : m_zeilen(plan.Liste.Zeilen()),
          m_puffer(plan.Parameter.KlickPuffer),
          m_lauf(lauf),
          m_schulden(schulden) {
        const GlobaleVariablen& globale = lauf.Planet.Globale;
        m_planet.Globale.Speedfaktor = globale.Speedfaktor;
        m_planet.Globale.StartDate = globale.StartDate;
        m_planet.ResetSimulation(globale.Temperatur);
    }

    Befund Pruefe() {
        while (m_naechste < m_zeilen.size() || !m_offen.empty()) {
            const auto finish = std::ranges::min_element(m_offen, {}, &Finish::Wann);
            const bool beginnt = m_naechste < m_zeilen.size() &&
                                 (finish == m_offen.end() || Startzeile() < finish->Wann);
            const Befund befund = beginnt ? Beginne() : Beende(finish);
            if (!befund.empty() || m_unklar) {
                return befund;
            }
            m_planet.EnergieBilanz();
        }
        return Vergleiche();
    }

  private:
    struct Finish {
        Long Wann = 0;
        std::optional<ItemId> Was;
    };

    [[nodiscard]] Long Start() const {
        return m_lauf.LV_Bauzeiten[m_naechste].Zeit() - m_lauf.Planet.Globale.StartDate;
    }
    /// Where the start stood in the timetable: the click comes on top.
    [[nodiscard]] Long Startzeile() const { return LongSumme(Start(), -m_puffer); }

    Befund Beginne() {
        const BaulistenZeile& zeile = m_zeilen[m_naechste];
        const Auftrag& order = zeile.Order;
        const Long start = Start();
        m_planet.VergeheZeit(LongSumme(start, -m_planet.Globale.secsgone.Sekunden()));
        if (order.Was == Auftrag::Art::Produktion) {
            constexpr float kZehntel = 10.0F;
            m_planet.MetMine.SetProdfaktor(static_cast<float>(order.Faktoren[0]) / kZehntel);
            m_planet.KrisMine.SetProdfaktor(static_cast<float>(order.Faktoren[1]) / kZehntel);
            m_planet.DeutMine.SetProdfaktor(static_cast<float>(order.Faktoren[2]) / kZehntel);
            m_offen.push_back({start, std::nullopt});
        } else if (const Befund befund = BeginneItem(zeile, start); !befund.empty()) {
            return befund;
        }
        const GlobaleVariablen& globale = m_planet.Globale;
        const bool schulden =
            std::min({globale.Metall, globale.Kristall, globale.Deuterium}) < Festkomma();
        m_schulden -= schulden ? 1 : 0;
        ++m_naechste;
        return {};
    }

    Befund BeginneItem(const BaulistenZeile& zeile, Long start) {
        GlobaleVariablen& globale = m_planet.Globale;
        cItem& item = m_planet.Item(zeile.Order.Item);
        const Kosten preis = item.GetKosten(item.GetStufe());
        m_unklar = start == kEndeDerUhr ||
                   (preis.Deuterium > 0 && globale.DeuteriumProStunde <= Festkomma() &&
                    globale.Stufe(ItemId::SKW) == 0 && globale.Stufe(ItemId::DeutMine) == 0);
        // The code's first letter names the queue, whatever the run thinks.
        Long& frei = m_frei[zeile.Tag.front()];
        if (!m_unklar && start < frei) {
            return "row " + std::to_string(m_naechste + 1) + " starts within its queue's last one";
        }
        globale.Metall = globale.Metall - Festkomma::AusDouble(preis.Metall);
        globale.Kristall = globale.Kristall - Festkomma::AusDouble(preis.Kristall);
        globale.Deuterium = globale.Deuterium - Festkomma::AusDouble(preis.Deuterium);
        m_ausgegeben += preis.Metall + preis.Kristall + preis.Deuterium;
        frei = HalfEvenLong(start + item.GetUpgradeTime());
        m_offen.push_back({frei, zeile.Order.Item});
        return {};
    }

    Befund Beende(std::vector<Finish>::iterator finish) {
        m_planet.VergeheZeit(LongSumme(finish->Wann, -m_planet.Globale.secsgone.Sekunden()));
        m_unklar = finish->Wann == kEndeDerUhr;
        if (finish->Was) {
            m_planet.Item(*finish->Was).UpgradeFinished();
        }
        m_offen.erase(finish);
        return {};
    }

    [[nodiscard]] Befund Vergleiche() const {
        const GlobaleVariablen& soll = m_planet.Globale;
        const GlobaleVariablen& ist = m_lauf.Planet.Globale;
        if (soll.secsgone != ist.secsgone) {
            return "the clock says " + std::to_string(ist.secsgone.Sekunden());
        }
        if (soll.Stufen != ist.Stufen) {
            return "a level is wrong";
        }
        for (const auto vorrat : {&GlobaleVariablen::Metall, &GlobaleVariablen::Kristall,
                                  &GlobaleVariablen::Deuterium}) {
            if (soll.*vorrat != ist.*vorrat) {
                return "a stock is " + Dezimaltext(ist.*vorrat) + " and should be " +
                       Dezimaltext(soll.*vorrat);
            }
        }
        if (m_ausgegeben < kEndeDerUhr && m_ausgegeben != ist.VerbauteRessourcen) {
            return "spent is not " + std::to_string(ist.VerbauteRessourcen);
        }
        return m_schulden == 0 ? "" : "a debt was told too often, or not";
    }

    const std::vector<BaulistenZeile>& m_zeilen;
    Long m_puffer;
    const Lauf& m_lauf;
    int m_schulden;
    Startplanet m_planet;
    std::vector<Finish> m_offen;
    std::map<char, Long> m_frei;
    std::size_t m_naechste = 0;
    double m_ausgegeben = 0;
    bool m_unklar = false;
};

bool NurBekannte(const Plan& plan) {
    return std::ranges::none_of(plan.Liste.Zeilen(), [](const BaulistenZeile& zeile) {
        return zeile.Order.Was == Auftrag::Art::Unbekannt;
    });
}

}  // namespace

std::string Zustand(const Bauliste& liste) {
    std::string text;
    for (const BaulistenZeile& zeile : liste.Zeilen()) {
        text += zeile.Text + "|" + zeile.Tag + "|" + zeile.SubItems1 + "|" + zeile.SubItems2 + "|" +
                (zeile.SubItems2Farbe == Farbe::Rot ? "rot\n" : "schwarz\n");
    }
    for (const ItemZeile& zeile : ItemTabelle()) {
        text += std::to_string(liste.ListStufe(zeile.Item)) + " ";
    }
    for (const Byte faktor : liste.ListFaktor()) {
        text += std::to_string(faktor) + " ";
    }
    return text;
}

std::string Ergebnis(const Plan& plan) {
    std::ostringstream strom;
    const Planlauf lauf("plan.tvf", Profil(Bytes(plan)), strom);
    SchreibeText(strom, lauf);
    SchreibeCsv(strom, lauf);
    strom << JsonText(lauf);
    return strom.str();
}

Befund PruefeSpeichern(const Plan& plan) {
    if (!IstSpeicherbar(plan)) {
        return {};
    }
    // Both lists are made on a planet of the same temperature.
    const Startplanet planet;
    Schuldenzaehler meldungen;
    Plan vorher;
    Plan nachher;
    if (!LadePlan(Profil(Bytes(plan)), vorher, planet, meldungen) ||
        !LadePlan(Profil(Bytes(vorher)), nachher, planet, meldungen)) {
        return "a saved plan can't be loaded";
    }
    if (Bytes(nachher) != Bytes(plan) || nachher.Schlafzeiten != plan.Schlafzeiten) {
        return "a saved plan comes back as\n" + Bytes(nachher);
    }
    if (Zustand(nachher.Liste) != Zustand(vorher.Liste)) {
        return "a saved list comes back as\n" + Zustand(nachher.Liste);
    }
    return Ergebnis(nachher) == Ergebnis(plan) ? "" : "a saved plan has another result";
}

Befund PruefeUndo(const Plan& plan) {
    const Gelaufener gelaufener(plan);
    const Startplanet& planet = gelaufener.Ergebnis.Planet;
    Bauliste liste;
    std::size_t n = 0;
    for (const BaulistenZeile& zeile : plan.Liste.Zeilen()) {
        const std::string vorher = Zustand(liste);
        const ItemZeile& andere = ItemTabelle()[n++ % kItemAnzahl];
        if (liste.DragDrop(andere.Bild, planet)) {
            return "a row can't be added";
        }
        liste.Undo();
        if (!liste.AddProdaenderungsevent({1, 2, 3}, planet)) {
            liste.Undo();
        }
        if (Zustand(liste) != vorher) {
            return "an undo leaves\n" + Zustand(liste);
        }
        if (zeile.Order.Was == Auftrag::Art::Item) {
            static_cast<void>(liste.DragDrop(ZeileVon(zeile.Order.Item).Bild, planet));
        } else if (zeile.Order.Was == Auftrag::Art::Produktion) {
            liste.ReplayProduktion(zeile.Tag, zeile.Order.Faktoren, planet);
        }
    }
    return {};
}

Befund PruefeZeitsprung(const Plan& plan) {
    constexpr Long kStuecke = 7;
    constexpr std::int64_t kGenau = std::int64_t{1} << 40U;
    constexpr std::int64_t kStunde = 3600;
    Gelaufener sprung(plan);
    Gelaufener gang(plan);
    GlobaleVariablen& gesprungen = sprung.Ergebnis.Planet.Globale;
    const GlobaleVariablen& gegangen = gang.Ergebnis.Planet.Globale;
    std::int64_t teiler = kStunde;
    for (const Festkomma rate : {gesprungen.MetallProStunde, gesprungen.KristallProStunde,
                                 gesprungen.DeuteriumProStunde}) {
        teiler = std::gcd(teiler, rate.Rohwert());
        if (std::abs(rate.AlsDouble()) > kGenau / Festkomma::kEinheit) {
            return {};
        }
    }
    const auto stueck = static_cast<Long>(kStunde / teiler);
    if (!sprung.Gelungen || gesprungen.secsgone + kStuecke * stueck == Moment(kEndeDerUhr)) {
        return {};
    }
    sprung.Ergebnis.Planet.VergeheZeit(kStuecke * stueck);
    for (Long i = 0; i < kStuecke; ++i) {
        gang.Ergebnis.Planet.VergeheZeit(stueck);
    }
    const bool gleich =
        gesprungen.Metall == gegangen.Metall && gesprungen.Kristall == gegangen.Kristall &&
        gesprungen.Deuterium == gegangen.Deuterium && gesprungen.secsgone == gegangen.secsgone;
    return gleich ? "" : "a jump is no walk of " + std::to_string(stueck) + " s";
}

Befund PruefeBuchhaltung(const Plan& plan) {
    const Gelaufener gelaufener(plan);
    if (!gelaufener.Gelungen || !NurBekannte(plan)) {
        return {};
    }
    if (gelaufener.Ergebnis.LV_Bauzeiten.size() != plan.Liste.Zeilen().size()) {
        return "a row hasn't started";
    }
    return Buchhaltung(plan, gelaufener.Ergebnis, gelaufener.Meldungen.Schulden).Pruefe();
}

Befund PruefeWiederholung(const Plan& plan) {
    std::ostringstream strom;
    Planlauf lauf("plan.tvf", Profil(Bytes(plan)), strom);
    const std::string einmal = JsonText(lauf);
    Schuldenzaehler meldungen;
    if (lauf.Gelaufen) {
        RunSimulation(lauf.Plan, lauf.Lauf, meldungen, true);
        lauf.Texte.NachLauf(lauf.Lauf.Planet.Globale);
    }
    return JsonText(lauf) == einmal ? "" : "a second run has another result";
}

Befund PruefeGesetze(const Plan& plan) {
    for (const auto gesetz :
         {PruefeSpeichern, PruefeUndo, PruefeZeitsprung, PruefeBuchhaltung, PruefeWiederholung}) {
        if (Befund befund = gesetz(plan); !befund.empty()) {
            return befund;
        }
    }
    return {};
}

bool KommtZurueck(std::string_view wert) {
    constexpr std::string_view kBlanks = " \t\v\f";
    constexpr std::size_t kHoechstlaenge = 255;
    if (wert.empty()) {
        return true;
    }
    const bool angefuehrt = wert.size() >= 2 && wert.front() == wert.back() &&
                            (wert.front() == '"' || wert.front() == '\'');
    const std::string bytes = Nach1252(wert);
    return !angefuehrt && kBlanks.find(wert.front()) == std::string_view::npos &&
           kBlanks.find(wert.back()) == std::string_view::npos &&
           wert.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos &&
           bytes.size() <= kHoechstlaenge && Aus1252(bytes) == wert;
}

}  // namespace tarvelin
