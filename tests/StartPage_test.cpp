// Tests the openings that ship, and the page that offers them.
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "document/PlanRun.h"
#include "plan/Rules.h"
#include "plan/SleepRule.h"
#include "search/GoalText.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemPicture.h"
#include "ui/workbench/DropZone.h"
#include "ui/workbench/Openings.h"
#include "ui/workbench/StartPage.h"

namespace tarvelin {
namespace {

const std::filesystem::path kOpenings =
    std::filesystem::path(TARVELIN_SOURCE_DIR) / "data" / "openings";

TEST(Openings, KeepTheRulesAndTheNightsAndReachTheirGoals) {
    const std::vector<const char*> goals{"kl. transporter 2, energie 2", "kl. transporter 5",
                                         "energie 3, verbrennung 3, lasertechnik 3",
                                         "raketenwerfer 8, leichter laser 4"};
    ASSERT_EQ(Openings().size(), goals.size());
    for (std::size_t i = 0; i < goals.size(); ++i) {
        SCOPED_TRACE(Openings()[i].file);
        const PlanRun run(kOpenings / Openings()[i].file);
        ASSERT_TRUE(run.hasRun);
        EXPECT_TRUE(run.messages.empty());
        const RunTrace trace = run.Trace();
        BuildList list;
        for (const Order& order : run.plan.LV_Bauliste.Orders().All()) {
            EXPECT_FALSE(Refusal(order.item, list.Orders())) << list.Orders().Size();
            EXPECT_FALSE(list.AddItem(order.item, trace.conditions));
        }
        EXPECT_EQ(trace.starts.size(), list.Orders().Size()) << "every order starts";
        for (const StartEvent& start : trace.starts) {
            EXPECT_FALSE(start.gateClosed) << start.row;
        }
        EXPECT_FALSE(SleeplessFrom(run.plan.LV_Schlafzeiten, trace.conditions.StartDate,
                                   trace.conditions.WallClock(trace.Duration())));
        const Goal goal = std::get<Goal>(ParseGoal(goals[i]));
        for (std::size_t item = 0; item < kNumItems; ++item) {
            EXPECT_GE(trace.end.Stufe[item], goal.levels[item]) << item;
        }
    }
}

class StartPageWindow : public testing::Test {
  protected:
    StartPageWindow() {
        std::filesystem::create_directory(m_folder / "saves");
        m_document.Start({}, {});
        EXPECT_FALSE(m_document.AddItem(ItemId::SKW));
        for (const char* const name : {"alt.tvf", "a&b.tvf"}) {
            m_document.SaveBauliste(m_folder / "saves" / name);
        }
        m_page.Refresh();
        m_page.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_page));
    }
    void Key(Qt::Key key) { QTest::keyClick(m_page.focusWidget(), key); }

    TempFolder m_folder;
    Scripted<Prompts> m_prompts;
    Document m_document{m_prompts, [] { return *ParseDateTime("18.11.2006 09:15:00"); },
                        m_folder / ""};
    StartPage m_page{m_document, kOpenings, nullptr};
};

// Tab leads through cards and links; Enter takes what has the focus.
TEST_F(StartPageWindow, IsReachedByTheKeyboard) {
    std::vector<std::string> chosen;
    const auto record = [&](const std::filesystem::path& file) {
        chosen.push_back(file.filename().string());
    };
    QObject::connect(&m_page, &StartPage::OpeningChosen, record);
    QObject::connect(&m_page, &StartPage::FileChosen, record);
    QObject::connect(&m_page, &StartPage::OpenWanted, [&] { chosen.emplace_back("?"); });
    for (auto* const button : m_page.findChildren<QPushButton*>()) {
        if (button->accessibleName() == QStringLiteral("Die klassische Eröffnung öffnen")) {
            button->setFocus();
        }
    }
    for (int i = 0; i < 7; ++i) {
        Key(Qt::Key_Return);
        Key(Qt::Key_Tab);
    }
    EXPECT_EQ(chosen, (std::vector<std::string>{"klassisch.tvf", "transporter.tvf", "forschung.tvf",
                                                "verteidigung.tvf", "a&b.tvf", "alt.tvf", "?"}));
}

TEST_F(StartPageWindow, TakesPicturesAndNothingElse) {
    auto& zone = *m_page.findChild<DropZone*>();
    const QSignalSpy dropped(&m_page, &StartPage::PictureDropped);
    for (const QString& type : {QString(kItemMimeType), QStringLiteral("text/plain")}) {
        QMimeData data;
        data.setData(type, "ImgMetMine");
        QDragEnterEvent enter(QPoint(1, 1), Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&zone, &enter);
        EXPECT_EQ(enter.isAccepted(), type == kItemMimeType);
        if (enter.isAccepted()) {
            QDropEvent drop(QPointF(1, 1), Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(&zone, &drop);
        }
    }
    ASSERT_EQ(dropped.size(), 1);
    EXPECT_EQ(dropped.front().front().toString(), QStringLiteral("ImgMetMine"));
}

TEST_F(StartPageWindow, HasOneColumnWhereTwoDontFit) {
    const auto buttons = m_page.findChildren<QPushButton*>();
    const auto place = [&](qsizetype i) { return buttons[i]->mapTo(&m_page, QPoint()); };
    m_page.resize(900, 700);
    EXPECT_TRUE(QTest::qWaitFor([&] { return place(0).y() == place(1).y(); }));
    m_page.resize(500, 700);
    EXPECT_TRUE(QTest::qWaitFor([&] { return place(0).x() == place(1).x(); }));
    EXPECT_LT(place(0).y(), place(1).y());
}

}  // namespace
}  // namespace tarvelin
