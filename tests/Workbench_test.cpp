// Tests the workbench: edits, agreement with the main window, timeline, pages, exports.
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QImage>
#include <QMenu>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <random>

#include "MainWindowFixture.h"
#include "document/PlanRun.h"
#include "simulation/RunTexts.h"
#include "ui/services/SvgImage.h"

namespace tarvelin {
namespace {

class WorkbenchWindow : public MainWindow {
  protected:
    WorkbenchWindow() {
        Choose("mnuWerkbank");
        m_workbench = &OnlyWindow("frmWerkbank");
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_workbench));
    }

    template <class T = QWidget>
    T& Page(const char* name) {
        return FindIn<T>(*m_workbench, name);
    }
    /// Actions can be asked as well as buttons.
    QAction* Action(const char* name) {
        return m_workbench->findChild<QAction*>(QString::fromLatin1(name));
    }
    bool IsEnabled(const char* name) {
        QAction* const action = Action(name);
        return action != nullptr ? action->isEnabled() : Page(name).isEnabled();
    }
    void Click(const char* name) {
        if (QAction* const action = Action(name)) {
            action->trigger();
        } else {
            Page<QAbstractButton>(name).click();
        }
    }
    std::string Says(const char* label) { return Page<QLabel>(label).text().toStdString(); }
    /// The message in full; the status bar may elide it.
    std::string Message() { return Page("LBL_Meldung").accessibleName().toStdString(); }
    std::string Change() { return Page("LBL_Aenderung").accessibleName().toStdString(); }
    /// The texts of a table, or of one of its columns.
    std::string Texts(const char* table, std::optional<int> only = std::nullopt) {
        const auto& list = Page<QTreeView>(table);
        std::string text;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            for (int column = 0; column < list.model()->columnCount(); ++column) {
                text += column == only.value_or(column) ? CellText(list, row, column) + "|" : "";
            }
        }
        return text;
    }
    /// Where a moment stands in the timeline.
    static int ColumnOf(const TimelineView& timeline, SimTime moment) {
        return static_cast<int>(std::lround(timeline.Scale().X(moment)));
    }
    std::vector<std::size_t> ChosenRows() {
        return Page<OrderListView>("LV_Werkbank").ChosenRows();
    }
    void ChooseRows(const std::vector<std::size_t>& rows) {
        Page<OrderListView>("LV_Werkbank").Choose(rows);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(m_workbench, key, modifiers);
    }
    void UndoEdit() { Key(Qt::Key_Z, Qt::ControlModifier); }
    std::string SaveAs(const char* button, const char* name) {
        m_dialogs.file = name;
        Click(button);
        return ReadFileToString(m_folder / "saves" / name);
    }
    [[nodiscard]] std::string Tags() const {
        std::string text;
        for (const BuildListRow& row : m_document.CurrentPlan().LV_Bauliste.Rows()) {
            text += (text.empty() ? "" : " ") + row.Tag;
        }
        return text;
    }
    /// Both windows show the plan, with the texts that dropping its rows anew would give.
    void ExpectAgreement() {
        BuildList replayed;
        replayed.SetOrders(m_document.CurrentPlan().LV_Bauliste.Orders().All(),
                           m_document.CurrentRun().conditions);
        const auto& list = Find<QTreeView>("LV_Bauliste");
        const auto& there = Page<QTreeView>("LV_Werkbank");
        ASSERT_EQ(list.model()->rowCount(), static_cast<int>(replayed.Rows().size()));
        ASSERT_EQ(there.model()->rowCount(), list.model()->rowCount());
        for (int i = 0; i < list.model()->rowCount(); ++i) {
            const BuildListRow& row = replayed.Rows()[static_cast<std::size_t>(i)];
            EXPECT_EQ(CellText(list, i, 1), row.SubItems1);
            const auto& trace = m_document.Trace();
            EXPECT_EQ(
                CellText(there, i, 1),
                trace ? OrderText(*trace->StartOf(static_cast<std::size_t>(i))) : row.SubItems1);
            EXPECT_EQ(CellText(list, i, 2), row.SubItems2);
            EXPECT_EQ(CellText(there, i, 9), row.SubItems2);
        }
    }

    QWidget* m_workbench = nullptr;
};

