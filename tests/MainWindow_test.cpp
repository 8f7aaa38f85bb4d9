// The window's controls: places, words, handlers, keys.
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

constexpr const char* kFelder[] = {"Fra_Einstellungen", "Fra_Special", "Fra_Skin", "Fra_Sleep"};

TEST_F(Fenster, GruppenStehenNebeneinanderUndFelderDarueber) {
    int rechts = -1;
    for (const char* const gruppe : {"Frame8", "Frame3", "Frame1", "Frame9", "Frame4", "Frame6"}) {
        const QRect platz = Finde(gruppe).geometry();
        EXPECT_GT(platz.left(), rechts) << gruppe;
        EXPECT_TRUE(Finde("Fra_Rest").rect().contains(platz)) << gruppe;
        rechts = platz.right();
    }
    // 160 and 2 fifteenths of a pixel.
    for (const char* const feld : {"Fra_Special", "Fra_Skin", "Fra_Sleep"}) {
        EXPECT_EQ(Finde(feld).pos(), QPoint(11, 0)) << feld;
    }
    EXPECT_EQ(m_fenster.minimumSize(), m_fenster.maximumSize());
    EXPECT_EQ(m_fenster.size(), QSize(858, 335));
    EXPECT_EQ(Finde("Fra_Rest").visibleRegion().boundingRect(), Finde("Fra_Rest").rect());
}

TEST_F(Fenster, KleinerBildschirmRolltDieFlaeche) {
    struct Fall {
        QSize Bildschirm;
        QSize Fenstergroesse;
    };
    for (const auto& [bildschirm, groesse] :
         {Fall{{858, 335}, {858, 335}}, Fall{{640, 400}, {632, 335}}, Fall{{640, 300}, {632, 264}},
          Fall{{2000, 320}, {858, 284}}}) {
        EXPECT_EQ(frmMain::SizeOn(bildschirm), groesse) << bildschirm.width();
    }
    m_fenster.setFixedSize(frmMain::SizeOn({640, 300}));
    QCoreApplication::processEvents();
    auto& alarm = Finde("Chk_BauWeckfunktion");
    EXPECT_TRUE(alarm.visibleRegion().isEmpty());
    Finde("LV_Bauzeiten").setFocus();
    QTest::keyClick(&Finde("LV_Bauzeiten"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &alarm);
    EXPECT_EQ(alarm.visibleRegion().boundingRect(), alarm.rect())
        << "what has the focus is in sight";
}

// Every widget that shows words has room for them, panels and groups in each state.
TEST_F(Fenster, KeinWortIstAbgeschnitten) {
    Lade("GD GS GR GR GW");
    m_fenster.RunSimulation(true);
    for (const char* const feld : kFelder) {
        Finde(feld).show();
    }
    QCoreApplication::processEvents();
    for (const auto* const widget : m_fenster.findChildren<QWidget*>()) {
        const QString text = widget->property("text").toString();
        if (!widget->isVisible() || widget->parent()->inherits("QCalendarWidget")) {
            continue;
        }
        const QFontMetrics schrift = widget->fontMetrics();
        const int neben =
            widget->inherits("QCheckBox") || widget->inherits("QRadioButton") ? 20 : 0;
        // Platforms hint a letter or two another way; what is beside the text has that much room.
        const int schwund = kWindows ? 1 : 0;
        EXPECT_LE(schrift.horizontalAdvance(text) + neben - schwund, widget->width())
            << text.toStdString();
        EXPECT_LE(text.isEmpty() ? 0 : schrift.ascent() + 2, widget->height())
            << text.toStdString();
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()) ||
                    widget->window() == widget || !widget->parent()->inherits("QGroupBox"))
            << widget->objectName().toStdString() << " " << text.toStdString();
        if (widget->inherits("QGroupBox")) {
            const QString titel = widget->property("title").toString();
            EXPECT_LE(schrift.horizontalAdvance(titel) + 3, widget->width()) << titel.toStdString();
        }
    }
}

// A platform's font engine can lose letters.
TEST_F(Fenster, KeinBuchstabeFehlt) {
    for (const int pixel :
         {QApplication::font().pixelSize(), 2 * QApplication::font().pixelSize()}) {
        QFont schrift = QApplication::font();
        schrift.setPixelSize(pixel);
        const QRawFont zeichen = QRawFont::fromFont(schrift);
        for (const QChar buchstabe : QStringLiteral(
                 "!\"#$%&'()*+,-./"
                 "0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrstuvwxyz"
                 "{|}~ÄÖÜäöüß€°²³–…")) {
            QImage bild(3 * pixel, 3 * pixel, QImage::Format_RGB32);
            bild.fill(Qt::white);
            const QImage leer = bild;
            QPainter painter(&bild);
            painter.setFont(schrift);
            painter.drawText(bild.rect(), Qt::AlignCenter, buchstabe);
            painter.end();
            EXPECT_NE(bild, leer) << pixel << QString(buchstabe).toStdString();
            EXPECT_TRUE(zeichen.supportsCharacter(buchstabe)) << QString(buchstabe).toStdString();
        }
    }
}

