// Tests the workbench: edits, agreement with the main window, timeline, search, comparison,
// exports.
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QImage>
#include <QMimeData>
#include <QProgressBar>
#include <QScrollBar>
#include <QSpinBox>
#include <QXmlStreamReader>
#include <random>

#include "MainWindowFixture.h"
#include "document/PlanRun.h"
#include "simulation/RunTexts.h"
#include "simulation/StatusTexts.h"
#include "ui/services/SvgImage.h"
#include "ui/widgets/ItemPicture.h"

namespace tarvelin {
namespace {

class WorkbenchWindow : public MainWindow {
  protected:
    WorkbenchWindow() {
        Choose("mnuWerkbank");
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            m_workbench =
                window->objectName() == QStringLiteral("frmWerkbank") ? window : m_workbench;
        }
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_workbench));
    }

    template <class T = QWidget>
    T& Page(const char* name) {
        T* const found = m_workbench->findChild<T*>(QString::fromUtf8(name));
        if (found == nullptr) {
            throw std::out_of_range(name);
        }
        return *found;
    }
    std::string Says(const char* label) { return Page<QLabel>(label).text().toStdString(); }
    std::string Column(int column) {
        const auto* const model = Page<QTreeView>("LV_Werkbank").model();
        std::string text;
        for (int i = 0; i < model->rowCount(); ++i) {
            text += (i == 0 ? "" : "|") + model->index(i, column).data().toString().toStdString();
        }
        return text;
    }
    /// Where a moment stands in the viewport.
    static int ColumnOf(const TimelineView& timeline, SimTime moment) {
        return timeline.mapFromScene(QPointF(moment.Seconds(), 0)).x();
    }
    void ChooseRows(const std::vector<std::size_t>& rows) {
        Page<OrderListView>("LV_Werkbank").Choose(rows);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(m_workbench, key, modifiers);
    }
    void Insert(const char* picture) { Page<QAbstractButton>(picture).click(); }
    /// A drop from another program.
    void Drop(const QString& format, const QByteArray& data, int row) {
        auto& list = Page<QTreeView>("LV_Werkbank");
        QMimeData content;
        content.setData(format, data);
        const QPoint position =
            list.visualRect(list.model()->index(row, 0)).topLeft() + QPoint(5, 1);
        QDragEnterEvent enter(position, Qt::CopyAction | Qt::MoveAction, &content, Qt::LeftButton,
                              {});
        QDropEvent drop(position, Qt::CopyAction | Qt::MoveAction, &content, Qt::LeftButton, {});
        QCoreApplication::sendEvent(list.viewport(), &enter);
        QCoreApplication::sendEvent(list.viewport(), &drop);
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
        ASSERT_EQ(RowCount("LV_Bauliste"), static_cast<int>(replayed.Rows().size()));
        ASSERT_EQ(Page<QTreeView>("LV_Werkbank").model()->rowCount(), RowCount("LV_Bauliste"));
        for (int i = 0; i < RowCount("LV_Bauliste"); ++i) {
            const BuildListRow& row = replayed.Rows()[static_cast<std::size_t>(i)];
            const auto& there = *Page<QTreeView>("LV_Werkbank").model();
            EXPECT_EQ(Cell("LV_Bauliste", i, 1), row.SubItems1);
            EXPECT_EQ(there.index(i, 1).data().toString().toStdString(), row.SubItems1);
            EXPECT_EQ(Cell("LV_Bauliste", i, 2), row.SubItems2);
            EXPECT_EQ(there.index(i, 5).data().toString().toStdString(), row.SubItems2);
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
    EXPECT_EQ(Says("LBL_Meldung"),
              "Zeile 6 (Raumschiffwerft Stufe: 1): Noch keine Roboterfabrik (Stufe:2) in der "
              "Bauliste, bauen wäre unmöglich!");
    ChooseRows({1});
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Tags(), "GM GS GD GR GR GW");
    EXPECT_EQ(Page<OrderListView>("LV_Werkbank").ChosenRows(), (std::vector<std::size_t>{0}));
    EXPECT_EQ(Says("LBL_Meldung"), "");
    Insert("ImgSKW");
    Insert("ImgKrisMine");
    EXPECT_EQ(Tags(), "GS GK GM GS GD GR GR GW") << "in front of the chosen row, in their turn";
    Insert("ImgRobo");
    EXPECT_EQ(Says("LBL_Meldung"),
              "Noch keine Deuteriummine oder kein Solarkraftwerk in der Bauliste, bauen wäre "
              "unmöglich!");
    EXPECT_EQ(Page("ImgRobo").toolTip().trimmed().toStdString(), Says("LBL_Meldung"));
    ChooseRows({7});
    Key(Qt::Key_D, Qt::ControlModifier);
    ChooseRows({1, 2});
    Key(Qt::Key_Delete);
    EXPECT_EQ(Tags(), "GS GS GD GR GR GW GW");
    Page<QComboBox>("Comb_Kristallmine").setCurrentIndex(3);
    Page<QAbstractButton>("Cmd_Produktion").click();
    EXPECT_EQ(Tags(), "GS GX:10:7:10 GS GD GR GR GW GW");
    Drop(kItemMimeType, "ImgMetMine", 2);
    EXPECT_EQ(Tags(), "GS GX:10:7:10 GS GD GR GR GW GW") << "of another program";
    for (int i = 0; i < 6; ++i) {
        Key(Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_EQ(Tags(), "GS GM GD GR GR GW");
    EXPECT_EQ(Column(0), "1|2|3|4|5|6");
    for (int i = 0; i < 9; ++i) {
        Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }
    EXPECT_EQ(Tags(), "GS GX:10:7:10 GS GD GR GR GW GW");
    ExpectAgreement();
    EXPECT_TRUE(m_dialogs.texts.empty());
}

TEST_F(WorkbenchWindow, RunsAfterEachEditInBothWindows) {
    Load("GM GM GS");
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 0) << "nobody has started a run there";
    EXPECT_EQ(Column(2), "Sa 18.11. 12:30:05|Sa 18.11. 12:32:04|Sa 18.11. 12:34:56");
    EXPECT_EQ(Column(4), "Klickpuffer: 5 s|Bauschleife bis 12:31:59|Bauschleife bis 12:34:51");
    Find("Fra_Einstellungen").show();
    ChooseRows({2});
    Key(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Says("LBL_Dauer"), TextOf("LBL_Timegone"));
    EXPECT_EQ(Says("LBL_Aenderung"), "±00:00:00");
    ASSERT_EQ(RowCount("LV_Bauzeiten"), 3);
    EXPECT_EQ(Cell("LV_Bauzeiten", 1, 2), "Solarkraftwerk: 1");
    EXPECT_TRUE(Find("Fra_Einstellungen").isVisible());
    Insert("ImgMetMine");
    EXPECT_EQ(Says("LBL_Aenderung").front(), '+');
    // A change of parameters takes effect at once.
    Type("txt_UniStartZeitStunden", "13");
    EXPECT_EQ(Column(2).substr(0, 18), "Sa 18.11. 13:30:05");
    Type("txt_UniStartZeitMonat", "13");
    EXPECT_EQ(Says("LBL_Meldung"), "Kein gültiges Datum eingegeben...");
    EXPECT_EQ(Column(2), "|||");
    Type("txt_UniStartZeitMonat", "11");
    // Messages of the run are shown in the message line.
    ChooseRows({0, 1, 2, 3});
    Key(Qt::Key_Delete);
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 0);
    EXPECT_EQ(TextOf("LBL_Timegone"), "Dauer: dd:hh:mm:ss");
    for (const char* const picture : {"ImgDeutMine", "ImgSKW", "ImgRobo"}) {
        Insert(picture);
    }
    ChooseRows({2});
    Key(Qt::Key_Delete);
    EXPECT_EQ(Tags(), "GD GS");
    Plan negativeStock = PlanOf("GW");
    Load(negativeStock);
    EXPECT_NE(Says("LBL_Meldung").find("Negative Ressourcen"), std::string::npos);
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Tags(), "GD GS") << "a load is a step";
    // The clock's range ends before the second order.
    Plan late = PlanOf("GS GS");
    late.LV_Schlafzeiten = {{"18.11.2006 12:30", "18.11.3006 23:30"}};
    Load(late);
    EXPECT_NE(Says("LBL_Meldung").find("was später als 24855 Tage 03:14:07 käme"),
              std::string::npos);
}