TEST_F(WorkbenchWindow, EditsInTheMiddle) {
    Load("GS GM GD GR GR GW");
    const QPoint listPosition = Page("LV_Werkbank").mapTo(m_workbench, QPoint());
    ChooseRows({3, 4});
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Tags(), "GS GM GD GR GR GW");
    QCoreApplication::processEvents();
    EXPECT_EQ(Page("LV_Werkbank").mapTo(m_workbench, QPoint()), listPosition) << "nothing moves";
    EXPECT_EQ(Message(),
              "Zeile 6 (Raumschiffwerft Stufe: 1): Noch keine Roboterfabrik (Stufe:2) in der "
              "Bauliste, bauen wäre unmöglich!");
    ChooseRows({1});
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Tags(), "GM GS GD GR GR GW");
    EXPECT_EQ(ChosenRows(), (std::vector<std::size_t>{0}));
    EXPECT_EQ(Message(), "");
    Click("ImgSKW");
    Click("ImgKrisMine");
    EXPECT_EQ(Tags(), "GS GK GM GS GD GR GR GW") << "in front of the chosen row, in their turn";
    Click("ImgRobo");
    EXPECT_NE(Message().find("kein Solarkraftwerk in der Bauliste"), std::string::npos);
    EXPECT_EQ(Page("ImgRobo").toolTip().trimmed().toStdString(), Message());
    ChooseRows({7});
    Key(Qt::Key_D, Qt::ControlModifier);
    ChooseRows({1, 2});
    Key(Qt::Key_Delete);
    Page<QComboBox>("Comb_Kristallmine").setCurrentIndex(3);
    Click("Cmd_Produktion");
    EXPECT_EQ(Tags(), "GS GX:10:7:10 GS GD GR GR GW GW");
    UndoEdit();
    EXPECT_EQ(Tags(), "GS GS GD GR GR GW GW");
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Tags(), "GS GX:10:7:10 GS GD GR GR GW GW");
    EXPECT_EQ(Texts("LV_Werkbank", 0), "1|2|3|4|5|6|7|8|");
    ExpectAgreement();
    EXPECT_TRUE(m_dialogs.texts.empty());
}

TEST_F(WorkbenchWindow, RunsAfterEachEditInBothWindows) {
    Load("GM GM GS");
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 0) << "nobody has started a run there";
    EXPECT_EQ(Texts("LV_Werkbank", 2), "Sa 18.11. 12:30:05|Sa 18.11. 12:32:04|Sa 18.11. 12:34:56|");
    EXPECT_EQ(Texts("LV_Werkbank", 8),
              "Klickpuffer 5 s|Bauschleife bis 12:31:59|Bauschleife bis 12:34:51|");
    ChooseRows({2});
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ("Dauer: 00 Tage " + Says("LBL_Dauer"), TextOf("LBL_Timegone"));
    EXPECT_EQ(Says("LBL_Aenderung"), "±00:00:00");
    EXPECT_EQ(Cell("LV_Bauzeiten", 1, 2), "Solarkraftwerk: 1");
    EXPECT_TRUE(Find("Fra_Einstellungen").isVisible());
    // A change of parameters takes effect at once.
    Find<QSlider>("HSC_KlickPuffer").setValue(65);
    EXPECT_EQ(Change(), "00:05:00 langsamer");
    UndoEdit();
    EXPECT_EQ(Change(), "00:05:00 schneller");
    EXPECT_TRUE(IsEnabled("Cmd_Vor"));
    Type("txt_TempMax", "40");
    Type("txt_UniStartZeitMonat", "13");
    EXPECT_FALSE(IsEnabled("Cmd_Vor")) << "an edit ends what was taken back";
    EXPECT_EQ(Message(), "Kein gültiges Datum eingegeben...");
    EXPECT_EQ(Texts("LV_Werkbank", 2), "|||");
    EXPECT_EQ(Says("LBL_Dauer"), "–");
    Press("Cmd_AddSchlafzeit");
    // Typing into one input is a step.
    for (const char* const month : {"13", "11"}) {
        UndoEdit();
        EXPECT_EQ(RowCount("LV_Schlafzeiten"), 0);
        EXPECT_EQ(TextOf("txt_UniStartZeitMonat"), month);
        EXPECT_EQ(TextOf("txt_TempMax"), "40");
    }
    ExpectAgreement();
    // Messages of the run are shown in the message line, after that of a clock at its end.
    Plan late = PlanOf("GS GW");
    late.LV_Schlafzeiten = {{"18.11.2006 12:30", "18.11.3006 23:30"}};
    Load(late);
    EXPECT_NE(Message().find("was später als 24855 Tage 03:14:07 käme"), std::string::npos);
    EXPECT_NE(Message().find("\nNegative Ressourcen"), std::string::npos);
}