TEST_F(Fenster, ListenFassenIhreLaengstenTexte) {
    Plan plan = PlanAus("GX:10:10:10");
    for (const ItemRow& item : ItemTable()) {
        for (int i = 0; i < 12; ++i) {
            ASSERT_FALSE(plan.LV_Bauliste.AddItem(item.item, m_fenster.CurrentRun().conditions));
        }
    }
    plan.LV_Schlafzeiten.assign(30,
                                {.Startzeit = "28.12.2006 22:30", .Endzeit = "28.12.2006 23:30"});
    Lade(plan);
    m_fenster.RunSimulation(true);
    Finde("Fra_Sleep").show();
    QCoreApplication::processEvents();
    for (const char* const name : {"LV_Bauliste", "LV_Bauzeiten", "LV_Schlafzeiten"}) {
        const auto& liste = Finde<QTreeView>(name);
        int summe = 0;
        for (int spalte = 0; spalte < liste.model()->columnCount(); ++spalte) {
            summe += liste.columnWidth(spalte);
            for (int zeile = 0; zeile < liste.model()->rowCount(); ++zeile) {
                const QString text = liste.model()->index(zeile, spalte).data().toString();
                // The style keeps at least one pixel on either side.
                const int rand =
                    liste.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &liste) + 1;
                // A number and the name behind it stay apart.
                const int abstand = spalte == 0 && liste.isHeaderHidden() ? 3 : 0;
                EXPECT_LE(liste.fontMetrics().horizontalAdvance(text) + 2 * rand + abstand,
                          liste.columnWidth(spalte))
                    << name << ": " << text.toStdString();
            }
        }
        EXPECT_EQ(summe, liste.viewport()->width()) << name;
    }
    // A head has one line; what it cuts stands in its hint.
    auto& kopf = *Finde<QTreeView>("LV_Bauzeiten").header();
    EXPECT_LT(kopf.height(), 2 * kopf.fontMetrics().height());
    for (const auto& [spalte, hinweis] : {std::pair(0, "Wochentag"), std::pair(1, "")}) {
        const QPoint ort(kopf.sectionViewportPosition(spalte) + 2, 2);
        QHelpEvent hilfe(QEvent::ToolTip, ort, kopf.mapToGlobal(ort));
        QCoreApplication::sendEvent(kopf.viewport(), &hilfe);
        EXPECT_TRUE(QTest::qWaitFor([&, text = QString::fromLatin1(hinweis)] {
            return QToolTip::text() == text;
        })) << spalte;
    }
}

TEST_F(Fenster, FelderSchliessenSichAus) {
    struct Schritt {
        const char* Eintrag;
        /// Which of the four panels stand open afterwards.
        std::vector<bool> Offen;
        /// What the pointer meets where all of them overlap.
        const char* Vorn;
    };
    const std::vector<Schritt> schritte{
        {"mnuSkin", {true, false, true, false}, "Fra_Skin"},
        {"mnuSleep", {true, false, false, true}, "Fra_Sleep"},
        {"mnu_SpecialEvents", {true, true, false, false}, "Fra_Special"},
        {"mnuEinstellungen", {false, true, false, false}, "Fra_Special"},
        {"mnuEinstellungen", {true, true, false, false}, "Fra_Einstellungen"},
        {"mnuSkin", {true, false, true, false}, "Fra_Skin"},
        {"mnuSkin", {true, false, false, false}, "Fra_Einstellungen"},
    };
    for (const auto& [eintrag, offen, vorn] : schritte) {
        Waehle(eintrag);
        for (std::size_t i = 0; i < offen.size(); ++i) {
            EXPECT_EQ(Finde(kFelder[i]).isVisible(), offen[i]) << eintrag << " " << kFelder[i];
        }
        EXPECT_EQ(m_fenster.centralWidget()->childAt(12, 15)->objectName().toStdString(), vorn);
    }
    const std::vector<std::pair<const char*, const char*>> knoepfe{
        {"Cmd_HideEinstellungen", "Fra_Einstellungen"},
        {"Cmd_HideFraSpecial", "Fra_Special"},
        {"Cmd_HideSchlafzeiten", "Fra_Skin"},
        {"Cmd_HideSleep", "Fra_Sleep"}};
    for (const auto& [knopf, feld] : knoepfe) {
        Finde(feld).show();
        Druecke(knopf);
        EXPECT_FALSE(Finde(feld).isVisible()) << knopf;
    }
}

TEST_F(Fenster, SkinlisteWirdBeiJedemOeffnenGelesen) {
    Ordner ordner;
    for (const char* const name : {"standard", "temp_webskin", "blau"}) {
        std::filesystem::create_directories(ordner / "img" / "skins" / name);
    }
    Environment umgebung = m_umgebung;
    umgebung.programFolder = ordner / ".";
    // Without any picture the window opens all the same.
    frmMain fenster(umgebung);
    auto* const skins = fenster.findChild<QComboBox*>(QStringLiteral("Comb_Skins"));
    fenster.findChild<QAction*>(QStringLiteral("mnuSkin"))->trigger();
    EXPECT_EQ(skins->count(), 1);
    std::filesystem::create_directory(ordner / "img" / "skins" / "rot");
    skins->setCurrentIndex(0);
    fenster.findChild<QAction*>(QStringLiteral("mnu_SpecialEvents"))->trigger();
    EXPECT_EQ(skins->count(), 2);
    EXPECT_EQ(skins->currentText(), QStringLiteral("blau"));
    EXPECT_EQ(fenster.findChild<QLabel*>(QStringLiteral("ImgSKW"))->cursor().shape(),
              Qt::OpenHandCursor);
}

