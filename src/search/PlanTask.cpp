// Goals, pins and what is played already.
#include "search/PlanTask.h"

#include <algorithm>
#include <numeric>

#include "plan/Rules.h"
#include "simulation/Simulation.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

using Stufen = PerItem<Byte>;

Suchabsage Falsch(std::string text) {
    return {.Text = std::move(text), .FalscherAufruf = true};
}

/// One word of a goal, "GW2".
std::variant<std::pair<ItemId, Byte>, Suchabsage> LiesZielwort(std::string_view wort) {
    const auto ziffer = std::min(wort.find_first_of("0123456789"), wort.size());
    const auto item = ItemFromCode(wort.substr(0, ziffer));
    if (!item) {
        return Falsch("\"" + std::string(wort) +
                      "\" nennt kein Item: erwartet wird etwa GW2 oder WKT1");
    }
    const auto hoechste = item == ItemId::klSchK ? 1 : std::int64_t{OrderList::kMaxSize};
    const auto stufe = ParseWholeNumber(wort.substr(ziffer), 1, hoechste);
    if (!stufe) {
        return Falsch("\"" + std::string(wort) + "\": die Stufe oder Anzahl muss von 1 bis " +
                      std::to_string(hoechste) + " gehen");
    }
    return std::pair(*item, static_cast<Byte>(*stufe));
}

std::variant<Stufen, Suchabsage> LiesZiel(std::string_view text) {
    Stufen ziel{};
    bool leer = true;
    while (!text.empty()) {
        const auto ende = std::min(text.find(' '), text.size());
        const auto wort = text.substr(0, ende);
        text.remove_prefix(std::min(ende + 1, text.size()));
        if (wort.empty()) {
            continue;
        }
        const auto gelesen = LiesZielwort(wort);
        if (const auto* const absage = std::get_if<Suchabsage>(&gelesen)) {
            return *absage;
        }
        const auto& [item, stufe] = std::get<0>(gelesen);
        ziel[item] = std::max(ziel[item], stufe);
        leer = false;
    }
    if (leer) {
        return Falsch("Das Ziel ist leer: erwartet wird etwa \"GW2 FV2 WKT1\" oder plan");
    }
    return ziel;
}

/// The plan's own research, units and defences.
std::variant<Stufen, Suchabsage> ZielDesPlans(const Plan& plan) {
    Stufen ziel = plan.LV_Bauliste.Orders().ListStufe();
    for (const ItemRow& zeile : ItemTable()) {
        if (IstWirtschaft(zeile.item)) {
            ziel[zeile.item] = 0;
        }
    }
    if (ziel == Stufen{}) {
        return Suchabsage{
            .Text =
                "Der Plan hat kein Ziel außerhalb der Wirtschaft: weder Forschung noch Schiffe "
                "oder Verteidigung"};
    }
    return ziel;
}

/// The first row that the rules of the list refuse.
std::optional<Suchabsage> PruefeRegeln(const Plan& plan) {
    OrderList liste;
    for (const Order& order : plan.LV_Bauliste.Orders().All()) {
        if (order.kind == Order::Kind::Item) {
            if (const auto absage = Refusal(order.item, liste)) {
                return Suchabsage{
                    .Text = "Zeile " + std::to_string(liste.Size() + 1) + " (" + order.Tag() +
                            ") hält die Regeln der Bauliste nicht:" + std::string(*absage)};
            }
        }
        liste.Append(order);
    }
    return std::nullopt;
}

std::optional<Suchabsage> SetzeFeste(const Plan& plan, const Suchwunsch& wunsch,
                                     std::vector<bool>& fest) {
    const auto orders = plan.LV_Bauliste.Orders().All();
    for (const Order& order : orders) {
        fest.push_back(!wunsch.Frei && order.kind == Order::Kind::Production);
    }
    for (const auto& [erste, letzte] : wunsch.Fest) {
        if (erste < 1 || erste > letzte || letzte > orders.size()) {
            return Falsch("Feste Zeilen gehen von 1 bis " + std::to_string(orders.size()) +
                          ", so lang ist die Bauliste");
        }
        std::fill(fest.begin() + static_cast<std::ptrdiff_t>(erste) - 1,
                  fest.begin() + static_cast<std::ptrdiff_t>(letzte), true);
    }
    return std::nullopt;
}