TEST_F(WorkbenchWindow, KnowsItsFile) {
    EXPECT_EQ(m_workbench->windowTitle(), QStringLiteral("Unbenannt[*] – Tarvelin Werkbank"));
    Click("ImgMetMine");
    EXPECT_TRUE(m_workbench->isWindowModified());
    m_dialogs.file = "a&b.tvf";
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(m_workbench->isWindowModified());
    EXPECT_EQ(m_workbench->windowTitle(), QStringLiteral("a&b.tvf[*] – Tarvelin Werkbank"));
    // From now on nobody is asked, except by the other key.
    m_dialogs.file = "b.tvf";
    Click("ImgSKW");
    EXPECT_TRUE(m_workbench->isWindowModified());
    Key(Qt::Key_S, Qt::ControlModifier);
    EXPECT_NE(ReadFileToString(m_folder / "saves" / "a&b.tvf").find("GS"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(m_folder / "saves" / "b.tvf"));
    Key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(std::filesystem::exists(m_folder / "saves" / "b.tvf"));
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(Tags(), "");
    EXPECT_FALSE(m_document.File());
    Key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(Tags(), "GM GS");
    auto& recent = Page<QMenu>("Zuletzt");
    emit recent.aboutToShow();
    ASSERT_EQ(recent.actions().size(), 2);
    EXPECT_EQ(recent.actions()[0]->text(), QStringLiteral("b.tvf"));
    recent.actions()[1]->trigger();
    EXPECT_EQ(m_document.File()->filename(), "a&b.tvf");
    UndoEdit();
    EXPECT_FALSE(m_document.File()) << "the plan that comes back isn't written over this file";
    Click("Cmd_Schliessen");
    m_window.close();
    EXPECT_NE(ReadFileToString(m_folder / "config.cfg").find("a&b.tvf"), std::string::npos);
}

TEST_F(WorkbenchWindow, ShowsWhereRowsGoAndWhichIsRefused) {
    Load("GS GM GD GR GR GW");
    ChooseRows({1});
    Click("ImgKrisMine");
    Click("ImgMetMine");
    EXPECT_EQ(Tags(), "GS GK GM GM GD GR GR GW") << "one behind the other";
    EXPECT_EQ(ChosenRows(), (std::vector<std::size_t>{2})) << "the new one";
    EXPECT_EQ(Says("LBL_Einfuegeort"), "Ein Klick fügt vor <b>Zeile 4</b> ein, Ziehen irgendwo");
    MoveMouse(Page("ImgMetMine"), {1, 1});
    QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
    QCoreApplication::sendEvent(&Page("ImgMetMine"), &enter);
    EXPECT_EQ(Says("LBL_Palettenbild"),
              "<b>Metallmine 2</b>: 90 Metall, 22 Kristall, 00:02:41<br>braucht 13 Energie mehr");
    const auto& list = Page<OrderListView>("LV_Werkbank");
    const auto& delegate = dynamic_cast<const OrderDelegate&>(*list.itemDelegate());
    ChooseRows({5});
    Key(Qt::Key_Delete);
    EXPECT_EQ(delegate.Marks().refused, 7U);
    EXPECT_EQ(Says("LBL_Meldungstitel"), "Nicht gelöscht.");
    EXPECT_EQ(delegate.Marks().next, 0U);
    ChooseRows({2});
    Key(Qt::Key_Delete);
    EXPECT_FALSE(delegate.Marks().refused);
    // Hidden columns outlast the session.
    Page<OrderListView>("LV_Werkbank").SetHiddenColumns({OrderColumn::Metall, OrderColumn::Wait});
    EXPECT_TRUE(list.header()->isSectionHidden(static_cast<int>(OrderColumn::Wait)));
    m_window.close();
    const std::string config = ReadFileToString(m_folder / "config.cfg");
    EXPECT_NE(config.find("Ausgeblendet=Metall,Wartete auf"), std::string::npos) << config;
}

TEST_F(WorkbenchWindow, EntersNightsByRule) {
    Plan plan = PlanOf("GS GM GM GM GM");
    plan.parameters.UniStartZeitStunden = "18";
    Load(plan);
    EXPECT_EQ(Says("LBL_Meldungstitel"), "") << "without any night nothing is asked";
    Click("Chk_AlleNaechte");
    Page<QTimeEdit>("Zeit_Von_6").setTime(QTime(1, 0));
    EXPECT_FALSE(Page<QCheckBox>("Chk_AlleNaechte").isChecked());
    EXPECT_TRUE(Says("LBL_Schlafwirkung")
                    .starts_with("1 Nacht: 1 kommt dazu.<br>Ende <b>Sa 18.11. 19:23:15</b>"))
        << Says("LBL_Schlafwirkung");
    Click("Cmd_NaechteEintragen");
    EXPECT_EQ(Texts("LV_Naechte"), "So 19.11. 01:00|So 19.11. 07:00|06:00||");
    EXPECT_FALSE(Page("Cmd_NaechteEintragen").isEnabled());
    // A row of the player's own, which can go again.
    Click("Cmd_SchlafzeileNeu");
    EXPECT_EQ(m_document.CurrentPlan().LV_Schlafzeiten.size(), 2U);
    auto& table = Page<QTreeView>("LV_Naechte");
    table.setCurrentIndex(table.model()->index(1, 0));
    Click("Cmd_SchlafzeileWeg");
    EXPECT_EQ(m_document.CurrentPlan().LV_Schlafzeiten.size(), 1U);
    // The plan goes on behind its night.
    m_document.Edit(std::vector<Order>(13, Order::Of(ItemId::MetMine)));
    EXPECT_EQ(Says("LBL_Meldungstitel"), "Ab Mo 20.11. 01:00 ohne Schlaf:");
    const std::size_t before = m_document.CurrentPlan().LV_Schlafzeiten.size();
    Click("Cmd_Hinweis");
    EXPECT_GT(m_document.CurrentPlan().LV_Schlafzeiten.size(), before + 3);
    EXPECT_EQ(Says("LBL_Meldungstitel"), "");
    UndoEdit();
    EXPECT_EQ(m_document.CurrentPlan().LV_Schlafzeiten.size(), before);
    // The start moves, and offers to take the nights along.
    UndoEdit();
    auto& start = Page<QDateTimeEdit>("Planet_Start");
    start.setDateTime(start.dateTime().addDays(7));
    EXPECT_EQ(TextOf("txt_UniStartZeitTag"), "25");
    EXPECT_EQ(Says("LBL_Meldungstitel"), "Der Start liegt 7 Tage später.");
    Click("Cmd_Hinweis");
    EXPECT_EQ(Cell("LV_Schlafzeiten", 0, 0), "26.11.2006 01:00");
    EXPECT_EQ(Says("LBL_Meldungstitel"), "");
    UndoEdit();
    EXPECT_EQ(Says("LBL_Meldungstitel"), "Der Start liegt 7 Tage später.");
    UndoEdit();
    EXPECT_EQ(Says("LBL_Meldungstitel"), "") << "start and nights are as they were";
    // What the classic window sets, the page shows.
    Type("txt_TempMax", "40");
    EXPECT_EQ(Page<QLineEdit>("Planet_TempMin").text(), QStringLiteral("0"));
}

TEST_F(WorkbenchWindow, BeginsWithAnOpening) {
    QWidget& list = Page("LV_Werkbank");
    EXPECT_FALSE(list.isVisible());
    for (auto* const button : m_workbench->findChildren<QPushButton*>()) {
        if (button->text() == QStringLiteral("Öffnen")) {
            button->click();
            break;
        }
    }
    EXPECT_TRUE(list.isVisible());
    EXPECT_EQ(Says("LBL_Dauer"), "4 Tage 04:40:16");
    EXPECT_FALSE(m_document.File());
    Key(Qt::Key_F1);
    QWidget& guide = OnlyWindow("frmAnleitung");
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&guide));
    guide.close();
    m_workbench->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_workbench));
    UndoEdit();
    EXPECT_FALSE(list.isVisible());
}

