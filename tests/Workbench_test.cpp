// The workbench: one plan in two windows, edits, the timeline.
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
#include "persistence/PlanRun.h"
#include "simulation/RunTexts.h"
#include "ui/services/SvgImage.h"
#include "ui/widgets/ItemPicture.h"
#include "ui/workbench/StatusTexts.h"
#include "ui/workbench/Workbench.h"

namespace tarvelin {
namespace {

class Werkbank : public Fenster {
  protected:
    Werkbank() {
        Waehle("mnuWerkbank");
        for (QWidget* const fenster : QApplication::topLevelWidgets()) {
            m_werkbank =
                fenster->objectName() == QStringLiteral("frmWerkbank") ? fenster : m_werkbank;
        }
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_werkbank));
    }

    template <class T = QWidget>
    T& Dort(const char* name) {
        T* const gefunden = m_werkbank->findChild<T*>(QString::fromUtf8(name));
        if (gefunden == nullptr) {
            throw std::out_of_range(name);
        }
        return *gefunden;
    }
    std::string Sagt(const char* label) { return Dort<QLabel>(label).text().toStdString(); }
    std::string Spalte(int spalte) {
        const auto* const modell = Dort<QTreeView>("LV_Werkbank").model();
        std::string text;
        for (int i = 0; i < modell->rowCount(); ++i) {
            text += (i == 0 ? "" : "|") + modell->index(i, spalte).data().toString().toStdString();
        }
        return text;
    }
    void Greife(const std::vector<std::size_t>& zeilen) {
        Dort<OrderListView>("LV_Werkbank").Choose(zeilen);
    }
    void Taste(Qt::Key taste, Qt::KeyboardModifiers dazu = Qt::NoModifier) {
        QTest::keyClick(m_werkbank, taste, dazu);
    }
    void Fuege(const char* bild) { Dort<QAbstractButton>(bild).click(); }
    /// A drag without a source in this program.
    void LegeAb(const QString& format, const QByteArray& daten, int zeile) {
        auto& liste = Dort<QTreeView>("LV_Werkbank");
        QMimeData inhalt;
        inhalt.setData(format, daten);
        const QPoint ort =
            liste.visualRect(liste.model()->index(zeile, 0)).topLeft() + QPoint(5, 1);
        QDragEnterEvent kommt(ort, Qt::CopyAction | Qt::MoveAction, &inhalt, Qt::LeftButton, {});
        QDropEvent faellt(ort, Qt::CopyAction | Qt::MoveAction, &inhalt, Qt::LeftButton, {});
        QCoreApplication::sendEvent(liste.viewport(), &kommt);
        QCoreApplication::sendEvent(liste.viewport(), &faellt);
    }
    [[nodiscard]] std::string Tags() const {
        std::string text;
        for (const std::string& tag : m_fenster.CurrentPlan().LV_Bauliste.Tags()) {
            text += (text.empty() ? "" : " ") + tag;
        }
        return text;
    }
    /// Both windows show the plan, with the texts of dropping its rows anew.
    void ErwarteEinig() {
        BuildList anew;
        anew.SetTags(m_fenster.CurrentPlan().LV_Bauliste.Tags(), m_fenster.CurrentRun().conditions);
        ASSERT_EQ(Zeilen("LV_Bauliste"), static_cast<int>(anew.Rows().size()));
        ASSERT_EQ(Dort<QTreeView>("LV_Werkbank").model()->rowCount(), Zeilen("LV_Bauliste"));
        for (int i = 0; i < Zeilen("LV_Bauliste"); ++i) {
            const BuildListRow& zeile = anew.Rows()[static_cast<std::size_t>(i)];
            const auto& dort = *Dort<QTreeView>("LV_Werkbank").model();
            EXPECT_EQ(Zelle("LV_Bauliste", i, 1), zeile.SubItems1);
            EXPECT_EQ(dort.index(i, 1).data().toString().toStdString(), zeile.SubItems1);
            EXPECT_EQ(Zelle("LV_Bauliste", i, 2), zeile.SubItems2);
            EXPECT_EQ(dort.index(i, 5).data().toString().toStdString(), zeile.SubItems2);
        }
    }

    QWidget* m_werkbank = nullptr;
};

