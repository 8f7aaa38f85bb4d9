// Tests the controls of the main window: layout, texts, handlers, keys.
#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QToolTip>

#include "MainWindowFixture.h"

namespace tarvelin {
namespace {

TEST_F(MainWindow, SmallScreenScrollsTheSurface) {
    for (const auto& [screen, size] :
         std::vector<std::pair<QSize, QSize>>{{{858, 335}, {858, 335}},
                                              {{640, 400}, {632, 335}},
                                              {{640, 300}, {632, 264}},
                                              {{2000, 320}, {858, 284}}}) {
        EXPECT_EQ(frmMain::SizeOn(screen), size) << screen.width();
    }
    m_window.setFixedSize(frmMain::SizeOn({640, 300}));
    QCoreApplication::processEvents();
    Find("LV_Bauzeiten").setFocus();
    QTest::keyClick(&Find("LV_Bauzeiten"), Qt::Key_Tab);
    const auto& alarm = Find("Chk_BauWeckfunktion");
    EXPECT_EQ(alarm.visibleRegion().boundingRect(), alarm.rect())
        << "what has the focus is in sight";
}

// Every visible widget with a text has room for it, with all panels open.
TEST_F(MainWindow, NoWordIsCutOff) {
    EXPECT_EQ(Find("Fra_Rest").visibleRegion().boundingRect(), Find("Fra_Rest").rect());
    int right = -1;
    for (const char* const group : {"Frame8", "Frame3", "Frame1", "Frame9", "Frame4", "Frame6"}) {
        EXPECT_GT(Find(group).x(), right) << group;
        right = Find(group).geometry().right();
    }
    EXPECT_LT(right, Find("Fra_Rest").width());
    Load("GD GS GR GR GW");
    m_document.RunSimulation(true);
    ShowPanels();
    QCoreApplication::processEvents();
    for (const auto* const widget : m_window.findChildren<QWidget*>()) {
        const QString text = widget->property("text").toString();
        if (!widget->isVisible() || widget->parent()->inherits("QCalendarWidget")) {
            continue;
        }
        const QFontMetrics font = widget->fontMetrics();
        const int beside =
            widget->inherits("QCheckBox") || widget->inherits("QRadioButton") ? 20 : 0;
        // Windows hints some letters a pixel wider, for which there is room beside the text.
        const int shrinkage = kWindows ? 1 : 0;
        EXPECT_LE(font.horizontalAdvance(text) + beside - shrinkage, widget->width())
            << text.toStdString();
        EXPECT_LE(text.isEmpty() ? 0 : font.ascent() + 2, widget->height()) << text.toStdString();
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()) ||
                    widget->window() == widget || !widget->parent()->inherits("QGroupBox"))
            << widget->objectName().toStdString() << " " << text.toStdString();
        if (widget->inherits("QGroupBox")) {
            const QString title = widget->property("title").toString();
            EXPECT_LE(font.horizontalAdvance(title) + 3, widget->width()) << title.toStdString();
        }
    }
}

