// Tests the parts of the search page that show what was found, and how plans are compared.
#include "MainWindowFixture.h"
#include "ui/workbench/ComparisonPage.h"
#include "ui/workbench/FindPanel.h"
#include "ui/workbench/PlotTicks.h"

namespace tarvelin {
namespace {

TEST(PlotTicks, AreFewRoundAndInTheRange) {
    constexpr std::int64_t kDay = 86'400;
    for (std::int64_t range = 1; range < std::int64_t{1} << 31; range = range * 5 / 3 + 1) {
        for (int count = 1; count <= 5; ++count) {
            const std::int64_t round = RoundStep(range, count);
            const std::string digits = std::to_string(round);
            EXPECT_NE(std::string("125").find(digits.front()), std::string::npos) << digits;
            EXPECT_EQ(digits.find_first_not_of('0', 1), std::string::npos) << digits;
            const std::int64_t time = RoundTimeStep(range, count);
            EXPECT_EQ(time < kDay ? kDay % time : time % kDay, 0) << time;
            EXPECT_EQ(time % 60, 0) << time;
            for (const std::int64_t step : {round, time}) {
                const auto ticks = Ticks(range, 2 * range, step);
                EXPECT_LE(ticks.size(), static_cast<std::size_t>(count) + 1);
                for (const std::int64_t tick : ticks) {
                    EXPECT_TRUE(tick % step == 0 && tick >= range && tick <= 2 * range) << tick;
                }
            }
        }
    }
}

FindSummary Find(std::optional<Long> before, Long after) {
    FindSummary find;
    find.after = {.duration = after, .sittings = 24, .rates = {{12312, 204, 9990}}};
    if (before) {
        find.before = {.duration = *before, .sittings = 38, .rates = {{568, 204, 84}}};
    }
    find.rows = {{.row = 2,
                  .now = ListedOrder{Order::Of(ItemId::KTs), "Kleiner Transporter 12"},
                  .find = std::nullopt}};
    return find;
}

TEST(FindPanel, SaysWhatIsGained) {
    constexpr Long kLong = 360'016;
    constexpr Long kShort = 225'096;
    FindSummary same = Find(kLong, kLong);
    same.rows.clear();
    struct Case {
        FindSummary find;
        const char* gain;
        Color color;
    };
    FindPanel panel(nullptr);
    const WorkbenchColors colors = ColorsFor(panel.palette());
    for (const auto& [find, gain, color] :
         {Case{Find(kLong, kShort), "1 Tag 13:28:40 schneller", Color::Gain},
          Case{Find(kShort, kLong), "1 Tag 13:28:40 langsamer", Color::Deficit},
          Case{Find(kLong, kLong), "gleich schnell", Color::Weak},
          Case{Find({}, kLong), "Eine Liste, die das Ziel erreicht", Color::Gain},
          Case{same, "Die Suche kennt keine schnellere Liste.", Color::Text}}) {
        panel.ShowFind(find);
        panel.FollowAppearance();
        const auto& label = FindIn<QLabel>(panel, "LBL_Gewinn");
        EXPECT_EQ(label.text().toStdString(), gain);
        EXPECT_EQ(label.palette().color(QPalette::WindowText), colors[color]) << gain;
        EXPECT_LE(panel.minimumSizeHint().width(), 350) << gain;
        for (const char* const button : {"Cmd_MitFund", "Cmd_Uebernehmen"}) {
            EXPECT_EQ(FindIn(panel, button).isEnabled(), find.DiffersFromPlan()) << gain;
        }
        // Why there is none is neither good nor bad, and stays when the colors change.
        panel.ShowNothing(QStringLiteral("nichts"));
        panel.FollowAppearance();
        EXPECT_EQ(label.text().toStdString(), "nichts");
        EXPECT_EQ(label.palette().color(QPalette::WindowText), colors[Color::Text]) << gain;
    }
}

using Comparing = MainWindow;

TEST_F(Comparing, FindsTheRowOfAnOrder) {
    Load("GS GM GM");
    ComparisonPage page(m_document, m_environment, nullptr);
    std::vector<std::string> said;
    QObject::connect(&page, &ComparisonPage::Notice,
                     [&](const std::string& text) { said.push_back(text); });
    QObject::connect(&page, &ComparisonPage::RowWanted,
                     [&](std::size_t row) { said.push_back(std::to_string(row)); });
    page.CompareWith(TraceRun(PlanOf("GM GK")), QStringLiteral("der Fund"), QStringLiteral("Fund"));
    page.resize(384, 600);
    page.show();
    EXPECT_LE(page.minimumSizeHint().width(), 384);
    auto& table = FindIn<QTreeView>(page, "LV_Unterschiede");
    EXPECT_EQ(table.model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Fund"));
    std::map<std::string, std::string> answers;
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        said.clear();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, RowRect(table, row).center());
        const auto clicked = std::exchange(said, {});
        QTest::keyClick(&table, Qt::Key_Return);
        EXPECT_EQ(said, clicked) << row;
        for (const std::string& text : said) {
            answers[CellText(table, row, 0)] += text + "|";
        }
    }
    // A row that is found also takes back the notice of one that wasn't.
    EXPECT_EQ(answers, (std::map<std::string, std::string>{
                           {"Kristallmine 1", "Diesen Auftrag hat der Plan jetzt nicht.|"},
                           {"Metallmine 1", "|1|"},
                           {"Metallmine 2", "|2|"},
                           {"Solarkraftwerk 1", "|0|"}}));
    // Without a run there is nothing to remember.
    Press("Cmd_Clear");
    page.Remember();
    EXPECT_EQ(FindIn<QLabel>(page, "LBL_Vergleich").text().toStdString(), "der Fund");
}

}  // namespace
}  // namespace tarvelin
