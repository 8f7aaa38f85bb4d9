// The laws, each on a run of its own.
#include "PlanLaws.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <numeric>
#include <random>
#include <sstream>
#include <vector>

#include "console/RunReport.h"
#include "model/Cost.h"
#include "model/ItemTable.h"
#include "model/Transitions.h"
#include "persistence/PlanFile.h"
#include "plan/EditHistory.h"
#include "plan/ListEdit.h"
#include "plan/Rules.h"
#include "simulation/Comparison.h"
#include "simulation/History.h"
#include "simulation/RunSimulation.h"
#include "simulation/RunTrace.h"
#include "simulation/Simulation.h"
#include "util/Codepage1252.h"

namespace tarvelin {

namespace {

constexpr SimTime kEndeDerUhr(std::numeric_limits<Long>::max());

class Stumm final : public MessageSink {
  public:
    void Show(const Message& /*meldung*/) override {}
    void Beep() override {}
};

/// All that a run tells, and the state behind each of its steps.
class Mitschrift final : public RunObserver {
  public:
    void OnStart(const StartEvent& ereignis) override {
        Starts.push_back(ereignis);
        StartIm.push_back(Staende.size());
    }
    void OnNegativeStock(const GameState& /*stand*/) override {
        SchuldenIm.push_back(Staende.size());
    }
    void OnStepDone(const GameState& stand) override { Staende.push_back(stand); }