/// The moments of all starts.
class Startzeiten final : public RunObserver {
  public:
    static std::vector<SimTime> Von(const Plan& plan, const RunConditions& bedingungen) {
        Startzeiten zeiten;
        Simulation(plan.LV_Bauliste.Orders().All(), bedingungen).RunToEnd(zeiten);
        return zeiten.m_starts;
    }
    void OnStart(const StartEvent& ereignis) override { m_starts.push_back(ereignis.start); }

  private:
    std::vector<SimTime> m_starts;
};

constexpr std::int64_t kMinute = 60;

std::string AufDieMinute(DateTime zeit) {
    return DateText(zeit) + " " + TimeOfDayText(zeit).substr(0, 5);
}

/// What is played already, and the pause behind it.
std::optional<Suchabsage> SetzeKopf(const Plan& plan, DateTime ab, Planaufgabe& aufgabe) {
    RunConditions& bedingungen = aufgabe.Aufgabe.Bedingungen;
    const auto starts = Startzeiten::Von(plan, bedingungen);
    const DateTime anfang = bedingungen.StartDate;
    const auto kopf = static_cast<std::size_t>(
        std::ranges::find_if(starts,
                             [&](SimTime start) { return bedingungen.WallClock(start) >= ab; }) -
        starts.begin());
    aufgabe.Aufgabe.Kopf = kopf;
    aufgabe.Aufgabe.Ab = SimTime(std::max(Long{0}, ab - anfang));
    if (kopf == starts.size()) {
        return Suchabsage{.Text = "Alle Aufträge beginnen vor dem " + DateTimeText(ab) +
                                  ": es bleibt nichts umzustellen"};
    }
    if (kopf == 0) {
        return std::nullopt;
    }
    const DateTime letzter = bedingungen.WallClock(starts[kopf - 1]);
    const DateTime von(letzter.Seconds() / kMinute * kMinute + kMinute);
    const DateTime bis((ab.Seconds() + kMinute - 1) / kMinute * kMinute);
    if (von >= bis) {
        return std::nullopt;
    }
    aufgabe.Pause = {.Startzeit = AufDieMinute(von), .Endzeit = AufDieMinute(bis)};
    bedingungen.Schlafzeiten.insert(bedingungen.Schlafzeiten.begin(), {von, bis});
    const auto mitPause = Startzeiten::Von(plan, bedingungen);
    if (!std::equal(starts.begin(), starts.begin() + static_cast<std::ptrdiff_t>(kopf),
                    mitPause.begin())) {
        return Suchabsage{.Text = "Mit der Pause vor dem " + DateTimeText(ab) +
                                  " begännen schon gespielte Aufträge zu anderer Zeit"};
    }
    return std::nullopt;
}

/// Without what the goal doesn't ask for, and with what it misses at the end.
void RichteAufZiel(Suchaufgabe& aufgabe) {
    Stufen stufen{};
    std::vector<Order> orders;
    std::vector<bool> fest;
    const auto nimm = [&](const Order& order, bool istFest) {
        orders.push_back(order);
        fest.push_back(istFest);
        if (order.kind == Order::Kind::Item) {
            ++stufen[order.item];
        }
    };
    for (std::size_t i = 0; i < aufgabe.Orders.size(); ++i) {
        const Order& order = aufgabe.Orders[i];
        const bool ueberzaehlig = order.kind == Order::Kind::Item && !IstWirtschaft(order.item) &&
                                  stufen[order.item] >= aufgabe.Mindestens[order.item];
        if (!ueberzaehlig || i < aufgabe.Kopf || aufgabe.Fest[i]) {
            nimm(order, aufgabe.Fest[i]);
        }
    }
    for (bool mehr = true; mehr;) {
        mehr = false;
        for (const ItemRow& zeile : ItemTable()) {
            while (stufen[zeile.item] < aufgabe.Mindestens[zeile.item] &&
                   IsAllowed(zeile.item, stufen)) {
                nimm(Order::Of(zeile.item), false);
                mehr = true;
            }
        }
    }
    aufgabe.Orders = std::move(orders);
    aufgabe.Fest = std::move(fest);
}

