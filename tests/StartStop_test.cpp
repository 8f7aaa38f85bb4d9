// Tests the main window from start to end: plan files, recovery, alarms, skins, menu "Info".
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

using StartStop = MainWindow;

/// Starts the program once more in the same folder.
class Restart {
  public:
    explicit Restart(const Environment& environment) : m_program(environment) {
        static_cast<FakeDialogs&>(environment.dialogs).closedAll = false;
        m_program.Start();
    }
    ~Restart() { m_program.Close(); }

    frmMain* operator->() { return &m_program.MainWindow(); }
    std::size_t RowCount() {
        return m_program.PlanDocument().CurrentPlan().LV_Bauliste.Rows().size();
    }

  private:
    ProgramWindows m_program;
};

// What comes back and what is kept are the document's decisions; the window passes them on.
TEST_F(StartStop, StartsAndEndsTheSession) {
    Load("GM GM");
    auto& timer = Find<QTimer>("Tmr_Autosave");
    EXPECT_TRUE(timer.isActive());
    EXPECT_LT(timer.interval(), 5000);
    QMetaObject::invokeMethod(&timer, "timeout");
    EXPECT_TRUE(fs::exists(m_folder / "saves" / "autosave.tvf"));
    m_program.SaveNow();
    EXPECT_TRUE(m_window.isVisible() && timer.isActive());
    EXPECT_NE(ReadFileToString(m_folder / "config.cfg").find("ItemCount=2"), std::string::npos);
    m_window.close();
    EXPECT_FALSE(timer.isActive());
    m_environment.startNotice = Message{.text = "Hinweis", .title = "Tarvelin"};
    for (const bool again : {false, true}) {
        fs::remove(m_folder / "config.cfg");
        EXPECT_TRUE(SaveBauliste(m_folder / "saves" / "autosave.tvf", PlanOf("GM GM")));
        m_dialogs.texts.clear();
        m_dialogs.answer = again;
        Restart start(m_environment);
        EXPECT_EQ(m_dialogs.texts.size(), 3U);
        EXPECT_EQ(m_dialogs.texts.front(), "Hinweis");
        EXPECT_EQ(start.RowCount(), again ? 2U : 0U);
        EXPECT_EQ(start->findChild<QWidget*>(QStringLiteral("Fra_Einstellungen"))->isVisible(),
                  !again);
    }
    m_environment.planArgument = m_folder / "saves" / "[*].tvf";
    EXPECT_TRUE(SaveBauliste(m_environment.planArgument, PlanOf("GS GM GK")));
    {
        Restart start(m_environment);
        EXPECT_EQ(start.RowCount(), 3U);
        EXPECT_TRUE(start->windowTitle().endsWith(QStringLiteral("( [*][*].tvf )")));
    }
    // Closed while it starts.
    ProgramWindows program(m_environment);
    m_dialogs.closedAll = false;
    m_dialogs.onMessage = [&] { program.Close(); };
    program.Start();
    EXPECT_FALSE(
        program.MainWindow().findChild<QTimer*>(QStringLiteral("Tmr_Autosave"))->isActive());
}

TEST_F(StartStop, FolderBelongsToTheFirstProgram) {
    const auto first = std::make_unique<FolderLock>(m_folder / "");
    EXPECT_FALSE(first->HeldByOther());
    EXPECT_TRUE(FolderLock(m_folder / "").HeldByOther());
    EXPECT_FALSE(FolderLock(m_folder / "saves").HeldByOther());
    first->Release();
    EXPECT_FALSE(FolderLock(m_folder / "").HeldByOther());
    // Stale locks: no such process, an empty lock, another machine, our own process id.
    const std::string own = std::to_string(NativeFileSystem().ProcessId());
    const std::string name = QCoreApplication::applicationName().toStdString();
    for (const std::string& lock :
         {std::string("4194996\ntarvelin\n\n"), std::string(),
          std::string("1\nx\nanderswo\n1\n1\n"), own + "\n" + name + "\n\n"}) {
        WriteFile(m_folder / "mfx" / "tarvelin.lock", lock);
        EXPECT_FALSE(FolderLock(m_folder / "mfx").HeldByOther()) << lock;
    }
    EXPECT_FALSE(FolderLock(m_folder / "fehlt").HeldByOther());
}