TEST_F(Werkbank, BearbeitetInDerMitte) {
    Lade("GS GM GD GR GR GW");
    const QPoint listenort = Dort("LV_Werkbank").mapTo(m_werkbank, QPoint());
    Greife({3, 4});
    Taste(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Tags(), "GS GM GD GR GR GW");
    QCoreApplication::processEvents();
    EXPECT_EQ(Dort("LV_Werkbank").mapTo(m_werkbank, QPoint()), listenort) << "nothing moves";
    EXPECT_EQ(Sagt("LBL_Meldung"),
              "Zeile 6 (Raumschiffwerft Stufe: 1): Noch keine Roboterfabrik (Stufe:2) in der "
              "Bauliste, bauen wäre unmöglich!");
    Greife({1});
    Taste(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Tags(), "GM GS GD GR GR GW");
    EXPECT_EQ(Dort<OrderListView>("LV_Werkbank").ChosenRows(), (std::vector<std::size_t>{0}));
    EXPECT_EQ(Sagt("LBL_Meldung"), "");
    Fuege("ImgSKW");
    Fuege("ImgKrisMine");
    EXPECT_EQ(Tags(), "GS GK GM GS GD GR GR GW") << "in front of the chosen row, in their turn";
    Fuege("ImgRobo");
    EXPECT_EQ(Sagt("LBL_Meldung"),
              "Noch keine Deuteriummine oder kein Solarkraftwerk in der Bauliste, bauen wäre "
              "unmöglich!");
    EXPECT_EQ(Dort("ImgRobo").toolTip().trimmed().toStdString(), Sagt("LBL_Meldung"));
    Greife({7});
    Taste(Qt::Key_D, Qt::ControlModifier);
    Greife({1, 2});
    Taste(Qt::Key_Delete);
    EXPECT_EQ(Tags(), "GS GS GD GR GR GW GW");
    Dort<QComboBox>("Comb_Kristallmine").setCurrentIndex(3);
    Dort<QAbstractButton>("Cmd_Produktion").click();
    EXPECT_EQ(Tags(), "GS GX:10:7:10 GS GD GR GR GW GW");
    LegeAb(kItemMimeType, "ImgMetMine", 2);
    EXPECT_EQ(Tags(), "GS GX:10:7:10 GS GD GR GR GW GW") << "of another program";
    for (int i = 0; i < 6; ++i) {
        Taste(Qt::Key_Z, Qt::ControlModifier);
    }
    EXPECT_EQ(Tags(), "GS GM GD GR GR GW");
    EXPECT_EQ(Spalte(0), "1|2|3|4|5|6");
    for (int i = 0; i < 9; ++i) {
        Taste(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    }
    EXPECT_EQ(Tags(), "GS GX:10:7:10 GS GD GR GR GW GW");
    ErwarteEinig();
    EXPECT_TRUE(m_boxen.Texte.empty());
}

TEST_F(Werkbank, SpieltNachJederBearbeitungInBeidenFenstern) {
    Lade("GM GM GS");
    EXPECT_EQ(Zeilen("LV_Bauzeiten"), 0) << "nobody has started a run there";
    EXPECT_EQ(Spalte(2), "Sa 18.11. 12:30:05|Sa 18.11. 12:32:04|Sa 18.11. 12:34:56");
    EXPECT_EQ(Spalte(4), "Klickpuffer: 5 s|Bauschleife bis 12:31:59|Bauschleife bis 12:34:51");
    Finde("Fra_Einstellungen").show();
    Greife({2});
    Taste(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Sagt("LBL_Dauer"), Text("LBL_Timegone"));
    EXPECT_EQ(Sagt("LBL_Aenderung"), "±00:00:00");
    ASSERT_EQ(Zeilen("LV_Bauzeiten"), 3);
    EXPECT_EQ(Zelle("LV_Bauzeiten", 1, 2), "Solarkraftwerk: 1");
    EXPECT_TRUE(Finde("Fra_Einstellungen").isVisible());
    Fuege("ImgMetMine");
    EXPECT_EQ(Sagt("LBL_Aenderung").front(), '+');
    // Parameters count at once.
    Tippe("txt_UniStartZeitStunden", "13");
    EXPECT_EQ(Spalte(2).substr(0, 18), "Sa 18.11. 13:30:05");
    Tippe("txt_UniStartZeitMonat", "13");
    EXPECT_EQ(Sagt("LBL_Meldung"), "Kein gültiges Datum eingegeben...");
    EXPECT_EQ(Spalte(2), "|||");
    Tippe("txt_UniStartZeitMonat", "11");
    // Debts stand in the strip.
    Greife({0, 1, 2, 3});
    Taste(Qt::Key_Delete);
    EXPECT_EQ(Zeilen("LV_Bauzeiten"), 0);
    EXPECT_EQ(Text("LBL_Timegone"), "Dauer: dd:hh:mm:ss");
    for (const char* const bild : {"ImgDeutMine", "ImgSKW", "ImgRobo"}) {
        Fuege(bild);
    }
    Greife({2});
    Taste(Qt::Key_Delete);
    EXPECT_EQ(Tags(), "GD GS");
    Plan schulden = PlanAus("GW");
    Lade(schulden);
    EXPECT_NE(Sagt("LBL_Meldung").find("Negative Ressourcen"), std::string::npos);
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Tags(), "GD GS") << "a load is a step";
    // The end of the clock.
    Plan spaet = PlanAus("GS GS");
    spaet.LV_Schlafzeiten = {{"18.11.2006 12:30", "18.11.3006 23:30"}};
    Lade(spaet);
    EXPECT_NE(Sagt("LBL_Meldung").find("was später als 24855 Tage 03:14:07 käme"),
              std::string::npos);
}

