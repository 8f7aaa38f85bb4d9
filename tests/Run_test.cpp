// Tests the run: its clock, event table, messages, delays and results.
#include "TestSupport.h"
#include "simulation/EventTable.h"
#include "simulation/RunTexts.h"
#include "simulation/RunTrace.h"
#include "simulation/Simulation.h"

namespace tarvelin {
namespace {

Plan WithKlickPuffer(std::string_view tags, int buffer) {
    Plan plan = PlanOf(tags);
    plan.parameters.KlickPuffer = buffer;
    return plan;
}

TEST(ResultTexts, FollowRunClearAndReset) {
    const TestRun trial(WithKlickPuffer("GM", 5));
    ResultTexts texts;
    texts.AfterRun(trial.run.state);
    EXPECT_EQ(texts.LBL_Timegone2, "Dauer: 00 Tage 00:01:53");
    EXPECT_EQ(texts.LBL_Punkte, "0,075 P");
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
        const char* tag;
        std::vector<std::string> texts;
    };
    for (const auto& [tags, temperature, day, texts] :
         {Case{"", "x", "x", {"Die Bauliste ist leer..."}},
          Case{"GM", "x", "x", {"Keine gültige Temperatur eingegeben..."}},
          Case{"GM", "40000", "18", {"Keine gültige Temperatur eingegeben..."}},
          Case{"GM", "11", "x", {"Kein gültiges Datum eingegeben..."}},
          Case{"GM", "11", "18", {}}}) {
        Plan plan = PlanOf(tags);
        plan.parameters.TempMax = temperature;
        plan.parameters.UniStartZeitTag = day;
        const TestRun trial(plan);
        EXPECT_EQ(trial.messages.texts, texts);
        EXPECT_EQ(trial.succeeded, texts.empty());
    }
}

TEST(Run, ReportsNegativeStockOfEachResource) {
    const std::string front = "Negative Ressourcen: Metall: ";
    for (const auto& [code, negativeStock] :
         {std::pair("WR", "-1500    Kristall:500    Deuterium: 0"),
          std::pair("WSS", "500    Kristall:-500    Deuterium: 0"),
          std::pair("GW", "100    Kristall:300    Deuterium: -100")}) {
        EXPECT_EQ(TestRun(WithKlickPuffer(code, 0)).messages.texts,
                  std::vector<std::string>{front + negativeStock});
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
    EXPECT_EQ(nonsense.queue, Queue::None);
    EXPECT_EQ(Order::FromTag("WZZ").queue, Queue::Shipyard);
    // The finish of an unknown order is a beep. The mines follow each other in their queue.
    EXPECT_EQ(run({mine, nonsense, Order::FromTag("WZZ"), mine}, 0), (std::array{2, 2, 2, 109}));
    // An unknown order waits for no queue, but never starts before the previous order.
    EXPECT_EQ(run({nonsense, mine}, 7), (std::array{1, 0, 1, 14}));
}

TEST(Run, StopsTheClockAtTheEndOfItsRange) {
    const TestRun trial(WithKlickPuffer("GW WR GX:10:10:10 FS GX:5:5:5 FE GM GM", 600));
    EXPECT_EQ(trial.run.state.secsgone.Seconds(), 2147483647);
    EXPECT_EQ(trial.run.LV_Bauzeiten.size(), 8U);
}

TEST(Run, FindsTheCauseOfEachDelay) {
    const auto starts = [](const Plan& plan) {
        return TraceRun(plan.LV_Bauliste.Orders().All(),
                        std::get<RunConditions>(ParseRunConditions(plan)))
            .starts;
    };
    const auto delays = [&](const Plan& plan) {
        std::string text;
        for (const StartEvent& start : starts(plan)) {
            constexpr std::array kLetters{'-', 'l', 'a', 'd', 'r', 's', 'z'};
            text += kLetters.at(static_cast<std::size_t>(start.delay.cause));
        }
        return text;
    };
    Plan plan = PlanOf("GM GM GM GM GS GM");
    EXPECT_EQ(delays(plan), "-sssrr");
    plan.LV_Schlafzeiten = {{"18.11.2006 12:31", "18.11.2006 20:00"}};
    EXPECT_EQ(delays(plan), "-zsssr");
    EXPECT_EQ(starts(PlanOf("GS GD GR FE")).back().delay,
              (Delay{.cause = DelayCause::Level, .missing = {ItemId::Folab, 1}}));
}

TEST(Run, SaysWhatHeldAnOrderBack) {
    const auto texts = [](const Plan& plan) {
        const auto conditions = ParseRunConditions(plan);
        const RunTrace trace =
            TraceRun(plan.LV_Bauliste.Orders().All(), std::get<RunConditions>(conditions));
        std::vector<std::string> delays;
        for (std::size_t i = 0; i < trace.starts.size(); ++i) {
            delays.push_back(DelayText(trace, i));
        }
        return delays;
    };
    using Texts = std::vector<std::string>;
    EXPECT_EQ(texts(PlanOf("GX:9:9:9 GM GM GX:8:8:8 GM GM GM GS")),
              (Texts{"", "wartete auf Zeile 1", "Bauschleife bis 12:31:49",
                     "Bauschleife bis 12:34:31", "wartete auf Zeile 4", "Bauschleife bis 12:38:34",
                     "Es fehlten: 286 Metall", "Es fehlten: 72 Metall"}));
    Plan plan = WithKlickPuffer("GX:9:9:9 GM GM GX:1:1:1 GM", 5);
    plan.LV_Schlafzeiten = {{"18.11.2006 12:31", "18.11.2006 20:00"}};
    EXPECT_EQ(texts(plan),
              (Texts{"Klickpuffer: 5 s", "Klickpuffer: 5 s", "Schlafzeit 12:31:00 bis 20:00:00",
                     "Bauschleife bis 20:02:52", "wartete auf Zeile 4"}));
    EXPECT_EQ(texts(PlanOf("GS GD GR FE")).back(), "Es fehlte: Forschungslabor 1 (bis zuletzt)");
    EXPECT_EQ(texts(PlanOf("GR")).back(), "");
    EXPECT_EQ(texts(PlanOf("GS GR GF")).back(),
              "Es fehlte: Produktion von Deuterium (bis zuletzt)");
}

TEST(EventTable, SortsByTimeKindAndEntry) {
    EventTable table;
    EXPECT_TRUE(table.IsEmpty());
    table.SetEvent(SimTime(), 4, true);
    table.RetimeStart(SimTime(100));
    table.SetEvent(SimTime(100), 2, false);
    table.SetEvent(SimTime(100), 1, false);
    table.SetEvent(SimTime(99), 3, false);
    EXPECT_EQ(table.PendingOrder(), 4U);
    for (const std::size_t order : {3U, 2U, 1U, 4U}) {
        EXPECT_EQ(table.ClearEvent().order, order);
    }
    EXPECT_TRUE(table.NoStartPending() && table.IsEmpty());
}

}  // namespace
}  // namespace tarvelin