    std::vector<StartEvent> Starts;
    /// The step of each start, and of each debt that was told.
    std::vector<std::size_t> StartIm;
    std::vector<std::size_t> SchuldenIm;
    std::vector<GameState> Staende;
};

std::string Bytes(const Plan& plan) {
    IniFile profil("");
    WritePlan(plan, profil);
    return profil.Bytes();
}

std::array<const std::string*, 6> Eingaben(const StartParameters& p) {
    return {&p.UniStartZeitTag,     &p.UniStartZeitMonat,   &p.UniStartZeitJahr,
            &p.UniStartZeitStunden, &p.UniStartZeitMinuten, &p.TempMax};
}

bool IstSpeicherbar(const Plan& plan) {
    const auto eingaben = Eingaben(plan.parameters);
    return std::ranges::all_of(eingaben, [](const auto* text) { return KommtZurueck(*text); }) &&
           std::ranges::all_of(plan.LV_Schlafzeiten,
                               [](const SleepRow& zeile) {
                                   return KommtZurueck(zeile.Startzeit) &&
                                          KommtZurueck(zeile.Endzeit);
                               }) &&
           std::ranges::all_of(plan.LV_Bauliste.Rows(),
                               [](const BuildListRow& zeile) { return KommtZurueck(zeile.Tag); });
}

/// The conditions of a plan's run, or some where it has none.
RunConditions BedingungenVon(const Plan& plan) {
    const auto bedingungen = ParseRunConditions(plan);
    const auto* const gelesen = std::get_if<RunConditions>(&bedingungen);
    return gelesen == nullptr ? RunConditions{.Speedfaktor = 1} : *gelesen;
}

/// What goes on from a point of the history, less what the start of that step costs.
PerResource<FixedPoint> VorratNachSchritt(const GameState& vorher, const GameState& nachher,
                                          const StartEvent* start) {
    const HistoryRecorder verlauf(vorher);
    auto vorrat = StockAfter(verlauf.Recorded().back(), nachher.secsgone - vorher.secsgone);
    if (start != nullptr && start->order.kind == Order::Kind::Item) {
        const Cost& preis = CostOf(start->order.item, static_cast<Byte>(start->number - 1));
        for (const Resource r : kResources) {
            vorrat[r] = vorrat[r] - FixedPoint::FromDouble(preis[r]);
        }
    }
    return vorrat;
}

Befund PruefeVorraete(const Mitschrift& lauf, const GameState& anfang) {
    std::size_t naechster = 0;
    for (std::size_t i = 0; i < lauf.Staende.size(); ++i) {
        const GameState& vorher = i == 0 ? anfang : lauf.Staende[i - 1];
        const GameState& stand = lauf.Staende[i];
        const bool start = naechster < lauf.StartIm.size() && lauf.StartIm[naechster] == i;
        const auto soll =
            VorratNachSchritt(vorher, stand, start ? &lauf.Starts[naechster] : nullptr);
        naechster += start ? 1 : 0;
        if (soll != stand.stock && stand.secsgone != kEndeDerUhr) {
            return "a stock is wrong behind step " + std::to_string(i);
        }
        if ((start && std::ranges::min(stand.stock) < FixedPoint()) !=
            (std::ranges::count(lauf.SchuldenIm, i) == 1)) {
            return "a debt isn't told in step " + std::to_string(i);
        }
    }
    return {};
}

/// The code's first letter names the queue, whatever the run thinks.
Befund PruefeSchlangen(const Mitschrift& lauf) {
    std::map<char, SimTime> frei;
    for (const StartEvent& start : lauf.Starts) {
        SimTime& bis = frei[start.order.Tag().front()];
        if (start.order.kind == Order::Kind::Item && start.start < bis) {
            return "row " + std::to_string(start.row + 1) + " starts within its queue's last one";
        }
        bis = std::max(bis, start.finish);
    }
    return {};
}

Befund PruefeSummen(const OrderList& liste, const GameState& stand) {
    double verbaut = 0;
    for (const ItemRow& zeile : ItemTable()) {
        if (stand.Stufe[zeile.item] != liste.ListStufe(zeile.item)) {
            return "a level is wrong";
        }
        for (Byte stufe = 0; stufe < liste.ListStufe(zeile.item); ++stufe) {
            const Cost& preis = CostOf(zeile.item, stufe);
            verbaut = std::accumulate(preis.begin(), preis.end(), verbaut);
        }
    }
    return stand.VerbauteRessourcen == HalfEvenLong(verbaut) ? "" : "the sum of costs is wrong";
}

/// Whether a run that goes on tells and does what the whole one did from step `schritt` on.
bool GehtWeiterWie(const Mitschrift& ganz, std::size_t schritt, const Mitschrift& rest) {
    const auto starts = std::ranges::lower_bound(ganz.StartIm, schritt) - ganz.StartIm.begin();
    return std::ranges::equal(ganz.Staende.begin() + static_cast<std::ptrdiff_t>(schritt),
                              ganz.Staende.end(), rest.Staende.begin(), rest.Staende.end()) &&
           std::ranges::equal(ganz.Starts.begin() + starts, ganz.Starts.end(), rest.Starts.begin(),
                              rest.Starts.end());
}

/// A run over the first `n` orders, up to the step that started the last of them.
Simulation LaufBis(std::span<const Order> auftraege, std::size_t n,
                   const RunConditions& bedingungen) {
    Simulation lauf(auftraege.first(n), bedingungen);
    Mitschrift stumm;
    while (lauf.NextListRow() < n || lauf.HasPendingOrder()) {
        lauf.Step(stumm);
    }
    return lauf;
}

/// How many rows the rules wouldn't let be where they stand.
std::size_t Regelbrueche(const std::vector<std::string>& tags) {
    std::size_t brueche = 0;
    OrderList liste;
    for (const std::string& tag : tags) {
        const Order order = Order::FromTag(tag);
        if (order.kind == Order::Kind::Item && Refusal(order.item, liste)) {
            ++brueche;
        }
        liste.Append(order);
    }
    return brueche;
}

/// Some edit of some rows.
ListEdit Irgendeine(const BuildList& liste, std::minstd_rand& zufall) {
    const std::size_t zeilen = liste.Rows().size();
    std::vector<std::size_t> gewaehlt;
    for (std::size_t i = 0; i < zeilen; ++i) {
        if (zufall() % zeilen < 2) {
            gewaehlt.push_back(i);
        }
    }
    ListEdit umstellung(liste);
    const std::size_t stelle = zufall() % (zeilen + 1);
    switch (zufall() % 7) {
        case 0:
            umstellung.MoveUp(gewaehlt);
            break;
        case 1:
            umstellung.MoveDown(gewaehlt);
            break;
        case 2:
            umstellung.MoveBefore(stelle, gewaehlt);
            break;
        case 3:
            umstellung.Remove(gewaehlt);
            break;
        case 4:
            umstellung.Duplicate(gewaehlt);
            break;
        case 5:
            umstellung.Insert(stelle, "GX:1:2:3");
            break;
        default:
            umstellung.Insert(stelle, ItemTable()[zufall() % kNumItems].ItemCode);
    }
    return umstellung;
}

/// What dropping rows one by one gives.
BuildList Nacheinander(const std::vector<std::string>& tags, const RunConditions& bedingungen) {
    BuildList liste;
    for (const std::string& tag : tags) {
        const Order order = Order::FromTag(tag);
        static_cast<void>(order.kind == Order::Kind::Item
                              ? liste.AddItem(order.item, bedingungen)
                              : liste.AddProduction(order.factors, bedingungen));
    }
    return liste;
}

}  // namespace

std::string Zustand(const BuildList& liste) {
    std::string text;
    for (const BuildListRow& zeile : liste.Rows()) {
        text += zeile.text + "|" + zeile.Tag + "|" + zeile.SubItems1 + "|" + zeile.SubItems2 + "|" +
                (zeile.SubItems2Color == TextColor::Red ? "rot\n" : "schwarz\n");
    }
    for (const ItemRow& zeile : ItemTable()) {
        text += std::to_string(liste.Orders().ListStufe(zeile.item)) + " ";
    }
    for (const Byte faktor : liste.Orders().ListFaktor()) {
        text += std::to_string(faktor) + " ";
    }
    return text;
}

std::string Ergebnis(const Plan& plan) {
    std::ostringstream strom;
    const PlanRun lauf("plan.tvf", IniFile(Bytes(plan)));
    WriteText(strom, lauf);
    WriteCsvRows(strom, lauf);
    strom << JsonText(lauf);
    return strom.str();
}

Befund PruefeSpeichern(const Plan& plan) {
    if (!IstSpeicherbar(plan)) {
        return {};
    }
    // Both lists are made on a planet of the same temperature.
    const RunConditions bedingungen;
    Stumm meldungen;
    Plan vorher;
    Plan nachher;
    if (!ReadPlan(IniFile(Bytes(plan)), vorher, bedingungen, meldungen) ||
        !ReadPlan(IniFile(Bytes(vorher)), nachher, bedingungen, meldungen)) {
        return "a saved plan can't be loaded";
    }
    if (Bytes(nachher) != Bytes(plan) || nachher.LV_Schlafzeiten != plan.LV_Schlafzeiten) {
        return "a saved plan comes back as\n" + Bytes(nachher);
    }
    if (Zustand(nachher.LV_Bauliste) != Zustand(vorher.LV_Bauliste)) {
        return "a saved list comes back as\n" + Zustand(nachher.LV_Bauliste);
    }
    return Ergebnis(nachher) == Ergebnis(plan) ? "" : "a saved plan has another result";
}

Befund PruefeUndo(const Plan& plan) {
    const RunConditions bedingungen = BedingungenVon(plan);
    BuildList liste;
    for (const BuildListRow& zeile : plan.LV_Bauliste.Rows()) {
        const std::string vorher = Zustand(liste);
        const auto anderes = static_cast<ItemId>(liste.Rows().size() % ItemTable().size());
        if (liste.AddItem(anderes, bedingungen)) {
            return "a row can't be added";
        }
        liste.RemoveLast();
        if (!liste.AddProduction({{1, 2, 3}}, bedingungen)) {
            liste.RemoveLast();
        }
        if (Zustand(liste) != vorher) {
            return "an undo leaves\n" + Zustand(liste);
        }
        if (!liste.Replay(zeile.Tag, bedingungen)) {
            return "a row can't be repeated";
        }
    }
    return {};
}

Befund PruefeBuecher(const Plan& plan) {
    if (std::holds_alternative<Message>(ParseRunConditions(plan))) {
        return {};
    }
    const RunConditions bedingungen = BedingungenVon(plan);
    const OrderList& liste = plan.LV_Bauliste.Orders();
    Simulation simulation(liste.All(), bedingungen);
    const GameState anfang = simulation.State();
    Mitschrift lauf;
    simulation.RunToEnd(lauf);
    for (std::size_t i = 0; i < liste.Size(); ++i) {
        if (lauf.Starts.size() != liste.Size() || lauf.Starts[i].row != i ||
            lauf.Starts[i].order != liste.All()[i]) {
            return "row " + std::to_string(i + 1) + " hasn't started in its turn";
        }
    }
    for (const Befund& befund : {PruefeSchlangen(lauf), PruefeVorraete(lauf, anfang),
                                 PruefeSummen(liste, simulation.State())}) {
        if (!befund.empty()) {
            return befund;
        }
    }
    return {};
}

Befund PruefeWiederaufnahme(const Plan& plan) {
    constexpr std::size_t kProben = 12;
    const RunConditions bedingungen = BedingungenVon(plan);
    const auto orders = plan.LV_Bauliste.Orders().All();
    std::vector<Order> andere(orders.begin(), orders.end());
    Simulation lauf(orders, bedingungen);
    std::vector<Simulation> kopien;
    Mitschrift ganz;
    while (!lauf.IsFinished()) {
        kopien.push_back(lauf);
        lauf.Step(ganz);
    }
    for (std::size_t schritt = 0; schritt < kopien.size(); schritt += 1 + kopien.size() / kProben) {
        const GameState vorher = kopien[schritt].State();
        Simulation kopie = kopien[schritt];
        Mitschrift rest;
        kopie.RunToEnd(rest);
        if (!GehtWeiterWie(ganz, schritt, rest) || kopie.State() != lauf.State()) {
            return "a copy goes on otherwise from step " + std::to_string(schritt);
        }
        if (kopien[schritt].State() != vorher) {
            return "a copy has changed what it was copied from";
        }
    }
    for (std::size_t n = 1; n < orders.size(); n += 1 + orders.size() / kProben) {
        std::ranges::copy(orders, andere.begin());
        std::ranges::reverse(andere.begin() + static_cast<std::ptrdiff_t>(n), andere.end());
        Simulation neu(andere, bedingungen);
        Mitschrift vonVorn;
        neu.RunToEnd(vonVorn);
        Simulation fortgesetzt = LaufBis(orders, n, bedingungen);
        fortgesetzt.ReplaceOrders(andere);
        Mitschrift rest;
        fortgesetzt.RunToEnd(rest);
        if (!GehtWeiterWie(vonVorn, vonVorn.Staende.size() - rest.Staende.size(), rest) ||
            rest.Starts.size() != orders.size() - n) {
            return "a run goes on otherwise behind row " + std::to_string(n);
        }
    }
    return {};
}

Befund PruefeZeitsprung(const Plan& plan) {
    constexpr Long kStuecke = 7;
    constexpr std::int64_t kStunde = 3600;
    constexpr std::int64_t kGenau = std::int64_t{1} << 40U;
    const RunConditions bedingungen = BedingungenVon(plan);
    Simulation lauf(plan.LV_Bauliste.Orders().All(), bedingungen);
    Mitschrift stumm;
    lauf.RunToEnd(stumm);
    GameState gesprungen = lauf.State();
    GameState gegangen = lauf.State();
    std::int64_t teiler = kStunde;
    for (const FixedPoint rate : gesprungen.ProStunde) {
        teiler = std::gcd(teiler, rate.Raw());
        if (std::abs(rate.Raw()) > kGenau) {
            return {};
        }
    }
    const auto stueck = static_cast<Long>(kStunde / teiler);
    VergeheZeit(kStuecke * stueck, gesprungen);
    for (Long i = 0; i < kStuecke; ++i) {
        VergeheZeit(stueck, gegangen);
    }
    return gesprungen == gegangen || gesprungen.secsgone == kEndeDerUhr
               ? ""
               : "a jump is no walk of " + std::to_string(stueck) + " s";
}

Befund PruefeWiederholung(const Plan& plan) {
    PlanRun lauf("plan.tvf", IniFile(Bytes(plan)));
    const std::string einmal = JsonText(lauf);
    if (lauf.hasRun) {
        Stumm meldungen;
        lauf.run.ResetSimulation(BedingungenVon(lauf.plan));
        RunSimulation(lauf.plan.LV_Bauliste.Orders().All(), lauf.run, meldungen);
        lauf.texts.AfterRun(lauf.run.state);
    }
    return JsonText(lauf) == einmal ? "" : "a second run has another result";
}

Befund PruefeKurve(const Plan& plan) {
    if (plan.LV_Bauliste.Orders().IsEmpty()) {
        return {};
    }
    const RunConditions bedingungen = BedingungenVon(plan);
    const RunTrace ablauf = TraceRun(plan.LV_Bauliste.Orders().All(), bedingungen);
    Simulation simulation(plan.LV_Bauliste.Orders().All(), bedingungen);
    Mitschrift lauf;
    lauf.OnStepDone(simulation.State());
    simulation.RunToEnd(lauf);
    const auto nachZeit = [](const HistoryPoint& a, const HistoryPoint& b) {
        return a.time >= b.time;
    };
    if (std::ranges::adjacent_find(ablauf.curve, nachZeit) != ablauf.curve.end()) {
        return "the curve goes back in time";
    }
    for (std::size_t i = 0; i < lauf.Staende.size(); ++i) {
        const SimTime um = lauf.Staende[i].secsgone;
        // The run goes on from the last state that isn't behind the moment: those after it are.
        std::size_t letzter = i;
        for (std::size_t j = i + 1; j < lauf.Staende.size(); ++j) {
            letzter = lauf.Staende[j].secsgone <= um ? j : letzter;
        }
        const HistoryPoint& punkt = PointAt(ablauf.curve, um);
        const GameState& stand = lauf.Staende[letzter];
        if (punkt.time != stand.secsgone || punkt.stock != stand.stock ||
            punkt.ProStunde != stand.ProStunde || punkt.Stufe != stand.Stufe) {
            return "the curve is wrong at " + std::to_string(um.Seconds());
        }
    }
    return ablauf.end == simulation.State() && ablauf.starts == lauf.Starts
               ? ""
               : "a run that is drawn is another one";
}

Befund PruefeUmstellungen(const Plan& plan) {
    constexpr int kProben = 25;
    const RunConditions bedingungen = BedingungenVon(plan);
    std::minstd_rand zufall(static_cast<unsigned>(plan.LV_Bauliste.Rows().size()) + 1);
    BuildList liste = Nacheinander(plan.LV_Bauliste.Tags(), bedingungen);
    EditHistory verlauf;
    std::vector<std::vector<std::string>> staende{liste.Tags()};
    verlauf.Begin({.tags = liste.Tags()});
    for (int i = 0; i < kProben; ++i) {
        const ListEdit umstellung = Irgendeine(liste, zufall);
        const auto tags = umstellung.Tags();
        const bool zuLang = tags.size() > OrderList::kMaxSize;
        const std::size_t brueche = Regelbrueche(liste.Tags());
        const auto einwand = umstellung.Objection();
        if (!einwand && (zuLang || Regelbrueche(tags) > brueche)) {
            return "an edit is let be that breaks a rule";
        }
        if (einwand && !zuLang && brueche == 0 && Regelbrueche(tags) == 0) {
            return "an edit is refused: " + *einwand;
        }
        if (einwand || tags == staende.back()) {
            continue;
        }
        verlauf.Record({.tags = tags});
        liste.SetTags(tags, bedingungen);
        staende.push_back(tags);
        if (Zustand(liste) != Zustand(Nacheinander(tags, bedingungen))) {
            return "an edited list isn't its rows dropped anew";
        }
    }
    for (std::size_t i = staende.size() - 1; i > 0; --i) {
        if (verlauf.Undo().tags != staende[i - 1] || verlauf.Redo().tags != staende[i] ||
            verlauf.Undo().tags != staende[i - 1]) {
            return "an edit can't be taken back and done again";
        }
    }
    return verlauf.CanUndo() ? "there is more to take back than was done" : "";
}

Befund PruefeVergleich(const Plan& plan) {
    if (plan.LV_Bauliste.Orders().IsEmpty()) {
        return {};
    }
    const RunConditions bedingungen = BedingungenVon(plan);
    const auto orders = plan.LV_Bauliste.Orders().All();
    std::vector<Order> andere(orders.begin(), orders.end());
    std::ranges::reverse(andere);
    andere.resize(andere.size() / 2 + 1);
    const RunTrace a = TraceRun(orders, bedingungen);
    const RunTrace b = TraceRun(andere, bedingungen);
    if (!Compare(a, a).differences.empty()) {
        return "a run differs from itself";
    }
    const Comparison hin = Compare(a, b);
    Comparison her = Compare(b, a);
    for (ComparisonRow& zeile : her.differences) {
        std::swap(zeile.a, zeile.b);
    }
    if (hin.a != her.b || hin.b != her.a || hin.differences != her.differences) {
        return "a comparison has no mirror";
    }
    // Each start of either is in it, or the same in both.
    std::size_t in_a = 0;
    std::size_t in_b = 0;
    for (const ComparisonRow& zeile : hin.differences) {
        in_a += zeile.a ? 1U : 0U;
        in_b += zeile.b ? 1U : 0U;
    }
    return a.starts.size() - in_a == b.starts.size() - in_b ? "" : "a comparison loses orders";
}

Befund PruefeGesetze(const Plan& plan) {
    for (const auto gesetz :
         {PruefeSpeichern, PruefeUndo, PruefeBuecher, PruefeWiederaufnahme, PruefeZeitsprung,
          PruefeWiederholung, PruefeKurve, PruefeUmstellungen, PruefeVergleich}) {
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
    const std::string bytes = To1252(wert);
    return !angefuehrt && kBlanks.find(wert.front()) == std::string_view::npos &&
           kBlanks.find(wert.back()) == std::string_view::npos &&
           wert.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos &&
           bytes.size() <= kHoechstlaenge && From1252(bytes) == wert;
}

}  // namespace tarvelin
