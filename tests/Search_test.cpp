// The search: proved optima, and what every result keeps.
#include "search/Search.h"

#include <map>

#include "OptimumProof.h"
#include "TestSupport.h"
#include "persistence/PlanRun.h"
#include "plan/Rules.h"
#include "search/PlanTask.h"

namespace tarvelin {
namespace {

const std::atomic<bool> kWeiter{false};

void Still(const Fortschritt& /*stand*/) {}

constexpr Suchumfang kEineKette{.Versuche = Suchumfang::kKette};

/// The starter plan.
const Planlauf& Startlauf() {
    static const Planlauf lauf(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data/saves/basic.tvf");
    return lauf;
}

const Plan& Startplan() {
    return Startlauf().Plan;
}

Planaufgabe Stelle(const Plan& plan, const Suchwunsch& wunsch) {
    const auto aufgabe = StelleAufgabe(plan, wunsch);
    const auto* const absage = std::get_if<Suchabsage>(&aufgabe);
    EXPECT_EQ(absage, nullptr) << absage->Text;
    return absage != nullptr ? Planaufgabe() : std::get<Planaufgabe>(aufgabe);
}

/// As a player finds the plan again: written to a file, loaded and run.
Planlauf Wiedergefunden(const Plan& plan, const Planaufgabe& aufgabe, const Fund& fund) {
    Profil profil("");
    SchreibePlan(MitListe(plan, fund.Orders, aufgabe.Pause), profil);
    return {"gefunden", Profil(profil.Bytes())};
}

bool HaeltRegeln(const std::vector<Order>& orders) {
    OrderList liste;
    return std::ranges::all_of(orders, [&](const Order& order) {
        const bool gut = order.kind != Order::Kind::Item || !Refusal(order.item, liste);
        liste.Append(order);
        return gut;
    });
}

std::map<std::string, int> Gezaehlt(const std::vector<Order>& orders) {
    std::map<std::string, int> zahlen;
    for (const Order& order : orders) {
        ++zahlen[order.Tag()];
    }
    return zahlen;
}

/// The moments of the starts of a run.
std::vector<DateTime> Startzeiten(const Planlauf& lauf) {
    std::vector<DateTime> zeiten;
    for (const ScheduleEntry& zeile : lauf.Lauf.LV_Bauzeiten) {
        zeiten.push_back(zeile.start);
    }
    return zeiten;
}

/// What any result keeps: the rules, its duration in a file, and never less than the plan.
void Pruefe(const Plan& plan, const Planaufgabe& aufgabe, const Suchergebnis& ergebnis) {
    ASSERT_TRUE(ergebnis.Bester);
    const Fund& fund = *ergebnis.Bester;
    EXPECT_TRUE(HaeltRegeln(fund.Orders));
    if (aufgabe.Vorher) {
        EXPECT_LE(fund.Wertung.Dauer, aufgabe.Vorher->Wertung.Dauer);
    }
    const Planlauf lauf = Wiedergefunden(plan, aufgabe, fund);
    ASSERT_TRUE(lauf.Gelaufen);
    EXPECT_EQ(lauf.Lauf.state.secsgone.Seconds(), fund.Wertung.Dauer);
    EXPECT_TRUE(lauf.Meldungen.empty());
    if (aufgabe.Aufgabe.Was == Suchaufgabe::Art::Reihenfolge) {
        EXPECT_EQ(Gezaehlt(fund.Orders), Gezaehlt(aufgabe.Aufgabe.Orders));
        for (std::size_t i = 0; i < fund.Orders.size(); ++i) {
            EXPECT_TRUE(!aufgabe.Aufgabe.Fest[i] || fund.Orders[i] == aufgabe.Aufgabe.Orders[i]);
        }
        return;
    }
    const PerItem<Byte> stufen = Endstufen(fund.Orders);
    for (const ItemRow& zeile : ItemTable()) {
        EXPECT_GE(stufen[zeile.item], aufgabe.Aufgabe.Mindestens[zeile.item]) << zeile.ItemCode;
    }
}

TEST(Suche, FindetDasOptimumKleinerPlaene) {
    for (unsigned saat = 1; saat <= 100; ++saat) {
        const Suchaufgabe aufgabe = Kleinplan(saat);
        // The whole search takes the sanitizers half an hour.
        const bool ganz = saat % 50 == 0;
        const auto ergebnis = Suche(aufgabe, ganz ? Suchumfang() : kEineKette, kWeiter, Still);
        ASSERT_TRUE(ergebnis.Bester) << saat;
        EXPECT_EQ(ergebnis.Bester->Wertung.Dauer, BewieseneDauer(aufgabe)) << saat;
    }
}

TEST(Suche, HaeltWasSieSagt) {
    const std::vector<std::pair<const char*, Suchwunsch>> wuensche{
        {"gedraengt-01", {}},
        {"gedraengt-05", {.Ziel = "plan"}},
        {"gedraengt-09", {.Frei = true}},
        {"regelgerecht-01", {.Fest = {{2, 4}}}},
        {"regelgerecht-03", {.Ziel = "plan", .Frei = true}},
        {"regelgerecht-08", {.Ziel = "WKT2 FE2"}},
        {"schwere-laser", {}},
    };
    for (const auto& [name, wunsch] : wuensche) {
        SCOPED_TRACE(name);
        const Planlauf lauf(std::filesystem::path(TARVELIN_GOLDEN) / (std::string(name) + ".tvf"));
        ASSERT_TRUE(lauf.Geladen);
        const Planaufgabe aufgabe = Stelle(lauf.Plan, wunsch);
        Pruefe(lauf.Plan, aufgabe, Suche(aufgabe, kEineKette, kWeiter, Still));
    }
}

TEST(Suche, GibtMitAllenThreadsDasselbe) {
    const Planaufgabe aufgabe = Stelle(Startplan(), {.Ziel = "plan"});
    Suchumfang umfang{.Versuche = 5 * Suchumfang::kKette, .Saat = 7};
    const auto eines = Suche(aufgabe, umfang, kWeiter, Still);
    umfang.Threads = 3;
    EXPECT_EQ(Suche(aufgabe, umfang, kWeiter, Still).Bester->Orders, eines.Bester->Orders);
    umfang.Saat = 8;
    EXPECT_NE(Suche(aufgabe, umfang, kWeiter, Still).Bester->Orders, eines.Bester->Orders);
}

TEST(Suche, HoertAufUndBehaeltDasBeste) {
    const Plan& plan = Startplan();
    const Planaufgabe aufgabe = Stelle(plan, {});
    std::atomic<bool> halt{false};
    const Suchumfang endlos{.Versuche = std::uint64_t{1} << 50U, .Threads = 2};
    Fortschritt letzter;
    const auto ergebnis = Suche(aufgabe, endlos, halt, [&](const Fortschritt& stand) {
        letzter = stand;
        halt = stand.Gewinn > 0 && stand.Versuche > Suchumfang::kKette;
    });
    Pruefe(plan, aufgabe, ergebnis);
    EXPECT_EQ(letzter.Gewinn, aufgabe.Vorher->Wertung.Dauer - letzter.BesteDauer);
    EXPECT_LE(ergebnis.Bester->Wertung.Dauer, letzter.BesteDauer);
    EXPECT_LT(ergebnis.Versuche, letzter.VonVersuchen);
    EXPECT_EQ(Suche(aufgabe, endlos, halt, Still).Bester->Orders, aufgabe.Aufgabe.Orders);
}

TEST(Suche, FindetEinenAnfangFuerEinenPlanDerNieEndet) {
    // The research comes behind the end of all deuterium.
    const Plan plan = PlanAus("GS GM GK GD GF GX:10:10:0 FE");
    const Planaufgabe aufgabe = Stelle(plan, {});
    EXPECT_FALSE(aufgabe.Vorher);
    Pruefe(plan, aufgabe, Suche(aufgabe, kEineKette, kWeiter, Still));
}

TEST(Suche, LaesstWasSchonGespieltIst) {
    const Plan& plan = Startplan();
    const auto vorher = Startzeiten(Startlauf());
    const Suchwunsch wunsch{.Ab = ParseDateTime("03.12.2026 12:00:30")};
    const Planaufgabe aufgabe = Stelle(plan, wunsch);
    ASSERT_TRUE(aufgabe.Pause);
    EXPECT_EQ(aufgabe.Pause->Startzeit + "/" + aufgabe.Pause->Endzeit,
              "03.12.2026 10:30/03.12.2026 12:01");
    EXPECT_EQ(aufgabe.Aufgabe.Kopf, 31U);
    const auto ergebnis = Suche(aufgabe, kEineKette, kWeiter, Still);
    Pruefe(plan, aufgabe, ergebnis);
    const auto nachher = Startzeiten(Wiedergefunden(plan, aufgabe, *ergebnis.Bester));
    const auto kopf = static_cast<std::ptrdiff_t>(aufgabe.Aufgabe.Kopf);
    EXPECT_TRUE(std::equal(vorher.begin(), vorher.begin() + kopf, nachher.begin()));
    EXPECT_TRUE(std::all_of(nachher.begin() + kopf, nachher.end(),
                            [&](const auto& zeit) { return zeit >= *wunsch.Ab; }));
    EXPECT_LT(ergebnis.Bester->Wertung.Dauer, aufgabe.Vorher->Wertung.Dauer);
}

/// Pinned rows of a goal keep their sequence and the orders above them that are no economy.
TEST(Suche, HaeltFesteZeilenEinesZiels) {
    const Plan plan = PlanAus("GS GM GM GX:10:8:10 GK GD GF FE GX:10:10:10 GR GR GW FV WLJ WLJ");
    const Planaufgabe aufgabe = Stelle(plan, {.Ziel = "plan", .Fest = {{13, 13}}});
    const auto ergebnis = Suche(aufgabe, kEineKette, kWeiter, Still);
    Pruefe(plan, aufgabe, ergebnis);
    std::string ohneWirtschaft;
    for (const Order& order : ergebnis.Bester->Orders) {
        if (order.kind == Order::Kind::Production || !IstWirtschaft(order.item)) {
            ohneWirtschaft += order.Tag() + " ";
        }
    }
    EXPECT_EQ(ohneWirtschaft, "GX:10:8:10 FE GX:10:10:10 FV WLJ WLJ ");
}

TEST(Suche, SpartSitzungenInnerhalbDesErlaubten) {
    const Planaufgabe aufgabe = Stelle(Startplan(), {});
    Suchumfang umfang{.Versuche = 8 * Suchumfang::kKette};
    const Wertung schnell = Suche(aufgabe, umfang, kWeiter, Still).Bester->Wertung;
    umfang.Nachlass = 2;
    const Wertung ruhig = Suche(aufgabe, umfang, kWeiter, Still).Bester->Wertung;
    EXPECT_LT(ruhig.Sitzungen, schnell.Sitzungen);
    EXPECT_LE(ruhig.Dauer, schnell.Dauer * 1.02);
}

TEST(Suche, SagtWarumSieNichtSuchenKann) {
    const Plan wirtschaft = PlanAus("GM GM GK");
    Plan gebrochen = PlanAus("GM");
    gebrochen.LV_Bauliste.Clear();
    for (const char* const tag : {"GM", "GW", "GR"}) {
        EXPECT_TRUE(gebrochen.LV_Bauliste.Replay(tag, RunConditions()));
    }
    Plan ohneTag = wirtschaft;
    ohneTag.parameters.UniStartZeitTag = "";
    const std::vector<std::tuple<Plan, Suchwunsch, bool, const char*>> faelle{
        {wirtschaft, {.Ziel = "plan"}, false, "Der Plan hat kein Ziel außerhalb der Wirtschaft"},
        {wirtschaft, {.Ziel = " "}, true, "Das Ziel ist leer"},
        {wirtschaft, {.Ziel = "GW2 XY3"}, true, "\"XY3\" nennt kein Item"},
        {wirtschaft, {.Ziel = "gw2"}, true, "\"gw2\" nennt kein Item"},
        {wirtschaft, {.Ziel = "GW0"}, true, "\"GW0\": die Stufe oder Anzahl muss von 1 bis 254"},
        {wirtschaft, {.Ziel = "GW"}, true, "\"GW\": die Stufe"},
        {wirtschaft, {.Ziel = "WLJ99999999999999999999"}, true, "die Stufe oder Anzahl"},
        {wirtschaft, {.Ziel = "WLJ254"}, true, "mehr als 254 Zeilen"},
        {wirtschaft, {.Fest = {{3, 4}}}, true, "Feste Zeilen gehen von 1 bis 3"},
        {wirtschaft, {.Fest = {{2, 1}}}, true, "Feste Zeilen gehen von 1 bis 3"},
        {gebrochen, {}, false, "Zeile 2 (GW) hält die Regeln der Bauliste nicht:"},
        {wirtschaft,
         {.Ab = ParseDateTime("18.11.2016 12:30:00")},
         false,
         "Alle Aufträge beginnen vor dem 18.11.2016 12:30:00"},
        {ohneTag, {}, false, ""},
        {PlanAus(""), {}, false, ""},
    };
    for (const auto& [plan, wunsch, falsch, text] : faelle) {
        const auto aufgabe = StelleAufgabe(plan, wunsch);
        const auto* const absage = std::get_if<Suchabsage>(&aufgabe);
        ASSERT_NE(absage, nullptr) << text;
        EXPECT_EQ(absage->FalscherAufruf, falsch) << absage->Text;
        EXPECT_NE(absage->Text.find(text), std::string::npos) << absage->Text;
        EXPECT_NE(absage->Text, "");
    }
}

TEST(Suche, ErreichtEinZielAusDemNichts) {
    Plan plan = PlanAus("");
    const Planaufgabe aufgabe = Stelle(plan, {.Ziel = "WLL1 GF2 WSS1"});
    EXPECT_FALSE(aufgabe.Vorher);
    Pruefe(plan, aufgabe, Suche(aufgabe, kEineKette, kWeiter, Still));
}

}  // namespace
}  // namespace tarvelin