TEST_F(StartStop, LoadsAndSavesThroughTheDialog) {
    Load("GS GM");
    Choose("mnu_Datei_Speichern");
    m_dialogs.file = "meiner";
    EXPECT_FALSE(fs::exists(m_folder / "saves" / "meiner")) << "cancelled";
    Choose("mnu_Datei_Speichern");
    Press("Cmd_Clear");
    Press("cmd_ShowDesc");
    Press("Cmd_AddSchlafzeit");
    Type("txt_TempMax", "25");
    Choose("mnu_DateiLaden");
    EXPECT_EQ(RowCount("LV_Bauliste"), 2);
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 2);
    EXPECT_EQ(RowCount("LV_Schlafzeiten"), 0);
    EXPECT_EQ(TextOf("cmd_ShowDesc"), "EIN/aus");
    EXPECT_TRUE(Find("LBLDesc(0)").isVisible());
    EXPECT_EQ(TextOf("txt_TempMax"), "11");
    EXPECT_TRUE(m_window.windowTitle().endsWith(QStringLiteral("      ( meiner )")));
    EXPECT_FALSE(Find<QTreeView>("LV_Schlafzeiten").selectionModel()->hasSelection());
    auto& list = Find<QTreeView>("LV_Bauliste");
    list.setCurrentIndex(list.model()->index(0, 0));
    Choose("mnu_DateiLaden");
    EXPECT_FALSE(list.currentIndex().isValid()) << "another list";
    EXPECT_TRUE(m_dialogs.texts.empty());
}

TEST_F(StartStop, NewBeginsTodayAndLeavesTheRest) {
    Plan plan = PlanOf("GM");
    plan.LV_Schlafzeiten = {{"18.11.2006 22:30", "18.11.2006 23:30"}};
    plan.parameters.UniStartZeitStunden = "x";
    Load(plan);
    plan.parameters.UniStartZeitStunden = "7";
    Load(plan);
    Choose("mnuSleep");
    Choose("mnuEinstellungen");
    Press("Chk_BauWeckfunktion");
    Type("txt_UniStartZeitStunden", "99");
    m_now = *ParseDateTime("05.03.2007 01:00:00");
    Choose("mnu_DateiNeu");
    EXPECT_EQ(RowCount("LV_Bauliste"), 0);
    EXPECT_EQ(RowCount("LV_Bauzeiten"), 0);
    EXPECT_EQ(RowCount("LV_Schlafzeiten"), 1);
    EXPECT_EQ(TextOf("LBL_Punkte"), "0");
    EXPECT_EQ(TextOf("LBL_Timegone"), "Dauer: dd:hh:mm:ss");
    EXPECT_EQ(TextOf("txt_UniStartZeitTag") + TextOf("txt_UniStartZeitMonat") +
                  TextOf("txt_UniStartZeitJahr") + TextOf("txt_UniStartZeitStunden"),
              "0503200799");
    EXPECT_EQ(TextOf("LBL_Weekday"), "Mo.") << "whatever the hour says";
    EXPECT_TRUE(Find("Fra_Einstellungen").isVisible());
    EXPECT_FALSE(Find("Fra_Sleep").isVisible());
    EXPECT_FALSE(Find<QCheckBox>("Chk_BauWeckfunktion").isChecked()) << "as stored";
    EXPECT_TRUE(m_window.windowTitle().endsWith(QStringLiteral("      ( plan.tvf )")));
}