TEST_F(MainWindow, ListsHoldTheirLongestTexts) {
    Plan plan = PlanOf("GX:10:10:10");
    for (std::size_t i = 0; i < 12 * kNumItems; ++i) {
        ASSERT_FALSE(plan.LV_Bauliste.AddItem(static_cast<ItemId>(i % kNumItems), {}));
    }
    plan.LV_Schlafzeiten.assign(30,
                                {.Startzeit = "28.12.2006 22:30", .Endzeit = "28.12.2006 23:30"});
    Load(plan);
    Find("Fra_Sleep").show();
    QCoreApplication::processEvents();
    for (const char* const name : {"LV_Bauliste", "LV_Bauzeiten", "LV_Schlafzeiten"}) {
        const auto& list = Find<QTreeView>(name);
        // The style leaves at least one pixel on either side.
        const int margin =
            list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
        int sum = 0;
        for (int column = 0; column < list.model()->columnCount(); ++column) {
            sum += list.columnWidth(column);
            // A gap between the number and the name after it.
            const int gap = column == 0 && list.isHeaderHidden() ? 3 : 0;
            for (int row = 0; row < list.model()->rowCount(); ++row) {
                const QString text = ToQString(CellText(list, row, column));
                EXPECT_LE(list.fontMetrics().horizontalAdvance(text) + 2 * margin + gap,
                          list.columnWidth(column))
                    << name << ": " << text.toStdString();
            }
        }
        EXPECT_EQ(sum, list.viewport()->width()) << name;
    }
    // A header has one line; a text that is cut off is in its tooltip.
    auto& header = *Find<QTreeView>("LV_Bauzeiten").header();
    EXPECT_LT(header.height(), 2 * header.fontMetrics().height());
    for (const QString& hint : {QStringLiteral("Wochentag"), QString()}) {
        const QPoint position(header.sectionViewportPosition(hint.isEmpty() ? 1 : 0) + 2, 2);
        QHelpEvent help(QEvent::ToolTip, position, header.mapToGlobal(position));
        QCoreApplication::sendEvent(header.viewport(), &help);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QToolTip::text() == hint; }));
    }
}

TEST_F(MainWindow, PanelsExcludeEachOther) {
    // Which of the four panels are open after an entry, and the topmost where all of them overlap.
    const std::vector<std::tuple<const char*, std::vector<bool>, const char*>> steps{
        {"mnuSkin", {true, false, true, false}, "Fra_Skin"},
        {"mnuSleep", {true, false, false, true}, "Fra_Sleep"},
        {"mnu_SpecialEvents", {true, true, false, false}, "Fra_Special"},
        {"mnuEinstellungen", {false, true, false, false}, "Fra_Special"},
        {"mnuEinstellungen", {true, true, false, false}, "Fra_Einstellungen"},
        {"mnuSkin", {true, false, true, false}, "Fra_Skin"},
        {"mnuSkin", {true, false, false, false}, "Fra_Einstellungen"},
    };
    for (const auto& [entry, open, front] : steps) {
        Choose(entry);
        for (std::size_t i = 0; i < open.size(); ++i) {
            EXPECT_EQ(Find(kPanels[i]).isVisible(), open[i]) << entry << " " << kPanels[i];
        }
        EXPECT_EQ(m_window.centralWidget()->childAt(12, 15)->objectName().toStdString(), front);
    }
    ShowPanels();
    for (const char* const button :
         {"Cmd_HideEinstellungen", "Cmd_HideFraSpecial", "Cmd_HideSchlafzeiten", "Cmd_HideSleep"}) {
        EXPECT_TRUE(Find(button).parentWidget()->isVisible());
        Press(button);
        EXPECT_FALSE(Find(button).parentWidget()->isVisible()) << button;
    }
}

TEST_F(MainWindow, GateFollowsTheListAtEachMove) {
    auto& picture = Find("ImgRobo");
    const auto open = picture.cursor().shape();
    Show("ImgRobo");
    EXPECT_EQ(picture.cursor().shape(), Qt::ForbiddenCursor);
    EXPECT_TRUE(picture.toolTip().contains(QStringLiteral("kein Solarkraftwerk")));
    QTest::keyClick(&picture, Qt::Key_Space);
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
    Load("GD GS");
    EXPECT_EQ(picture.cursor().shape(), Qt::ForbiddenCursor) << "before the pointer moves";
    Show("ImgRobo");
    EXPECT_EQ(picture.cursor().shape(), open);
    QTest::keyClick(&picture, Qt::Key_Space);
    EXPECT_EQ(Cell("LV_Bauliste", 2, 1), "Robofabrik Stufe: 1");
    EXPECT_EQ(TextOf("LBL_Robo_Stufe"), "1");
    EXPECT_TRUE(picture.toolTip().contains(QStringLiteral("Met: 800"))) << "the next row's costs";
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(&picture, &held);
    EXPECT_EQ(RowCount("LV_Bauliste"), 3) << "a held key adds one row";
    Load("GM");
    QTest::keyClick(&picture, Qt::Key_Space);
    EXPECT_EQ(RowCount("LV_Bauliste"), 1) << "the list changed under the focus";
}