TEST_F(WorkbenchWindow, UndoesEditsOfBothWindows) {
    Load("GS GD GF");
    const std::string duration = Says("LBL_Dauer");
    Find<QSlider>("HSC_KlickPuffer").setValue(65);
    const std::string change = Says("LBL_Aenderung");
    EXPECT_EQ(change, "+00:04:00");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Says("LBL_Dauer"), duration);
    EXPECT_EQ(Says("LBL_Aenderung"), "-" + change.substr(1));
    EXPECT_TRUE(Page("Cmd_Vor").isEnabled());
    Type("txt_TempMax", "40");
    EXPECT_FALSE(Page("Cmd_Vor").isEnabled()) << "an edit ends what was taken back";
    Press("Cmd_AddSchlafzeit");
    m_now = *ParseDateTime("05.03.2007 01:00:00");
    Choose("mnu_DateiNeu");
    struct Step {
        const char* tags;
        const char* year;
        int sleepRows;
        const char* temperature;
    };
    for (const auto& [tags, year, sleepRows, temperature] :
         {Step{"", "2007", 1, "40"}, Step{"GS GD GF", "2006", 1, "40"},
          Step{"GS GD GF", "2006", 0, "40"}, Step{"GS GD GF", "2006", 0, "11"}}) {
        EXPECT_EQ(Tags(), tags);
        EXPECT_EQ(TextOf("txt_UniStartZeitJahr"), year);
        EXPECT_EQ(RowCount("LV_Schlafzeiten"), sleepRows);
        EXPECT_EQ(TextOf("txt_TempMax"), temperature);
        Key(Qt::Key_Z, Qt::ControlModifier);
    }
    ExpectAgreement();
}

