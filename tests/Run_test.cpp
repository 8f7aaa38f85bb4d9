// Tests the run: conditions, unknown orders, delays, event table and texts.
#include "TestSupport.h"
#include "model/Transitions.h"
#include "model/Wait.h"
#include "simulation/EventTable.h"
#include "simulation/RunTexts.h"
#include "simulation/Simulation.h"

namespace tarvelin {
namespace {

TEST(ResultTexts, FollowRunClearAndReset) {
    ResultTexts texts;
    texts.AfterRun(TraceRun(PlanOf("GM")).end);
    EXPECT_EQ(texts.LBL_Timegone2, "Dauer: 00 Tage 00:01:48");
    texts.AfterClear();
    EXPECT_EQ(texts.LBL_Timegone + texts.LBL_Met, "Dauer: dd:hh:mm:ss500");
    EXPECT_EQ(texts.LBL_Punkte, "0,075 P");
    texts.AfterReset();
    EXPECT_EQ(texts.LBL_Timegone2 + texts.LBL_Punkte, "Dauer: dd:hh:mm:ss0");
}

TEST(RunConditions, AreParsedInOrder) {
    struct Case {
        const char* tags;
        const char* temperature;
        const char* day;
        const char* refusal;
    };
    for (const auto& [tags, temperature, day, refusal] :
         {Case{"", "x", "x", "Die Bauliste ist leer..."},
          Case{"GM", "x", "x", "Keine gültige Temperatur eingegeben..."},
          Case{"GM", "40000", "18", "Keine gültige Temperatur eingegeben..."},
          Case{"GM", "11", "x", "Kein gültiges Datum eingegeben..."}}) {
        Plan plan = PlanOf(tags);
        plan.parameters.TempMax = temperature;
        plan.parameters.UniStartZeitTag = day;
        EXPECT_EQ(std::get<Message>(ParseRunConditions(plan)).text, refusal);
    }
}

/// Counts what unknown orders cause.
class UnknownOrderCounter final : public RunObserver {
  public:
    void OnStart(const StartEvent& event) override { last = event; }
    void OnUnknownOrder(UnknownOrderAt what) override {
        ++(what == UnknownOrderAt::Start ? starts : times);
    }
    void OnEmptyStep() override { ++beeps; }

