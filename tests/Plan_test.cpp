// Tests the build list, its rules and hover texts, undo, start parameters and sleep windows.
#include "PlanLaws.h"
#include "TestSupport.h"
#include "plan/EditHistory.h"
#include "plan/HoverInfo.h"
#include "plan/Rules.h"
#include "search/SearchTask.h"
#include "simulation/RunTexts.h"

namespace tarvelin {
namespace {

TEST(BuildList, RefusesUnknownCodesAndRow255) {
    const RunConditions conditions;
    BuildList list;
    EXPECT_FALSE(list.Replay("Quatsch", conditions));
    while (!list.Orders().IsFull()) {
        ASSERT_FALSE(list.AddItem(ItemId::DeutMine, conditions));
    }
    const std::string full = StateText(list);
    const Message refusal{"Die Bauliste ist voll: mehr als 254 Einträge sind nicht möglich...",
                          "Schwerer Ausnahmefehler 1337 !"};
    EXPECT_EQ(list.AddItem(ItemId::SKW, conditions), refusal);
    EXPECT_EQ(list.AddProduction(kFullFactors, conditions), refusal);
    EXPECT_EQ(StateText(list), full);
    EXPECT_EQ(list.Rows().size(), 254U);
    EXPECT_EQ(list.Rows().back().SubItems2, "0,00");  // an energy need beyond 32 bits
    list.Clear();
    EXPECT_EQ(StateText(list), StateText(BuildList()));
    // Satellites follow the temperature.
    EXPECT_EQ(PlanOf("GM WS", {.Temperatur = -100}).LV_Bauliste.Rows()[1].SubItems2, "-0,45");
}

TEST(Order, UnderstandsOnlyWholeFactorsFromZeroToTen) {
    for (const char* tag : {"GX:8:10:5", "GX: 8 :+010:-0", "GXfoo:8:10:5:99", "GX8:1:2:3"}) {
        EXPECT_EQ(Order::FromTag(tag).kind, Order::Kind::Production) << tag;
    }
    for (const char* tag : {"GX", "GX:8:10", "GX:8:10:11", "GX:8:10:-1", "GX:8:10:5,0",
                            "GX::8:10:5", "gx:8:10:5", "GX:8:10:", "gm", "GM ", "", "G"}) {
        EXPECT_EQ(Order::FromTag(tag).kind, Order::Kind::Unknown) << tag;
    }
}

/// What the list and the run say to an item after all that the rules require for it, but one row
/// too few of each of `missing`. The run's gates are fewer than the rules, and it times no first
/// row.
std::string RuleLine(const ItemRow& row, std::span<const LevelRequirement> missing) {
    std::string line(row.ItemCode);
    PerItem<Byte> levels{};
    levels[row.item] = 1;
    levels = WithPrerequisites(levels);
    levels[row.item] = 0;
    for (const auto& [item, minLevel] : missing) {
        line += " -" + std::string(RowOf(item).ItemCode) + std::to_string(minLevel);
        levels[item] = static_cast<Byte>(minLevel - 1);
    }
    Plan plan = PlanOf("");
    for (const ItemRow& other : ItemTable()) {
        for (Byte n = 0; n < levels[other.item]; ++n) {
            EXPECT_FALSE(plan.LV_Bauliste.AddItem(other.item, RunConditions()));
        }
    }
    line += " |" + std::string(Refusal(row.item, plan.LV_Bauliste.Orders()).value_or("")) + "|";
    EXPECT_FALSE(plan.LV_Bauliste.AddItem(row.item, RunConditions()));
    const RunTrace trace = TraceRun(plan);
    const std::size_t last = trace.starts.size() - 1;
    return line + (trace.starts[last].gateClosed ? DelayText(trace, last) : "") + "\n";
}

TEST(Rules, RefuseAndWaitAsListed) {
    std::string lines;
    for (const ItemRow& row : ItemTable()) {
        LevelRequirements all = ListRequirements(row.item);
        const auto end = std::ranges::find(all, Byte{0}, &LevelRequirement::minLevel);
        const std::span needs(all.begin(), end);
        lines += RuleLine(row, {});
        for (std::size_t i = 0; i < needs.size(); ++i) {
            lines += RuleLine(row, needs.subspan(i, 1));
        }
        lines += needs.size() > 1 ? RuleLine(row, needs) : "";
    }
    EXPECT_EQ(lines, ReadFileToString(TARVELIN_GOLDEN "/regeln.txt"));
}

TEST(Rules, AllowOneDomeOnly) {
    const auto dome = [](const char* codes) {
        return Refusal(ItemId::klSchK, PlanOf(codes).LV_Bauliste.Orders()).value_or("offen");
    };
    for (const char* one : {"WKSK", "GW FSCH FSCH WKSK"}) {
        EXPECT_EQ(dome(one), " Bereits eine kleine Schildkuppel in der Bauliste vorhanden! ");
    }
    EXPECT_EQ(dome("WKSK FSCH WKSK GW FSCH"), "offen");
}

TEST(HoverInfo, NamesCostAndEnergyOfTheNextRow) {
    using enum ItemId;
    RunConditions conditions;
    const auto text = [&](const char* codes, ItemId item) {
        return HoverInfoFor(item, PlanOf(codes).LV_Bauliste.Orders(), conditions).tooltip;
    };
    EXPECT_EQ(text("", DeutMine),
              " Deuteriummine  |  Kosten:  Met: 225  Kris: 75  Deut: 0  |  Energie: -22");
    EXPECT_EQ(text("GM GM GX:0:0:0 GM", MetMine),
              " Metallmine  |  Kosten:  Met: 202  Kris: 50  Deut: 0  |  Energie: -19");
    EXPECT_EQ(text("GS", SKW),
              " Solarkraftwerk  |  Kosten:  Met: 112  Kris: 45  Deut: 0  |  Energie: +26");
    EXPECT_EQ(text("GW WR WR", Rakws), " Rakentenwerfer  |  Kosten:  Met: 2000  Kris: 0  Deut: 0");
    EXPECT_EQ(text("GW WS", Solsats),
              " Solarsatellit  |  Kosten:  Met: 0  Kris: 2000  Deut: 500  |  Energie: +20");
    conditions.Temperatur = 30;
    EXPECT_TRUE(text("GW WS", Solsats).ends_with("  |  Energie: +27"));
    EXPECT_EQ(text("", Rakws), Refusal(Rakws, OrderList()));
    EXPECT_FALSE(HoverInfoFor(Rakws, OrderList(), conditions).dragEnabled);
}

TEST(EditHistory, TypingIntoOneInputIsOneStep) {
    EditHistory history;
    const auto type = [&](const char* input, const char* temperature) {
        PlanSnapshot snapshot;
        snapshot.parameters.TempMax = temperature;
        history.Record(snapshot, input);
    };
    for (const char* const text : {"", "2", "25"}) {
        type("TempMax", text);
    }
    type("TempMin", "26");
    type("TempMax", "27");
    EXPECT_EQ(history.Undo().parameters.TempMax, "26");
    type("TempMax", "28");
    EXPECT_FALSE(history.CanRedo());
    type("TempMax", "26");
    EXPECT_EQ(history.Undo().parameters.TempMax, "25") << "typed back to what it was";
    EXPECT_EQ(history.Undo().parameters.TempMax, "11");
    EXPECT_FALSE(history.CanUndo());
}

TEST(EditHistory, RewritingADayIsNoStep) {
    EditHistory history;
    PlanSnapshot snapshot;
    const auto day = [&](const char* text) -> PlanSnapshot& {
        snapshot.parameters.UniStartZeitTag = text;
        return snapshot;
    };
    history.Begin(day("05"));
    EXPECT_TRUE(history.Record(day("5"), "Tag"));
    snapshot.orders = {Order::Of(ItemId::MetMine)};
    EXPECT_TRUE(history.Record(snapshot));
    const StartParameters before = snapshot.parameters;
    history.RewriteDay(before, day("05").parameters);
    EXPECT_FALSE(history.Record(snapshot));
    EXPECT_EQ(history.StepCount(), 1U);
    EXPECT_EQ(history.Undo().parameters.UniStartZeitTag, "05");
    EXPECT_TRUE(history.CanRedo() && !history.CanUndo());
}

TEST(StartParameters, GiveWeekdayAndStartDate) {
    StartParameters parameters = PlanOf("").parameters;
    EXPECT_EQ(RefreshWeekday(parameters).caption, "Sa.");
    EXPECT_EQ(RefreshWeekday(parameters).hint, "Samstag");
    parameters.UniStartZeitTag = "5";
    parameters.UniStartZeitMonat = "2";
    EXPECT_EQ(*ReadUniStartZeit(parameters), *ParseDateTime("05.02.2006 12:30:00"));
    PadStartDate(parameters);
    EXPECT_EQ(parameters.StartDateText(), "05.02.2006 12:30:00");
    parameters.UniStartZeitTag = "30";
    EXPECT_EQ(RefreshWeekday(parameters).caption, "Err.");
    EXPECT_EQ(KlickPufferText(600), "10:00");
}

TEST(StartParameters, TemperaturesAreLinked) {
    StartParameters parameters;
    const auto max = [&](const char* text) {
        ChangeTempMax(parameters, text);
        return parameters.tempMin + " " + parameters.TempMax;
    };
    EXPECT_EQ(max("011"), "-29 11");
    EXPECT_EQ(max("+5"), "-35 5");
    EXPECT_EQ(max("0,1"), "-39,9 0,1");
    EXPECT_EQ(max("abc"), "-39,9 abc");
    EXPECT_EQ(max(" 12,05 "), "-27,95 12,05");
    ChangeTempMin(parameters, "-10");
    EXPECT_EQ(parameters.TempMax, "30");
    ChangeTempMin(parameters, "");
    EXPECT_EQ(parameters.TempMax, "30");
    const auto degrees = [&](const char* text) {
        parameters.TempMax = text;
        return ParseTemperature(parameters);
    };
    EXPECT_EQ(degrees("25,5"), 26);
    EXPECT_EQ(degrees("24,5"), 24);
    EXPECT_EQ(degrees("-32768,5"), -32768);
    for (const char* text : {"-32769", "32767,5", "99999999999999999999", "12a", ""}) {
        EXPECT_FALSE(degrees(text)) << text;
    }
}

TEST(SleepTable, TakesOnlyWhatDoesNotOverlap) {
    SleepTable table{{"kein", "Datum"}};
    const std::string overlap = "Kein überschneidenden Zeiträumen eingegeben...";
    // Hour, minute and duration of a row, and the message or the row's texts.
    const std::vector<std::array<std::string, 5>> cases{
        {"10", "00", "2", "00", "18.11.2006 10:00/18.11.2006 12:00"},
        {"10", "00", "2", "00", overlap},
        {"11", "59", "0", "01", overlap},
        {"09", "00", "1", "00", overlap},  // ends where a row begins
        {"09", "00", "0", "59", "18.11.2006 09:00/18.11.2006 09:59"},
        {"12", "00", "0", "00", "18.11.2006 12:00/18.11.2006 12:00"},  // begins where a row ends
        {"08", "00", "9", "00", overlap},                              // encloses rows
        {"23", "30", "1,5", "30", "18.11.2006 23:30/19.11.2006 01:30"},
        {"24", "00", "x", "00", "Keine gültige Dauer eingegeben..."},
        {"24", "00", "1", "00", "Kein gültiges Datum eingegeben..."},
    };
    for (const auto& [hour, minute, hours, minutes, expected] : cases) {
        const auto message = AddSleepRow({"18.11.2006", hour, minute, hours, minutes}, table);
        EXPECT_EQ(message ? message->text : table.back().Startzeit + "/" + table.back().Endzeit,
                  expected);
    }
    EXPECT_EQ(ParseSleepTable(table).size(), 4U);
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "30", "01", "00"}), "Sa.  18.11.2006 23:30");
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "30", "", "00"}), "Error");
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "60", "1", "00"}), "Error");
}

}  // namespace
}  // namespace tarvelin