TEST_F(MainWindow, ForeignDataIsDroppedNowhere) {
    QMimeData mimeData;
    mimeData.setText(QStringLiteral("ImgMetMine"));
    mimeData.setUrls({QUrl::fromLocalFile(QStringLiteral("plan.tvf"))});
    mimeData.setData(QStringLiteral("application/x-tarvelin-item"), "ImgMetMine");
    const std::string hours = TextOf("txt_UniStartZeitStunden");
    Choose("mnuWerkbank");
    for (auto* const target : QApplication::allWidgets()) {
        const bool inWorkbench = target->parent() != nullptr &&
                                 target->parent()->objectName() == QStringLiteral("LV_Werkbank");
        if (!target->isVisible() || !target->acceptDrops() ||
            (target->window() != &m_window && !inWorkbench)) {
            continue;
        }
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &mimeData, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &enter);
        EXPECT_FALSE(enter.isAccepted()) << target->objectName().toStdString();
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &mimeData, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &drop);
    }
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
    EXPECT_TRUE(m_dialogs.texts.empty());
    EXPECT_EQ(TextOf("txt_UniStartZeitStunden"), hours);
}

TEST_F(MainWindow, UnknownSourceAndRow255GiveAMessage) {
    Drop("ImgUnbekannt");
    for (int i = 0; i < 255; ++i) {
        Drop("ImgSKW");
    }
    EXPECT_TRUE(m_dialogs.texts.empty()) << "no box inside a drag";
    QCoreApplication::processEvents();
    EXPECT_EQ(m_dialogs.texts.front(), "KA");
    Press("Cmd_AddProdaenderungsevent");
    EXPECT_EQ(m_dialogs.texts.size(), 3U);
    EXPECT_EQ(RowCount("LV_Bauliste"), 254);
}

TEST_F(MainWindow, NewRowsComeIntoViewAndUndoDoesNotScroll) {
    auto& list = Find<QTreeView>("LV_Bauliste");
    const QAbstractItemModelTester checker(list.model(),
                                           QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int i = 0; i < 60; ++i) {
        Drop("ImgMetMine");
    }
    EXPECT_TRUE(ShowsRow(list, 59));
    list.setCurrentIndex(list.model()->index(59, 0));
    list.scrollToTop();
    Press("Cmd_Undo");
    EXPECT_EQ(RowCount("LV_Bauliste"), 59);
    EXPECT_TRUE(ShowsRow(list, 0)) << "not the row that becomes the current one";
    EXPECT_EQ(TextOf("LBL_MetMine_Stufe"), "59");
    const auto red = list.model()->index(0, 2).data(Qt::ForegroundRole).value<QColor>();
    EXPECT_EQ(red, QColor(255, 0, 0));
    Press("Cmd_Clear");
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
}

TEST_F(MainWindow, ProductionRowTakesTheSlidersAndLeavesThem) {
    Find<QSlider>("HSC_Krisfaktor").setValue(3);
    QTest::keyClick(&Find("HSC_Deutfaktor"), Qt::Key_Left);
    QTest::keyClick(&Find("HSC_MetFaktor"), Qt::Key_Home);
    EXPECT_EQ(TextOf("LBL_MetFaktor"), "Metallmine: 0%");
    EXPECT_EQ(TextOf("LBL_Krisfaktor"), "Kristallmine: 30%");
    EXPECT_EQ(TextOf("LBL_Deutfaktor"), "Deutmine: 90%");
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
    Press("Cmd_AddProdaenderungsevent");
    EXPECT_EQ(Cell("LV_Bauliste", 0, 1), "M:0% K:30% D:90%");
    Press("Cmd_Undo");
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
    EXPECT_EQ(TextOf("LBL_Krisfaktor"), "Kristallmine: 30%");
}