using Monkey = WorkbenchWindow;

// Clicks, types, drops and edits at random. Nothing may crash, and both windows show the plan.
TEST_F(Monkey, KeepsBothWindowsTogether) {
    std::mt19937 random(7);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const auto anyOf = [&](const auto& list) {
        return *std::next(list.begin(), below(static_cast<int>(list.size())));
    };
    const std::array keys{Qt::Key_Return, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Space,
                          Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left, Qt::Key_PageUp,
                          Qt::Key_Home,   Qt::Key_Delete, Qt::Key_E,    Qt::Key_S};
    const std::array edits{"Cmd_Hoch", "Cmd_Runter", "Cmd_Verdopple", "Cmd_Loesche"};
    const auto anyWidget = [&]() -> QWidget& {
        std::vector<QWidget*> widgets;
        for (const QWidget* const window : {static_cast<QWidget*>(&m_window), m_workbench}) {
            std::ranges::copy_if(window->findChildren<QWidget*>(), std::back_inserter(widgets),
                                 // The calendar's menu of months would block until it is answered.
                                 [](const QWidget* widget) {
                                     return widget->isVisible() && widget->isEnabled() &&
                                            !widget->inherits("QToolButton");
                                 });
        }
        return *anyOf(widgets);
    };
    for (int i = 0; i < 600 && !HasFailure(); ++i) {
        SCOPED_TRACE(i);
        m_dialogs.answer = below(2) == 0;
        m_dialogs.file = below(2) == 0 ? "affe.tvf" : "fehlt/affe.tvf";
        QWidget& target = anyWidget();
        QWidget* const focus = QApplication::focusWidget();
        const std::string picture(anyOf(ItemDisplays()).pictureName);
        const int what = below(10);
        if (what < 4) {
            const QPoint position(below(target.width() + 1), below(target.height() + 1));
            QTest::mouseEvent(below(8) == 0 ? QTest::MouseDClick : QTest::MouseClick, &target,
                              Qt::LeftButton, {}, position);
        } else if (what == 4 && focus != nullptr) {
            QTest::keyClick(focus, anyOf(keys), below(6) == 0 ? Qt::AltModifier : Qt::NoModifier);
        } else if (what == 5 && focus != nullptr) {
            QTest::keyClick(focus, anyOf(std::string_view("0123456789+-,.x;=[")));
        } else if (what == 6) {
            auto* const entry = anyOf(m_window.findChildren<QAction*>());
            if (entry->objectName() != QStringLiteral("mnu_Datei_Beenden")) {
                entry->trigger();
            }
        } else if (what == 7) {
            ChooseRows({random() % 9, random() % 9});
            Click(anyOf(edits));
        } else if (what == 8) {
            Drop(picture);
        } else {
            Click(picture.c_str());
        }
        QCoreApplication::processEvents();
        ASSERT_TRUE(m_window.isVisible());
        if (IsEnabled("Cmd_Zurueck") && below(2) == 0) {
            const std::string tags = Tags();
            Click("Cmd_Zurueck");
            ExpectAgreement();
            Click("Cmd_Vor");
            EXPECT_EQ(Tags(), tags);
            EXPECT_EQ(Says("LBL_Dauer") == "–", !m_document.Trace());
        }
        ExpectAgreement();
    }
}