    StartEvent last;
    int starts = 0;
    int times = 0;
    int beeps = 0;
};

TEST(Run, DropsUnknownOrders) {
    const auto run = [](const std::vector<Order>& orders, Long buffer) {
        const RunConditions conditions{.Speedfaktor = 1, .KlickPuffer = buffer};
        UnknownOrderCounter counter;
        Simulation(orders, conditions).RunToEnd(counter);
        EXPECT_EQ(counter.last.row, orders.size() - 1);
        return std::array{counter.starts, counter.times, counter.beeps,
                          static_cast<int>(counter.last.start.Seconds())};
    };
    const Order mine = Order::Of(ItemId::MetMine);
    const Order nonsense = Order::FromTag("Quatsch");
    // The finish of an unknown order is a beep. The mines follow each other in their queue.
    EXPECT_EQ(run({mine, nonsense, Order::FromTag("WZZ"), mine}, 0), (std::array{2, 2, 2, 109}));
    // An unknown order waits for no queue, but never starts before the previous order.
    EXPECT_EQ(run({nonsense, mine}, 7), (std::array{1, 0, 1, 14}));
}

TEST(Run, SaysWhatHeldAnOrderBack) {
    const auto run = [](const char* tags, int buffer, const char* sleepEnd) {
        Plan plan = PlanOf(tags);
        plan.parameters.KlickPuffer = buffer;
        if (sleepEnd != nullptr) {
            plan.LV_Schlafzeiten = {{"18.11.2006 12:31", sleepEnd}};
        }
        return TraceRun(plan);
    };
    const auto texts = [&](const char* tags, int buffer = 0, const char* sleepEnd = nullptr) {
        const RunTrace trace = run(tags, buffer, sleepEnd);
        std::vector<std::string> delays;
        for (std::size_t i = 0; i < trace.starts.size(); ++i) {
            delays.push_back(DelayText(trace, i));
        }
        return delays;
    };
    using Texts = std::vector<std::string>;
    EXPECT_EQ(texts("GX:9:9:9 GM GM GX:8:8:8 GM GM GM GS"),
              (Texts{"", "wartete auf Zeile 1", "Bauschleife bis 12:31:49",
                     "Bauschleife bis 12:34:31", "wartete auf Zeile 4", "Bauschleife bis 12:38:34",
                     "Es fehlten: 286 Metall", "Es fehlten: 72 Metall"}));
    EXPECT_EQ(texts("GX:9:9:9 GM GM GX:1:1:1 GM", 5, "18.11.2006 20:00"),
              (Texts{"Klickpuffer: 5 s", "Klickpuffer: 5 s", "Schlafzeit 12:31:00 bis 20:00:00",
                     "Bauschleife bis 20:02:52", "wartete auf Zeile 4"}));
    EXPECT_EQ(texts("GR").back(), "");
    EXPECT_EQ(texts("GS GR GF").back(), "Es fehlte: Produktion von Deuterium (bis zuletzt)");
    // The row before starts when the shipyard is done, one second before its queue is free.
    EXPECT_EQ(texts("GS GD GM GM GM GM GR GW WR GX:9:9:9").back(), "Bauschleife bis 13:58:24");
    EXPECT_EQ(texts("GS GD GM GM GM GM GR GW GW WR").back(), "Werftschleife: Ausbau");

    // In few words, as a cause, and beside a symbol.
    const auto words = [&](const char* tags, int buffer = 0, const char* sleepEnd = nullptr) {
        const RunTrace trace = run(tags, buffer, sleepEnd);
        std::vector<std::string> all;
        for (const StartEvent& start : trace.starts) {
            all.push_back(WaitText(trace, start) + "|" + WaitCauseText(trace, start) + "|" +
                          BriefWaitText(trace, start));
        }
        return all;
    };
    EXPECT_EQ(words("GX:9:9:9 GM GM GX:1:1:1 GM", 5, "18.11.2006 20:00"),
              (Texts{"Klickpuffer 5 s|Klick|Klick", "Klickpuffer 5 s|Klick|Klick",
                     "Schlaf bis 20:00:00|Schlaf|bis 20:00",
                     "Bauschleife bis 20:02:52|Bauschleife|Schleife", "Zeile 4|Zeile 4|Zeile 4"}));
    EXPECT_EQ(words("GM GM GM GM GM GM GM GM GM").back(), "1.527 Metall|Metall|1.527");
    EXPECT_EQ(words("GS GR GF").back(),
              "Produktion von Deuterium|Produktion von Deuterium|"
              "Produktion von Deuterium");
    EXPECT_EQ(words("GS GD GM GM GM GM GR GW GW WR").back(),
              "Werftschleife: Ausbau|Werftschleife|Schleife");
}

TEST(Wait, OfOneSecondHasACause) {
    const RunConditions conditions{.Speedfaktor = 1};
    GameState state = InitialState(conditions);
    const auto wait = [&](ItemId item) {
        return GetTimeUntilUpgradeIsPossible(RowOf(item), state, conditions);
    };
    state.stock[Resource::Metall] = FixedPoint::FromDouble(59.999);
    const Wait forMetal = wait(ItemId::MetMine);
    EXPECT_EQ(forMetal.seconds, 1);
    EXPECT_EQ(forMetal.delay.cause, DelayCause::Resource);
    EXPECT_EQ(forMetal.shortage.kind, Shortage::Kind::Metall);
    state.stock.fill(FixedPoint::FromWhole(500));
    state.Stufe[ItemId::SKW] = 1;
    state.FertigZeit[Queue::Shipyard] = SimTime(1);
    EXPECT_EQ(wait(ItemId::Werft).seconds, 1);
    EXPECT_EQ(wait(ItemId::Werft).delay.cause, DelayCause::Queue);
}

TEST(TimeSpanText, CountsDays) {
    for (const auto& [seconds, text] :
         {std::pair(0, "±00:00:00"), std::pair(86399, "+23:59:59"),
          std::pair(-86400, "-1 Tag 00:00:00"), std::pair(172801, "+2 Tage 00:00:01")}) {
        EXPECT_EQ(SignedTimeSpanText(seconds), text);
    }
}

TEST(EventTable, SortsByTimeKindAndEntry) {
    EventTable table;
    EXPECT_TRUE(table.IsEmpty());
    table.SetEvent(SimTime(), 4, true);
    table.RetimeStart(SimTime(100));
    table.SetEvent(SimTime(100), 2, false);
    table.SetEvent(SimTime(100), 1, false);
    table.SetEvent(SimTime(99), 3, false);
    for (const std::size_t order : {3U, 2U, 1U, 4U}) {
        EXPECT_EQ(table.ClearEvent().order, order);
    }
    EXPECT_TRUE(table.NoStartPending() && table.IsEmpty());
}

}  // namespace
}  // namespace tarvelin