TEST_F(MainWindow, InputsLimitTypingAndPastingOnly) {
    auto& year = Find<QLineEdit>("txt_UniStartZeitJahr");
    QGuiApplication::clipboard()->setText(QStringLiteral("20071"));
    year.selectAll();
    year.paste();
    EXPECT_EQ(year.text(), QStringLiteral("2007"));
    EXPECT_EQ(m_document.CurrentPlan().parameters.UniStartZeitJahr, "2007");
    // A text that was loaded isn't cut, can be edited, and is then limited like typed text.
    Plan plan = PlanOf("GM");
    plan.parameters.UniStartZeitTag = "00018";
    Load(plan);
    auto& day = Find<QLineEdit>("txt_UniStartZeitTag");
    EXPECT_EQ(day.text(), QStringLiteral("00018"));
    QTest::keyClicks(&day, QStringLiteral("7"));
    EXPECT_EQ(day.text(), QStringLiteral("00018"));
    QTest::keyClick(&day, Qt::Key_Home);
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(&day, Qt::Key_Delete);
    }
    QTest::keyClicks(&day, QStringLiteral("123"));
    EXPECT_EQ(day.text(), QStringLiteral("18")) << "in the middle";
}

TEST_F(MainWindow, InputsFollowEachOtherAndTakeNoPaste) {
    Type("txt_TempMax", "+25");
    EXPECT_EQ(TextOf("txt_TempMin") + " " + TextOf("txt_TempMax"), "-15 25");
    Type("txt_TempMin", "011");
    EXPECT_EQ(TextOf("txt_TempMin") + " " + TextOf("txt_TempMax"), "11 51");
    auto& seconds = *Find<QComboBox>("Comb_Before").lineEdit();
    QGuiApplication::clipboard()->setText(QStringLiteral("7"));
    seconds.selectAll();
    QTest::keyClick(&seconds, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&seconds, Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(seconds.text(), QStringLiteral("10"));
}

TEST_F(MainWindow, WeekdayFollowsTheDateAndNotTheTime) {
    Load("GM");
    for (const auto& [input, text, run, weekday] :
         {std::tuple("Tag", "3", false, "Fr."), std::tuple("Stunden", "25", false, "Fr."),
          // A run pads the day, so its text changes.
          std::tuple("Stunden", "25", true, "Err."), std::tuple("Stunden", "12", false, "Err."),
          std::tuple("Stunden", "12", true, "Fr."), std::tuple("Stunden", "", true, "Fr.")}) {
        Type((std::string("txt_UniStartZeit") + input).c_str(), text);
        if (run) {
            m_document.RunSimulation(false);
        }
        EXPECT_EQ(TextOf("LBL_Weekday"), weekday) << input << " " << text << " " << run;
    }
    EXPECT_EQ(Find("LBL_Weekday").toolTip(), QStringLiteral("Freitag"));
    EXPECT_EQ(TextOf("txt_UniStartZeitTag"), "03");
    EXPECT_EQ(m_dialogs.texts.size(), 2U);
    // A load sets day, month and year before the hour, so the bad hour comes too late to matter.
    Type("txt_UniStartZeitStunden", "12");
    Plan plan = PlanOf("GM");
    plan.parameters.UniStartZeitTag = "16";
    plan.parameters.UniStartZeitStunden = "25";
    Load(plan);
    EXPECT_EQ(TextOf("LBL_Weekday"), "Do.");
}

TEST_F(MainWindow, KlickPufferSpeedfaktorAndDescriptionsTakeEffect) {
    for (const auto& [key, label] :
         {std::pair(Qt::Key_PageUp, "00:15"), std::pair(Qt::Key_Home, "00:00"),
          std::pair(Qt::Key_End, "10:00")}) {
        QTest::keyClick(&Find("HSC_KlickPuffer"), key);
        EXPECT_EQ(TextOf("LBL_KlickPuffer"), label);
    }
    EXPECT_EQ(m_document.CurrentPlan().parameters.KlickPuffer, 600);
    Press("Chk_Speedfaktor");
    EXPECT_EQ(m_document.CurrentRun().conditions.Speedfaktor, 2);
    for (const bool shown : {false, true}) {
        Press("cmd_ShowDesc");
        EXPECT_EQ(TextOf("cmd_ShowDesc"), shown ? "EIN/aus" : "ein/AUS");
        EXPECT_EQ(Find("LBLDesc(0)").isVisible(), shown);
        EXPECT_EQ(Find("LBLDesc(19)").isVisible(), shown);
    }
}

TEST_F(MainWindow, SleepWindowsAreAddedAndRemoved) {
    Choose("mnuSleep");
    Press("Cmd_RemoveSchlafzeit");
    Press("Cmd_AddSchlafzeit");
    EXPECT_EQ(Cell("LV_Schlafzeiten", 0, 1), "18.11.2006 23:30");
    Press("Cmd_AddSchlafzeit");
    EXPECT_EQ(m_dialogs.texts.back(), "Kein überschneidenden Zeiträumen eingegeben...");
    // Turning the page keeps the selected day of the month.
    auto& calendar = Find<QCalendarWidget>("SchlafKalender");
    calendar.showNextMonth();
    EXPECT_EQ(TextOf("LBL_Schlafendzeit"), "Mo.  18.12.2006 23:30");
    Press("Cmd_AddSchlafzeit");
    Type("txt_SchlafdauerMinuten", "x");
    EXPECT_EQ(TextOf("LBL_Schlafendzeit"), "Error");
    auto& list = Find<QTreeView>("LV_Schlafzeiten");
    EXPECT_GT(list.x(), calendar.geometry().right());
    EXPECT_EQ(list.y(), calendar.y());
    list.setCurrentIndex(list.model()->index(0, 0));
    Press("Cmd_RemoveSchlafzeit");
    ASSERT_EQ(RowCount("LV_Schlafzeiten"), 1);
    EXPECT_EQ(Cell("LV_Schlafzeiten", 0, 0), "18.12.2006 22:30");
    EXPECT_FALSE(list.selectionModel()->hasSelection()) << "the next row isn't chosen";
    Press("Cmd_RemoveSchlafzeit");
    Type("txt_SchlafStartStunden", "9");
    Type("txt_SchlafdauerStunden", "00");
    Type("txt_SchlafdauerMinuten", "1");
    for (int row = 1; row < 11; ++row) {
        Type("txt_SchlafStartMinuten", std::to_string(9 + row).c_str());
        Press("Cmd_AddSchlafzeit");
        EXPECT_EQ(list.currentIndex().row(), row);
        EXPECT_TRUE(ShowsRow(list, row));
    }
    for (const bool clear : {false, true}) {
        m_dialogs.answer = clear;
        Press("Cmd_ClearSchlafzeiten");
        EXPECT_EQ(RowCount("LV_Schlafzeiten"), clear ? 0 : 11);
    }
}

TEST_F(MainWindow, LongNumbersEndInDotsAndStandWholeInTheHint) {
    auto& metal = Find<NumberLabel>("LBL_Met");
    EXPECT_EQ(metal.toolTip(), QString());
    metal.Assign(QStringLiteral("123456789012"));
    // The text is cut at its right end only, whatever the alignment.
    metal.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    metal.setFixedWidth(metal.fontMetrics().horizontalAdvance(metal.text()) + 1);
    EXPECT_EQ(metal.toolTip(), QString());
    const QImage whole = metal.grab().toImage();
    metal.setAlignment(Qt::AlignCenter);
    for (int width = whole.width() - 4; width > whole.width() - 12; --width) {
        metal.setFixedWidth(width);
        EXPECT_EQ(metal.toolTip(), metal.text());
        const QRect leftHalf(0, 0, width / 2, metal.height());
        const QImage elided = metal.grab().toImage();
        EXPECT_EQ(elided.copy(leftHalf), whole.copy(leftHalf)) << width;
        EXPECT_NE(elided, whole.copy(metal.rect())) << "no ellipsis";
    }
}

// tests/e2e compares the figures themselves with the console's.
TEST_F(MainWindow, SimulationClosesThePanelsAndEachRowNamesItsReason) {
    Load("GS GM GM GM GM");
    ShowPanels();
    Press("Cmd_Simulate");
    for (const char* const panel : kPanels) {
        EXPECT_FALSE(Find(panel).isVisible()) << panel;
    }
    ASSERT_EQ(RowCount("LV_Bauzeiten"), 5);
    EXPECT_TRUE(Find("LBL_Punkte").toolTip().startsWith(QStringLiteral("Inkl. Res.: ")));
    auto& list = Find<QTreeView>("LV_Bauzeiten");
    const QPoint third = RowRect(list, 2).center();
    const auto& tag = m_document.CurrentRun().LV_Bauzeiten[2].Tag();
    MoveMouse(*list.viewport(), third);
    EXPECT_EQ(list.toolTip().toStdString(), tag);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(list.viewport(), &leave);
    EXPECT_EQ(list.toolTip(), QString()) << "over the head or the bar";
    MoveMouse(*list.viewport(), third + QPoint(1, 0));
    EXPECT_EQ(list.toolTip().toStdString(), tag);
    MoveMouse(*list.viewport(), list.viewport()->rect().bottomLeft() - QPoint(-5, 2));
    EXPECT_EQ(list.toolTip(), QString()) << "no row there";
    const std::string duration = TextOf("LBL_Timegone");
    Press("Cmd_Clear");
    EXPECT_EQ(TextOf("LBL_Timegone"), "Dauer: dd:hh:mm:ss");
    EXPECT_EQ(TextOf("LBL_Met") + TextOf("LBL_Kris"), "500500");
    EXPECT_EQ(TextOf("LBL_Timegone2"), duration) << "only a run changes it";
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 5);
}

