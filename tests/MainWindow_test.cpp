// Tests the controls of the main window: layout, texts, handlers, keys.
#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QRawFont>
#include <QSet>
#include <QToolTip>

#include "MainWindowFixture.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {
namespace {

constexpr const char* kPanels[] = {"Fra_Einstellungen", "Fra_Special", "Fra_Skin", "Fra_Sleep"};

TEST_F(MainWindow, GroupsStandSideBySideAndPanelsAboveThem) {
    int right = -1;
    for (const char* const group : {"Frame8", "Frame3", "Frame1", "Frame9", "Frame4", "Frame6"}) {
        const QRect groupRect = Find(group).geometry();
        EXPECT_GT(groupRect.left(), right) << group;
        EXPECT_TRUE(Find("Fra_Rest").rect().contains(groupRect)) << group;
        right = groupRect.right();
    }
    // Left 160, top 2, in fifteenths of a pixel.
    for (const char* const panel : {"Fra_Special", "Fra_Skin", "Fra_Sleep"}) {
        EXPECT_EQ(Find(panel).pos(), QPoint(11, 0)) << panel;
    }
    EXPECT_EQ(m_window.minimumSize(), m_window.maximumSize());
    EXPECT_EQ(m_window.size(), QSize(858, 335));
    EXPECT_EQ(Find("Fra_Rest").visibleRegion().boundingRect(), Find("Fra_Rest").rect());
}

TEST_F(MainWindow, SmallScreenScrollsTheSurface) {
    struct Case {
        QSize screen;
        QSize windowSize;
    };
    for (const auto& [screen, size] :
         {Case{{858, 335}, {858, 335}}, Case{{640, 400}, {632, 335}}, Case{{640, 300}, {632, 264}},
          Case{{2000, 320}, {858, 284}}}) {
        EXPECT_EQ(frmMain::SizeOn(screen), size) << screen.width();
    }
    m_window.setFixedSize(frmMain::SizeOn({640, 300}));
    QCoreApplication::processEvents();
    auto& alarm = Find("Chk_BauWeckfunktion");
    EXPECT_TRUE(alarm.visibleRegion().isEmpty());
    Find("LV_Bauzeiten").setFocus();
    QTest::keyClick(&Find("LV_Bauzeiten"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &alarm);
    EXPECT_EQ(alarm.visibleRegion().boundingRect(), alarm.rect())
        << "what has the focus is in sight";
}

// Every visible widget with a text has room for it, with all panels open.
TEST_F(MainWindow, NoWordIsCutOff) {
    Load("GD GS GR GR GW");
    m_document.RunSimulation(true);
    for (const char* const panel : kPanels) {
        Find(panel).show();
    }
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

// Font engines can lose letters at small sizes.
TEST_F(MainWindow, NoLetterIsMissing) {
    for (const int pixel :
         {QApplication::font().pixelSize(), 2 * QApplication::font().pixelSize()}) {
        QFont font = QApplication::font();
        font.setPixelSize(pixel);
        const QRawFont rawFont = QRawFont::fromFont(font);
        for (const QChar letter : QStringLiteral(
                 "!\"#$%&'()*+,-./"
                 "0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz"
                 "{|}~ÄÖÜäöüß€°²³–…")) {
            QImage picture(3 * pixel, 3 * pixel, QImage::Format_RGB32);
            picture.fill(Qt::white);
            const QImage empty = picture;
            QPainter painter(&picture);
            painter.setFont(font);
            painter.drawText(picture.rect(), Qt::AlignCenter, letter);
            painter.end();
            EXPECT_NE(picture, empty) << pixel << QString(letter).toStdString();
            EXPECT_TRUE(rawFont.supportsCharacter(letter)) << QString(letter).toStdString();
        }
    }
}

TEST_F(MainWindow, ListsHoldTheirLongestTexts) {
    Plan plan = PlanOf("GX:10:10:10");
    for (const ItemRow& item : ItemTable()) {
        for (int i = 0; i < 12; ++i) {
            ASSERT_FALSE(plan.LV_Bauliste.AddItem(item.item, m_document.CurrentRun().conditions));
        }
    }
    plan.LV_Schlafzeiten.assign(30,
                                {.Startzeit = "28.12.2006 22:30", .Endzeit = "28.12.2006 23:30"});
    Load(plan);
    m_document.RunSimulation(true);
    Find("Fra_Sleep").show();
    QCoreApplication::processEvents();
    for (const char* const name : {"LV_Bauliste", "LV_Bauzeiten", "LV_Schlafzeiten"}) {
        const auto& list = Find<QTreeView>(name);
        int sum = 0;
        for (int column = 0; column < list.model()->columnCount(); ++column) {
            sum += list.columnWidth(column);
            for (int row = 0; row < list.model()->rowCount(); ++row) {
                const QString text = list.model()->index(row, column).data().toString();
                // The style leaves at least one pixel on either side.
                const int margin =
                    list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
                // A gap between the number and the name after it.
                const int gap = column == 0 && list.isHeaderHidden() ? 3 : 0;
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
    for (const auto& [column, hint] : {std::pair(0, "Wochentag"), std::pair(1, "")}) {
        const QPoint position(header.sectionViewportPosition(column) + 2, 2);
        QHelpEvent help(QEvent::ToolTip, position, header.mapToGlobal(position));
        QCoreApplication::sendEvent(header.viewport(), &help);
        EXPECT_TRUE(QTest::qWaitFor([&, text = QString::fromLatin1(hint)] {
            return QToolTip::text() == text;
        })) << column;
    }
}

TEST_F(MainWindow, PanelsExcludeEachOther) {
    struct Step {
        const char* entry;
        /// Which of the four panels are open afterwards.
        std::vector<bool> open;
        /// The topmost where all of them overlap.
        const char* front;
    };
    const std::vector<Step> steps{
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
    const std::vector<std::pair<const char*, const char*>> buttons{
        {"Cmd_HideEinstellungen", "Fra_Einstellungen"},
        {"Cmd_HideFraSpecial", "Fra_Special"},
        {"Cmd_HideSchlafzeiten", "Fra_Skin"},
        {"Cmd_HideSleep", "Fra_Sleep"}};
    for (const auto& [button, panel] : buttons) {
        Find(panel).show();
        Press(button);
        EXPECT_FALSE(Find(panel).isVisible()) << button;
    }
}

TEST_F(MainWindow, SkinListIsReadAtEachOpening) {
    TempFolder folder;
    for (const char* const name : {"standard", "temp_webskin", "blau"}) {
        std::filesystem::create_directories(folder / "img" / "skins" / name);
    }
    Environment environment = m_environment;
    environment.programFolder = folder / ".";
    // The folder has no pictures at all; the window opens all the same.
    ProgramWindows program(environment);
    frmMain& window = program.MainWindow();
    auto* const skins = window.findChild<QComboBox*>(QStringLiteral("Comb_Skins"));
    window.findChild<QAction*>(QStringLiteral("mnuSkin"))->trigger();
    EXPECT_EQ(skins->count(), 1);
    std::filesystem::create_directory(folder / "img" / "skins" / "rot");
    skins->setCurrentIndex(0);
    window.findChild<QAction*>(QStringLiteral("mnu_SpecialEvents"))->trigger();
    EXPECT_EQ(skins->count(), 2);
    EXPECT_EQ(skins->currentText(), QStringLiteral("blau"));
    EXPECT_EQ(window.findChild<QLabel*>(QStringLiteral("ImgSKW"))->cursor().shape(),
              Qt::OpenHandCursor);
}

TEST_F(MainWindow, GateFollowsTheListAtEachMove) {
    auto& picture = Find("ImgRobo");
    const auto open = picture.cursor().shape();
    Show("ImgRobo");
    EXPECT_EQ(picture.cursor().shape(), Qt::ForbiddenCursor);
    EXPECT_EQ(picture.toolTip(),
              QStringLiteral(" Noch keine Deuteriummine oder kein Solarkraftwerk "
                             "in der Bauliste, bauen wäre unmöglich! "));
    QTest::keyClick(&picture, Qt::Key_Space);
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
    Load("GD GS");
    EXPECT_EQ(picture.cursor().shape(), Qt::ForbiddenCursor) << "before the pointer moves";
    Show("ImgRobo");
    EXPECT_EQ(picture.cursor().shape(), open);
    EXPECT_TRUE(
        picture.toolTip().startsWith(QStringLiteral(" Roboterfabrik  |  Kosten:  Met: 400")));
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
    for (auto* const target : m_window.findChildren<QWidget*>()) {
        if (!target->isVisible() || !target->acceptDrops()) {
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
    auto& list = Find<BuildListView>("LV_Bauliste");
    emit list.DragDrop(QStringLiteral("ImgUnbekannt"));
    for (int i = 0; i < 255; ++i) {
        emit list.DragDrop(QStringLiteral("ImgSKW"));
    }
    EXPECT_TRUE(m_dialogs.texts.empty()) << "no box inside a drag";
    QCoreApplication::processEvents();
    ASSERT_EQ(m_dialogs.texts.size(), 2U);
    EXPECT_EQ(m_dialogs.texts[0], "KA");
    EXPECT_NE(m_dialogs.texts[1].find("254"), std::string::npos);
    Press("Cmd_AddProdaenderungsevent");
    EXPECT_EQ(m_dialogs.texts.size(), 3U);
    EXPECT_EQ(RowCount("LV_Bauliste"), 254);
}

TEST_F(MainWindow, NewRowsComeIntoViewAndUndoDoesNotScroll) {
    auto& list = Find<QTreeView>("LV_Bauliste");
    const QAbstractItemModelTester checker(list.model(),
                                           QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int i = 0; i < 60; ++i) {
        emit Find<BuildListView>("LV_Bauliste").DragDrop(QStringLiteral("ImgMetMine"));
    }
    const auto last = [&] { return list.visualRect(list.model()->index(59, 0)); };
    EXPECT_TRUE(list.viewport()->rect().contains(last()));
    list.scrollToTop();
    Press("Cmd_Undo");
    EXPECT_EQ(RowCount("LV_Bauliste"), 59);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.model()->index(0, 0))));
    EXPECT_EQ(TextOf("LBL_MetMine_Stufe"), "59");
    list.setCurrentIndex(list.model()->index(58, 0));
    list.scrollToTop();
    Press("Cmd_Undo");
    EXPECT_EQ(list.indexAt(QPoint(1, 1)).row(), 0) << "the row that becomes the current one";
    const auto red = list.model()->index(0, 2).data(Qt::ForegroundRole).value<QColor>();
    EXPECT_EQ(red, QColor(255, 0, 0));
    Press("Cmd_Clear");
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
}

TEST_F(MainWindow, ProductionRowTakesTheSlidersAndLeavesThem) {
    auto& crystal = Find<QSlider>("HSC_Krisfaktor");
    crystal.setValue(3);
    QTest::keyClick(&Find("HSC_Deutfaktor"), Qt::Key_Left);
    EXPECT_EQ(TextOf("LBL_Krisfaktor"), "Kristallmine: 30%");
    EXPECT_EQ(TextOf("LBL_Deutfaktor"), "Deutmine: 90%");
    QTest::keyClick(&Find("HSC_MetFaktor"), Qt::Key_Home);
    EXPECT_EQ(TextOf("LBL_MetFaktor"), "Metallmine: 0%");
    QTest::keyClick(&Find("HSC_MetFaktor"), Qt::Key_End);
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
    Press("Cmd_AddProdaenderungsevent");
    EXPECT_EQ(Cell("LV_Bauliste", 0, 1), "M:100% K:30% D:90%");
    Press("Cmd_Undo");
    Press("Cmd_Undo");
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
    EXPECT_EQ(crystal.value(), 3);
}

TEST_F(MainWindow, InputsCanBeEditedInTheMiddle) {
    auto& year = Find<QLineEdit>("txt_UniStartZeitJahr");
    QTest::keyClick(&year, Qt::Key_Home);
    QTest::keyClick(&year, Qt::Key_Delete);
    QTest::keyClicks(&year, QStringLiteral("1"));
    EXPECT_EQ(TextOf("txt_UniStartZeitJahr"), "1006");
    QTest::keyClick(&year, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&year, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOf("txt_UniStartZeitJahr"), "2006");
    // The way a screen reader sets it.
    year.setText(QStringLiteral("2007"));
    EXPECT_EQ(m_document.CurrentPlan().parameters.UniStartZeitJahr, "2007");
    EXPECT_EQ(TextOf("LBL_Weekday"), "So.");
}

TEST_F(MainWindow, InputsLimitTypingAndPastingOnly) {
    Type("txt_UniStartZeitTag", "123");
    EXPECT_EQ(TextOf("txt_UniStartZeitTag"), "12");
    QGuiApplication::clipboard()->setText(QStringLiteral("20061"));
    auto& year = Find<QLineEdit>("txt_UniStartZeitJahr");
    year.selectAll();
    year.paste();
    EXPECT_EQ(TextOf("txt_UniStartZeitJahr"), "2006");
    // A text that was loaded isn't cut, can be shortened, and is then limited like typed text.
    Plan plan = PlanOf("GM");
    plan.parameters.UniStartZeitTag = "00018";
    Load(plan);
    EXPECT_EQ(TextOf("txt_UniStartZeitTag"), "00018");
    auto& day = Find<QLineEdit>("txt_UniStartZeitTag");
    QTest::keyClick(&day, Qt::Key_End);
    QTest::keyClicks(&day, QStringLiteral("7"));
    EXPECT_EQ(TextOf("txt_UniStartZeitTag"), "00018");
    QTest::keyClick(&day, Qt::Key_Backspace);
    QTest::keyClicks(&day, QStringLiteral("99"));
    EXPECT_EQ(TextOf("txt_UniStartZeitTag"), "0001");
}

TEST_F(MainWindow, PastedTextDoesNotGetIntoTheSeconds) {
    auto& seconds = *Find<QComboBox>("Comb_Before").lineEdit();
    for (const char* const text : {"abc", "7x", "7"}) {
        QGuiApplication::clipboard()->setText(QString::fromLatin1(text));
        seconds.selectAll();
        QTest::keyClick(&seconds, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(&seconds, Qt::Key_Insert, Qt::ShiftModifier);
        QTest::mouseClick(&seconds, Qt::MiddleButton);
        EXPECT_EQ(seconds.text(), QStringLiteral("10")) << text;
    }
}

TEST_F(MainWindow, TemperaturesAreLinked) {
    Type("txt_TempMax", "+25");
    EXPECT_EQ(TextOf("txt_TempMax"), "25");
    EXPECT_EQ(TextOf("txt_TempMin"), "-15");
    Type("txt_TempMin", "011");
    EXPECT_EQ(TextOf("txt_TempMin"), "11");
    EXPECT_EQ(TextOf("txt_TempMax"), "51");
    Type("txt_TempMax", "abc");
    EXPECT_EQ(TextOf("txt_TempMin"), "11");
    Load("GM");
    Type("txt_TempMax", "");
    m_document.RunSimulation(false);
    EXPECT_EQ(m_dialogs.texts.back(), "Keine gültige Temperatur eingegeben...");
}

TEST_F(MainWindow, WeekdayFollowsTheDateAndNotTheTime) {
    Load("GM");
    EXPECT_EQ(TextOf("LBL_Weekday"), "Sa.");
    Type("txt_UniStartZeitTag", "3");
    EXPECT_EQ(TextOf("LBL_Weekday"), "Fr.");
    EXPECT_EQ(Find("LBL_Weekday").toolTip(), QStringLiteral("Freitag"));
    Type("txt_UniStartZeitStunden", "25");
    EXPECT_EQ(TextOf("LBL_Weekday"), "Fr.");
    m_document.RunSimulation(false);
    EXPECT_EQ(m_dialogs.texts.back(), "Kein gültiges Datum eingegeben...");
    EXPECT_EQ(TextOf("txt_UniStartZeitTag"), "03") << "padded although refused";
    EXPECT_EQ(TextOf("LBL_Weekday"), "Err.") << "as the day's text changed";
    Type("txt_UniStartZeitStunden", "12");
    EXPECT_EQ(TextOf("LBL_Weekday"), "Err.");
    m_document.RunSimulation(false);
    EXPECT_EQ(TextOf("LBL_Weekday"), "Fr.");
    EXPECT_EQ(m_dialogs.texts.size(), 1U);
    Type("txt_UniStartZeitStunden", "");
    m_document.RunSimulation(false);
    EXPECT_EQ(TextOf("LBL_Weekday"), "Fr.") << "nothing that it follows has changed";
    // A load sets day, month and year before the hour, so the bad hour comes too late to matter.
    Type("txt_UniStartZeitStunden", "12");
    Plan plan = PlanOf("GM");
    plan.parameters.UniStartZeitTag = "16";
    plan.parameters.UniStartZeitStunden = "25";
    Load(plan);
    EXPECT_EQ(TextOf("LBL_Weekday"), "Do.");
}

TEST_F(MainWindow, KlickPufferSpeedfaktorAndDescriptionsTakeEffect) {
    auto& buffer = Find<QSlider>("HSC_KlickPuffer");
    QTest::keyClick(&buffer, Qt::Key_PageUp);
    EXPECT_EQ(TextOf("LBL_KlickPuffer"), "00:15");
    QTest::keyClick(&buffer, Qt::Key_Home);
    EXPECT_EQ(TextOf("LBL_KlickPuffer"), "00:00");
    QTest::keyClick(&buffer, Qt::Key_End);
    EXPECT_EQ(TextOf("LBL_KlickPuffer"), "10:00");
    EXPECT_EQ(m_document.CurrentPlan().parameters.KlickPuffer, 600);
    Press("Chk_Speedfaktor");
    EXPECT_EQ(m_document.CurrentRun().conditions.Speedfaktor, 2);
    Press("cmd_ShowDesc");
    EXPECT_EQ(TextOf("cmd_ShowDesc"), "ein/AUS");
    EXPECT_FALSE(Find("LBLDesc(0)").isVisible() || Find("LBLDesc(19)").isVisible());
    EXPECT_TRUE(Find("LBL_SKW_Stufe").isVisible());
    Press("cmd_ShowDesc");
    EXPECT_TRUE(Find("LBLDesc(0)").isVisible() && Find("LBLDesc(19)").isVisible());
}

TEST_F(MainWindow, SleepWindowsAreAddedAndRemoved) {
    Choose("mnuSleep");
    EXPECT_EQ(TextOf("LBL_Schlafendzeit"), "Sa.  18.11.2006 23:30");
    Press("Cmd_RemoveSchlafzeit");
    Press("Cmd_AddSchlafzeit");
    EXPECT_EQ(Cell("LV_Schlafzeiten", 0, 1), "18.11.2006 23:30");
    Press("Cmd_AddSchlafzeit");
    EXPECT_EQ(m_dialogs.texts.back(), "Kein überschneidenden Zeiträumen eingegeben...");
    // Turning the page keeps the selected day of the month.
    auto& calendar = Find<QCalendarWidget>("SchlafKalender");
    calendar.showNextMonth();
    EXPECT_EQ(TextOf("LBL_Schlafendzeit"), "Mo.  18.12.2006 23:30");
    calendar.showPreviousMonth();
    QTest::keyClick(calendar.findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview")),
                    Qt::Key_Right);
    EXPECT_EQ(TextOf("LBL_Schlafendzeit"), "So.  19.11.2006 23:30");
    Press("Cmd_AddSchlafzeit");
    Type("txt_SchlafdauerMinuten", "x");
    EXPECT_EQ(TextOf("LBL_Schlafendzeit"), "Error");
    Press("Cmd_AddSchlafzeit");
    EXPECT_EQ(m_dialogs.texts.back(), "Keine gültige Dauer eingegeben...");
    Type("txt_SchlafdauerMinuten", "5");
    Type("txt_SchlafStartStunden", "24");
    Press("Cmd_AddSchlafzeit");
    EXPECT_EQ(m_dialogs.texts.back(), "Kein gültiges Datum eingegeben...");
    ASSERT_EQ(RowCount("LV_Schlafzeiten"), 2);

    auto& list = Find<QTreeView>("LV_Schlafzeiten");
    EXPECT_EQ(list.currentIndex().row(), 1);
    EXPECT_GT(list.geometry().left(), Find("SchlafKalender").geometry().right());
    EXPECT_EQ(list.geometry().top(), Find("SchlafKalender").geometry().top());
    list.setCurrentIndex(list.model()->index(0, 0));
    Press("Cmd_RemoveSchlafzeit");
    ASSERT_EQ(RowCount("LV_Schlafzeiten"), 1);
    EXPECT_EQ(Cell("LV_Schlafzeiten", 0, 0), "19.11.2006 22:30");
    EXPECT_FALSE(list.selectionModel()->hasSelection()) << "the next row isn't chosen";
    Press("Cmd_RemoveSchlafzeit");
    Press("Cmd_ClearSchlafzeiten");
    EXPECT_EQ(RowCount("LV_Schlafzeiten"), 1) << "answered with Nein";
    Type("txt_SchlafStartStunden", "9");
    Type("txt_SchlafdauerStunden", "00");
    for (const char* const minutes : {"10", "15", "20", "25", "30", "35", "40", "45", "50", "55"}) {
        Type("txt_SchlafStartMinuten", minutes);
        Press("Cmd_AddSchlafzeit");
        const QRect newRow = list.visualRect(list.currentIndex());
        EXPECT_EQ(list.currentIndex().data().toString().right(2), QLatin1String(minutes));
        EXPECT_TRUE(list.viewport()->rect().contains(newRow)) << minutes;
    }
    m_dialogs.answer = true;
    Press("Cmd_ClearSchlafzeiten");
    EXPECT_EQ(m_dialogs.texts.back(), "Wirklich alle löschen ?");
    EXPECT_EQ(RowCount("LV_Schlafzeiten"), 0);
}

TEST_F(MainWindow, LongNumbersEndInDotsAndStandWholeInTheHint) {
    Plan plan = PlanOf("GM GM");
    plan.LV_Schlafzeiten = {{"18.11.2006 12:30", "18.11.3006 23:30"}};
    Load(plan);
    auto& metal = Find<QLabel>("LBL_Met");
    // Not every platform's font is too wide for it.
    const bool fits =
        metal.fontMetrics().horizontalAdvance(metal.text()) <= metal.contentsRect().width();
    EXPECT_EQ(metal.toolTip(), fits ? QString() : metal.text());
    EXPECT_EQ(Find("LBL_ENergie").toolTip(), QString());
    // The text is cut at its right end only, whatever the alignment.
    metal.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    metal.setFixedWidth(metal.fontMetrics().horizontalAdvance(metal.text()) + 1);
    EXPECT_EQ(metal.toolTip(), QString());
    const QImage whole = metal.grab().toImage();
    metal.setFixedWidth(whole.width() - 8);
    EXPECT_EQ(metal.toolTip(), metal.text());
    metal.setAlignment(Qt::AlignCenter);
    const QRect leftHalf(0, 0, metal.width() / 2, metal.height());
    const QImage elided = metal.grab().toImage();
    EXPECT_EQ(elided.copy(leftHalf), whole.copy(leftHalf));
    EXPECT_NE(elided, whole.copy(metal.rect())) << "no ellipsis";
}

// tests/e2e compares the figures themselves with the console's.
TEST_F(MainWindow, SimulationClosesThePanelsAndEachRowNamesItsReason) {
    Load("GS GM GM GM GM");
    for (const char* const panel : kPanels) {
        Find(panel).show();
    }
    Press("Cmd_Simulate");
    for (const char* const panel : kPanels) {
        EXPECT_FALSE(Find(panel).isVisible()) << panel;
    }
    ASSERT_EQ(RowCount("LV_Bauzeiten"), 5);
    EXPECT_TRUE(Find("LBL_Punkte").toolTip().startsWith(QStringLiteral("Inkl. Res.: ")));
    auto& list = Find<QTreeView>("LV_Bauzeiten");
    const QRect third = list.visualRect(list.model()->index(2, 0));
    MoveMouse(*list.viewport(), third.center());
    EXPECT_EQ(list.toolTip().toStdString(), m_document.CurrentRun().LV_Bauzeiten[2].Tag());
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(list.viewport(), &leave);
    EXPECT_EQ(list.toolTip(), QString()) << "over the head or the bar";
    MoveMouse(*list.viewport(), third.center() + QPoint(1, 0));
    EXPECT_NE(list.toolTip(), QString());
    MoveMouse(*list.viewport(), list.viewport()->rect().bottomLeft() - QPoint(-5, 2));
    EXPECT_EQ(list.toolTip(), QString()) << "no row there";
}

TEST_F(MainWindow, ClearAndInputErrorsLeaveTheRest) {
    Load("GM");
    m_document.RunSimulation(true);
    const std::string points = TextOf("LBL_Punkte");
    Press("Cmd_Clear");
    EXPECT_EQ(TextOf("LBL_Timegone"), "Dauer: dd:hh:mm:ss");
    EXPECT_NE(TextOf("LBL_Timegone2"), "Dauer: dd:hh:mm:ss");
    EXPECT_EQ(TextOf("LBL_Met") + TextOf("LBL_Kris"), "500500");
    EXPECT_EQ(TextOf("LBL_MetMine_Stufe"), "0");
    Press("Cmd_Simulate");
    EXPECT_EQ(m_dialogs.texts.back(), "Die Bauliste ist leer...");
    EXPECT_EQ(TextOf("LBL_Punkte"), points);
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 1);
}

// While a message of a run is open, the window shows the rows so far and the texts of the reset.
TEST_F(MainWindow, MessageInARunShowsTheRunSoFar) {
    Load("GM");
    m_document.RunSimulation(true);
    // The lab costs deuterium, and there is no deuterium mine.
    Load("GF GM");
    Type("txt_UniStartZeitTag", "5");
    int messages = 0;
    m_dialogs.onMessage = [&] {
        EXPECT_EQ(RowCount("LV_Bauzeiten"), ++messages);
        EXPECT_EQ(TextOf("LBL_Punkte"), "0");
        EXPECT_EQ(TextOf("txt_UniStartZeitTag"), "05");
    };
    m_document.RunSimulation(true);
    EXPECT_EQ(messages, 2);
}

TEST_F(MainWindow, NewRunBeginsWithAnEmptyList) {
    Plan plan;
    for (int i = 0; i < 60; ++i) {
        ASSERT_FALSE(plan.LV_Bauliste.AddItem(ItemId::SKW, m_document.CurrentRun().conditions));
    }
    plan.parameters = m_document.CurrentPlan().parameters;
    Load(plan);
    m_document.RunSimulation(true);
    auto& list = Find<QTreeView>("LV_Bauzeiten");
    list.setCurrentIndex(list.model()->index(59, 0));
    m_document.RunSimulation(true);
    EXPECT_FALSE(list.currentIndex().isValid());
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.model()->index(0, 0))));
}

TEST_F(MainWindow, EnterPressesAButtonEverywhere) {
    int runs = 0;
    for (auto* const widget : m_window.findChildren<QWidget*>()) {
        // Each run closes the panels.
        for (const char* const panel : kPanels) {
            Find(panel).show();
        }
        const auto* const button = qobject_cast<QAbstractButton*>(widget);
        const bool pushButton = button != nullptr && button->inherits("QPushButton");
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || pushButton) {
            continue;
        }
        m_dialogs.texts.clear();
        widget->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(m_dialogs.texts, std::vector<std::string>{"Die Bauliste ist leer..."})
            << widget->objectName().toStdString() << widget->metaObject()->className();
        ++runs;
    }
    EXPECT_GT(runs, 40);
    // A focused button handles Enter itself.
    m_dialogs.texts.clear();
    Find("Fra_Special").show();
    QTest::keyClick(&Find("Cmd_AddProdaenderungsevent"), Qt::Key_Return);
    EXPECT_EQ(RowCount("LV_Bauliste"), 1);
    EXPECT_TRUE(m_dialogs.texts.empty());
}

// A clicked button keeps the focus, but Enter goes to the default button.
TEST_F(MainWindow, MousePressGivesEnterBack) {
    const auto enter = [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); };
    const auto tabTo = [&](const char* name) {
        constexpr int kLongest = 200;
        for (int i = 0; i < kLongest && QApplication::focusWidget() != &Find(name); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        ASSERT_EQ(QApplication::focusWidget(), &Find(name));
    };
    QTest::mouseClick(&Find("Cmd_Clear"), Qt::LeftButton);
    ASSERT_EQ(QApplication::focusWidget(), &Find("Cmd_Clear"));
    for (const char* const picture : {"ImgSKW", "ImgMetMine"}) {
        emit Find<BuildListView>("LV_Bauliste").DragDrop(QString::fromLatin1(picture));
    }
    enter();
    EXPECT_EQ(RowCount("LV_Bauliste"), 2);
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 2);
    Choose("mnu_SpecialEvents");
    tabTo("Cmd_AddProdaenderungsevent");
    enter();
    EXPECT_EQ(RowCount("LV_Bauliste"), 3) << "who walks there presses it";
    QTest::mouseClick(&Find("Frame9"), Qt::LeftButton);
    ASSERT_EQ(QApplication::focusWidget(), &Find("Cmd_AddProdaenderungsevent"));
    enter();
    EXPECT_EQ(RowCount("LV_Bauliste"), 3);
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 3);
    tabTo("Cmd_Clear");
    QTest::mouseClick(&Find("Cmd_Undo"), Qt::LeftButton);
    QTest::keyClick(&Find("Cmd_Undo"), Qt::Key_Space);
    EXPECT_EQ(RowCount("LV_Bauliste"), 1) << "the space bar goes on pressing it";
    tabTo("Cmd_Clear");
    enter();
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
}