TEST_F(WorkbenchWindow, ShowsThePlanAsAPicture) {
    m_now = *ParseDateTime("18.11.2006 12:33:00");
    Plan plan = PlanOf("GM GM GS GX:10:0:10 GM");
    plan.parameters.KlickPuffer = 5;
    Load(plan);
    auto& timeline = Page<TimelineView>("Zeitleiste");
    EXPECT_EQ(Says("LBL_Naechster"), "Solarkraftwerk 1");
    EXPECT_EQ(Says("LBL_Restzeit"), "in 00:01:56");
    EXPECT_EQ(Says("LBL_Naechstzeit"), "Sa 18.11. 12:34:56");
    const TimelineRows rows = timeline.Rows();
    const int bars = static_cast<int>(rows.lanes[0].top() + rows.barTop + rows.bar / 2);
    const auto click = [&](int column, double y) {
        QTest::mouseClick(&timeline, Qt::LeftButton, {}, QPoint(column, static_cast<int>(y)));
    };
    click(ColumnOf(timeline, SimTime(180)), bars);
    EXPECT_EQ(ChosenRows(), (std::vector<std::size_t>{1})) << "a bar";
    click(ColumnOf(timeline, SimTime(296)) + 4, rows.lanes[0].top() + rows.pictureTop + 4);
    EXPECT_EQ(ChosenRows(), (std::vector<std::size_t>{2})) << "a picture";
    click(ColumnOf(timeline, SimTime(400)), rows.waits.center().y());
    EXPECT_EQ(ChosenRows(), (std::vector<std::size_t>{3})) << "a wait";
    // Zooming keeps the moment below the pointer in place.
    const QPoint position(ColumnOf(timeline, SimTime(305)), 50);
    for (int i = 0; i < 8; ++i) {
        QWheelEvent wheel(position, timeline.mapToGlobal(position), {}, {0, 120}, {}, {},
                          Qt::NoScrollPhase, false);
        const double below = timeline.Scale().SecondAt(position.x());
        QCoreApplication::sendEvent(&timeline, &wheel);
        EXPECT_NEAR(timeline.Scale().X(below), position.x(), 1);
    }
    EXPECT_GT(ColumnOf(timeline, SimTime(310)) - ColumnOf(timeline, SimTime(300)), 15);
    MoveMouse(timeline, position);
    EXPECT_EQ(timeline.accessibleDescription().left(17).toStdString(), "Sa 18.11. 12:35:0");
    EXPECT_TRUE(timeline.accessibleDescription().contains(QStringLiteral("Metallmine 2")));
    ChooseRows({4});
    const int start = ColumnOf(timeline, SimTime(533));
    EXPECT_TRUE(start >= 0 && start < timeline.width()) << "brought to sight";
    QTest::mouseDClick(&timeline, Qt::LeftButton, {}, position);
    EXPECT_EQ(timeline.Scale().first, 0);
    // The arrows go from order to order, End and Home to the last and the first.
    timeline.setFocus();
    const auto press = [&](Qt::Key key, std::size_t row) {
        QTest::keyClick(&timeline, key);
        EXPECT_EQ(ChosenRows(), (std::vector<std::size_t>{row}));
    };
    press(Qt::Key_Left, 3);
    press(Qt::Key_Left, 2);
    EXPECT_EQ(timeline.accessibleDescription().left(18).toStdString(), "Sa 18.11. 12:34:56");
    press(Qt::Key_Right, 3);
    press(Qt::Key_Home, 0);
    press(Qt::Key_End, 4);
    // Ctrl moves the cursor alone, plus zooms at it, Enter chooses what starts there or next.
    press(Qt::Key_Home, 0);
    QTest::keyClick(&timeline, Qt::Key_Right, Qt::ControlModifier);
    const double before = timeline.Scale().perSecond;
    QTest::keyClick(&timeline, Qt::Key_Plus);
    EXPECT_GT(timeline.Scale().perSecond, before);
    EXPECT_EQ(ChosenRows(), (std::vector<std::size_t>{0}));
    press(Qt::Key_Return, 1);
    m_now = *ParseDateTime("19.11.2006 12:33:00");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Says("LBL_Restzeit").empty(); })) << "all is built";
}

