// Tests the build list, its rules and hover texts, undo, start parameters and sleep windows.
#include <set>

#include "PlanLaws.h"
#include "TestSupport.h"
#include "plan/EditHistory.h"
#include "plan/HoverInfo.h"
#include "plan/Rules.h"

namespace tarvelin {
namespace {

TEST(BuildList, HoldsRowsWithTextFactorAndColor) {
    const Plan plan = PlanOf("GS GM GK GD GX:10:10:0 WKSK WS WS WKT");
    EXPECT_EQ(StateText(plan.LV_Bauliste),
              "1|GS|Solarkraftwerk Stufe: 1|1,00|schwarz\n"
              "2|GM|MetallMine Stufe: 1|1,00|schwarz\n"
              "3|GK|KristallMine Stufe: 1|1,00|schwarz\n"
              "4|GD|DeuteriumMine Stufe: 1|0,50|rot\n"
              "5|GX:10:10:0|M:100% K:100% D:0%|1,00|schwarz\n"
              "6|WKSK|Kleine Schildkuppel|1,00|schwarz\n"
              "7|WS|Solarsatellit Nr.: 1|1,00|schwarz\n"
              "8|WS|Solarsatellit Nr.: 2|1,00|schwarz\n"
              "9|WKT|Kl. Transporter Nr: 1|1,00|schwarz\n"
              "1 1 1 1 0 0 0 2 0 1 0 0 0 0 1 0 0 0 0 0 10 10 0 ");
    EXPECT_EQ(PlanOf("GM").LV_Bauliste.Rows()[0].SubItems2, "0,00");
    EXPECT_EQ(PlanOf("GX:0:0:0 GM GK GD").LV_Bauliste.Rows()[3].SubItems2, "1,00");
}

TEST(BuildList, FactorTextFollowsTheTemperatureOfTheLastRun) {
    EXPECT_EQ(PlanOf("GM WS").LV_Bauliste.Rows()[1].SubItems2, "1,00");
    EXPECT_EQ(PlanOf("GM WS", {.Temperatur = -100}).LV_Bauliste.Rows()[1].SubItems2, "-0,45");
}

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

/// An item, its requirements, and the names of what is missing: all of it, or each requirement
/// alone where there are words for that. A text that begins with a blank is the whole message.
struct RuleCase {
    const char* item;
    std::vector<std::pair<std::string, int>> requirements;
    std::string everything;
    std::array<std::string, 2> single = {};
};

// clang-format off
const std::vector<RuleCase> kRuleCases{
    {"GM", {}, ""}, {"GK", {}, ""}, {"GD", {}, ""}, {"GS", {}, ""},
    {"GR", {{"GD", 1}, {"GS", 1}}, "Noch keine Deuteriummine oder kein Solarkraftwerk"},
    {"GF", {{"GD", 1}, {"GS", 1}}, "Noch keine Deuteriummine oder kein Solarkraftwerk"},
    {"GW", {{"GD", 1}, {"GR", 2}}, "Weder eine Roboterfabrik (Stufe:2) noch eine Deuteriummine",
     {"Deuteriummine", "Roboterfabrik (Stufe:2)"}},
    {"FE", {{"GF", 1}}, "Noch keine Forschungslabor"},
    {"FV", {{"GF", 1}, {"FE", 1}}, "Weder ein Forschungslabor noch Energietechnik(Stufe:1)",
     {"Forschungslabor", "Energietechnik(Stufe:1)"}},
    {"FL", {{"GF", 1}, {"FE", 2}}, "Weder ein Forschungslabor(Stufe:1) noch Energietechnik(Stufe:2)",
     {"Forschungslabor(Stufe:1)", "Energietechnik(Stufe:2)"}},
    {"FS", {{"GF", 3}}, "Noch keine Forschungslabor(Stufe:3)"},
    {"FSCH", {{"GF", 6}, {"FE", 3}}, "Weder ein Forschungslabor(Stufe:6) noch Energietechnik(Stufe:3)",
     {"Forschungslabor(Stufe:6)", "Energietechnik(Stufe:3)"}},
    {"WS", {{"GW", 1}}, "Noch keine Raumschiffwerft"},
    {"WR", {{"GW", 1}}, "Noch keine Raumschiffwerft"},
    {"WLJ", {{"GW", 1}, {"FV", 1}}, "Weder eine Raumschiffwerft(Stufe:1) noch Verbrennungstriebwerk(Stufe: 1)",
     {"Raumschiffwerft(Stufe:1)", "Verbrennungstriebwerk(Stufe:1)"}},
    {"WKT", {{"GW", 2}, {"FV", 2}}, "Weder eine Raumschiffwerft(Stufe:2) noch Verbrennungstriebwerk(Stufe: 2)",
     {"Raumschiffwerft(Stufe:2)", "Verbrennungstriebwerk(Stufe:2)"}},
    {"WLL", {{"GW", 2}, {"FL", 3}}, "Weder eine Raumschiffwerft(Stufe:2) noch Lasertechnik(Stufe: 3)",
     {"Raumschiffwerft(Stufe:2)", "Lasertechnik(Stufe:3)"}},
    {"WSL", {{"GW", 4}, {"FL", 6}, {"FE", 3}},
     " Benötigt werden Raumschiffwerft(Stufe:4), Lasertechnik(Stufe: 6), Energietechnik(Stufe:3) "},
    {"WSS", {{"GW", 3}, {"FV", 3}, {"FS", 2}},
     " Es werden noch benötigt: Spionagetichnik(Stufe:2), Raumschiffwerft(Stufe:3), Verbrennungstriebwerk(Stufe:3) "},
    {"WKSK", {{"GW", 1}, {"FSCH", 2}}, "Weder eine Raumschiffwerft(Stufe:1) noch Schildtechnik(Stufe: 2)",
     {"Raumschiffwerft(Stufe:1)", "Schildtechnik(Stufe:2)"}},
};
// clang-format on

/// An item's refusal when the requirements in `tooFew` lack one row each.
std::string RefusalWithout(const RuleCase& testCase, const std::set<std::size_t>& tooFew) {
    std::string codes;
    for (std::size_t i = 0; i < testCase.requirements.size(); ++i) {
        const auto& [code, count] = testCase.requirements[i];
        for (int n = tooFew.contains(i) ? 1 : 0; n < count; ++n) {
            codes += code + " ";
        }
    }
    return std::string(Refusal(*ItemFromCode(testCase.item), PlanOf(codes).LV_Bauliste.Orders())
                           .value_or("offen"));
}

TEST(Rules, OpenWithTheLastMissingRow) {
    const auto sentence = [](const std::string& missing, const char* action) {
        return " " + missing + " in der Bauliste, " + action + " wäre unmöglich! ";
    };
    for (const RuleCase& testCase : kRuleCases) {
        SCOPED_TRACE(testCase.item);
        EXPECT_EQ(RefusalWithout(testCase, {}), "offen");
        const std::string everything = testCase.everything.starts_with(' ')
                                           ? testCase.everything
                                           : sentence(testCase.everything, "bauen");
        for (std::size_t i = 0; i < testCase.requirements.size(); ++i) {
            const std::string& code = testCase.requirements[i].first;
            const std::string single = testCase.single[0].empty()
                                           ? everything
                                           : sentence("Noch keine " + testCase.single.at(i),
                                                      code == "FE" ? "forschen" : "bauen");
            EXPECT_EQ(RefusalWithout(testCase, {i}), single) << code;
            EXPECT_EQ(RefusalWithout(testCase, {0, 1, 2}), everything);
        }
    }
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
    const HoverInfo closed = HoverInfoFor(Rakws, OrderList(), conditions);
    EXPECT_FALSE(closed.dragEnabled);
    EXPECT_EQ(closed.tooltip,
              " Noch keine Raumschiffwerft in der Bauliste, bauen wäre unmöglich! ");
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
    EXPECT_EQ(*ReadUniStartZeit(parameters), *ParseDateTime("05.11.2006 12:30:00"));
    parameters.UniStartZeitMonat = "2";
    parameters.UniStartZeitTag = "30";
    EXPECT_EQ(RefreshWeekday(parameters).caption, "Err.");
    EXPECT_FALSE(ReadUniStartZeit(parameters));
    PadStartDate(parameters);
    EXPECT_EQ(parameters.UniStartZeitMonat, "02");
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
    const auto insert = [&](const char* hour, const char* minute, const char* durationHours,
                            const char* durationMinutes) {
        const auto message =
            AddSleepRow({"18.11.2006", hour, minute, durationHours, durationMinutes}, table);
        return message ? message->text : std::to_string(table.size());
    };
    const std::string hits = "Kein überschneidenden Zeiträumen eingegeben...";
    EXPECT_EQ(insert("10", "00", "2", "00"), "2");
    EXPECT_EQ(table.back(), (SleepRow{"18.11.2006 10:00", "18.11.2006 12:00"}));
    EXPECT_EQ(insert("10", "00", "2", "00"), hits);
    EXPECT_EQ(insert("11", "59", "0", "01"), hits);
    EXPECT_EQ(insert("09", "00", "1", "00"), hits);  // ends where the row begins
    EXPECT_EQ(insert("09", "00", "0", "59"), "3");
    EXPECT_EQ(insert("12", "00", "0", "00"), "4");   // begins where the row ends
    EXPECT_EQ(insert("08", "00", "9", "00"), hits);  // encloses rows
    EXPECT_EQ(insert("23", "30", "1,5", "30"), "5");
    EXPECT_EQ(table.back(), (SleepRow{"18.11.2006 23:30", "19.11.2006 01:30"}));
    EXPECT_EQ(insert("24", "00", "x", "00"), "Keine gültige Dauer eingegeben...");
    EXPECT_EQ(insert("24", "00", "1", "00"), "Kein gültiges Datum eingegeben...");
    EXPECT_EQ(ParseSleepTable(table).size(), 4U);
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "30", "01", "00"}), "Sa.  18.11.2006 23:30");
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "30", "", "00"}), "Error");
    EXPECT_EQ(SleepEndText({"18.11.2006", "22", "60", "1", "00"}), "Error");
}

}  // namespace
}  // namespace tarvelin