TEST_F(StartStop, AlarmsRingOnlyWhileTheyAreOn) {
    Load("GS GM");
    Type("txt_UniStartZeitStunden", "12");
    m_document.RunSimulation(true);
    m_now = m_document.CurrentRun().LV_Bauzeiten[1].start + -10;
    auto& timer = Find<QTimer>("Tmr_BauWeckfunktion");
    const auto tick = [&] { QMetaObject::invokeMethod(&timer, "timeout"); };
    EXPECT_FALSE(timer.isActive());
    Press("Chk_BauWeckfunktion");
    EXPECT_TRUE(timer.isActive());
    tick();
    EXPECT_EQ(m_sound.played, std::vector<fs::path>{m_folder / "mfx" / "alert.wav"});
    auto& before = Find<QComboBox>("Comb_Before");
    before.setCurrentText(QStringLiteral("9"));
    tick();
    EXPECT_EQ(m_sound.played.size(), 1U);
    m_now = m_now + 1;
    const fs::path gong = m_folder / "anderswo" / "gong.wav";
    WriteFile(m_folder / "config.cfg", "[SoundSettings]\r\nAlertsound=" + gong.string() + "\r\n");
    tick();
    EXPECT_EQ(m_sound.played.back(), gong) << "read anew at each alarm";
    before.lineEdit()->clear();
    QTest::keyClicks(before.lineEdit(), QStringLiteral("3x"));
    EXPECT_EQ(before.currentText(), QStringLiteral("3"));
    EXPECT_TRUE(timer.isActive()) << "a tick aims at the next second";
    Press("Chk_BauWeckfunktion");
    EXPECT_FALSE(timer.isActive());

    auto& sleep = Find<QTimer>("Tmr_Schlafweckfunktion");
    Press("Chk_Schlafzeitenwecker");
    Press("Cmd_AddSchlafzeit");
    m_now = *ParseDateTime("18.11.2006 23:29:00");
    QMetaObject::invokeMethod(&sleep, "timeout");
    EXPECT_EQ(m_sound.played.size(), 3U);
    m_window.close();
    EXPECT_FALSE(sleep.isActive());
    EXPECT_NE(ReadFileToString(m_folder / "config.cfg").find("Schlafzeitenwecker=1"),
              std::string::npos);
}

// A file that can't be played gives a beep, and the next one plays.
TEST_F(StartStop, SoundPlaysOnlyCompleteWaveFiles) {
    const std::string good = ReadFileToString(m_folder / "mfx" / "alert.wav");
    std::string withoutFormat = good;
    withoutFormat.replace(withoutFormat.find("fmt "), 4, "xxx ");
    // Offsets in the header: 0 format, 4 sample rate, 14 bits per sample.
    const auto with = [&](std::size_t position, std::uint32_t value, std::size_t length) {
        std::string bytes = good;
        for (std::size_t i = 0; i < length; ++i) {
            bytes[bytes.find("fmt ") + 8 + position + i] = static_cast<char>(value >> 8 * i);
        }
        return bytes;
    };
    const std::vector<std::pair<std::string, bool>> cases{{good, true},
                                                          {with(4, 10, 4), false},
                                                          {with(4, 41, 4), false},
                                                          {with(4, 7999, 4), false},
                                                          {with(4, 8000, 4), true},
                                                          {with(4, 192000, 4), true},
                                                          {with(4, 192001, 4), false},
                                                          {with(0, 3, 2), false},
                                                          {with(14, 24, 2), false},
                                                          {"kein Ton", false},
                                                          {"", false},
                                                          {good.substr(0, 30), false},
                                                          {good.substr(0, good.size() - 1), false},
                                                          {withoutFormat, false},
                                                          {good, true}};
    SoundPlayer sound;
    for (const auto& [bytes, playable] : cases) {
        WriteFile(m_folder / "ton.wav", bytes);
        EXPECT_EQ(ReadWave(m_folder / "ton.wav").has_value(), playable) << bytes.size();
        sound.Play(m_folder / "ton.wav");
        QTest::qWait(50);
    }
    EXPECT_FALSE(ReadWave(m_folder / "mfx"));
    EXPECT_FALSE(ReadWave(m_folder / "fehlt.wav"));
}