TEST_F(MainWindow, NewRunBeginsWithAnEmptyList) {
    std::string tags = "GS";
    for (int i = 1; i < 60; ++i) {
        tags += " GS";
    }
    Load(PlanOf(tags));
    auto& list = Find<QTreeView>("LV_Bauzeiten");
    list.setCurrentIndex(list.model()->index(59, 0));
    m_document.RunSimulation(true);
    EXPECT_FALSE(list.currentIndex().isValid());
    EXPECT_TRUE(ShowsRow(list, 0));
}

// A clicked button keeps the focus, but Enter goes to the default button.
TEST_F(MainWindow, MousePressGivesEnterBack) {
    const auto rowsAfterEnter = [&] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        return std::pair(RowCount("LV_Bauliste"), RowCount("LV_Bauzeiten"));
    };
    const auto tabTo = [&](const char* name) {
        constexpr int kLongest = 200;
        for (int i = 0; i < kLongest && QApplication::focusWidget() != &Find(name); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    };
    QTest::mouseClick(&Find("Cmd_Clear"), Qt::LeftButton);
    Drop("ImgSKW");
    Drop("ImgMetMine");
    EXPECT_EQ(rowsAfterEnter(), std::pair(2, 2));
    Choose("mnu_SpecialEvents");
    tabTo("Cmd_AddProdaenderungsevent");
    EXPECT_EQ(rowsAfterEnter(), std::pair(3, 2)) << "who walks there presses it";
    QTest::mouseClick(&Find("Frame9"), Qt::LeftButton);
    ASSERT_EQ(QApplication::focusWidget(), &Find("Cmd_AddProdaenderungsevent"));
    EXPECT_EQ(rowsAfterEnter(), std::pair(3, 3));
    QTest::mouseClick(&Find("Cmd_Undo"), Qt::LeftButton);
    QTest::keyClick(&Find("Cmd_Undo"), Qt::Key_Space);
    EXPECT_EQ(RowCount("LV_Bauliste"), 1) << "the space bar goes on pressing it";
    tabTo("Cmd_Clear");
    EXPECT_EQ(rowsAfterEnter(), std::pair(0, 3));
}

