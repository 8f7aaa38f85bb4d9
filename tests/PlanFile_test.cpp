// Tests plan files: format and unusable values.
#include "TestSupport.h"
#include "document/WindowTitle.h"

namespace tarvelin {
namespace {

struct LoadResult {
    Plan plan;
    MessageRecorder messages;
    bool succeeded;

    explicit LoadResult(std::string_view bytes)
        : succeeded(ReadPlan(IniFile(bytes), plan, RunConditions(), messages)) {}
};

Plan Example() {
    Plan plan = PlanOf("GM GS GX:8:10:5");
    plan.parameters.KlickPuffer = 5;
    plan.LV_Schlafzeiten = {{"18.11.2006 22:00", "19.11.2006 06:00"}};
    return plan;
}

const std::string kExample =
    "[Einstellungen]\r\nKlickPuffer=5\r\nUniStartZeitTag=18\r\nUniStartZeitMonat=11\r\n"
    "UniStartZeitJahr=2006\r\nUniStartZeitStunden=12\r\nUniStartZeitMinuten=30\r\nTempMax=11\r\n"
    "ShowDesc=1\r\nSpeedfaktor_X2=0\r\n[Bauliste]\r\nItemCount=3\r\nItem_001=GM\r\nItem_002=GS\r\n"
    "Item_003=GX:8:10:5\r\n[Schlafzeiten]\r\nItemCount=1\r\nItem_001=18.11.2006 22:00\r\n"
    "SubItem_001=19.11.2006 06:00\r\n";

/// The example with one line replaced, or removed if `after` is empty.
std::string With(const std::string& before, const std::string& after) {
    std::string bytes = kExample;
    const auto position = bytes.find(before);
    EXPECT_NE(position, std::string::npos) << before;
    return bytes.replace(position, before.size() + 2, after.empty() ? "" : after + "\r\n");
}

TEST(PlanFile, HasTheDocumentedFormat) {
    IniFile profile("");
    WritePlan(Example(), profile);
    EXPECT_EQ(profile.Bytes(), kExample);
    Plan shortPlan = Example();
    shortPlan.LV_Bauliste.RemoveLast();
    WritePlan(shortPlan, profile);
    EXPECT_EQ(profile.Bytes(), With("ItemCount=3", "ItemCount=2"));
    EXPECT_EQ(LoadResult(profile.Bytes()).plan.LV_Bauliste.Rows().size(), 2U);
    EXPECT_EQ(WindowTitleFor("/ein/Ordner/x.y.tvf"),
              "Tarvelin  |  Kelva Aufbau-Simulator      ( x.y.tvf )");
}

TEST(PlanFile, StopsAtTheFirstUnusableValue) {
    struct Case {
        const char* before;
        const char* after;
        std::size_t rows;
        std::size_t sleepRows;
        const char* obstacle;
    };
    const std::vector<Case> cases{
        {"KlickPuffer=5", "KlickPuffer=601", 0, 0,
         "Zeile 2, KlickPuffer: 601 ist keine Zahl von 0 bis 600"},
        {"KlickPuffer=5", "", 0, 0, "[Einstellungen], KlickPuffer fehlt"},
        {"ShowDesc=1", "ShowDesc=ja", 0, 0, "Zeile 9, ShowDesc: ja ist keine Zahl"},
        {"ItemCount=1", "ItemCount=10000", 0, 0,
         "Zeile 17, ItemCount: 10000 ist keine Zahl von 0 bis 9999"},
        {"ItemCount=1", "ItemCount=1,0", 0, 0,
         "Zeile 17, ItemCount: 1,0 ist keine Zahl von 0 bis 9999"},
        {"ItemCount=3", "ItemCount=-1", 0, 1,
         "Zeile 12, ItemCount: -1 ist keine Zahl von 0 bis 254"},
        {"ItemCount=3", "ItemCount=4", 3, 1, "[Bauliste], Item_004 fehlt"},
        {"Item_001=GM", "Item_001=gm", 0, 1, "Zeile 13, Item_001: gm ist kein Code der Bauliste"},
        {"Item_001=GM", "Item_001=", 0, 1, "Zeile 13, Item_001: der Wert fehlt"},
        {"Item_002=GS", "", 1, 1, "[Bauliste], Item_002 fehlt"},
        {"Item_003=GX:8:10:5", "Item_003=GX:8:10:11", 2, 1,
         "Zeile 15, Item_003: GX:8:10:11 ist kein Code der Bauliste"}};
    for (const Case& testCase : cases) {
        SCOPED_TRACE(std::string(testCase.before) + " " + testCase.after);
        const LoadResult loaded(With(testCase.before, testCase.after));
        EXPECT_FALSE(loaded.succeeded);
        EXPECT_EQ(loaded.messages.texts,
                  std::vector<std::string>{"Die Bauliste konnte nicht geladen werden..."});
        EXPECT_EQ(loaded.plan.LV_Bauliste.Rows().size(), testCase.rows);
        EXPECT_EQ(loaded.plan.LV_Schlafzeiten.size(), testCase.sleepRows);
        EXPECT_EQ(LoadObstacle(IniFile(With(testCase.before, testCase.after))), testCase.obstacle);
    }
    EXPECT_EQ(LoadObstacle(IniFile(kExample)), "");
    const LoadResult tooMuch(With("ItemCount=3", "ItemCount=99999999999999999999"));
    EXPECT_EQ(tooMuch.messages.texts.size(), 1U);
}

TEST(PlanFile, ReadsWhatIsUsable) {
    const auto flags = [](const std::string& before, const std::string& after) {
        const Plan plan = LoadResult(With(before, after)).plan;
        return std::pair(plan.ShowDesc, plan.parameters.Speedfaktor_X2);
    };
    EXPECT_EQ(flags("ShowDesc=1", "ShowDesc=0,0"), std::pair(false, false));
    EXPECT_EQ(flags("ShowDesc=1", "ShowDesc=-7"), std::pair(true, false));
    EXPECT_EQ(flags("Speedfaktor_X2=0", "Speedfaktor_X2=1"), std::pair(true, true));
    EXPECT_EQ(flags("Speedfaktor_X2=0", "Speedfaktor_X2=01"), std::pair(true, false));
    EXPECT_EQ(flags("Speedfaktor_X2=0", ""), std::pair(true, false));
    EXPECT_EQ(LoadResult(With("TempMax=11", "TempMax=-20,5")).plan.parameters.tempMin, "-60,5");
    const LoadResult withoutDate(With("UniStartZeitTag=18", "UniStartZeitTag=31"));
    EXPECT_TRUE(withoutDate.succeeded);
    EXPECT_TRUE(std::holds_alternative<Message>(ParseRunConditions(withoutDate.plan)));
    const LoadResult sign(With("Item_003=GX:8:10:5", "Item_003=GX:+8:010: 5 :x"));
    EXPECT_EQ(sign.plan.LV_Bauliste.Rows()[2].Tag, "GX:+8:010: 5 :x");
    EXPECT_EQ(sign.plan.LV_Bauliste.Rows()[2].SubItems1, "M:80% K:100% D:50%");
    EXPECT_EQ(sign.plan.LV_Bauliste.Orders().All()[2], Order::FromTag("GX:8:10:5"));
}

}  // namespace
}  // namespace tarvelin