// The timer is due within the next second, 50 ms after it begins, whenever it was started.
TEST_F(StartStop, TimerAimsAtTheNextSecond) {
    SecondTimer timer(QStringLiteral("takt"), nullptr);
    timer.SetRunning(true);
    for (int i = 0; i < 20; ++i) {
        constexpr int kEarliest = 40;
        constexpr int kLatest = 800;
        constexpr qint64 kSecond = 1000;
        // It is due between these two moments, however far apart they are on a busy machine.
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const int remaining = timer.remainingTime();
        const qint64 after = QDateTime::currentMSecsSinceEpoch();
        const qint64 from = (before + remaining) % kSecond;
        const qint64 until = from + after - before;
        EXPECT_TRUE((from < kLatest && until >= kEarliest) || until >= kSecond + kEarliest)
            << from << " " << until;
        EXPECT_LE(timer.interval(), 1050);
        QTest::qWait(i);
        QMetaObject::invokeMethod(&timer, "timeout");
    }
    timer.SetRunning(false);
    EXPECT_FALSE(timer.isActive());
}

/// The files of a skin in the order in which they are fetched, and their pictures.
const std::vector<std::pair<const char*, const char*>> kSkinFiles{
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

/// Recognises pictures by the colour of one pixel.
class Skins : public MainWindow {
  protected:
    static QColor ColorOf(const QLabel& picture) {
        return picture.pixmap(Qt::ReturnByValue).toImage().pixelColor(0, 0);
    }
    QColor Color(const char* picture) { return ColorOf(Find<QLabel>(picture)); }
    static std::string Picture(const QColor& color) {
        QImage picture(2, 2, QImage::Format_RGB32);
        picture.fill(color);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        picture.save(&buffer, "PNG");
        return bytes.toStdString();
    }
    void ChooseSource(const char* option) { Find<QRadioButton>(option).click(); }
    fs::path WebSkinFolder() { return m_folder / "img" / "skins" / "temp_webskin"; }
    /// Puts a skin below an address, each picture in a colour of its own.
    void PutOnline(const std::string& address) {
        int red = 0;
        for (const auto& [file, picture] : kSkinFiles) {
            m_fetcher.files[address + "/" + file + ".gif"] = Picture(QColor(red += 5, 0, 0));
        }
    }
};

TEST_F(Skins, SourcesShowTheirInputs) {
    struct Case {
        const char* option;
        const char* label;
        bool path;
        bool list;
    };
    Choose("mnuSkin");
    EXPECT_FALSE(Find<QLabel>("Images(4)").pixmap(Qt::ReturnByValue).isNull());
    const QColor before = Color("ImgSKW");
    for (const auto& [option, label, path, list] :
         {Case{"Opt_Web", " Web-Verzeichnis: ", true, false},
          Case{"Opt_Lokal", " Skin-Unterordner wählen: ", false, true},
          Case{"Opt_Standard", " Standard-Skin benutzen. ", false, false}}) {
        ChooseSource(option);
        EXPECT_EQ(TextOf("LBL_Skin"), label);
        EXPECT_EQ(Find("txt_Pfad").isVisible(), path) << option;
        EXPECT_EQ(Find("Comb_Skins").isVisible(), list) << option;
    }
    EXPECT_EQ(Color("ImgSKW"), before);
}

TEST_F(Skins, LocalSkinKeepsPicturesThatItLacks) {
    const auto blue = m_folder / "img" / "skins" / "blau" / "gebaeude";
    fs::create_directories(blue);
    WriteFile(blue / "4.gif", Picture(Qt::blue));
    WriteFile(blue / "1.gif", "kein Bild");
    const QColor before = Color("ImgMetMine");
    Choose("mnuSkin");
    ChooseSource("Opt_Lokal");
    Press("Cmd_ApplySkin");
    EXPECT_EQ(Color("ImgSKW"), QColor(Qt::blue));
    EXPECT_EQ(Color("ImgMetMine"), before);
    EXPECT_FALSE(Find("Fra_Skin").isVisible());
    m_window.close();
    m_dialogs.answer = false;
    Restart start(m_environment);
    EXPECT_EQ(ColorOf(*start->findChild<QLabel*>(QStringLiteral("ImgSKW"))), QColor(Qt::blue));
    EXPECT_TRUE(start->findChild<QRadioButton*>(QStringLiteral("Opt_Lokal"))->isChecked());
}

TEST_F(Skins, WebSkinIsFetchedFileByFile) {
    PutOnline("http://skin.example/");
    ChooseSource("Opt_Web");
    Find<QLineEdit>("txt_Pfad").setText(QStringLiteral("http://skin.example/"));
    Press("Cmd_ApplySkin");
    ASSERT_EQ(m_fetcher.addresses.size(), kSkinFiles.size());
    for (std::size_t i = 0; i < kSkinFiles.size(); ++i) {
        const auto& [file, picture] = kSkinFiles[i];
        EXPECT_EQ(m_fetcher.addresses[i], std::string("http://skin.example//") + file + ".gif");
        EXPECT_EQ(Color(picture), QColor(5 * static_cast<int>(i + 1), 0, 0)) << picture;
    }
    EXPECT_EQ(m_dialogs.texts.size(), 1U);
    EXPECT_EQ(TextOf("txt_Pfad"), "http://skin.example");
    m_window.close();
    const std::string config = ReadFileToString(m_folder / "config.cfg");
    EXPECT_NE(config.find("Mode=3\r\nPath=temp_webskin\r\nWebPath=http://skin.example\r\n"),
              std::string::npos)
        << config;
    m_fetcher.addresses.clear();
    Restart start(m_environment);
    EXPECT_TRUE(m_fetcher.addresses.empty()) << "a start fetches nothing";
    EXPECT_TRUE(start->findChild<QRadioButton*>(QStringLiteral("Opt_Web"))->isChecked());
    EXPECT_EQ(ColorOf(*start->findChild<QLabel*>(QStringLiteral("ImgMetMine"))), QColor(5, 0, 0))
        << "what landed is shown";
}

// The folder for web skins is missing, and isn't created.
TEST_F(Skins, WebSkinAsksAtEachMissingFile) {
    PutOnline("http://a");
    fs::remove_all(WebSkinFolder());
    ChooseSource("Opt_Web");
    Find<QLineEdit>("txt_Pfad").setText(QStringLiteral("http://a"));
    m_dialogs.answer = false;
    Press("Cmd_ApplySkin");
    EXPECT_EQ(m_dialogs.texts.size(), 1U + 24U);
    EXPECT_EQ(m_dialogs.headers.front(),
              std::pair(std::string("Fortsetzen..."), MessageIcon::Information));
    EXPECT_EQ(m_dialogs.headers.back(),
              std::pair(std::string("Download-Fehler..."), MessageIcon::Warning));
}

// Closing the window ends a fetch, and nothing more is asked or shown.
TEST_F(Skins, ClosingEndsTheFetch) {
    ChooseSource("Opt_Web");
    m_fetcher.onFetch = [this] {
        if (m_fetcher.addresses.size() == 3) {
            m_window.close();
        }
    };
    Press("Cmd_ApplySkin");
    EXPECT_EQ(m_fetcher.addresses.size(), 3U);
    EXPECT_EQ(m_dialogs.texts.size(), 3U) << "one at the start, two for the missing files";
    EXPECT_EQ(m_fetcher.aborted, 1);
    EXPECT_TRUE(fs::exists(m_folder / "saves" / "autosave.tvf"));
    Choose("mnu_UpdateCheck");
    EXPECT_EQ(m_dialogs.texts.size(), 3U);
}

TEST_F(StartStop, VersionCheckComparesEveryCharacter) {
    Choose("mnu_UpdateCheck");
    EXPECT_EQ(m_dialogs.texts.back(), "Die Versions-Datei konnte nicht geladen werden...");
    EXPECT_EQ(m_dialogs.headers.back(),
              std::pair(std::string("Version-Check..."), MessageIcon::Error));
    const std::string address = m_fetcher.addresses.at(0);
    EXPECT_TRUE(address.ends_with("/tarvelinversion.txt"));
    for (const auto& [content, same] : std::vector<std::pair<std::string, bool>>{
             {kVersion, true},
             {kVersion + std::string("\r\n"), false},
             {"0.9.0", false},
             {"", false},
             {std::string("<b>") + kVersion + "</b>", false}}) {
        m_fetcher.files[address] = content;
        Choose("mnu_UpdateCheck");
        const std::string& text = m_dialogs.texts.back();
        EXPECT_EQ(text.find("NICHT") == std::string::npos, same) << content;
        EXPECT_TRUE(same ||
                    text.find(std::string("(v") + content + ")zu sein!\r\n") != std::string::npos);
    }
    std::string longText;
    for (int i = 0; i < 100; ++i) {
        longText += "ä";
    }
    EXPECT_NE(VersionQuestion(longText).text.find("(v" + longText.substr(0, 128) + ")zu"),
              std::string::npos);
    // Bytes that are no valid UTF-8 count as one character each.
    EXPECT_LT(VersionQuestion(std::string(1000, '\x80')).text.size(), 300U);
    EXPECT_EQ(m_dialogs.headers.back(),
              std::pair(std::string("Version-Check..."), MessageIcon::Information));
    EXPECT_TRUE(m_pages.empty());
    m_dialogs.answer = true;
    Choose("mnu_UpdateCheck");
    ASSERT_EQ(m_pages.size(), 1U);
    EXPECT_TRUE(m_pages[0].ends_with("/modules.php?name=Downloads&d_op=viewdownload&cid=9"));
}

TEST_F(StartStop, InfoWindowsOpenOnceAndLeadToThePages) {
    const auto window = [](const char* name) {
        std::vector<QWidget*> found;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == QString::fromLatin1(name)) {
                found.push_back(widget);
            }
        }
        return found;
    };
    Choose("mnuAbout_TV");
    Choose("mnuAbout_TV");
    ASSERT_EQ(window("frmAbout").size(), 1U);
    QWidget& about = *window("frmAbout")[0];
    EXPECT_EQ(about.findChild<QLabel*>(QStringLiteral("lblVersion"))->text(),
              QStringLiteral(" Version ") + QString::fromLatin1(kVersion));
    about.findChild<QAbstractButton*>(QStringLiteral("Label1"))->click();
    EXPECT_EQ(m_pages, std::vector<std::string>{HomePage()});
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        about.findChild<QWidget*>(QStringLiteral("Label1"))->setFocus();
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_FALSE(about.isVisible());
        Choose("mnuAbout_TV");
        about.showMinimized();
        Choose("mnuAbout_TV");
        EXPECT_TRUE(about.isVisible() && !about.isMinimized());
    }
    EXPECT_EQ(m_pages.size(), 1U);
    about.close();

    Press("ImgDonate_1");
    Choose("mnu_DOnate");
    ASSERT_EQ(window("frmDonate").size(), 1U);
    QWidget& donate = *window("frmDonate")[0];
    m_pages.clear();
    for (auto* const button : donate.findChildren<PictureButton*>()) {
        button->click();
    }
    ASSERT_EQ(m_pages.size(), 6U);
    const auto has = [&](std::size_t i, const char* part) {
        return m_pages[i].find(part) != std::string::npos;
    };
    EXPECT_TRUE(has(0,
                    "&item_name=Spende%20f%c3%bcr%20das%20Tarvelin%2dProjekt"
                    "&amount=0%2e50&no_shipping=1&cn="));
    EXPECT_TRUE(has(4, "&amount=10%2e00&"));
    EXPECT_FALSE(has(5, "amount"));
    EXPECT_TRUE(has(5, "&no_shipping=1&no_note=1&cn=Optionales"));
    EXPECT_NE(m_pages[5].substr(0, m_pages[5].find("&item")),
              m_pages[4].substr(0, m_pages[4].find("&item")));
    // They stay open when the main window closes.
    bool written = false;
    QObject::connect(&m_window, &frmMain::Closed,
                     [&] { written = fs::exists(m_folder / "saves" / "autosave.tvf"); });
    m_window.close();
    EXPECT_TRUE(donate.isVisible());
    EXPECT_TRUE(written) << "the folder is free when all is kept";
}

}  // namespace
}  // namespace tarvelin