TEST_F(WorkbenchWindow, SavesThePicture) {
    Load("GM GM GS");
    const auto save = [this](const char* name) { return SaveAs("Cmd_BildSpeichern", name); };
    EXPECT_TRUE(save("bild.pdf").starts_with("%PDF"));
    EXPECT_EQ(save("bild.SVG").find("Metallmine 2") != std::string::npos, HasSvg())
        << "words stay words";
    const QImage png = QImage::fromData(QByteArray::fromStdString(save("bild.png")));
    EXPECT_EQ(png.width(), 1200) << "always as wide";
    EXPECT_EQ(png.pixelColor(2, 2), QColor(Qt::white));
    // What is in sight is saved as it is.
    auto& timeline = Page<TimelineView>("Zeitleiste");
    const QImage section = QImage::fromData(
        QByteArray::fromStdString(SaveAs("Cmd_AusschnittSpeichern", "ausschnitt.png")));
    EXPECT_EQ(section.size(), 2 * timeline.size());
    const QRectF lane = timeline.Rows().lanes[0];
    const QPoint bar(ColumnOf(timeline, SimTime(60)),
                     static_cast<int>(lane.top() + timeline.Rows().barTop + 4));
    EXPECT_EQ(section.pixelColor(2 * bar), ColorsFor(m_workbench->palette())[Color::Bar]);
    EXPECT_EQ(timeline.grab().toImage().pixelColor(bar), section.pixelColor(2 * bar));
    EXPECT_EQ(save("bild.txt"), "");
    EXPECT_NE(Message().find("oder .pdf"), std::string::npos);
    EXPECT_EQ(save("fehlt/bild.png"), "");
    EXPECT_NE(Message().find("konnte nicht gespeichert werden"), std::string::npos);
}