TEST_F(Werkbank, NimmtBearbeitungenBeiderFensterZurueck) {
    Lade("GS GD GF");
    Druecke("Cmd_Undo");
    Druecke("Cmd_AddProdaenderungsevent");
    Druecke("Cmd_Clear");
    const auto zurueck = [this] {
        Taste(Qt::Key_Z, Qt::ControlModifier);
        return Tags();
    };
    EXPECT_EQ(zurueck(), "GS GD GX:10:10:10");
    EXPECT_EQ(zurueck(), "GS GD");
    EXPECT_EQ(zurueck(), "GS GD GF");
    Druecke("Cmd_Undo");
    EXPECT_FALSE(Dort("Cmd_Vor").isEnabled()) << "an edit ends what was taken back";
    EXPECT_EQ(zurueck(), "GS GD GF");
    ErwarteEinig();
    // An edit is told whole, however many keys it takes, and only if it is one.
    const std::string dauer = Sagt("LBL_Dauer");
    Finde<QSlider>("HSC_KlickPuffer").setValue(60);
    Finde<QSlider>("HSC_KlickPuffer").setValue(65);
    const std::string aenderung = Sagt("LBL_Aenderung");
    EXPECT_EQ(aenderung, "+00:04:00");
    Finde<QSlider>("HSC_KlickPuffer").setValue(65);
    EXPECT_EQ(Sagt("LBL_Aenderung"), aenderung);
    EXPECT_EQ(zurueck(), "GS GD GF");
    EXPECT_EQ(Sagt("LBL_Dauer"), dauer);
    EXPECT_EQ(Sagt("LBL_Aenderung"), "-" + aenderung.substr(1));
    // Parameters and sleep rows go the same way, and so does a new plan, which is one step.
    Tippe("txt_TempMax", "40");
    Druecke("Cmd_AddSchlafzeit");
    m_jetzt = *ParseDateTime("05.03.2007 01:00:00");
    Waehle("mnu_DateiNeu");
    EXPECT_EQ(Tags(), "");
    EXPECT_EQ(zurueck(), "GS GD GF");
    EXPECT_EQ(Text("txt_UniStartZeitJahr"), "2006");
    EXPECT_EQ(Zeilen("LV_Schlafzeiten"), 1);
    EXPECT_EQ(zurueck(), "GS GD GF");
    EXPECT_EQ(Zeilen("LV_Schlafzeiten"), 0);
    EXPECT_EQ(Text("txt_TempMax"), "40");
    EXPECT_EQ(zurueck(), "GS GD GF");
    EXPECT_EQ(Text("txt_TempMax"), "11");
    EXPECT_EQ(Text("txt_TempMin"), "-29");
    ErwarteEinig();
}