// And Enter presses a button from there.
TEST_F(MainWindow, TabReachesEverythingInOrderAndEverythingHasAName) {
    ShowPanels();
    std::vector<QWidget*> reached;
    const auto position = [&](QWidget* widget) { return std::ranges::find(reached, widget); };
    Find("LV_Bauliste").setFocus();
    while (position(QApplication::focusWidget()) == reached.end()) {
        reached.push_back(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (auto* const widget : m_window.findChildren<QWidget*>()) {
        const bool tabStop =
            !widget->inherits("QRadioButton") || widget->property("checked").toBool();
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || !tabStop ||
            !widget->isEnabled() || widget->focusProxy() != nullptr) {
            continue;
        }
        EXPECT_NE(position(widget), reached.end())
            << widget->objectName().toStdString() << widget->metaObject()->className();
        const auto* const accessible = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty() &&
                     !widget->parent()->inherits("QCalendarWidget") &&
                     !widget->parent()->inherits("QComboBox"))
            << widget->objectName().toStdString();
        if (!widget->inherits("QPushButton")) {
            m_dialogs.texts.clear();
            widget->setFocus();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            EXPECT_EQ(m_dialogs.texts, std::vector<std::string>{"Die Bauliste ist leer..."})
                << widget->objectName().toStdString() << widget->metaObject()->className();
            // The run has closed them.
            ShowPanels();
        }
    }
    for (const auto& [first, second] :
         {std::pair("Cmd_Simulate", "ImgMetMine"), std::pair("ImgMetMine", "imgSpios"),
          std::pair("imgSpios", "LV_Bauzeiten"),
          std::pair("txt_SchlafStartStunden", "Cmd_AddSchlafzeit")}) {
        EXPECT_LT(position(&Find(first)), position(&Find(second))) << first;
    }
}