TEST_F(WorkbenchWindow, IsHiddenWhenClosedAndComesBack) {
    m_workbench->resize(900, 700);
    m_workbench->close();
    EXPECT_TRUE(m_workbench->isHidden());
    EXPECT_TRUE(m_window.isVisible());
    Load("GM GM GS");
    Choose("mnuWerkbank");
    EXPECT_EQ(Texts("LV_Werkbank", 0), "1|2|3|");
    m_window.close();
    EXPECT_TRUE(m_workbench->isHidden());
    const std::string config = ReadFileToString(m_folder / "config.cfg");
    EXPECT_NE(config.find("Breite=900\r\nHoehe=700\r\n"), std::string::npos) << config;
}

TEST_F(WorkbenchWindow, FollowsTheColorsOfTheDesktop) {
    const WorkbenchColors dark(WorkbenchColors::Set::Dark);
    m_environment.desktopPalette = [] { return QPalette(Qt::white, Qt::black); };
    Load("GM");
    QEvent change(QEvent::ThemeChange);
    QCoreApplication::sendEvent(m_workbench, &change);
    const QImage picture = Page<TimelineView>("Zeitleiste").grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() - 2, picture.height() - 2), dark[Color::Window]);
    EXPECT_EQ(Page("LV_Werkbank").palette().color(QPalette::Text), dark[Color::Text]);
    EXPECT_NE(Find("LV_Bauliste").palette().color(QPalette::Text), dark[Color::Text]);
}