// Whatever is done in whichever window; what is taken back is what was there.
TEST_F(Werkbank, BleibtMitDemAnderenFensterEinig) {
    std::minstd_rand zufall(7);
    const auto eins = [&](unsigned von) { return zufall() % von == 0; };
    const std::array bilder{"ImgMetMine", "ImgSKW",   "ImgDeutMine",
                            "ImgRobo",    "imgFolab", "ImgWerft"};
    for (int i = 0; i < 150; ++i) {
        const auto zeilen = m_fenster.CurrentPlan().LV_Bauliste.Rows().size();
        std::vector<std::size_t> gewaehlt;
        for (std::size_t z = 0; z < zeilen; ++z) {
            if (eins(6)) {
                gewaehlt.push_back(z);
            }
        }
        Greife(gewaehlt);
        const std::string vorher = Tags();
        const char* const bild = bilder.at(zufall() % bilder.size());
        switch (zufall() % 8) {
            case 0:
                Taste(Qt::Key_Up, Qt::AltModifier);
                break;
            case 1:
                Taste(Qt::Key_Down, Qt::AltModifier);
                break;
            case 2:
                Taste(eins(2) ? Qt::Key_Delete : Qt::Key_D, Qt::ControlModifier);
                break;
            case 3:
                Druecke(eins(9) ? "Cmd_Clear" : "Cmd_Undo");
                break;
            case 4:
                Finde<QSlider>("HSC_KlickPuffer").setValue(static_cast<int>(zufall() % 60));
                Tippe("txt_TempMax", eins(2) ? "20" : "90");
                break;
            case 5:
                emit Finde<BuildListView>("LV_Bauliste").DragDrop(ToQString(bild));
                break;
            default:
                Fuege(bild);
        }
        if (Tags() != vorher) {
            const std::string nachher = Tags();
            Taste(Qt::Key_Z, Qt::ControlModifier);
            EXPECT_EQ(Tags(), vorher);
            Taste(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
            EXPECT_EQ(Tags(), nachher);
            ErwarteEinig();
            EXPECT_EQ(Sagt("LBL_Dauer"), nachher.empty() ? "Dauer: -" : Text("LBL_Timegone"));
        }
    }
}

TEST_F(Werkbank, ZeigtDenPlanAlsBild) {
    m_jetzt = *ParseDateTime("18.11.2006 12:33:00");
    Plan plan = PlanAus("GM GM GS GX:10:0:10 GM");
    plan.parameters.KlickPuffer = 5;
    Lade(plan);
    auto& leiste = Dort<TimelineView>("Zeitleiste");
    EXPECT_EQ(Sagt("LBL_Naechster"), "Als Nächstes: Solarkraftwerk 1 um 12:34:56, in 00:01:56");
    const auto klicke = [&](Long sekunde, int y) {
        QTest::mouseClick(leiste.viewport(), Qt::LeftButton, {},
                          QPoint(leiste.ColumnOf(SimTime(sekunde)), y));
        return Dort<OrderListView>("LV_Werkbank").ChosenRows();
    };
    const int bauspur = 2 * leiste.fontMetrics().height();
    EXPECT_EQ(klicke(180, bauspur), (std::vector<std::size_t>{1}));
    EXPECT_EQ(klicke(350, bauspur), (std::vector<std::size_t>{2}));
    // Its colour tells the queue, the frame the choice.
    const QImage bild = leiste.viewport()->grab().toImage();
    const TimelineColors farben(m_werkbank->palette());
    EXPECT_EQ(bild.pixelColor(leiste.ColumnOf(SimTime(60)), bauspur), farben.bars[Queue::Building]);
    // The wheel keeps the moment below the pointer.
    const QPoint ort(leiste.ColumnOf(SimTime(300)), 20);
    for (int i = 0; i < 8; ++i) {
        QWheelEvent rad(ort, leiste.viewport()->mapToGlobal(ort), {}, {0, 120}, {}, {},
                        Qt::NoScrollPhase, false);
        const qreal darunter = leiste.mapToScene(ort).x();
        QCoreApplication::sendEvent(leiste.viewport(), &rad);
        EXPECT_NEAR(leiste.mapFromScene(QPointF(darunter, 0)).x(), ort.x(), 1);
    }
    EXPECT_GT(leiste.ColumnOf(SimTime(310)) - leiste.ColumnOf(SimTime(300)), 20);
    Bewege(*leiste.viewport(), ort);
    EXPECT_EQ(Sagt("LBL_Stand").substr(0, 18), "Sa 18.11. 12:35:00");
    EXPECT_NE(Sagt("LBL_Stand").find("Metallmine 2"), std::string::npos);
    Greife({4});
    const int start = leiste.ColumnOf(
        SimTime(*ParseDateTime("18.11.2006 12:38:53") - *ParseDateTime("18.11.2006 12:30:00")));
    EXPECT_TRUE(start >= 0 && start < leiste.viewport()->width()) << "brought to sight";
    QTest::mouseDClick(leiste.viewport(), Qt::LeftButton, {}, ort);
    EXPECT_EQ(leiste.ColumnOf(SimTime()), 0);
    // By keys: from start to start, and the row there.
    leiste.setFocus();
    for (const auto taste :
         {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Right}) {
        QTest::keyClick(&leiste, taste, Qt::ControlModifier);
    }
    QTest::keyClick(&leiste, Qt::Key_Return);
    EXPECT_EQ(Dort<OrderListView>("LV_Werkbank").ChosenRows(), (std::vector<std::size_t>{2}));
    EXPECT_EQ(leiste.accessibleDescription().left(18).toStdString(), "Sa 18.11. 12:34:56");
}

TEST_F(Werkbank, SpeichertDasBild) {
    Lade("GM GM GS");
    const auto speichere = [this](const char* name) {
        m_boxen.Datei = name;
        Dort<QAbstractButton>("Cmd_BildSpeichern").click();
        return LiesDatei(m_ordner / "saves" / name);
    };
    EXPECT_TRUE(speichere("bild.pdf").starts_with("%PDF"));
    const std::string svg = speichere("bild.SVG");
    if (HasSvg()) {
        QXmlStreamReader xml(QByteArray::fromStdString(svg));
        while (!xml.atEnd()) {
            xml.readNext();
        }
        EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
        EXPECT_NE(svg.find("Metallmine 2"), std::string::npos) << "words stay words";
    }
    const QImage png = QImage::fromData(QByteArray::fromStdString(speichere("bild.png")));
    auto& leiste = Dort<TimelineView>("Zeitleiste");
    EXPECT_EQ(png.size(), 2 * leiste.viewport()->size());
    const QPoint balken(leiste.ColumnOf(SimTime(60)), 2 * leiste.fontMetrics().height());
    EXPECT_EQ(png.pixelColor(2 * balken), leiste.viewport()->grab().toImage().pixelColor(balken));
    EXPECT_EQ(speichere("bild.txt"), "");
    EXPECT_NE(Sagt("LBL_Meldung").find("oder .pdf"), std::string::npos);
    EXPECT_EQ(speichere("fehlt/bild.png"), "");
    EXPECT_NE(Sagt("LBL_Meldung").find("konnte nicht gespeichert werden"), std::string::npos);
}

TEST_F(Werkbank, SchliesstVerstecktUndKommtWieder) {
    Lade("GM GM");
    m_werkbank->resize(900, 700);
    m_werkbank->close();
    EXPECT_TRUE(m_werkbank->isHidden());
    EXPECT_TRUE(m_fenster.isVisible());
    Lade("GM GM GS");
    Waehle("mnuWerkbank");
    EXPECT_EQ(Spalte(0), "1|2|3");
    m_fenster.close();
    EXPECT_TRUE(m_werkbank->isHidden());
    const std::string config = LiesDatei(m_ordner / "config.cfg");
    EXPECT_NE(config.find("[Werkbank]\r\n"), std::string::npos) << config;
    EXPECT_NE(config.find("Breite=900\r\nHoehe=700\r\n"), std::string::npos) << config;
}

TEST_F(Werkbank, FolgtDenFarbenDesDesktops) {
    QPalette dunkel(Qt::white, Qt::black, Qt::gray, Qt::black, Qt::darkGray, Qt::white, Qt::white,
                    QColor(20, 20, 20), QColor(40, 40, 40));
    m_umgebung.desktopPalette = [&] { return dunkel; };
    Lade("GM");
    QEvent wechsel(QEvent::ThemeChange);
    QCoreApplication::sendEvent(m_werkbank, &wechsel);
    const QImage bild = Dort<TimelineView>("Zeitleiste").viewport()->grab().toImage();
    EXPECT_EQ(bild.pixelColor(bild.width() - 2, bild.height() - 2), QColor(20, 20, 20));
    EXPECT_EQ(Dort("LV_Werkbank").palette().color(QPalette::Text), QColor(Qt::white));
    EXPECT_NE(Finde("LV_Bauliste").palette().color(QPalette::Text), QColor(Qt::white));
}

TEST_F(Werkbank, SuchtUndUebernimmtAlsEinenSchritt) {
    const PlanRun starter(std::filesystem::path(TARVELIN_SOURCE_DIR) / "data/saves/basic.tvf");
    Lade(starter.plan);
    m_jetzt = *ParseDateTime("03.12.2026 12:00:30");
    const auto bytes = [this] {
        // A save keeps what else a file holds.
        std::filesystem::remove(m_ordner / "jetzt.tvf");
        EXPECT_TRUE(SaveBauliste(m_ordner / "jetzt.tvf", m_fenster.CurrentPlan()));
        return LiesDatei(m_ordner / "jetzt.tvf");
    };
    const auto suche = [this](int versuche) {
        Dort<QSpinBox>("Spin_Versuche").setValue(versuche);
        Dort<QAbstractButton>("Cmd_Suchen").click();
    };
    const auto warte = [this] {
        constexpr int kLange = 300'000;
        ASSERT_TRUE(QTest::qWaitFor([this] { return Dort("Cmd_Suchen").isEnabled(); }, kLange));
    };
    const std::string vorher = bytes();
    // Pinned rows stay, and what has begun: the pause that this takes goes with the undo as well.
    Greife({40});
    Dort<QAbstractButton>("Chk_Fest").click();
    Dort<QAbstractButton>("Chk_AbJetzt").click();
    suche(20'000);
    EXPECT_FALSE(Dort("Cmd_Uebernehmen").isEnabled());
    warte();
    const std::string bericht = Sagt("LBL_Suche");
    EXPECT_NE(bericht.find("Vorher: 4 Tage 04:40:16"), std::string::npos) << bericht;
    Dort<QAbstractButton>("Cmd_Uebernehmen").click();
    const std::string nachher = bytes();
    EXPECT_NE(nachher, vorher);
    EXPECT_EQ(m_fenster.CurrentPlan().LV_Bauliste.Tags()[40], starter.plan.LV_Bauliste.Tags()[40]);
    EXPECT_EQ(m_fenster.CurrentPlan().LV_Schlafzeiten.front().Startzeit, "03.12.2026 10:30");
    EXPECT_EQ(Sagt("LBL_Dauer"), Text("LBL_Timegone"));
    const auto dauer = TimeSpanText(m_fenster.CurrentRun().state.secsgone.Seconds());
    EXPECT_NE(bericht.find("Nachher: " + dauer + ","), std::string::npos) << bericht << dauer;
    EXPECT_TRUE(m_boxen.Texte.empty());
    const std::string aenderung = Sagt("LBL_Aenderung");
    Taste(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(bytes(), vorher);
    EXPECT_EQ(Sagt("LBL_Aenderung"), "+" + aenderung.substr(1)) << "told once, of the whole plan";
    EXPECT_EQ(Zeilen("LV_Schlafzeiten"), static_cast<int>(starter.plan.LV_Schlafzeiten.size()));
    Taste(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bytes(), nachher);
    // A plan that was edited meanwhile isn't overwritten unasked.
    Dort<QAbstractButton>("Chk_AbJetzt").click();
    suche(1'000'000'000);
    Fuege("ImgMetMine");
    const std::string bearbeitet = bytes();
    Dort<QAbstractButton>("Cmd_Anhalten").click();
    warte();
    EXPECT_LT(Dort<QProgressBar>("Suchbalken").value(), 50);
    Dort<QAbstractButton>("Cmd_Uebernehmen").click();
    ASSERT_EQ(m_boxen.Texte.size(), 1U);
    EXPECT_EQ(bytes(), bearbeitet);
    // It ends with the window, and what it finds then is kept.
    suche(1'000'000'000);
    m_werkbank->close();
    warte();
    EXPECT_TRUE(Dort("Cmd_Uebernehmen").isEnabled());
    suche(1'000'000'000);
}

TEST_F(Werkbank, SagtWarumSieNichtSuchenKann) {
    Lade("GS GM");
    Dort<QComboBox>("Comb_Suchaufgabe").setCurrentIndex(1);
    Dort<QLineEdit>("txt_Suchziel").setText(QStringLiteral("XX1"));
    Dort<QAbstractButton>("Cmd_Suchen").click();
    EXPECT_NE(Sagt("LBL_Meldung").find("\"XX1\" nennt kein Item"), std::string::npos);
    EXPECT_TRUE(Dort("Cmd_Suchen").isEnabled());
}

TEST_F(Werkbank, VergleichtMitGemerktemUndMitDateien) {
    const auto spalten = [this](const char* tabelle) {
        const auto* const modell = Dort<QTreeView>(tabelle).model();
        std::string text;
        for (int i = 0; i < modell->rowCount(); ++i) {
            for (int spalte = 0; spalte < modell->columnCount(); ++spalte) {
                text += modell->index(i, spalte).data().toString().toStdString() + "|";
            }
        }
        return text;
    };
    Lade("GS GM GM");
    Dort<QAbstractButton>("Cmd_Merken").click();
    EXPECT_EQ(spalten("LV_Unterschiede"), "");
    EXPECT_TRUE(spalten("LV_Kennzahlen").starts_with("Dauer|00:07:27|00:07:27|±00:00:00|Punkte|"));
    Greife({1});
    Taste(Qt::Key_Up, Qt::AltModifier);
    Fuege("ImgKrisMine");
    EXPECT_EQ(spalten("LV_Unterschiede"),
              "Kristallmine 1|fehlt|00:00:05||Solarkraftwerk 1|00:00:05|00:03:59|+00:03:54|"
              "Metallmine 1|00:02:47|00:02:00|-00:00:47|Metallmine 2|00:04:46|00:06:41|+00:01:55|");
    // In another file, from another start: both are counted from their own.
    Plan anderer = PlanAus("GM GM");
    anderer.parameters.UniStartZeitTag = "1";
    ASSERT_TRUE(SaveBauliste(m_ordner / "saves" / "anderer.tvf", anderer));
    m_boxen.Datei = "anderer.tvf";
    Dort<QAbstractButton>("Cmd_MitDatei").click();
    EXPECT_EQ(Sagt("LBL_Vergleich"), "Verglichen mit anderer.tvf");
    EXPECT_EQ(spalten("LV_Unterschiede"),
              "Metallmine 1|00:00:00|00:02:00|+00:02:00|Kristallmine 1|fehlt|00:00:05||"
              "Metallmine 2|00:01:49|00:06:41|+00:04:52|Solarkraftwerk 1|fehlt|00:03:59||");
    m_boxen.Datei = "fehlt.tvf";
    Dort<QAbstractButton>("Cmd_MitDatei").click();
    EXPECT_EQ(Sagt("LBL_Vergleich"), "Verglichen mit anderer.tvf");
    EXPECT_EQ(Sagt("LBL_Meldung"), "Die Bauliste konnte nicht geladen werden...");
    Dort<QAbstractButton>("Cmd_OhneVergleich").click();
    EXPECT_EQ(spalten("LV_Kennzahlen"), "");
}

TEST_F(Werkbank, GibtDenZeitplanMit) {
    Plan plan = PlanAus("GM GX:10:0:10");
    Lade(plan);
    Dort<QAbstractButton>("Cmd_Kopieren").click();
    const QMimeData& inhalt = *QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(inhalt.text().toStdString(),
              "Nr.\tAuftrag\tStart\tFertig\tGrund\n"
              "1\tMetallmine 1\t18.11.2006 12:30:00\t18.11.2006 12:31:48\t\n"
              "2\t100% 0% 100%\t18.11.2006 12:31:49\t18.11.2006 12:31:49\tBauschleife bis "
              "12:31:49\n");
    EXPECT_EQ(inhalt.html().count(QStringLiteral("<tr>")), 3);
    // The reminder is the alarm's.
    Finde<QComboBox>("Comb_Before").setCurrentText(QStringLiteral("25"));
    m_boxen.Datei = "kalender.ics";
    Dort<QAbstractButton>("Cmd_KalenderSpeichern").click();
    const std::string kalender = LiesDatei(m_ordner / "saves" / "kalender.ics");
    EXPECT_NE(kalender.find("\r\nTRIGGER:-PT25S\r\n"), std::string::npos) << kalender;
}

TEST(Standtexte, NennenDieAenderung) {
    EXPECT_EQ(SignedTimeSpanText(-7985), "-02:13:05");
    EXPECT_EQ(SignedTimeSpanText(86400 + 61), "+1 Tag 00:01:01");
    EXPECT_EQ(SignedTimeSpanText(-3 * 86400), "-3 Tage 00:00:00");
}

}  // namespace
}  // namespace tarvelin