bool Erreicht(const OrderList& liste, const Stufen& ziel) {
    return std::ranges::equal(liste.ListStufe(), ziel, std::ranges::greater_equal());
}

/// Conditions for an empty list too.
std::variant<RunConditions, Message> BedingungenVon(Plan plan) {
    if (plan.LV_Bauliste.Orders().IsEmpty()) {
        static_cast<void>(plan.LV_Bauliste.AddItem(ItemId::MetMine, RunConditions()));
    }
    return ParseRunConditions(plan);
}

std::optional<Suchabsage> SetzeZiel(const Plan& plan, const std::string& text,
                                    Planaufgabe& aufgabe) {
    const auto ziel = text == "plan" ? ZielDesPlans(plan) : LiesZiel(text);
    if (const auto* const absage = std::get_if<Suchabsage>(&ziel)) {
        return *absage;
    }
    Suchaufgabe& suche = aufgabe.Aufgabe;
    suche.Was = Suchaufgabe::Art::Ziel;
    suche.Mindestens = MitVoraussetzungen(std::get<Stufen>(ziel));
    RichteAufZiel(suche);
    if (!Erreicht(plan.LV_Bauliste.Orders(), suche.Mindestens)) {
        aufgabe.Vorher.reset();
    }
    if (suche.Orders.size() > OrderList::kMaxSize) {
        return Falsch("Das Ziel braucht mit seinen Voraussetzungen mehr als 254 Zeilen");
    }
    return std::nullopt;
}

}  // namespace

std::variant<Planaufgabe, Suchabsage> StelleAufgabe(const Plan& plan, const Suchwunsch& wunsch) {
    const bool benannt = wunsch.Ziel && *wunsch.Ziel != "plan";
    const auto bedingungen = benannt ? BedingungenVon(plan) : ParseRunConditions(plan);
    if (const auto* const meldung = std::get_if<Message>(&bedingungen)) {
        return Suchabsage{.Text = meldung->text};
    }
    Planaufgabe aufgabe;
    aufgabe.Aufgabe.Bedingungen = std::get<RunConditions>(bedingungen);
    const auto orders = plan.LV_Bauliste.Orders().All();
    aufgabe.Aufgabe.Orders.assign(orders.begin(), orders.end());
    std::optional<Suchabsage> absage = PruefeRegeln(plan);
    if (!absage) {
        absage = SetzeFeste(plan, wunsch, aufgabe.Aufgabe.Fest);
    }
    if (!absage && wunsch.Ab && !orders.empty()) {
        absage = SetzeKopf(plan, *wunsch.Ab, aufgabe);
    }
    if (!absage && !orders.empty()) {
        aufgabe.Vorher = Bewerte(aufgabe.Aufgabe, aufgabe.Aufgabe.Orders);
    }
    if (!absage && wunsch.Ziel) {
        absage = SetzeZiel(plan, *wunsch.Ziel, aufgabe);
    }
    if (absage) {
        return *absage;
    }
    return aufgabe;
}

Suchergebnis Suche(const Planaufgabe& aufgabe, const Suchumfang& umfang,
                   const std::atomic<bool>& halt,
                   const std::function<void(const Fortschritt&)>& melde) {
    Suchergebnis ergebnis = Suche(aufgabe.Aufgabe, umfang, halt, melde);
    constexpr double kHundert = 100;
    const double erlaubt = 1 + umfang.Nachlass / kHundert;
    if (aufgabe.Vorher && (!ergebnis.Bester || ergebnis.Bester->Wertung.Dauer >
                                                   erlaubt * aufgabe.Vorher->Wertung.Dauer)) {
        ergebnis.Bester = aufgabe.Vorher;
    }
    return ergebnis;
}

Plan MitListe(const Plan& plan, const std::vector<Order>& orders,
              const std::optional<SleepRow>& pause) {
    Plan neu = plan;
    neu.LV_Bauliste.Clear();
    const RunConditions bedingungen{.Temperatur = ParseTemperature(plan.parameters).value_or(0)};
    for (const Order& order : orders) {
        static_cast<void>(neu.LV_Bauliste.Replay(order.Tag(), bedingungen));
    }
    if (pause) {
        neu.LV_Schlafzeiten.insert(neu.LV_Schlafzeiten.begin(), *pause);
    }
    return neu;
}

}  // namespace tarvelin
