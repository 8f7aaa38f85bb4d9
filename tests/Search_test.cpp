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

void Still(const SearchProgress& /*stand*/) {}

constexpr SearchBudget kEineKette{.tries = SearchBudget::kChainLength};

/// The starter plan.
const PlanRun& Startlauf() {
    static const PlanRun lauf(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data/saves/basic.tvf");
    return lauf;
}

const Plan& Startplan() {
    return Startlauf().plan;
}

PlanTask Stelle(const Plan& plan, const SearchRequest& wunsch) {
    const auto aufgabe = MakePlanTask(plan, wunsch);
    const auto* const absage = std::get_if<SearchRefusal>(&aufgabe);
    EXPECT_EQ(absage, nullptr) << absage->text;
    return absage != nullptr ? PlanTask() : std::get<PlanTask>(aufgabe);
}

/// As a player finds the plan again: written to a file, loaded and run.
PlanRun Wiedergefunden(const Plan& plan, const PlanTask& aufgabe, const Solution& fund) {
    IniFile profil("");
    WritePlan(WithOrders(plan, fund.orders, aufgabe.pause), profil);
    return {"gefunden", IniFile(profil.Bytes())};
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
std::vector<DateTime> Startzeiten(const PlanRun& lauf) {
    std::vector<DateTime> zeiten;
    for (const ScheduleEntry& zeile : lauf.run.LV_Bauzeiten) {
        zeiten.push_back(zeile.start);
    }
    return zeiten;
}

/// What any result keeps: the rules, its duration in a file, and never less than the plan.
void Pruefe(const Plan& plan, const PlanTask& aufgabe, const SearchResult& ergebnis) {
    ASSERT_TRUE(ergebnis.best);
    const Solution& fund = *ergebnis.best;
    EXPECT_TRUE(HaeltRegeln(fund.orders));
    if (aufgabe.before) {
        EXPECT_LE(fund.score.duration, aufgabe.before->score.duration);
    }
    const PlanRun lauf = Wiedergefunden(plan, aufgabe, fund);
    ASSERT_TRUE(lauf.hasRun);
    EXPECT_EQ(lauf.run.state.secsgone.Seconds(), fund.score.duration);
    EXPECT_TRUE(lauf.messages.empty());
    if (aufgabe.task.kind == SearchTask::Kind::Sequence) {
        EXPECT_EQ(Gezaehlt(fund.orders), Gezaehlt(aufgabe.task.orders));
        for (std::size_t i = 0; i < fund.orders.size(); ++i) {
            EXPECT_TRUE(!aufgabe.task.pinned[i] || fund.orders[i] == aufgabe.task.orders[i]);
        }
        return;
    }
    const PerItem<Byte> stufen = FinalLevels(fund.orders);
    for (const ItemRow& zeile : ItemTable()) {
        EXPECT_GE(stufen[zeile.item], aufgabe.task.minLevels[zeile.item]) << zeile.ItemCode;
    }
}

TEST(Suche, FindetDasOptimumKleinerPlaene) {
    for (unsigned saat = 1; saat <= 100; ++saat) {
        const SearchTask aufgabe = Kleinplan(saat);
        // The whole search takes the sanitizers half an hour.
        const bool ganz = saat % 50 == 0;
        const auto ergebnis = Search(aufgabe, ganz ? SearchBudget() : kEineKette, kWeiter, Still);
        ASSERT_TRUE(ergebnis.best) << saat;
        EXPECT_EQ(ergebnis.best->score.duration, BewieseneDauer(aufgabe)) << saat;
    }
}

TEST(Suche, HaeltWasSieSagt) {
    const std::vector<std::pair<const char*, SearchRequest>> wuensche{
        {"gedraengt-01", {}},
        {"gedraengt-05", {.goal = "plan"}},
        {"gedraengt-09", {.moveProduction = true}},
        {"regelgerecht-01", {.pinnedRanges = {{2, 4}}}},
        {"regelgerecht-03", {.goal = "plan", .moveProduction = true}},
        {"regelgerecht-08", {.goal = "WKT2 FE2"}},
        {"schwere-laser", {}},
    };
    for (const auto& [name, wunsch] : wuensche) {
        SCOPED_TRACE(name);
        const PlanRun lauf(std::filesystem::path(TARVELIN_GOLDEN) / (std::string(name) + ".tvf"));
        ASSERT_TRUE(lauf.loaded);
        const PlanTask aufgabe = Stelle(lauf.plan, wunsch);
        Pruefe(lauf.plan, aufgabe, Search(aufgabe, kEineKette, kWeiter, Still));
    }
}

TEST(Suche, GibtMitAllenThreadsDasselbe) {
    const PlanTask aufgabe = Stelle(Startplan(), {.goal = "plan"});
    SearchBudget umfang{.tries = 5 * SearchBudget::kChainLength, .seed = 7};
    const auto eines = Search(aufgabe, umfang, kWeiter, Still);
    umfang.threads = 3;
    EXPECT_EQ(Search(aufgabe, umfang, kWeiter, Still).best->orders, eines.best->orders);
    umfang.seed = 8;
    EXPECT_NE(Search(aufgabe, umfang, kWeiter, Still).best->orders, eines.best->orders);
}

TEST(Suche, HoertAufUndBehaeltDasBeste) {
    const Plan& plan = Startplan();
    const PlanTask aufgabe = Stelle(plan, {});
    std::atomic<bool> halt{false};
    const SearchBudget endlos{.tries = std::uint64_t{1} << 50U, .threads = 2};
    SearchProgress letzter;
    const auto ergebnis = Search(aufgabe, endlos, halt, [&](const SearchProgress& stand) {
        letzter = stand;
        halt = stand.gain > 0 && stand.tries > SearchBudget::kChainLength;
    });
    Pruefe(plan, aufgabe, ergebnis);
    EXPECT_EQ(letzter.gain, aufgabe.before->score.duration - letzter.bestDuration);
    EXPECT_LE(ergebnis.best->score.duration, letzter.bestDuration);
    EXPECT_LT(ergebnis.tries, letzter.totalTries);
    EXPECT_EQ(Search(aufgabe, endlos, halt, Still).best->orders, aufgabe.task.orders);
}

TEST(Suche, FindetEinenAnfangFuerEinenPlanDerNieEndet) {
    // The research comes behind the end of all deuterium.
    const Plan plan = PlanAus("GS GM GK GD GF GX:10:10:0 FE");
    const PlanTask aufgabe = Stelle(plan, {});
    EXPECT_FALSE(aufgabe.before);
    Pruefe(plan, aufgabe, Search(aufgabe, kEineKette, kWeiter, Still));
}

TEST(Suche, LaesstWasSchonGespieltIst) {
    const Plan& plan = Startplan();
    const auto vorher = Startzeiten(Startlauf());
    const SearchRequest wunsch{.notBefore = ParseDateTime("03.12.2026 12:00:30")};
    const PlanTask aufgabe = Stelle(plan, wunsch);
    ASSERT_TRUE(aufgabe.pause);
    EXPECT_EQ(aufgabe.pause->Startzeit + "/" + aufgabe.pause->Endzeit,
              "03.12.2026 10:30/03.12.2026 12:01");
    EXPECT_EQ(aufgabe.task.headSize, 31U);
    const auto ergebnis = Search(aufgabe, kEineKette, kWeiter, Still);
    Pruefe(plan, aufgabe, ergebnis);
    const auto nachher = Startzeiten(Wiedergefunden(plan, aufgabe, *ergebnis.best));
    const auto kopf = static_cast<std::ptrdiff_t>(aufgabe.task.headSize);
    EXPECT_TRUE(std::equal(vorher.begin(), vorher.begin() + kopf, nachher.begin()));
    EXPECT_TRUE(std::all_of(nachher.begin() + kopf, nachher.end(),
                            [&](const auto& zeit) { return zeit >= *wunsch.notBefore; }));
    EXPECT_LT(ergebnis.best->score.duration, aufgabe.before->score.duration);
}

/// Pinned rows of a goal keep their sequence and the orders above them that are no economy.
TEST(Suche, HaeltFesteZeilenEinesZiels) {
    const Plan plan = PlanAus("GS GM GM GX:10:8:10 GK GD GF FE GX:10:10:10 GR GR GW FV WLJ WLJ");
    const PlanTask aufgabe = Stelle(plan, {.goal = "plan", .pinnedRanges = {{13, 13}}});
    const auto ergebnis = Search(aufgabe, kEineKette, kWeiter, Still);
    Pruefe(plan, aufgabe, ergebnis);
    std::string ohneWirtschaft;
    for (const Order& order : ergebnis.best->orders) {
        if (order.kind == Order::Kind::Production || !IsEconomy(order.item)) {
            ohneWirtschaft += order.Tag() + " ";
        }
    }
    EXPECT_EQ(ohneWirtschaft, "GX:10:8:10 FE GX:10:10:10 FV WLJ WLJ ");
}

TEST(Suche, SpartSitzungenInnerhalbDesErlaubten) {
    const PlanTask aufgabe = Stelle(Startplan(), {});
    SearchBudget umfang{.tries = 8 * SearchBudget::kChainLength};
    const Score schnell = Search(aufgabe, umfang, kWeiter, Still).best->score;
    umfang.slackPercent = 2;
    const Score ruhig = Search(aufgabe, umfang, kWeiter, Still).best->score;
    EXPECT_LT(ruhig.sittings, schnell.sittings);
    EXPECT_LE(ruhig.duration, schnell.duration * 1.02);
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
    const std::vector<std::tuple<Plan, SearchRequest, bool, const char*>> faelle{
        {wirtschaft, {.goal = "plan"}, false, "Der Plan hat kein Ziel außerhalb der Wirtschaft"},
        {wirtschaft, {.goal = " "}, true, "Das Ziel ist leer"},
        {wirtschaft, {.goal = "GW2 XY3"}, true, "\"XY3\" nennt kein Item"},
        {wirtschaft, {.goal = "gw2"}, true, "\"gw2\" nennt kein Item"},
        {wirtschaft, {.goal = "GW0"}, true, "\"GW0\": die Stufe oder Anzahl muss von 1 bis 254"},
        {wirtschaft, {.goal = "GW"}, true, "\"GW\": die Stufe"},
        {wirtschaft, {.goal = "WLJ99999999999999999999"}, true, "die Stufe oder Anzahl"},
        {wirtschaft, {.goal = "WLJ254"}, true, "mehr als 254 Zeilen"},
        {wirtschaft, {.pinnedRanges = {{3, 4}}}, true, "Feste Zeilen gehen von 1 bis 3"},
        {wirtschaft, {.pinnedRanges = {{2, 1}}}, true, "Feste Zeilen gehen von 1 bis 3"},
        {gebrochen, {}, false, "Zeile 2 (GW) hält die Regeln der Bauliste nicht:"},
        {wirtschaft,
         {.notBefore = ParseDateTime("18.11.2016 12:30:00")},
         false,
         "Alle Aufträge beginnen vor dem 18.11.2016 12:30:00"},
        {ohneTag, {}, false, ""},
        {PlanAus(""), {}, false, ""},
    };
    for (const auto& [plan, wunsch, falsch, text] : faelle) {
        const auto aufgabe = MakePlanTask(plan, wunsch);
        const auto* const absage = std::get_if<SearchRefusal>(&aufgabe);
        ASSERT_NE(absage, nullptr) << text;
        EXPECT_EQ(absage->wrongCall, falsch) << absage->text;
        EXPECT_NE(absage->text.find(text), std::string::npos) << absage->text;
        EXPECT_NE(absage->text, "");
    }
}

TEST(Suche, ErreichtEinZielAusDemNichts) {
    Plan plan = PlanAus("");
    const PlanTask aufgabe = Stelle(plan, {.goal = "WLL1 GF2 WSS1"});
    EXPECT_FALSE(aufgabe.before);
    Pruefe(plan, aufgabe, Search(aufgabe, kEineKette, kWeiter, Still));
}

}  // namespace
}  // namespace tarvelin
