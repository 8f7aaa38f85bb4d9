// The window from its start to its end: plan files, recovery, alarms, skins, menu "Info".
#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

#include "MainWindowFixture.h"
#include "ui/mainwindow/MakerSite.h"
#include "ui/services/FolderLock.h"
#include "ui/services/SoundPlayer.h"
#include "ui/services/WaveFile.h"
#include "ui/widgets/PictureButton.h"

namespace tarvelin {
namespace {

namespace fs = std::filesystem;

using Fensterleben = Fenster;

/// One more start of the program in the same folder.
class NeuerStart {
  public:
    explicit NeuerStart(const Environment& umgebung) : m_fenster(umgebung) {
        static_cast<Boxenmerker&>(umgebung.dialogs).Beendet = false;
        m_fenster.Form_Load();
    }
    ~NeuerStart() { m_fenster.close(); }

    frmMain* operator->() { return &m_fenster; }
    std::size_t Zeilen() { return m_fenster.CurrentPlan().LV_Bauliste.Rows().size(); }

  private:
    frmMain m_fenster;
};

TEST_F(Fensterleben, WiederherstellungNachJederAntwort) {
    Lade("GM GM");
    m_fenster.close();
    const auto saves = m_ordner / "saves";
    const std::string plan = LiesDatei(saves / "autosave.tvf");
    struct Fall {
        bool Ja;
        bool Immer;
        const char* Config;
    };
    for (const Fall& fall :
         {Fall{false, false, "[StartSettings]\r\nRecover=0\r\n"},
          Fall{false, true, "[StartSettings]\r\nAlwaysDoSo=1\r\nRecover=0\r\n"},
          Fall{true, false, "[StartSettings]\r\nRecover=1\r\n"},
          Fall{true, true, "[StartSettings]\r\nAlwaysDoSo=1\r\nRecover=1\r\n"}}) {
        SCOPED_TRACE(fall.Config);
        SchreibeDatei(saves / "autosave.tvf", plan);
        SchreibeDatei(m_ordner / "config.cfg", "[Settings]\r\nFirststart=0\r\n");
        fs::remove(saves / "autosave-vorige.tvf");
        m_boxen.Texte.clear();
        m_boxen.BeiFrage = [&] {
            m_boxen.Antwort = m_boxen.Texte.size() == 1 ? fall.Ja : fall.Immer;
        };
        NeuerStart start(m_umgebung);
        EXPECT_EQ(m_boxen.Texte.size(), 2U);
        EXPECT_EQ(start.Zeilen(), fall.Ja ? 2U : 0U);
        EXPECT_EQ(start->findChild<QWidget*>(QStringLiteral("Fra_Einstellungen"))->isVisible(),
                  !fall.Ja);
        EXPECT_TRUE(LiesDatei(m_ordner / "config.cfg").ends_with(fall.Config));
        EXPECT_EQ(LiesDatei(saves / "autosave.tvf"), plan) << "nothing has changed yet";
        start->close();
        EXPECT_EQ(LiesDatei(saves / "autosave-vorige.tvf"), fall.Ja ? "" : plan);
    }
}

// The end of the program is no answer, whichever question stands open.
TEST_F(Fensterleben, EndeBeiDenFragenLaesstPlanUndAntworten) {
    Lade("GM GM");
    m_fenster.close();
    const std::string plan = LiesDatei(m_ordner / "saves" / "autosave.tvf");
    for (const std::size_t frage : {1U, 2U}) {
        m_boxen.Texte.clear();
        m_boxen.Beendet = false;
        m_boxen.Antwort = true;
        fs::remove(m_ordner / "config.cfg");
        EXPECT_TRUE(SaveBauliste(m_ordner / "saves" / "basic.tvf", PlanAus("GM")));
        frmMain fenster(m_umgebung);
        m_boxen.BeiFrage = [&] {
            if (m_boxen.Texte.size() == frage) {
                fenster.close();
            }
        };
        fenster.Form_Load();
        EXPECT_TRUE(fs::exists(m_ordner / "saves" / "basic.tvf")) << "the start begins anew";
        EXPECT_EQ(m_boxen.Texte.size(), frage);
        EXPECT_EQ(LiesDatei(m_ordner / "saves" / "autosave.tvf"), plan);
        EXPECT_EQ(LiesDatei(m_ordner / "config.cfg").find("StartSettings"), std::string::npos);
        EXPECT_FALSE(fenster.findChild<QTimer*>(QStringLiteral("Tmr_Autosave"))->isActive());
    }
}

// A double click on a plan brings that one; the last one is kept beside it.
TEST_F(Fensterleben, PlanAlsArgumentStattDesLetzten) {
    Lade("GM GM");
    m_fenster.close();
    const auto saves = m_ordner / "saves";
    const std::string letzter = LiesDatei(saves / "autosave.tvf");
    ASSERT_TRUE(SaveBauliste(saves / "meiner.tvf", PlanAus("GS GM GK")));
    m_umgebung.planArgument = saves / "fehlt.tvf";
    {
        NeuerStart start(m_umgebung);
        ASSERT_EQ(m_boxen.Texte.size(), 3U) << "what can't be loaded is told, then all is as ever";
        EXPECT_EQ(LiesDatei(saves / "autosave.tvf"), letzter);
    }
    fs::remove(saves / "autosave-vorige.tvf");
    SchreibeDatei(saves / "autosave.tvf", letzter);
    m_boxen.Texte.clear();
    m_umgebung.planArgument = saves / "meiner.tvf";
    NeuerStart start(m_umgebung);
    EXPECT_TRUE(m_boxen.Texte.empty());
    EXPECT_EQ(start.Zeilen(), 3U);
    EXPECT_TRUE(start->windowTitle().endsWith(QStringLiteral("( meiner.tvf )")));
    EXPECT_EQ(LiesDatei(saves / "autosave-vorige.tvf"), letzter);
    start->close();
    // Whoever looks at one plan after the other still has the one that lies nowhere else.
    ASSERT_TRUE(SaveBauliste(saves / "anderer.tvf", PlanAus("GS")));
    m_umgebung.planArgument = saves / "anderer.tvf";
    {
        NeuerStart anderer(m_umgebung);
        EXPECT_EQ(LiesDatei(saves / "autosave-vorige.tvf"), letzter);
        anderer->findChild<QAbstractButton*>(QStringLiteral("Cmd_Clear"))->click();
        emit anderer->findChild<BuildListView*>(QStringLiteral("LV_Bauliste"))
            ->DragDrop(QStringLiteral("ImgMetMine"));
    }
    const std::string geaendert = LiesDatei(saves / "autosave.tvf");
    m_umgebung.planArgument = saves / "meiner.tvf";
    NeuerStart wieder(m_umgebung);
    EXPECT_EQ(LiesDatei(saves / "autosave-vorige.tvf"), geaendert);
    wieder->close();
    // A file of the program's own is no place to lie in: it is written over.
    m_umgebung.planArgument = saves / "autosave-vorige.tvf";
    { NeuerStart noch(m_umgebung); }
    EXPECT_EQ(LiesDatei(saves / "autosave.tvf").find("AusDatei=1"), std::string::npos);
}

TEST_F(Fensterleben, OrdnerGehoertDemErstenProgramm) {
    const auto erstes = std::make_unique<FolderLock>(m_ordner / "");
    EXPECT_FALSE(erstes->HeldByOther());
    EXPECT_TRUE(FolderLock(m_ordner / "").HeldByOther());
    EXPECT_FALSE(FolderLock(m_ordner / "saves").HeldByOther());
    erstes->Release();
    EXPECT_FALSE(FolderLock(m_ordner / "").HeldByOther());
    // A dead holder: no process has this number, half a lock, another machine, our own number.
    const std::string eigene = std::to_string(NativeFileSystem().ProcessId());
    const std::string name = QCoreApplication::applicationName().toStdString();
    for (const std::string& schloss :
         {std::string("4194996\ntarvelin\n\n"), std::string(),
          std::string("1\nx\nanderswo\n1\n1\n"), eigene + "\n" + name + "\n\n"}) {
        SchreibeDatei(m_ordner / "mfx" / "tarvelin.lock", schloss);
        EXPECT_FALSE(FolderLock(m_ordner / "mfx").HeldByOther()) << schloss;
    }
    EXPECT_FALSE(FolderLock(m_ordner / "fehlt").HeldByOther());
}

// The end of a session is announced, and may still be called off.
TEST_F(Fensterleben, SichernLaesstDasFensterOffen) {
    Lade("GM GM");
    m_fenster.SaveNow();
    EXPECT_NE(LiesDatei(m_ordner / "saves" / "autosave.tvf").find("ItemCount=2"),
              std::string::npos);
    EXPECT_NE(LiesDatei(m_ordner / "config.cfg").find("ItemCount=2"), std::string::npos);
    EXPECT_TRUE(m_fenster.isVisible());
    EXPECT_TRUE(Finde<QTimer>("Tmr_Autosave").isActive());
}

TEST_F(Fensterleben, GeaendertesGehtInWenigenSekundenAufDiePlatte) {
    const auto autosave = m_ordner / "saves" / "autosave.tvf";
    auto& takt = Finde<QTimer>("Tmr_Autosave");
    const auto ticke = [&] { QMetaObject::invokeMethod(&takt, "timeout"); };
    EXPECT_TRUE(takt.isActive());
    EXPECT_LT(takt.interval(), 5000);
    ticke();
    EXPECT_FALSE(fs::exists(autosave)) << "nothing has changed";
    const std::vector<std::pair<const char*, std::function<void()>>> aenderungen{
        {"Item_002=GM", [&] { Lade("GS GM"); }},
        {"UniStartZeitStunden=07", [&] { Tippe("txt_UniStartZeitStunden", "07"); }},
        {"TempMax=25", [&] { Tippe("txt_TempMax", "25"); }},
        {"KlickPuffer=15", [&] { QTest::keyClick(&Finde("HSC_KlickPuffer"), Qt::Key_PageUp); }},
        {"ShowDesc=0", [&] { Druecke("cmd_ShowDesc"); }},
        {"Speedfaktor_X2=1", [&] { Druecke("Chk_Speedfaktor"); }},
        {"SubItem_001=18.11.2006 23:30", [&] { Druecke("Cmd_AddSchlafzeit"); }},
        {"ItemCount=1\r\nItem_001=GS", [&] { Druecke("Cmd_Undo"); }}};
    for (const auto& [zeile, aendere] : aenderungen) {
        aendere();
        ticke();
        EXPECT_NE(LiesDatei(autosave).find(zeile), std::string::npos) << zeile;
    }
    // What can't be written is tried again at the next change, and nobody is told.
    fs::remove(autosave);
    fs::create_directories(autosave / "x");
    Druecke("Cmd_Undo");
    ticke();
    fs::remove_all(autosave);
    ticke();
    EXPECT_FALSE(fs::exists(autosave));
    Druecke("cmd_ShowDesc");
    ticke();
    EXPECT_TRUE(fs::exists(autosave));
    EXPECT_TRUE(m_boxen.Texte.empty());
    m_fenster.close();
    EXPECT_FALSE(takt.isActive());
}

// The starter plan is stored before its file goes, and the last plan isn't touched before the
// player has answered for it.
TEST_F(Fensterleben, StarterplanUndLetzterPlanGehenNichtVerloren) {
    m_fenster.close();
    const auto saves = m_ordner / "saves";
    const auto erster = [&](bool letzter, bool wieder) {
        fs::remove(m_ordner / "config.cfg");
        fs::remove(saves / "autosave.tvf");
        fs::remove(saves / "autosave-vorige.tvf");
        EXPECT_TRUE(SaveBauliste(saves / "basic.tvf", PlanAus("GM")));
        EXPECT_TRUE(!letzter || SaveBauliste(saves / "autosave.tvf", PlanAus("GK GK")));
        m_boxen.Texte.clear();
        m_boxen.Antwort = wieder;
        m_boxen.BeiFrage = [&] {
            EXPECT_TRUE(fs::exists(saves / "basic.tvf"));
            EXPECT_NE(LiesDatei(saves / "autosave.tvf").find("Item_002=GK"), std::string::npos);
        };
        NeuerStart start(m_umgebung);
        QMetaObject::invokeMethod(start->findChild<QTimer*>(QStringLiteral("Tmr_Autosave")),
                                  "timeout");
        EXPECT_EQ(m_boxen.Texte.size(), letzter ? 2U : 0U);
        EXPECT_FALSE(fs::exists(saves / "basic.tvf"));
        EXPECT_EQ(start->windowTitle().endsWith(QStringLiteral("( autosave.tvf )")), wieder);
        EXPECT_NE(LiesDatei(saves / "autosave.tvf").find(wieder ? "Item_001=GK" : "Item_001=GM"),
                  std::string::npos);
        EXPECT_EQ(LiesDatei(saves / "autosave-vorige.tvf").find("Item_002=GK") != std::string::npos,
                  letzter && !wieder);
        return start.Zeilen();
    };
    EXPECT_EQ(erster(false, false), 1U);
    EXPECT_EQ(erster(true, false), 1U);
    EXPECT_EQ(erster(true, true), 2U);
}

TEST_F(Fensterleben, HinweisZumStartKommtVorAllemAnderen) {
    m_umgebung.startNotice = Message{.text = "Hinweis", .title = "Tarvelin"};
    EXPECT_TRUE(SaveBauliste(m_ordner / "saves" / "autosave.tvf", PlanAus("GM")));
    const NeuerStart start(m_umgebung);
    EXPECT_EQ(m_boxen.Texte.size(), 3U);
    EXPECT_EQ(m_boxen.Texte.front(), "Hinweis");
}

TEST_F(Fensterleben, LadenUndSpeichernUeberDenDialog) {
    Lade("GS GM");
    Waehle("mnu_Datei_Speichern");
    EXPECT_EQ(fs::exists(m_ordner / "saves" / "meiner"), false) << "cancelled";
    m_boxen.Datei = "meiner";
    Waehle("mnu_Datei_Speichern");
    EXPECT_EQ(m_fenster.windowTitle(), QStringLiteral("Tarvelin  |  Kelva Aufbau-Simulator"));
    Druecke("Cmd_Clear");
    Waehle("mnu_DateiLaden");
    EXPECT_EQ(Zeilen("LV_Bauliste"), 2);
    EXPECT_EQ(Zeilen("LV_Bauzeiten"), 2);
    EXPECT_TRUE(m_fenster.windowTitle().endsWith(QStringLiteral("      ( meiner )")));

    SchreibeDatei(m_ordner / "saves" / "kaputt.tvf",
                  "[Einstellungen]\r\nKlickPuffer=7\r\nTempMax=11\r\nShowDesc=0\r\n"
                  "[Schlafzeiten]\r\nItemCount=0\r\n"
                  "[Bauliste]\r\nItemCount=2\r\nItem_001=GK\r\nItem_002=gk\r\n");
    Druecke("Cmd_AddSchlafzeit");
    m_boxen.Datei = "kaputt.tvf";
    m_boxen.BeiMeldung = [this] { EXPECT_EQ(Zelle("LV_Bauliste", 0, 1), "KristallMine Stufe: 1"); };
    Waehle("mnu_DateiLaden");
    EXPECT_EQ(m_boxen.Texte,
              std::vector<std::string>{"Die Bauliste konnte nicht geladen werden..."});
    EXPECT_EQ(Zeilen("LV_Bauliste"), 1);
    EXPECT_EQ(Zeilen("LV_Bauzeiten"), 2) << "nothing was run";
    EXPECT_EQ(Text("cmd_ShowDesc"), "ein/AUS");
    EXPECT_EQ(Text("LBL_KlickPuffer"), "00:07");
    EXPECT_FALSE(Finde<QTreeView>("LV_Schlafzeiten").selectionModel()->hasSelection());
    EXPECT_TRUE(m_fenster.windowTitle().endsWith(QStringLiteral("      ( meiner )")));

    m_boxen.Datei = "fehlt/x.tvf";
    Waehle("mnu_Datei_Speichern");
    EXPECT_EQ(m_boxen.Texte.back(), "Die Bauliste konnte nicht gespeichert werden...");
    EXPECT_EQ(m_boxen.Koepfe.back(), m_boxen.Koepfe.front());
    m_boxen.Texte.pop_back();

    // What can't be read at all leaves the plan.
    for (const char* const datei : {"fehlt.tvf", "../saves"}) {
        m_boxen.Datei = datei;
        Waehle("mnu_DateiLaden");
        EXPECT_EQ(Zeilen("LV_Bauliste"), 1) << datei;
    }
    EXPECT_EQ(m_boxen.Texte.size(), 3U);
}

TEST_F(Fensterleben, ErsetzteWerdenBewahrtWennSieNirgendsLiegen) {
    const auto erster = [this] {
        const auto profil = IniFile::Load(m_ordner / "saves" / "ersetzt-1.tvf");
        return profil ? profil->ReadINI("Bauliste", "ItemCount", "?") : "";
    };
    m_boxen.Datei = "meiner.tvf";
    Lade("GS GM");
    Waehle("mnu_Datei_Speichern");
    Waehle("mnu_DateiNeu");
    EXPECT_EQ(erster(), "") << "it lies in its file";
    Waehle("mnu_DateiLaden");
    Tippe("txt_UniStartZeitTag", "5");
    Waehle("mnu_DateiLaden");
    EXPECT_EQ(erster(), "2") << "another start is another plan";
    Druecke("Cmd_Simulate");
    Druecke("Cmd_Undo");
    Waehle("mnu_DateiNeu");
    EXPECT_EQ(erster(), "1");
    // What is loaded from there has been moved on when it comes, and isn't safe there.
    Lade("GS GM GM");
    m_boxen.Datei = "ersetzt-1.tvf";
    Waehle("mnu_DateiLaden");
    EXPECT_EQ(Zeilen("LV_Bauliste"), 1);
    EXPECT_EQ(erster(), "3");
    Waehle("mnu_DateiNeu");
    EXPECT_EQ(erster(), "1");
    EXPECT_FALSE(fs::exists(m_ordner / "saves" / "autosave-vorige.tvf"));
}

TEST_F(Fensterleben, NeuBeginntHeuteUndLaesstDenRest) {
    Plan plan = PlanAus("GM");
    plan.LV_Schlafzeiten = {{"18.11.2006 22:30", "18.11.2006 23:30"}};
    plan.parameters.UniStartZeitStunden = "x";
    Lade(plan);
    plan.parameters.UniStartZeitStunden = "7";
    Lade(plan);
    Waehle("mnuSleep");
    Waehle("mnuEinstellungen");
    Druecke("Chk_BauWeckfunktion");
    Tippe("txt_UniStartZeitStunden", "99");
    m_jetzt = *ParseDateTime("05.03.2007 01:00:00");
    Waehle("mnu_DateiNeu");
    EXPECT_EQ(Zeilen("LV_Bauliste"), 0);
    EXPECT_EQ(Zeilen("LV_Bauzeiten"), 0);
    EXPECT_EQ(Zeilen("LV_Schlafzeiten"), 1);
    EXPECT_EQ(Text("LBL_Punkte"), "0");
    EXPECT_EQ(Text("LBL_Timegone"), "Dauer: dd:hh:mm:ss");
    EXPECT_EQ(Text("txt_UniStartZeitTag") + Text("txt_UniStartZeitMonat") +
                  Text("txt_UniStartZeitJahr") + Text("txt_UniStartZeitStunden"),
              "0503200799");
    EXPECT_EQ(Text("LBL_Weekday"), "Mo.") << "whatever the hour says";
    EXPECT_TRUE(Finde("Fra_Einstellungen").isVisible());
    EXPECT_FALSE(Finde("Fra_Sleep").isVisible());
    EXPECT_FALSE(Finde<QCheckBox>("Chk_BauWeckfunktion").isChecked()) << "as stored";
    EXPECT_TRUE(m_fenster.windowTitle().endsWith(QStringLiteral("      ( plan.tvf )")));
}

TEST_F(Fensterleben, AlarmeKlingelnNurSolangeSieAnSind) {
    Lade("GS GM");
    Tippe("txt_UniStartZeitStunden", "12");
    m_fenster.RunSimulation(true);
    m_jetzt = m_fenster.CurrentRun().LV_Bauzeiten[1].start + -10;
    auto& takt = Finde<QTimer>("Tmr_BauWeckfunktion");
    const auto ticke = [&] { QMetaObject::invokeMethod(&takt, "timeout"); };
    EXPECT_FALSE(takt.isActive());
    Druecke("Chk_BauWeckfunktion");
    EXPECT_TRUE(takt.isActive());
    ticke();
    EXPECT_EQ(m_ton.Gespielt, std::vector<fs::path>{m_ordner / "mfx" / "alert.wav"});
    auto& vorher = Finde<QComboBox>("Comb_Before");
    vorher.setCurrentText(QStringLiteral("9"));
    ticke();
    EXPECT_EQ(m_ton.Gespielt.size(), 1U);
    m_jetzt = m_jetzt + 1;
    const fs::path gong = m_ordner / "anderswo" / "gong.wav";
    SchreibeDatei(m_ordner / "config.cfg",
                  "[SoundSettings]\r\nAlertsound=" + gong.string() + "\r\n");
    ticke();
    EXPECT_EQ(m_ton.Gespielt.back(), gong) << "read anew at each alarm";
    vorher.lineEdit()->clear();
    QTest::keyClicks(vorher.lineEdit(), QStringLiteral("3x"));
    EXPECT_EQ(vorher.currentText(), QStringLiteral("3"));
    EXPECT_TRUE(takt.isActive()) << "a tick aims at the next second";
    Druecke("Chk_BauWeckfunktion");
    EXPECT_FALSE(takt.isActive());

    auto& schlaf = Finde<QTimer>("Tmr_Schlafweckfunktion");
    Druecke("Chk_Schlafzeitenwecker");
    Druecke("Cmd_AddSchlafzeit");
    m_jetzt = *ParseDateTime("18.11.2006 23:29:00");
    QMetaObject::invokeMethod(&schlaf, "timeout");
    EXPECT_EQ(m_ton.Gespielt.size(), 3U);
    m_fenster.close();
    EXPECT_FALSE(schlaf.isActive());
    EXPECT_NE(LiesDatei(m_ordner / "config.cfg").find("Schlafzeitenwecker=1"), std::string::npos);
}

// What is no sound of ours is told by a beep, and the next one is heard.
TEST_F(Fensterleben, KlangSpieltNurGanzeWellen) {
    const std::string gut = LiesDatei(m_ordner / "mfx" / "alert.wav");
    std::string ohneFormat = gut;
    ohneFormat.replace(ohneFormat.find("fmt "), 4, "xxx ");
    // Format, rate, bits: as they stand in the head.
    const auto mit = [&](std::size_t stelle, std::uint32_t wert, std::size_t laenge) {
        std::string bytes = gut;
        for (std::size_t i = 0; i < laenge; ++i) {
            bytes[bytes.find("fmt ") + 8 + stelle + i] = static_cast<char>(wert >> 8 * i);
        }
        return bytes;
    };
    const std::vector<std::pair<std::string, bool>> faelle{{gut, true},
                                                           {mit(4, 10, 4), false},
                                                           {mit(4, 41, 4), false},
                                                           {mit(4, 7999, 4), false},
                                                           {mit(4, 8000, 4), true},
                                                           {mit(4, 192000, 4), true},
                                                           {mit(4, 192001, 4), false},
                                                           {mit(0, 3, 2), false},
                                                           {mit(14, 24, 2), false},
                                                           {"kein Ton", false},
                                                           {"", false},
                                                           {gut.substr(0, 30), false},
                                                           {gut.substr(0, gut.size() - 1), false},
                                                           {ohneFormat, false},
                                                           {gut, true}};
    SoundPlayer klang;
    for (const auto& [bytes, spielbar] : faelle) {
        SchreibeDatei(m_ordner / "ton.wav", bytes);
        EXPECT_EQ(ReadWave(m_ordner / "ton.wav").has_value(), spielbar) << bytes.size();
        klang.Play(m_ordner / "ton.wav");
        QTest::qWait(50);
    }
    EXPECT_FALSE(ReadWave(m_ordner / "mfx"));
    EXPECT_FALSE(ReadWave(m_ordner / "fehlt.wav"));
}

// In the middle of the next second, whenever it was switched on or ticked.
TEST_F(Fensterleben, TaktZieltAufDieNaechsteSekunde) {
    SecondTimer takt(QStringLiteral("takt"), nullptr);
    takt.SetRunning(true);
    for (int i = 0; i < 20; ++i) {
        constexpr int kFruehestens = 40;
        constexpr int kSpaetestens = 800;
        constexpr qint64 kSekunde = 1000;
        // It falls due between two moments, however far a busy machine draws them apart.
        const qint64 vorher = QDateTime::currentMSecsSinceEpoch();
        const int noch = takt.remainingTime();
        const qint64 nachher = QDateTime::currentMSecsSinceEpoch();
        const qint64 von = (vorher + noch) % kSekunde;
        const qint64 bis = von + nachher - vorher;
        EXPECT_TRUE((von < kSpaetestens && bis >= kFruehestens) || bis >= kSekunde + kFruehestens)
            << von << " " << bis;
        EXPECT_LE(takt.interval(), 1050);
        QTest::qWait(i);
        QMetaObject::invokeMethod(&takt, "timeout");
    }
    takt.SetRunning(false);
    EXPECT_FALSE(takt.isActive());
}

/// The files of a skin in the order of a fetch, and the picture that each is for.
const std::vector<std::pair<const char*, const char*>> kSkindateien{
    {"gebaeude/1", "ImgMetMine"},      {"gebaeude/2", "ImgKrisMine"},
    {"gebaeude/3", "ImgDeutMine"},     {"gebaeude/4", "ImgSKW"},
    {"gebaeude/14", "ImgRobo"},        {"gebaeude/21", "ImgWerft"},
    {"gebaeude/31", "imgFolab"},       {"gebaeude/401", "imgRakws"},
    {"gebaeude/402", "imglLasers"},    {"gebaeude/403", "imgsLasers"},
    {"gebaeude/212", "imgSolsats"},    {"gebaeude/210", "imgSpios"},
    {"gebaeude/204", "imgLJs"},        {"gebaeude/113", "imgENTech"},
    {"gebaeude/110", "imgSchTech"},    {"gebaeude/115", "imgVerbTech"},
    {"gebaeude/120", "imgLaserTech"},  {"gebaeude/106", "imgSpioTech"},
    {"gebaeude/202", "imgKTs"},        {"gebaeude/407", "imgklSchK"},
    {"images/kristall", "Images(1)"},  {"images/metall", "Images(0)"},
    {"images/deuterium", "Images(2)"}, {"images/energie", "Images(3)"}};

/// The picture on the screen, told by one pixel of it.
class Skins : public Fenster {
  protected:
    static QColor FarbeVon(const QLabel& bild) {
        return bild.pixmap(Qt::ReturnByValue).toImage().pixelColor(0, 0);
    }
    QColor Farbe(const char* bild) { return FarbeVon(Finde<QLabel>(bild)); }
    static std::string Bild(const QColor& farbe) {
        QImage bild(2, 2, QImage::Format_RGB32);
        bild.fill(farbe);
        QByteArray bytes;
        QBuffer puffer(&bytes);
        puffer.open(QIODevice::WriteOnly);
        bild.save(&puffer, "PNG");
        return bytes.toStdString();
    }
    void WaehleQuelle(const char* option) { Finde<QRadioButton>(option).click(); }
    fs::path Landeplatz() { return m_ordner / "img" / "skins" / "temp_webskin"; }
    /// All pictures of a skin below an address, each in a colour of its own.
    void StelleInsNetz(const std::string& adresse) {
        int rot = 0;
        for (const auto& [datei, bild] : kSkindateien) {
            m_netz.Dateien[adresse + "/" + datei + ".gif"] = Bild(QColor(rot += 5, 0, 0));
        }
    }
};

TEST_F(Skins, QuellenZeigenIhreEingaben) {
    struct Fall {
        const char* Option;
        const char* Beschriftung;
        bool Pfad;
        bool Liste;
    };
    Waehle("mnuSkin");
    EXPECT_FALSE(Finde<QLabel>("Images(4)").pixmap(Qt::ReturnByValue).isNull());
    const QColor vorher = Farbe("ImgSKW");
    for (const auto& [option, beschriftung, pfad, liste] :
         {Fall{"Opt_Web", " Web-Verzeichnis: ", true, false},
          Fall{"Opt_Lokal", " Skin-Unterordner wählen: ", false, true},
          Fall{"Opt_Standard", " Standard-Skin benutzen. ", false, false}}) {
        WaehleQuelle(option);
        EXPECT_EQ(Text("LBL_Skin"), beschriftung);
        EXPECT_EQ(Finde("txt_Pfad").isVisible(), pfad) << option;
        EXPECT_EQ(Finde("Comb_Skins").isVisible(), liste) << option;
    }
    EXPECT_EQ(Farbe("ImgSKW"), vorher);
}

TEST_F(Skins, LokalerSkinLaesstFehlendeBilderStehen) {
    const auto blau = m_ordner / "img" / "skins" / "blau" / "gebaeude";
    fs::create_directories(blau);
    SchreibeDatei(blau / "4.gif", Bild(Qt::blue));
    SchreibeDatei(blau / "1.gif", "kein Bild");
    const QColor vorher = Farbe("ImgMetMine");
    Waehle("mnuSkin");
    WaehleQuelle("Opt_Lokal");
    Druecke("Cmd_ApplySkin");
    EXPECT_EQ(Farbe("ImgSKW"), QColor(Qt::blue));
    EXPECT_EQ(Farbe("ImgMetMine"), vorher);
    EXPECT_FALSE(Finde("Fra_Skin").isVisible());
    m_fenster.close();
    m_boxen.Antwort = false;
    NeuerStart start(m_umgebung);
    EXPECT_EQ(FarbeVon(*start->findChild<QLabel*>(QStringLiteral("ImgSKW"))), QColor(Qt::blue));
    EXPECT_TRUE(start->findChild<QRadioButton*>(QStringLiteral("Opt_Lokal"))->isChecked());
}

TEST_F(Skins, WebskinKommtDateiFuerDateiAnSeinenPlatz) {
    StelleInsNetz("http://skin.example/");
    WaehleQuelle("Opt_Web");
    Finde<QLineEdit>("txt_Pfad").setText(QStringLiteral("http://skin.example/"));
    Druecke("Cmd_ApplySkin");
    ASSERT_EQ(m_netz.Adressen.size(), kSkindateien.size());
    for (std::size_t i = 0; i < kSkindateien.size(); ++i) {
        const auto& [datei, bild] = kSkindateien[i];
        EXPECT_EQ(m_netz.Adressen[i], std::string("http://skin.example//") + datei + ".gif");
        EXPECT_EQ(Farbe(bild), QColor(5 * static_cast<int>(i + 1), 0, 0)) << bild;
    }
    EXPECT_EQ(m_boxen.Texte.size(), 1U);
    EXPECT_EQ(Text("txt_Pfad"), "http://skin.example");
    m_fenster.close();
    const std::string config = LiesDatei(m_ordner / "config.cfg");
    EXPECT_NE(config.find("Mode=3\r\nPath=temp_webskin\r\nWebPath=http://skin.example\r\n"),
              std::string::npos)
        << config;
    m_netz.Adressen.clear();
    NeuerStart start(m_umgebung);
    EXPECT_TRUE(m_netz.Adressen.empty()) << "a start fetches nothing";
    EXPECT_TRUE(start->findChild<QRadioButton*>(QStringLiteral("Opt_Web"))->isChecked());
    EXPECT_EQ(FarbeVon(*start->findChild<QLabel*>(QStringLiteral("ImgMetMine"))), QColor(5, 0, 0))
        << "what landed is shown";
}

// Nothing makes the landing folder.
TEST_F(Skins, WebskinFragtBeiJederFehlendenDatei) {
    StelleInsNetz("http://a");
    fs::remove_all(Landeplatz());
    WaehleQuelle("Opt_Web");
    Finde<QLineEdit>("txt_Pfad").setText(QStringLiteral("http://a"));
    m_boxen.Antwort = false;
    Druecke("Cmd_ApplySkin");
    EXPECT_EQ(m_boxen.Texte.size(), 1U + 24U);
    EXPECT_EQ(m_boxen.Koepfe.front(),
              std::pair(std::string("Fortsetzen..."), MessageIcon::Information));
    EXPECT_EQ(m_boxen.Koepfe.back(),
              std::pair(std::string("Download-Fehler..."), MessageIcon::Warning));
}

// The close of the window ends a fetch, and nothing more is asked or shown.
TEST_F(Skins, SchliessenBeendetDenAbruf) {
    WaehleQuelle("Opt_Web");
    m_netz.BeiAbruf = [this] {
        if (m_netz.Adressen.size() == 3) {
            m_fenster.close();
        }
    };
    Druecke("Cmd_ApplySkin");
    EXPECT_EQ(m_netz.Adressen.size(), 3U);
    EXPECT_EQ(m_boxen.Texte.size(), 3U) << "one at the start, two for the missing files";
    EXPECT_EQ(m_netz.Abgebrochen, 1);
    EXPECT_TRUE(fs::exists(m_ordner / "saves" / "autosave.tvf"));
    Waehle("mnu_UpdateCheck");
    EXPECT_EQ(m_boxen.Texte.size(), 3U);
}

TEST_F(Fensterleben, VersionsvergleichNimmtJedesZeichen) {
    Waehle("mnu_UpdateCheck");
    EXPECT_EQ(m_boxen.Texte.back(), "Die Versions-Datei konnte nicht geladen werden...");
    EXPECT_EQ(m_boxen.Koepfe.back(),
              std::pair(std::string("Version-Check..."), MessageIcon::Error));
    const std::string adresse = m_netz.Adressen.at(0);
    EXPECT_TRUE(adresse.ends_with("/tarvelinversion.txt"));
    for (const auto& [inhalt, gleich] : std::vector<std::pair<std::string, bool>>{
             {kVersion, true},
             {kVersion + std::string("\r\n"), false},
             {"0.9.0", false},
             {"", false},
             {std::string("<b>") + kVersion + "</b>", false}}) {
        m_netz.Dateien[adresse] = inhalt;
        Waehle("mnu_UpdateCheck");
        const std::string& text = m_boxen.Texte.back();
        EXPECT_EQ(text.find("NICHT") == std::string::npos, gleich) << inhalt;
        EXPECT_TRUE(gleich ||
                    text.find(std::string("(v") + inhalt + ")zu sein!\r\n") != std::string::npos);
    }
    std::string lang;
    for (int i = 0; i < 100; ++i) {
        lang += "ä";
    }
    EXPECT_NE(VersionQuestion(lang).text.find("(v" + lang.substr(0, 128) + ")zu"),
              std::string::npos);
    // Bytes that are no text count one by one.
    EXPECT_LT(VersionQuestion(std::string(1000, '\x80')).text.size(), 300U);
    EXPECT_EQ(m_boxen.Koepfe.back(),
              std::pair(std::string("Version-Check..."), MessageIcon::Information));
    EXPECT_TRUE(m_seiten.empty());
    m_boxen.Antwort = true;
    Waehle("mnu_UpdateCheck");
    ASSERT_EQ(m_seiten.size(), 1U);
    EXPECT_TRUE(m_seiten[0].ends_with("/modules.php?name=Downloads&d_op=viewdownload&cid=9"));
}

TEST_F(Fensterleben, InfofensterSindEinmaligUndFuehrenAufDieSeiten) {
    const auto fenster = [](const char* name) {
        std::vector<QWidget*> gefunden;
        for (QWidget* const w : QApplication::topLevelWidgets()) {
            if (w->objectName() == QString::fromLatin1(name)) {
                gefunden.push_back(w);
            }
        }
        return gefunden;
    };
    Waehle("mnuAbout_TV");
    Waehle("mnuAbout_TV");
    ASSERT_EQ(fenster("frmAbout").size(), 1U);
    QWidget& about = *fenster("frmAbout")[0];
    EXPECT_EQ(about.findChild<QLabel*>(QStringLiteral("lblVersion"))->text(),
              QStringLiteral(" Version ") + QString::fromLatin1(kVersion));
    about.findChild<QAbstractButton*>(QStringLiteral("Label1"))->click();
    EXPECT_EQ(m_seiten, std::vector<std::string>{HomePage()});
    for (const Qt::Key taste : {Qt::Key_Escape, Qt::Key_Return}) {
        about.findChild<QWidget*>(QStringLiteral("Label1"))->setFocus();
        QTest::keyClick(QApplication::focusWidget(), taste);
        EXPECT_FALSE(about.isVisible());
        Waehle("mnuAbout_TV");
        about.showMinimized();
        Waehle("mnuAbout_TV");
        EXPECT_TRUE(about.isVisible() && !about.isMinimized());
    }
    EXPECT_EQ(m_seiten.size(), 1U);
    about.close();

    Druecke("ImgDonate_1");
    Waehle("mnu_DOnate");
    ASSERT_EQ(fenster("frmDonate").size(), 1U);
    QWidget& spenden = *fenster("frmDonate")[0];
    m_seiten.clear();
    for (auto* const knopf : spenden.findChildren<PictureButton*>()) {
        knopf->click();
    }
    ASSERT_EQ(m_seiten.size(), 6U);
    const auto hat = [&](std::size_t i, const char* teil) {
        return m_seiten[i].find(teil) != std::string::npos;
    };
    EXPECT_TRUE(hat(0,
                    "&item_name=Spende%20f%c3%bcr%20das%20Tarvelin%2dProjekt"
                    "&amount=0%2e50&no_shipping=1&cn="));
    EXPECT_TRUE(hat(4, "&amount=10%2e00&"));
    EXPECT_FALSE(hat(5, "amount"));
    EXPECT_TRUE(hat(5, "&no_shipping=1&no_note=1&cn=Optionales"));
    EXPECT_NE(m_seiten[5].substr(0, m_seiten[5].find("&item")),
              m_seiten[4].substr(0, m_seiten[4].find("&item")));
    // They stand beside the main window, and outlive its closing.
    bool geschrieben = false;
    QObject::connect(&m_fenster, &frmMain::Closed,
                     [&] { geschrieben = fs::exists(m_ordner / "saves" / "autosave.tvf"); });
    m_fenster.close();
    EXPECT_TRUE(spenden.isVisible());
    EXPECT_TRUE(geschrieben) << "the folder is free when all is kept";
}

}  // namespace
}  // namespace tarvelin