// What accepting does to the plan is tested with the document.
TEST_F(WorkbenchWindow, SearchesAndAcceptsAsOneStep) {
    const PlanRun starter(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data/saves/basic.tvf");
    Load(starter.plan);
    m_now = *ParseDateTime("03.12.2026 12:00:30");
    const auto search = [this](int tries) {
        Page<QSpinBox>("Spin_Versuche").setValue(tries);
        Click("Cmd_Suchen");
    };
    constexpr int kLong = 300'000;
    const auto wait = [this] {
        ASSERT_TRUE(QTest::qWaitFor([this] { return Page("Cmd_Suchen").isEnabled(); }, kLong));
    };
    const auto waitForAFind = [this] {
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return Says("LBL_Suche").starts_with("Bisher 3"); }, kLong));
    };
    // Pinned rows and started orders stay; undo also removes the pause that the search added.
    ChooseRows({40});
    Click("Chk_Fest");
    Click("Chk_AbJetzt");
    search(20'000);
    EXPECT_FALSE(IsEnabled("Cmd_FundUebernehmen"));
    wait();
    const std::string durations = Says("LBL_Funddauer");
    Click("Cmd_FundUebernehmen");
    EXPECT_EQ(Says("LBL_Vergleich"), "Verglichen mit dem Plan vor dem Fund");
    EXPECT_EQ(m_document.CurrentPlan().LV_Bauliste.Rows()[40].Tag,
              starter.plan.LV_Bauliste.Rows()[40].Tag);
    EXPECT_EQ(Cell("LV_Schlafzeiten", 0, 0), "03.12.2026 10:30");
    const auto duration = TimeSpanText(m_document.CurrentRun().state.secsgone.Seconds());
    EXPECT_EQ(Says("LBL_Dauer"), duration);
    EXPECT_EQ(durations, "4 Tage 04:40:16 → <b>" + duration + "</b>");
    EXPECT_TRUE(m_dialogs.texts.empty());
    const std::string change = Says("LBL_Aenderung");
    UndoEdit();
    EXPECT_EQ(SnapshotOf(m_document.CurrentPlan()), SnapshotOf(starter.plan));
    EXPECT_EQ(Change(), change + " langsamer") << "told once, of the whole plan";
    EXPECT_EQ(RowCount("LV_Schlafzeiten"), static_cast<int>(starter.plan.LV_Schlafzeiten.size()));
    // A plan that was edited during the search isn't replaced without a question.
    Click("Chk_AbJetzt");
    search(1'000'000'000);
    waitForAFind();
    Click("ImgMetMine");
    const PlanSnapshot edited = SnapshotOf(m_document.CurrentPlan());
    Click("Cmd_Anhalten");
    wait();
    EXPECT_LT(Page<QProgressBar>("Suchbalken").value(), 50);
    Click("Cmd_FundUebernehmen");
    EXPECT_EQ(m_dialogs.texts.size(), 1U);
    EXPECT_EQ(SnapshotOf(m_document.CurrentPlan()), edited);
    // Closing the window stops the search and keeps its result.
    search(1'000'000'000);
    waitForAFind();
    m_workbench->close();
    wait();
    EXPECT_TRUE(IsEnabled("Cmd_FundUebernehmen"));
    // Why it can't search.
    Page<QComboBox>("Comb_Suchaufgabe").setCurrentIndex(1);
    Page<QLineEdit>("txt_Suchziel").setText(QStringLiteral("XX1"));
    Click("Cmd_Suchen");
    EXPECT_NE(Message().find("\"XX1\" nennt kein Item"), std::string::npos);
    EXPECT_TRUE(Page("Cmd_Suchen").isEnabled());
    Page<QComboBox>("Comb_Suchaufgabe").setCurrentIndex(0);
    search(1'000'000'000);
}

TEST_F(WorkbenchWindow, ComparesWithARememberedRunAndWithFiles) {
    Load("GS GM GM");
    Click("Cmd_Merken");
    EXPECT_EQ(Texts("LV_Unterschiede"), "");
    EXPECT_TRUE(Texts("LV_Kennzahlen").starts_with("Dauer|00:07:27|00:07:27|±00:00:00|Punkte|"));
    ChooseRows({1});
    Click("ImgKrisMine");
    EXPECT_EQ(Texts("LV_Unterschiede"),
              "Kristallmine 1|fehlt|00:02:47||Metallmine 1|00:02:47|00:04:42|+00:01:55|"
              "Metallmine 2|00:04:46|00:06:41|+00:01:55|");
    auto& differences = Page<QTreeView>("LV_Unterschiede");
    emit differences.clicked(differences.model()->index(1, 0));
    EXPECT_EQ(ChosenRows(), (std::vector<std::size_t>{2}));
    // A plan with another start date: both runs are measured from their own start.
    Plan other = PlanOf("GM GM");
    other.parameters.UniStartZeitTag = "1";
    ASSERT_TRUE(SaveBauliste(m_folder / "saves" / "anderer.tvf", other));
    SaveAs("Cmd_MitDatei", "anderer.tvf");
    EXPECT_EQ(Says("LBL_Vergleich"), "Verglichen mit anderer.tvf");
    EXPECT_TRUE(Texts("LV_Unterschiede").starts_with("Metallmine 1|00:00:00|00:04:42|+00:04:42|"));
    SaveAs("Cmd_MitDatei", "fehlt.tvf");
    EXPECT_EQ(Says("LBL_Vergleich"), "Verglichen mit anderer.tvf");
    EXPECT_EQ(Message(), "Die Bauliste konnte nicht geladen werden...");
    Click("Cmd_OhneVergleich");
    EXPECT_EQ(Texts("LV_Kennzahlen"), "");
}

TEST_F(WorkbenchWindow, ExportsTheTimetable) {
    Load(PlanOf("GM GX:10:0:10"));
    Click("Cmd_Kopieren");
    const QMimeData& content = *QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(content.text().toStdString(),
              "Nr.\tAuftrag\tStart\tFertig\tGrund\n"
              "1\tMetallmine 1\t18.11.2006 12:30:00\t18.11.2006 12:31:48\t\n"
              "2\t100% 0% 100%\t18.11.2006 12:31:49\t18.11.2006 12:31:49\tBauschleife bis "
              "12:31:49\n");
    EXPECT_EQ(content.html().count(QStringLiteral("<tr>")), 3);
    // The reminder is as many seconds before as the alarm.
    Find<QComboBox>("Comb_Before").setCurrentText(QStringLiteral("25"));
    const std::string calendar = SaveAs("Cmd_KalenderSpeichern", "kalender.ics");
    EXPECT_NE(calendar.find("\r\nTRIGGER:-PT25S\r\n"), std::string::npos) << calendar;
}

}  // namespace
}  // namespace tarvelin
