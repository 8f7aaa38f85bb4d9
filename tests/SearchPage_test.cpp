// Tests the page of the search: the goal by pictures and text, its options, what becomes of a find.
#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QToolButton>

#include "MainWindowFixture.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/workbench/SearchPage.h"

namespace tarvelin {
namespace {

class SearchingPage : public MainWindow {
  protected:
    SearchingPage() {
        m_page.setPalette(WorkbenchColors(WorkbenchColors::Set::Light).Palette());
        m_page.FollowAppearance();
        m_page.resize(384, 700);
    }

    template <class T = QWidget>
    T& Part(const char* name) {
        return FindIn<T>(m_page, name);
    }
    std::string GoalAsTyped() { return Part<QLineEdit>("txt_Suchziel").text().toStdString(); }

    std::vector<std::size_t> m_chosen;
    SearchPage m_page{m_document, m_environment, [this] { return m_chosen; }, nullptr};
};

TEST_F(SearchingPage, KeepsPicturesAndTextOfTheGoalInStep) {
    m_page.show();
    Part<QComboBox>("Comb_Suchaufgabe").setCurrentIndex(1);
    auto& text = Part<QLineEdit>("txt_Suchziel");
    const auto click = [this](const char* picture, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&Part(picture), button);
    };
    const auto name = [this](const char* picture) {
        return Part(picture).accessibleName().toStdString();
    };
    // A picture without a number takes nothing away.
    EXPECT_EQ(GoalAsTyped(), "der ganze Plan");
    click("Ziel_GW", Qt::RightButton);
    EXPECT_EQ(GoalAsTyped(), "der ganze Plan");
    text.setText(QStringLiteral("werft 2"));
    EXPECT_EQ(name("Ziel_GW"), "Raumschiffwerft, Ziel: 2");
    EXPECT_FALSE(Part<QCheckBox>("Chk_GanzerPlan").isChecked());
    click("Ziel_WKT");
    QTest::keyClick(&Part("Ziel_WKT"), Qt::Key_Plus);
    QTest::keyClick(&Part("Ziel_GW"), Qt::Key_Minus);
    EXPECT_EQ(GoalAsTyped(), "Raumschiffwerft 1, Kleiner Transporter 2");
    // What was wiped out doesn't come back.
    text.clear();
    click("Ziel_GM");
    EXPECT_EQ(GoalAsTyped(), "Metallmine 1");
    // No wrong text makes anything move.
    const auto places = [this] {
        QCoreApplication::processEvents();
        return std::pair(Part("Cmd_Suchen").pos(), m_page.minimumSizeHint());
    };
    const auto before = places();
    const auto hint = [this] { return Part<QLabel>("LBL_Ziel").palette().placeholderText(); };
    EXPECT_EQ(hint().color(), WorkbenchColors(WorkbenchColors::Set::Light)[Color::Weak]);
    const std::string longWord(100, 'X');
    for (const char* const wrong : {"XX1", "laser", longWord.c_str()}) {
        text.setText(QString::fromUtf8(wrong));
        EXPECT_EQ(places(), before) << wrong;
        EXPECT_EQ(hint().color(), WorkbenchColors(WorkbenchColors::Set::Light)[Color::Deficit])
            << wrong;
        EXPECT_NE(Part<QLabel>("LBL_Ziel").text().indexOf(QLatin1Char('"')), -1) << wrong;
    }
    m_page.setPalette(WorkbenchColors(WorkbenchColors::Set::Dark).Palette());
    m_page.FollowAppearance();
    EXPECT_EQ(hint().color(), WorkbenchColors(WorkbenchColors::Set::Dark)[Color::Deficit]);
}

TEST_F(SearchingPage, SaysWhatEachOptionDoesInThisPlan) {
    const auto effects = [this] {
        std::string all;
        for (const auto* const label : Part("Details_Wuensche").findChildren<QLabel*>()) {
            all += label->text().toStdString() + "|";
        }
        return all;
    };
    const auto expect = [&](const char* text) {
        m_page.ShowEffects();
        EXPECT_NE(effects().find(text), std::string::npos) << text << "\n" << effects();
    };
    Part<QToolButton>("Cmd_Wuensche").click();
    Plan plan = PlanOf("GS GM GX:5:10:10 GM");
    plan.parameters.UniStartZeitTag = "18";
    Load(plan);
    m_now = m_document.Trace()->conditions.WallClock(SimTime());
    expect("Der Plan hat noch nicht begonnen");
    expect("Wähle links Zeilen");
    expect("1 Zeile darf ihren Platz wechseln.");
    m_now = m_document.Trace()->conditions.WallClock(m_document.Trace()->starts[1].start) + 1;
    m_chosen = {1, 3};
    expect("2 Aufträge haben begonnen");
    expect("Die Zeilen 2, 4 bleiben, wo sie sind.");
    Load(PlanOf("GS GM"));
    expect("Dieser Plan hat keine.");
    // All that can be chosen, in the width that the pages have.
    m_chosen.resize(200);
    for (const char* const option : {"Chk_Fest", "Chk_Frei", "Chk_AbJetzt", "Chk_Sitzungen"}) {
        Part<QCheckBox>(option).click();
    }
    Part<QSpinBox>("Spin_Versuche").setValue(1'000'000'000);
    for (const bool unfolded : {true, false}) {
        Part<QToolButton>("Cmd_Wuensche").setChecked(unfolded);
        EXPECT_LE(m_page.minimumSizeHint().width(), 384 - 14) << unfolded;
    }
}

TEST_F(SearchingPage, TellsOfATakeOverOnlyWhenThereIsOne) {
    Load(PlanOf("GM GM GM GM GS GS"));
    std::vector<Long> told;
    QObject::connect(&m_page, &SearchPage::TakenOver,
                     [&](const RunTrace& before) { told.push_back(before.Duration().Seconds()); });
    m_page.StartSearch();
    EXPECT_FALSE(m_page.HasFind());
    constexpr int kLong = 300'000;
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_page.IsRunning(); }, kLong));
    ASSERT_TRUE(m_page.FindTrace());
    const Long found = m_page.FindTrace()->Duration().Seconds();
    // The plan was edited since: the player is asked, and doesn't want it.
    Load(PlanOf("GS GM"));
    m_page.AcceptFind();
    EXPECT_EQ(told.size(), 0U);
    EXPECT_TRUE(m_page.HasFind());
    const Long before = m_document.Trace()->Duration().Seconds();
    m_dialogs.answer = true;
    m_page.AcceptFind();
    EXPECT_EQ(told, std::vector{before});
    EXPECT_EQ(m_document.Trace()->Duration().Seconds(), found);
    EXPECT_FALSE(m_page.HasFind());
}

}  // namespace
}  // namespace tarvelin