TEST_F(Fenster, GateFolgtDerListeBeiJederBewegung) {
    auto& bild = Finde("ImgRobo");
    const auto offen = bild.cursor().shape();
    Zeige("ImgRobo");
    EXPECT_EQ(bild.cursor().shape(), Qt::ForbiddenCursor);
    EXPECT_EQ(bild.toolTip(), QStringLiteral(" Noch keine Deuteriummine oder kein Solarkraftwerk "
                                             "in der Bauliste, bauen wäre unmöglich! "));
    QTest::keyClick(&bild, Qt::Key_Space);
    EXPECT_EQ(Zeilen("LV_Bauliste"), 0);
    Lade("GD GS");
    EXPECT_EQ(bild.cursor().shape(), Qt::ForbiddenCursor) << "before the pointer moves";
    Zeige("ImgRobo");
    EXPECT_EQ(bild.cursor().shape(), offen);
    EXPECT_TRUE(bild.toolTip().startsWith(QStringLiteral(" Roboterfabrik  |  Kosten:  Met: 400")));
    QTest::keyClick(&bild, Qt::Key_Space);
    EXPECT_EQ(Zelle("LV_Bauliste", 2, 1), "Robofabrik Stufe: 1");
    EXPECT_EQ(Text("LBL_Robo_Stufe"), "1");
    EXPECT_TRUE(bild.toolTip().contains(QStringLiteral("Met: 800"))) << "the next row's costs";
    QKeyEvent gehalten(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(&bild, &gehalten);
    EXPECT_EQ(Zeilen("LV_Bauliste"), 3) << "a held key adds one row";
    Lade("GM");
    QTest::keyClick(&bild, Qt::Key_Space);
    EXPECT_EQ(Zeilen("LV_Bauliste"), 1) << "the list changed under the focus";
}

TEST_F(Fenster, FremdesWirdNirgendsAbgelegt) {
    QMimeData daten;
    daten.setText(QStringLiteral("ImgMetMine"));
    daten.setUrls({QUrl::fromLocalFile(QStringLiteral("plan.tvf"))});
    daten.setData(QStringLiteral("application/x-tarvelin-item"), "ImgMetMine");
    const std::string stunden = Text("txt_UniStartZeitStunden");
    for (auto* const ziel : m_fenster.findChildren<QWidget*>()) {
        if (!ziel->isVisible() || !ziel->acceptDrops()) {
            continue;
        }
        QDragEnterEvent hinein(QPoint(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, {});
        QCoreApplication::sendEvent(ziel, &hinein);
        EXPECT_FALSE(hinein.isAccepted()) << ziel->objectName().toStdString();
        QDropEvent fallen(QPointF(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, {});
        QCoreApplication::sendEvent(ziel, &fallen);
    }
    EXPECT_EQ(Zeilen("LV_Bauliste"), 0);
    EXPECT_TRUE(m_boxen.Texte.empty());
    EXPECT_EQ(Text("txt_UniStartZeitStunden"), stunden);
}

TEST_F(Fenster, UnbekannteQuelleUnd255teZeileGebenEineMeldung) {
    auto& liste = Finde<BuildListView>("LV_Bauliste");
    emit liste.DragDrop(QStringLiteral("ImgUnbekannt"));
    for (int i = 0; i < 255; ++i) {
        emit liste.DragDrop(QStringLiteral("ImgSKW"));
    }
    EXPECT_TRUE(m_boxen.Texte.empty()) << "no box inside a drag";
    QCoreApplication::processEvents();
    ASSERT_EQ(m_boxen.Texte.size(), 2U);
    EXPECT_EQ(m_boxen.Texte[0], "KA");
    EXPECT_NE(m_boxen.Texte[1].find("254"), std::string::npos);
    Druecke("Cmd_AddProdaenderungsevent");
    EXPECT_EQ(m_boxen.Texte.size(), 3U);
    EXPECT_EQ(Zeilen("LV_Bauliste"), 254);
}

TEST_F(Fenster, NeueZeilenKommenInsBildUndUndoRolltNicht) {
    auto& liste = Finde<QTreeView>("LV_Bauliste");
    const QAbstractItemModelTester pruefer(liste.model(),
                                           QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (int i = 0; i < 60; ++i) {
        emit Finde<BuildListView>("LV_Bauliste").DragDrop(QStringLiteral("ImgMetMine"));
    }
    const auto letzte = [&] { return liste.visualRect(liste.model()->index(59, 0)); };
    EXPECT_TRUE(liste.viewport()->rect().contains(letzte()));
    liste.scrollToTop();
    Druecke("Cmd_Undo");
    EXPECT_EQ(Zeilen("LV_Bauliste"), 59);
    EXPECT_TRUE(liste.viewport()->rect().contains(liste.visualRect(liste.model()->index(0, 0))));
    EXPECT_EQ(Text("LBL_MetMine_Stufe"), "59");
    liste.setCurrentIndex(liste.model()->index(58, 0));
    liste.scrollToTop();
    Druecke("Cmd_Undo");
    EXPECT_EQ(liste.indexAt(QPoint(1, 1)).row(), 0) << "the row that becomes the current one";
    const auto rot = liste.model()->index(0, 2).data(Qt::ForegroundRole).value<QColor>();
    EXPECT_EQ(rot, QColor(255, 0, 0));
    Druecke("Cmd_Clear");
    EXPECT_EQ(Zeilen("LV_Bauliste"), 0);
}

TEST_F(Fenster, ProduktionszeileNimmtDieReglerUndLaesstSieStehen) {
    auto& kristall = Finde<QSlider>("HSC_Krisfaktor");
    kristall.setValue(3);
    QTest::keyClick(&Finde("HSC_Deutfaktor"), Qt::Key_Left);
    EXPECT_EQ(Text("LBL_Krisfaktor"), "Kristallmine: 30%");
    EXPECT_EQ(Text("LBL_Deutfaktor"), "Deutmine: 90%");
    QTest::keyClick(&Finde("HSC_MetFaktor"), Qt::Key_Home);
    EXPECT_EQ(Text("LBL_MetFaktor"), "Metallmine: 0%");
    QTest::keyClick(&Finde("HSC_MetFaktor"), Qt::Key_End);
    EXPECT_EQ(Zeilen("LV_Bauliste"), 0);
    Druecke("Cmd_AddProdaenderungsevent");
    EXPECT_EQ(Zelle("LV_Bauliste", 0, 1), "M:100% K:30% D:90%");
    Druecke("Cmd_Undo");
    Druecke("Cmd_Undo");
    EXPECT_EQ(Zeilen("LV_Bauliste"), 0);
    EXPECT_EQ(kristall.value(), 3);
}

TEST_F(Fenster, EingabenLassenSichInDerMitteAendern) {
    auto& jahr = Finde<QLineEdit>("txt_UniStartZeitJahr");
    QTest::keyClick(&jahr, Qt::Key_Home);
    QTest::keyClick(&jahr, Qt::Key_Delete);
    QTest::keyClicks(&jahr, QStringLiteral("1"));
    EXPECT_EQ(Text("txt_UniStartZeitJahr"), "1006");
    QTest::keyClick(&jahr, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&jahr, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text("txt_UniStartZeitJahr"), "2006");
    // As a screen reader sets it.
    jahr.setText(QStringLiteral("2007"));
    EXPECT_EQ(m_fenster.CurrentPlan().parameters.UniStartZeitJahr, "2007");
    EXPECT_EQ(Text("LBL_Weekday"), "So.");
}

TEST_F(Fenster, EingabenBegrenzenNurTippenUndEinfuegen) {
    Tippe("txt_UniStartZeitTag", "123");
    EXPECT_EQ(Text("txt_UniStartZeitTag"), "12");
    QGuiApplication::clipboard()->setText(QStringLiteral("20061"));
    auto& jahr = Finde<QLineEdit>("txt_UniStartZeitJahr");
    jahr.selectAll();
    jahr.paste();
    EXPECT_EQ(Text("txt_UniStartZeitJahr"), "2006");
    // A plan's text stands as it is, can be shortened, and then counts as typed.
    Plan plan = PlanAus("GM");
    plan.parameters.UniStartZeitTag = "00018";
    Lade(plan);
    EXPECT_EQ(Text("txt_UniStartZeitTag"), "00018");
    auto& tag = Finde<QLineEdit>("txt_UniStartZeitTag");
    QTest::keyClick(&tag, Qt::Key_End);
    QTest::keyClicks(&tag, QStringLiteral("7"));
    EXPECT_EQ(Text("txt_UniStartZeitTag"), "00018");
    QTest::keyClick(&tag, Qt::Key_Backspace);
    QTest::keyClicks(&tag, QStringLiteral("99"));
    EXPECT_EQ(Text("txt_UniStartZeitTag"), "0001");
}

TEST_F(Fenster, EingefuegtesKommtNichtInDieSekunden) {
    auto& sekunden = *Finde<QComboBox>("Comb_Before").lineEdit();
    for (const char* const text : {"abc", "7x", "7"}) {
        QGuiApplication::clipboard()->setText(QString::fromLatin1(text));
        sekunden.selectAll();
        QTest::keyClick(&sekunden, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(&sekunden, Qt::Key_Insert, Qt::ShiftModifier);
        QTest::mouseClick(&sekunden, Qt::MiddleButton);
        EXPECT_EQ(sekunden.text(), QStringLiteral("10")) << text;
    }
}

TEST_F(Fenster, TemperaturenSindVerbunden) {
    Tippe("txt_TempMax", "+25");
    EXPECT_EQ(Text("txt_TempMax"), "25");
    EXPECT_EQ(Text("txt_TempMin"), "-15");
    Tippe("txt_TempMin", "011");
    EXPECT_EQ(Text("txt_TempMin"), "11");
    EXPECT_EQ(Text("txt_TempMax"), "51");
    Tippe("txt_TempMax", "abc");
    EXPECT_EQ(Text("txt_TempMin"), "11");
    Lade("GM");
    Tippe("txt_TempMax", "");
    m_fenster.RunSimulation(false);
    EXPECT_EQ(m_boxen.Texte.back(), "Keine gültige Temperatur eingegeben...");
}

TEST_F(Fenster, WochentagFolgtDemDatumUndNichtDerUhrzeit) {
    Lade("GM");
    EXPECT_EQ(Text("LBL_Weekday"), "Sa.");
    Tippe("txt_UniStartZeitTag", "3");
    EXPECT_EQ(Text("LBL_Weekday"), "Fr.");
    EXPECT_EQ(Finde("LBL_Weekday").toolTip(), QStringLiteral("Freitag"));
    Tippe("txt_UniStartZeitStunden", "25");
    EXPECT_EQ(Text("LBL_Weekday"), "Fr.");
    m_fenster.RunSimulation(false);
    EXPECT_EQ(m_boxen.Texte.back(), "Kein gültiges Datum eingegeben...");
    EXPECT_EQ(Text("txt_UniStartZeitTag"), "03") << "padded although refused";
    EXPECT_EQ(Text("LBL_Weekday"), "Err.") << "as the day's text changed";
    Tippe("txt_UniStartZeitStunden", "12");
    EXPECT_EQ(Text("LBL_Weekday"), "Err.");
    m_fenster.RunSimulation(false);
    EXPECT_EQ(Text("LBL_Weekday"), "Fr.");
    EXPECT_EQ(m_boxen.Texte.size(), 1U);
    Tippe("txt_UniStartZeitStunden", "");
    m_fenster.RunSimulation(false);
    EXPECT_EQ(Text("LBL_Weekday"), "Fr.") << "nothing that it follows has changed";
    // A load sets day, month and year before the hour, and refreshes at each.
    Tippe("txt_UniStartZeitStunden", "12");
    Plan plan = PlanAus("GM");
    plan.parameters.UniStartZeitTag = "16";
    plan.parameters.UniStartZeitStunden = "25";
    Lade(plan);
    EXPECT_EQ(Text("LBL_Weekday"), "Do.");
}

// The day is padded before the message about the date comes up.
TEST_F(Fenster, DatumsmeldungZeigtDenAufgefuelltenTag) {
    Lade("GM");
    Tippe("txt_UniStartZeitMinuten", "x");
    Tippe("txt_UniStartZeitTag", "5");
    m_boxen.BeiMeldung = [this] { EXPECT_EQ(Text("txt_UniStartZeitTag"), "05"); };
    m_fenster.RunSimulation(false);
    EXPECT_EQ(m_boxen.Texte.size(), 1U);
}

TEST_F(Fenster, KlickpufferSpeedfaktorUndBeschreibungen) {
    auto& puffer = Finde<QSlider>("HSC_KlickPuffer");
    QTest::keyClick(&puffer, Qt::Key_PageUp);
    EXPECT_EQ(Text("LBL_KlickPuffer"), "00:15");
    QTest::keyClick(&puffer, Qt::Key_Home);
    EXPECT_EQ(Text("LBL_KlickPuffer"), "00:00");
    QTest::keyClick(&puffer, Qt::Key_End);
    EXPECT_EQ(Text("LBL_KlickPuffer"), "10:00");
    EXPECT_EQ(m_fenster.CurrentPlan().parameters.KlickPuffer, 600);
    Druecke("Chk_Speedfaktor");
    EXPECT_EQ(m_fenster.CurrentRun().conditions.Speedfaktor, 2);
    Druecke("cmd_ShowDesc");
    EXPECT_EQ(Text("cmd_ShowDesc"), "ein/AUS");
    EXPECT_FALSE(Finde("LBLDesc(0)").isVisible() || Finde("LBLDesc(19)").isVisible());
    EXPECT_TRUE(Finde("LBL_SKW_Stufe").isVisible());
    Druecke("cmd_ShowDesc");
    EXPECT_TRUE(Finde("LBLDesc(0)").isVisible() && Finde("LBLDesc(19)").isVisible());
}

TEST_F(Fenster, Schlafzeiten) {
    Waehle("mnuSleep");
    EXPECT_EQ(Text("LBL_Schlafendzeit"), "Sa.  18.11.2006 23:30");
    Druecke("Cmd_RemoveSchlafzeit");
    Druecke("Cmd_AddSchlafzeit");
    EXPECT_EQ(Zelle("LV_Schlafzeiten", 0, 1), "18.11.2006 23:30");
    Druecke("Cmd_AddSchlafzeit");
    EXPECT_EQ(m_boxen.Texte.back(), "Kein überschneidenden Zeiträumen eingegeben...");
    // Another page takes the selected day along.
    auto& kalender = Finde<QCalendarWidget>("SchlafKalender");
    kalender.showNextMonth();
    EXPECT_EQ(Text("LBL_Schlafendzeit"), "Mo.  18.12.2006 23:30");
    kalender.showPreviousMonth();
    QTest::keyClick(kalender.findChild<QWidget*>(QStringLiteral("qt_calendar_calendarview")),
                    Qt::Key_Right);
    EXPECT_EQ(Text("LBL_Schlafendzeit"), "So.  19.11.2006 23:30");
    Druecke("Cmd_AddSchlafzeit");
    Tippe("txt_SchlafdauerMinuten", "x");
    EXPECT_EQ(Text("LBL_Schlafendzeit"), "Error");
    Druecke("Cmd_AddSchlafzeit");
    EXPECT_EQ(m_boxen.Texte.back(), "Keine gültige Dauer eingegeben...");
    Tippe("txt_SchlafdauerMinuten", "5");
    Tippe("txt_SchlafStartStunden", "24");
    Druecke("Cmd_AddSchlafzeit");
    EXPECT_EQ(m_boxen.Texte.back(), "Kein gültiges Datum eingegeben...");
    ASSERT_EQ(Zeilen("LV_Schlafzeiten"), 2);

    auto& liste = Finde<QTreeView>("LV_Schlafzeiten");
    EXPECT_EQ(liste.currentIndex().row(), 1);
    EXPECT_GT(liste.geometry().left(), Finde("SchlafKalender").geometry().right());
    EXPECT_EQ(liste.geometry().top(), Finde("SchlafKalender").geometry().top());
    liste.setCurrentIndex(liste.model()->index(0, 0));
    Druecke("Cmd_RemoveSchlafzeit");
    ASSERT_EQ(Zeilen("LV_Schlafzeiten"), 1);
    EXPECT_EQ(Zelle("LV_Schlafzeiten", 0, 0), "19.11.2006 22:30");
    EXPECT_FALSE(liste.selectionModel()->hasSelection()) << "the next row isn't chosen";
    Druecke("Cmd_RemoveSchlafzeit");
    Druecke("Cmd_ClearSchlafzeiten");
    EXPECT_EQ(Zeilen("LV_Schlafzeiten"), 1) << "answered with Nein";
    Tippe("txt_SchlafStartStunden", "9");
    Tippe("txt_SchlafdauerStunden", "00");
    for (const char* const minuten : {"10", "15", "20", "25", "30", "35", "40", "45", "50", "55"}) {
        Tippe("txt_SchlafStartMinuten", minuten);
        Druecke("Cmd_AddSchlafzeit");
        const QRect neue = liste.visualRect(liste.currentIndex());
        EXPECT_EQ(liste.currentIndex().data().toString().right(2), QLatin1String(minuten));
        EXPECT_TRUE(liste.viewport()->rect().contains(neue)) << minuten;
    }
    m_boxen.Antwort = true;
    Druecke("Cmd_ClearSchlafzeiten");
    EXPECT_EQ(m_boxen.Texte.back(), "Wirklich alle löschen ?");
    EXPECT_EQ(Zeilen("LV_Schlafzeiten"), 0);
}

TEST_F(Fenster, LangeZahlenEndenInPunktenUndStehenGanzImHinweis) {
    Plan plan = PlanAus("GM GM");
    plan.LV_Schlafzeiten = {{"18.11.2006 12:30", "18.11.3006 23:30"}};
    Lade(plan);
    auto& metall = Finde<QLabel>("LBL_Met");
    EXPECT_EQ(metall.toolTip(), metall.text());
    EXPECT_EQ(Finde("LBL_ENergie").toolTip(), QString());
    // Cut at its right alone.
    metall.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    metall.setFixedWidth(metall.fontMetrics().horizontalAdvance(metall.text()) + 1);
    EXPECT_EQ(metall.toolTip(), QString());
    const QImage ganz = metall.grab().toImage();
    metall.setFixedWidth(ganz.width() - 8);
    EXPECT_EQ(metall.toolTip(), metall.text());
    metall.setAlignment(Qt::AlignCenter);
    const QRect anfang(0, 0, metall.width() / 2, metall.height());
    const QImage gekuerzt = metall.grab().toImage();
    EXPECT_EQ(gekuerzt.copy(anfang), ganz.copy(anfang));
    EXPECT_NE(gekuerzt, ganz.copy(metall.rect())) << "no ellipsis";
}

// The figures themselves are held against the console's in the play on a virtual screen.
TEST_F(Fenster, SimulationSchliesstDieFelderUndJedeZeileNenntIhrenGrund) {
    Lade("GS GM GM GM GM");
    for (const char* const feld : kFelder) {
        Finde(feld).show();
    }
    Druecke("Cmd_Simulate");
    for (const char* const feld : kFelder) {
        EXPECT_FALSE(Finde(feld).isVisible()) << feld;
    }
    ASSERT_EQ(Zeilen("LV_Bauzeiten"), 5);
    EXPECT_TRUE(Finde("LBL_Punkte").toolTip().startsWith(QStringLiteral("Inkl. Res.: ")));
    auto& liste = Finde<QTreeView>("LV_Bauzeiten");
    const QRect dritte = liste.visualRect(liste.model()->index(2, 0));
    Bewege(*liste.viewport(), dritte.center());
    EXPECT_EQ(liste.toolTip().toStdString(), m_fenster.CurrentRun().LV_Bauzeiten[2].Tag());
    QEvent weg(QEvent::Leave);
    QCoreApplication::sendEvent(liste.viewport(), &weg);
    EXPECT_EQ(liste.toolTip(), QString()) << "over the head or the bar";
    Bewege(*liste.viewport(), dritte.center() + QPoint(1, 0));
    EXPECT_NE(liste.toolTip(), QString());
    Bewege(*liste.viewport(), liste.viewport()->rect().bottomLeft() - QPoint(-5, 2));
    EXPECT_EQ(liste.toolTip(), QString()) << "no row there";
}

TEST_F(Fenster, ClearUndEingabefehlerLassenDenRestStehen) {
    Lade("GM");
    m_fenster.RunSimulation(true);
    const std::string punkte = Text("LBL_Punkte");
    Druecke("Cmd_Clear");
    EXPECT_EQ(Text("LBL_Timegone"), "Dauer: dd:hh:mm:ss");
    EXPECT_NE(Text("LBL_Timegone2"), "Dauer: dd:hh:mm:ss");
    EXPECT_EQ(Text("LBL_Met") + Text("LBL_Kris"), "500500");
    EXPECT_EQ(Text("LBL_MetMine_Stufe"), "0");
    Druecke("Cmd_Simulate");
    EXPECT_EQ(m_boxen.Texte.back(), "Die Bauliste ist leer...");
    EXPECT_EQ(Text("LBL_Punkte"), punkte);
    EXPECT_EQ(Zeilen("LV_Bauzeiten"), 1);
}

// A message in the middle of a run comes with the rows so far, and with what the reset wrote.
TEST_F(Fenster, MeldungImLaufZeigtDenStandDesLaufs) {
    Lade("GM");
    m_fenster.RunSimulation(true);
    int meldungen = 0;
    m_boxen.BeiMeldung = [&] {
        EXPECT_EQ(Zeilen("LV_Bauzeiten"), ++meldungen);
        EXPECT_EQ(Text("LBL_Punkte"), "0");
        EXPECT_EQ(Text("LBL_Timegone2"), "Dauer: dd:hh:mm:ss");
    };
    // The lab costs deuterium, which nothing yields.
    Lade("GF GM");
    m_fenster.RunSimulation(true);
    EXPECT_EQ(meldungen, 2);
    // From the second one on the player can do without the rest of this run.
    m_boxen.BeiMeldung = nullptr;
    Lade("GF GM GM GM GM");
    for (const int abstellen : {1, 2}) {
        m_boxen.Texte.clear();
        m_boxen.Abstellbare = 0;
        m_boxen.Abstellen = abstellen;
        m_fenster.RunSimulation(true);
        EXPECT_EQ(m_boxen.Texte.size(), 1U + static_cast<std::size_t>(abstellen));
    }
}

TEST_F(Fenster, NeuerLaufBeginntMitLeererListe) {
    Plan plan;
    for (int i = 0; i < 60; ++i) {
        ASSERT_FALSE(plan.LV_Bauliste.AddItem(ItemId::SKW, m_fenster.CurrentRun().conditions));
    }
    plan.parameters = m_fenster.CurrentPlan().parameters;
    Lade(plan);
    m_fenster.RunSimulation(true);
    auto& liste = Finde<QTreeView>("LV_Bauzeiten");
    liste.setCurrentIndex(liste.model()->index(59, 0));
    m_fenster.RunSimulation(true);
    EXPECT_FALSE(liste.currentIndex().isValid());
    EXPECT_TRUE(liste.viewport()->rect().contains(liste.visualRect(liste.model()->index(0, 0))));
}

TEST_F(Fenster, EnterDruecktUeberallEinenKnopf) {
    int laeufe = 0;
    for (auto* const widget : m_fenster.findChildren<QWidget*>()) {
        // A run closes the panels.
        for (const char* const feld : kFelder) {
            Finde(feld).show();
        }
        const auto* const knopf = qobject_cast<QAbstractButton*>(widget);
        const bool druckknopf = knopf != nullptr && knopf->inherits("QPushButton");
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || druckknopf) {
            continue;
        }
        m_boxen.Texte.clear();
        widget->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(m_boxen.Texte, std::vector<std::string>{"Die Bauliste ist leer..."})
            << widget->objectName().toStdString() << widget->metaObject()->className();
        ++laeufe;
    }
    EXPECT_GT(laeufe, 40);
    // A button that has the focus takes the key itself.
    m_boxen.Texte.clear();
    Finde("Fra_Special").show();
    QTest::keyClick(&Finde("Cmd_AddProdaenderungsevent"), Qt::Key_Return);
    EXPECT_EQ(Zeilen("LV_Bauliste"), 1);
    EXPECT_TRUE(m_boxen.Texte.empty());
}

// A button that was clicked keeps the focus, but not Enter.
TEST_F(Fenster, MausGibtEnterZurueck) {
    const auto enter = [&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); };
    const auto tabZu = [&](const char* name) {
        constexpr int kLaengstens = 200;
        for (int i = 0; i < kLaengstens && QApplication::focusWidget() != &Finde(name); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        ASSERT_EQ(QApplication::focusWidget(), &Finde(name));
    };
    QTest::mouseClick(&Finde("Cmd_Clear"), Qt::LeftButton);
    ASSERT_EQ(QApplication::focusWidget(), &Finde("Cmd_Clear"));
    for (const char* const bild : {"ImgSKW", "ImgMetMine"}) {
        emit Finde<BuildListView>("LV_Bauliste").DragDrop(QString::fromLatin1(bild));
    }
    enter();
    EXPECT_EQ(Zeilen("LV_Bauliste"), 2);
    EXPECT_EQ(Zeilen("LV_Bauzeiten"), 2);
    Waehle("mnu_SpecialEvents");
    tabZu("Cmd_AddProdaenderungsevent");
    enter();
    EXPECT_EQ(Zeilen("LV_Bauliste"), 3) << "who walks there presses it";
    QTest::mouseClick(&Finde("Frame9"), Qt::LeftButton);
    ASSERT_EQ(QApplication::focusWidget(), &Finde("Cmd_AddProdaenderungsevent"));
    enter();
    EXPECT_EQ(Zeilen("LV_Bauliste"), 3);
    EXPECT_EQ(Zeilen("LV_Bauzeiten"), 3);
    tabZu("Cmd_Clear");
    QTest::mouseClick(&Finde("Cmd_Undo"), Qt::LeftButton);
    QTest::keyClick(&Finde("Cmd_Undo"), Qt::Key_Space);
    EXPECT_EQ(Zeilen("LV_Bauliste"), 1) << "the space bar goes on pressing it";
    tabZu("Cmd_Clear");
    enter();
    EXPECT_EQ(Zeilen("LV_Bauliste"), 0);
}

TEST_F(Fenster, TabErreichtAllesDerReiheNachUndAllesHatEinenNamen) {
    for (const char* const feld : kFelder) {
        Finde(feld).show();
    }
    QSet<QWidget*> erreicht;
    std::vector<std::string> reihe;
    Finde("LV_Bauliste").setFocus();
    while (!erreicht.contains(QApplication::focusWidget())) {
        erreicht.insert(QApplication::focusWidget());
        reihe.push_back(QApplication::focusWidget()->objectName().toStdString());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (auto* const widget : m_fenster.findChildren<QWidget*>()) {
        const bool gewaehlt =
            !widget->inherits("QRadioButton") || widget->property("checked").toBool();
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) || !gewaehlt ||
            !widget->isEnabled() || widget->focusProxy() != nullptr) {
            continue;
        }
        EXPECT_TRUE(erreicht.contains(widget))
            << widget->objectName().toStdString() << widget->metaObject()->className();
        const auto* const zugang = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(zugang->text(QAccessible::Name).isEmpty() &&
                     !widget->parent()->inherits("QCalendarWidget") &&
                     !widget->parent()->inherits("QComboBox"))
            << widget->objectName().toStdString();
    }
    const auto stelle = [&](const char* name) { return std::ranges::find(reihe, name); };
    EXPECT_LT(stelle("Cmd_Simulate"), stelle("ImgMetMine"));
    EXPECT_LT(stelle("ImgMetMine"), stelle("imgSpios"));
    EXPECT_LT(stelle("imgSpios"), stelle("LV_Bauzeiten"));
    EXPECT_LT(stelle("txt_SchlafStartStunden"), stelle("Cmd_AddSchlafzeit"));
}

TEST_F(Fenster, GeteilteBuchstabenWandernImMenue) {
    auto* const menue = m_fenster.menuBar();
    const auto druecke = [&](Qt::Key taste) {
        QTest::keyClick(&m_fenster, taste, Qt::AltModifier);
        return menue->activeAction() == nullptr ? std::string()
                                                : menue->activeAction()->objectName().toStdString();
    };
    EXPECT_EQ(druecke(Qt::Key_E), "mnuEinstellungen");
    EXPECT_EQ(druecke(Qt::Key_E), "mnu_SpecialEvents");
    EXPECT_EQ(druecke(Qt::Key_E), "mnuEinstellungen");
    EXPECT_TRUE(Finde("Fra_Einstellungen").isVisible()) << "nothing is carried out yet";
    QTest::keyClick(menue, Qt::Key_Return);
    EXPECT_FALSE(Finde("Fra_Einstellungen").isVisible());
    Finde("LV_Bauliste").setFocus();
    EXPECT_EQ(druecke(Qt::Key_S), "mnuSleep");
    EXPECT_EQ(druecke(Qt::Key_S), "mnuSkin");
    QTest::keyClick(menue, Qt::Key_Escape);
    EXPECT_EQ(QApplication::focusWidget(), &Finde("LV_Bauliste"));
    EXPECT_FALSE(Finde("Fra_Skin").isVisible());
    // A click elsewhere ends the walk, and the focus never goes to what a panel took away.
    druecke(Qt::Key_S);
    QTest::mouseClick(&Finde("Frame9"), Qt::LeftButton);
    EXPECT_EQ(menue->activeAction(), nullptr);
    Finde("Fra_Sleep").show();
    Finde("Cmd_ClearSchlafzeiten").setFocus();
    druecke(Qt::Key_S);
    QTest::keyClick(menue, Qt::Key_Return);
    EXPECT_FALSE(Finde("Fra_Sleep").isVisible());
    EXPECT_TRUE(QApplication::focusWidget() == nullptr || QApplication::focusWidget()->isVisible());
}

}  // namespace
}  // namespace tarvelin