TEST_F(MainWindow, SharedLettersCycleThroughTheMenu) {
    auto* const menu = m_window.menuBar();
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(&m_window, key, Qt::AltModifier);
        return menu->activeAction()->objectName().toStdString();
    };
    EXPECT_EQ(press(Qt::Key_E), "mnuEinstellungen");
    EXPECT_EQ(press(Qt::Key_E), "mnu_SpecialEvents");
    EXPECT_EQ(press(Qt::Key_E), "mnuEinstellungen");
    EXPECT_TRUE(Find("Fra_Einstellungen").isVisible()) << "nothing is carried out yet";
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_FALSE(Find("Fra_Einstellungen").isVisible());
    Find("LV_Bauliste").setFocus();
    EXPECT_EQ(press(Qt::Key_S), "mnuSleep");
    QTest::keyClick(menu, Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &Find("LV_Bauliste"));
    // A click elsewhere leaves the menu, and the focus never goes to a hidden control.
    press(Qt::Key_S);
    QTest::mouseClick(&Find("Frame9"), Qt::LeftButton);
    EXPECT_EQ(menu->activeAction(), nullptr);
    Find("Fra_Sleep").show();
    Find("Cmd_ClearSchlafzeiten").setFocus();
    press(Qt::Key_S);
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_FALSE(Find("Fra_Sleep").isVisible());
    EXPECT_TRUE(QApplication::focusWidget() == nullptr || QApplication::focusWidget()->isVisible());
}

}  // namespace
}  // namespace tarvelin