// Random edits in both windows; undo and redo give back what was there.
TEST_F(WorkbenchWindow, AgreesWithTheMainWindow) {
    std::minstd_rand random(7);
    const auto oneIn = [&](unsigned n) { return random() % n == 0; };
    const std::array pictures{"ImgMetMine", "ImgSKW",   "ImgDeutMine",
                              "ImgRobo",    "imgFolab", "ImgWerft"};
    for (int i = 0; i < 150; ++i) {
        const auto rows = m_document.CurrentPlan().LV_Bauliste.Rows().size();
        std::vector<std::size_t> chosen;
        for (std::size_t row = 0; row < rows; ++row) {
            if (oneIn(6)) {
                chosen.push_back(row);
            }
        }
        ChooseRows(chosen);
        const std::string before = Tags();
        const char* const picture = pictures.at(random() % pictures.size());
        switch (random() % 8) {
            case 0:
                Key(Qt::Key_Up, Qt::AltModifier);
                break;
            case 1:
                Key(Qt::Key_Down, Qt::AltModifier);
                break;
            case 2:
                Key(oneIn(2) ? Qt::Key_Delete : Qt::Key_D, Qt::ControlModifier);
                break;
            case 3:
                Press(oneIn(9) ? "Cmd_Clear" : "Cmd_Undo");
                break;
            case 4:
                Find<QSlider>("HSC_KlickPuffer").setValue(static_cast<int>(random() % 60));
                Type("txt_TempMax", oneIn(2) ? "20" : "90");
                break;
            case 5:
                emit Find<BuildListView>("LV_Bauliste").DragDrop(ToQString(picture));
                break;
            default:
                Insert(picture);
        }
        if (Tags() != before) {
            const std::string after = Tags();
            Key(Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(Tags(), before);
            Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            EXPECT_EQ(Tags(), after);
            ExpectAgreement();
            EXPECT_EQ(Says("LBL_Dauer"), after.empty() ? "Dauer: -" : TextOf("LBL_Timegone"));
        }
    }
}

TEST_F(WorkbenchWindow, ShowsThePlanAsAPicture) {
    m_now = *ParseDateTime("18.11.2006 12:33:00");
    Plan plan = PlanOf("GM GM GS GX:10:0:10 GM");
    plan.parameters.KlickPuffer = 5;
    Load(plan);
    auto& timeline = Page<TimelineView>("Zeitleiste");
    EXPECT_EQ(Says("LBL_Naechster"), "Als Nächstes: Solarkraftwerk 1 um 12:34:56, in 00:01:56");
    const auto click = [&](Long second, int y) {
        QTest::mouseClick(timeline.viewport(), Qt::LeftButton, {},
                          QPoint(ColumnOf(timeline, SimTime(second)), y));
        return Page<OrderListView>("LV_Werkbank").ChosenRows();
    };
    const int buildLane = 2 * timeline.fontMetrics().height();
    EXPECT_EQ(click(180, buildLane), (std::vector<std::size_t>{1}));
    EXPECT_EQ(click(350, buildLane), (std::vector<std::size_t>{2}));
    // A bar has the colour of its queue.
    const QImage picture = timeline.viewport()->grab().toImage();
    const TimelineColors colors(m_workbench->palette());
    EXPECT_EQ(picture.pixelColor(ColumnOf(timeline, SimTime(60)), buildLane),
              colors.bars[Queue::Building]);
    // Zooming keeps the moment below the pointer in place.
    const QPoint position(ColumnOf(timeline, SimTime(300)), 20);
    for (int i = 0; i < 8; ++i) {
        QWheelEvent wheel(position, timeline.viewport()->mapToGlobal(position), {}, {0, 120}, {},
                          {}, Qt::NoScrollPhase, false);
        const qreal below = timeline.mapToScene(position).x();
        QCoreApplication::sendEvent(timeline.viewport(), &wheel);
        EXPECT_NEAR(timeline.mapFromScene(QPointF(below, 0)).x(), position.x(), 1);
    }
    EXPECT_GT(ColumnOf(timeline, SimTime(310)) - ColumnOf(timeline, SimTime(300)), 20);
    MoveMouse(*timeline.viewport(), position);
    EXPECT_EQ(Says("LBL_Stand").substr(0, 18), "Sa 18.11. 12:35:00");
    EXPECT_NE(Says("LBL_Stand").find("Metallmine 2"), std::string::npos);
    ChooseRows({4});
    const int start = ColumnOf(timeline, SimTime(*ParseDateTime("18.11.2006 12:38:53") -
                                                 *ParseDateTime("18.11.2006 12:30:00")));
    EXPECT_TRUE(start >= 0 && start < timeline.viewport()->width()) << "brought to sight";
    QTest::mouseDClick(timeline.viewport(), Qt::LeftButton, {}, position);
    EXPECT_EQ(ColumnOf(timeline, SimTime()), 0);
    // Ctrl+Left and Ctrl+Right go from start to start, Enter chooses the row.
    timeline.setFocus();
    for (const auto key :
         {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Right}) {
        QTest::keyClick(&timeline, key, Qt::ControlModifier);
    }
    QTest::keyClick(&timeline, Qt::Key_Return);
    EXPECT_EQ(Page<OrderListView>("LV_Werkbank").ChosenRows(), (std::vector<std::size_t>{2}));
    EXPECT_EQ(timeline.accessibleDescription().left(18).toStdString(), "Sa 18.11. 12:34:56");
}

TEST_F(WorkbenchWindow, SavesThePicture) {
    Load("GM GM GS");
    const auto save = [this](const char* name) {
        m_dialogs.file = name;
        Page<QAbstractButton>("Cmd_BildSpeichern").click();
        return ReadFileToString(m_folder / "saves" / name);
    };
    EXPECT_TRUE(save("bild.pdf").starts_with("%PDF"));
    const std::string svg = save("bild.SVG");
    if (HasSvg()) {
        QXmlStreamReader xml(QByteArray::fromStdString(svg));
        while (!xml.atEnd()) {
            xml.readNext();
        }
        EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
        EXPECT_NE(svg.find("Metallmine 2"), std::string::npos) << "words stay words";
    }
    const QImage png = QImage::fromData(QByteArray::fromStdString(save("bild.png")));
    auto& timeline = Page<TimelineView>("Zeitleiste");
    EXPECT_EQ(png.size(), 2 * timeline.viewport()->size());
    const QPoint bar(ColumnOf(timeline, SimTime(60)), 2 * timeline.fontMetrics().height());
    EXPECT_EQ(png.pixelColor(2 * bar), timeline.viewport()->grab().toImage().pixelColor(bar));
    EXPECT_EQ(save("bild.txt"), "");
    EXPECT_NE(Says("LBL_Meldung").find("oder .pdf"), std::string::npos);
    EXPECT_EQ(save("fehlt/bild.png"), "");
    EXPECT_NE(Says("LBL_Meldung").find("konnte nicht gespeichert werden"), std::string::npos);
}

TEST_F(WorkbenchWindow, IsHiddenWhenClosedAndComesBack) {
    Load("GM GM");
    m_workbench->resize(900, 700);
    m_workbench->close();
    EXPECT_TRUE(m_workbench->isHidden());
    EXPECT_TRUE(m_window.isVisible());
    Load("GM GM GS");
    Choose("mnuWerkbank");
    EXPECT_EQ(Column(0), "1|2|3");
    m_window.close();
    EXPECT_TRUE(m_workbench->isHidden());
    const std::string config = ReadFileToString(m_folder / "config.cfg");
    EXPECT_NE(config.find("[Werkbank]\r\n"), std::string::npos) << config;
    EXPECT_NE(config.find("Breite=900\r\nHoehe=700\r\n"), std::string::npos) << config;
}

TEST_F(WorkbenchWindow, FollowsTheColorsOfTheDesktop) {
    QPalette dark(Qt::white, Qt::black, Qt::gray, Qt::black, Qt::darkGray, Qt::white, Qt::white,
                  QColor(20, 20, 20), QColor(40, 40, 40));
    m_environment.desktopPalette = [&] { return dark; };
    Load("GM");
    QEvent change(QEvent::ThemeChange);
    QCoreApplication::sendEvent(m_workbench, &change);
    const QImage picture = Page<TimelineView>("Zeitleiste").viewport()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(picture.width() - 2, picture.height() - 2), QColor(20, 20, 20));
    EXPECT_EQ(Page("LV_Werkbank").palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_NE(Find("LV_Bauliste").palette().color(QPalette::Text), QColor(Qt::white));
}

TEST_F(WorkbenchWindow, SearchesAndAcceptsAsOneStep) {
    const PlanRun starter(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data/saves/basic.tvf");
    Load(starter.plan);
    m_now = *ParseDateTime("03.12.2026 12:00:30");
    const auto bytes = [this] {
        // A save would keep the old file's other lines.
        std::filesystem::remove(m_folder / "jetzt.tvf");
        EXPECT_TRUE(SaveBauliste(m_folder / "jetzt.tvf", m_document.CurrentPlan()));
        return ReadFileToString(m_folder / "jetzt.tvf");
    };
    const auto search = [this](int tries) {
        Page<QSpinBox>("Spin_Versuche").setValue(tries);
        Page<QAbstractButton>("Cmd_Suchen").click();
    };
    const auto wait = [this] {
        constexpr int kLong = 300'000;
        ASSERT_TRUE(QTest::qWaitFor([this] { return Page("Cmd_Suchen").isEnabled(); }, kLong));
    };
    const std::string before = bytes();
    // Pinned rows and started orders stay; undo also removes the pause that the search added.
    ChooseRows({40});
    Page<QAbstractButton>("Chk_Fest").click();
    Page<QAbstractButton>("Chk_AbJetzt").click();
    search(20'000);
    EXPECT_FALSE(Page("Cmd_Uebernehmen").isEnabled());
    wait();
    const std::string report = Says("LBL_Suche");
    EXPECT_NE(report.find("Vorher: 4 Tage 04:40:16"), std::string::npos) << report;
    Page<QAbstractButton>("Cmd_Uebernehmen").click();
    const std::string after = bytes();
    EXPECT_NE(after, before);
    EXPECT_EQ(m_document.CurrentPlan().LV_Bauliste.Rows()[40].Tag,
              starter.plan.LV_Bauliste.Rows()[40].Tag);
    EXPECT_EQ(m_document.CurrentPlan().LV_Schlafzeiten.front().Startzeit, "03.12.2026 10:30");
    EXPECT_EQ(Says("LBL_Dauer"), TextOf("LBL_Timegone"));
    const auto duration = TimeSpanText(m_document.CurrentRun().state.secsgone.Seconds());
    EXPECT_NE(report.find("Nachher: " + duration + ","), std::string::npos) << report << duration;
    EXPECT_TRUE(m_dialogs.texts.empty());
    const std::string change = Says("LBL_Aenderung");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(Says("LBL_Aenderung"), "+" + change.substr(1)) << "told once, of the whole plan";
    EXPECT_EQ(RowCount("LV_Schlafzeiten"), static_cast<int>(starter.plan.LV_Schlafzeiten.size()));
    Key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bytes(), after);
    // A plan that was edited during the search isn't replaced without a question.
    Page<QAbstractButton>("Chk_AbJetzt").click();
    search(1'000'000'000);
    Insert("ImgMetMine");
    const std::string edited = bytes();
    Page<QAbstractButton>("Cmd_Anhalten").click();
    wait();
    EXPECT_LT(Page<QProgressBar>("Suchbalken").value(), 50);
    Page<QAbstractButton>("Cmd_Uebernehmen").click();
    ASSERT_EQ(m_dialogs.texts.size(), 1U);
    EXPECT_EQ(bytes(), edited);
    // Closing the window stops the search and keeps its result.
    search(1'000'000'000);
    m_workbench->close();
    wait();
    EXPECT_TRUE(Page("Cmd_Uebernehmen").isEnabled());
    search(1'000'000'000);
}

TEST_F(WorkbenchWindow, SaysWhyItCannotSearch) {
    Load("GS GM");
    Page<QComboBox>("Comb_Suchaufgabe").setCurrentIndex(1);
    Page<QLineEdit>("txt_Suchziel").setText(QStringLiteral("XX1"));
    Page<QAbstractButton>("Cmd_Suchen").click();
    EXPECT_NE(Says("LBL_Meldung").find("\"XX1\" nennt kein Item"), std::string::npos);
    EXPECT_TRUE(Page("Cmd_Suchen").isEnabled());
}

TEST_F(WorkbenchWindow, ComparesWithARememberedRunAndWithFiles) {
    const auto columns = [this](const char* table) {
        const auto* const model = Page<QTreeView>(table).model();
        std::string text;
        for (int i = 0; i < model->rowCount(); ++i) {
            for (int column = 0; column < model->columnCount(); ++column) {
                text += model->index(i, column).data().toString().toStdString() + "|";
            }
        }
        return text;
    };
    Load("GS GM GM");
    Page<QAbstractButton>("Cmd_Merken").click();
    EXPECT_EQ(columns("LV_Unterschiede"), "");
    EXPECT_TRUE(columns("LV_Kennzahlen").starts_with("Dauer|00:07:27|00:07:27|±00:00:00|Punkte|"));
    ChooseRows({1});
    Key(Qt::Key_Up, Qt::AltModifier);
    Insert("ImgKrisMine");
    EXPECT_EQ(columns("LV_Unterschiede"),
              "Kristallmine 1|fehlt|00:00:05||Solarkraftwerk 1|00:00:05|00:03:59|+00:03:54|"
              "Metallmine 1|00:02:47|00:02:00|-00:00:47|Metallmine 2|00:04:46|00:06:41|+00:01:55|");
    // A plan with another start date: both runs are measured from their own start.
    Plan other = PlanOf("GM GM");
    other.parameters.UniStartZeitTag = "1";
    ASSERT_TRUE(SaveBauliste(m_folder / "saves" / "anderer.tvf", other));
    m_dialogs.file = "anderer.tvf";
    Page<QAbstractButton>("Cmd_MitDatei").click();
    EXPECT_EQ(Says("LBL_Vergleich"), "Verglichen mit anderer.tvf");
    EXPECT_EQ(columns("LV_Unterschiede"),
              "Metallmine 1|00:00:00|00:02:00|+00:02:00|Kristallmine 1|fehlt|00:00:05||"
              "Metallmine 2|00:01:49|00:06:41|+00:04:52|Solarkraftwerk 1|fehlt|00:03:59||");
    m_dialogs.file = "fehlt.tvf";
    Page<QAbstractButton>("Cmd_MitDatei").click();
    EXPECT_EQ(Says("LBL_Vergleich"), "Verglichen mit anderer.tvf");
    EXPECT_EQ(Says("LBL_Meldung"), "Die Bauliste konnte nicht geladen werden...");
    Page<QAbstractButton>("Cmd_OhneVergleich").click();
    EXPECT_EQ(columns("LV_Kennzahlen"), "");
}

TEST_F(WorkbenchWindow, ExportsTheTimetable) {
    Plan plan = PlanOf("GM GX:10:0:10");
    Load(plan);
    Page<QAbstractButton>("Cmd_Kopieren").click();
    const QMimeData& content = *QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(content.text().toStdString(),
              "Nr.\tAuftrag\tStart\tFertig\tGrund\n"
              "1\tMetallmine 1\t18.11.2006 12:30:00\t18.11.2006 12:31:48\t\n"
              "2\t100% 0% 100%\t18.11.2006 12:31:49\t18.11.2006 12:31:49\tBauschleife bis "
              "12:31:49\n");
    EXPECT_EQ(content.html().count(QStringLiteral("<tr>")), 3);
    // The reminder is as many seconds before as the alarm.
    Find<QComboBox>("Comb_Before").setCurrentText(QStringLiteral("25"));
    m_dialogs.file = "kalender.ics";
    Page<QAbstractButton>("Cmd_KalenderSpeichern").click();
    const std::string calendar = ReadFileToString(m_folder / "saves" / "kalender.ics");
    EXPECT_NE(calendar.find("\r\nTRIGGER:-PT25S\r\n"), std::string::npos) << calendar;
}

TEST(StatusTexts, NameTheChange) {
    EXPECT_EQ(SignedTimeSpanText(-7985), "-02:13:05");
    EXPECT_EQ(SignedTimeSpanText(86400 + 61), "+1 Tag 00:01:01");
    EXPECT_EQ(SignedTimeSpanText(-3 * 86400), "-3 Tage 00:00:00");
}

}  // namespace
}  // namespace tarvelin