TEST_F(MainWindow, TabReachesEverythingInOrderAndEverythingHasAName) {
    for (const char* const panel : kPanels) {
        Find(panel).show();
    }
    QSet<QWidget*> reached;
    std::vector<std::string> names;
    Find("LV_Bauliste").setFocus();
    while (!reached.contains(QApplication::focusWidget())) {
        reached.insert(QApplication::focusWidget());
        names.push_back(QApplication::focusWidget()->objectName().toStdString());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (auto* const widget : m_window.findChildren<QWidget*>()) {
        const bool tabStop =
            !widget->inherits("QRadioButton") || widget->property("checked").toBool();
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || !tabStop ||
            !widget->isEnabled() || widget->focusProxy() != nullptr) {
            continue;
        }
        EXPECT_TRUE(reached.contains(widget))
            << widget->objectName().toStdString() << widget->metaObject()->className();
        const auto* const accessible = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty() &&
                     !widget->parent()->inherits("QCalendarWidget") &&
                     !widget->parent()->inherits("QComboBox"))
            << widget->objectName().toStdString();
    }
    const auto position = [&](const char* name) { return std::ranges::find(names, name); };
    EXPECT_LT(position("Cmd_Simulate"), position("ImgMetMine"));
    EXPECT_LT(position("ImgMetMine"), position("imgSpios"));
    EXPECT_LT(position("imgSpios"), position("LV_Bauzeiten"));
    EXPECT_LT(position("txt_SchlafStartStunden"), position("Cmd_AddSchlafzeit"));
}

TEST_F(MainWindow, SharedLettersCycleThroughTheMenu) {
    auto* const menu = m_window.menuBar();
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(&m_window, key, Qt::AltModifier);
        return menu->activeAction() == nullptr ? std::string()
                                               : menu->activeAction()->objectName().toStdString();
    };
    EXPECT_EQ(press(Qt::Key_E), "mnuEinstellungen");
    EXPECT_EQ(press(Qt::Key_E), "mnu_SpecialEvents");
    EXPECT_EQ(press(Qt::Key_E), "mnuEinstellungen");
    EXPECT_TRUE(Find("Fra_Einstellungen").isVisible()) << "nothing is carried out yet";
    QTest::keyClick(menu, Qt::Key_Return);
    EXPECT_FALSE(Find("Fra_Einstellungen").isVisible());
    Find("LV_Bauliste").setFocus();
    EXPECT_EQ(press(Qt::Key_S), "mnuSleep");
    EXPECT_EQ(press(Qt::Key_S), "mnuSkin");
    QTest::keyClick(menu, Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &Find("LV_Bauliste"));
    EXPECT_FALSE(Find("Fra_Skin").isVisible());
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
