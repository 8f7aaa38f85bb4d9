// Tests the main window from start to end: plan files, recovery, alarms, skins, menu "Info".
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

#include "MainWindowFixture.h"
#include "ui/mainwindow/MakerSite.h"
#include "ui/mainwindow/WebSkin.h"
#include "ui/services/FolderLock.h"
#include "ui/services/SoundPlayer.h"
#include "ui/services/WaveFile.h"
#include "ui/widgets/PictureButton.h"

namespace tarvelin {
namespace {

namespace fs = std::filesystem;

using StartStop = MainWindow;

/// The program, started once more in the same folder.
struct Restart : ProgramWindows {
    explicit Restart(const Environment& environment) : ProgramWindows(environment) {
        static_cast<FakeDialogs&>(environment.dialogs).closedAll = false;
        Start();
    }
    ~Restart() override { Close(); }

    template <class T = QWidget>
    T& Find(const char* name) {
        return FindIn<T>(MainWindow(), name);
    }
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
        EXPECT_EQ(start.Find<QTreeView>("LV_Bauliste").model()->rowCount(), again ? 2 : 0);
        EXPECT_EQ(start.Find("Fra_Einstellungen").isVisible(), !again);
    }
    m_environment.planArgument = m_folder / "saves" / (kWindows ? "[].tvf" : "[*].tvf");
    EXPECT_TRUE(SaveBauliste(m_environment.planArgument, PlanOf("GS GM GK")));
    {
        Restart start(m_environment);
        EXPECT_EQ(start.Find<QTreeView>("LV_Bauliste").model()->rowCount(), 3);
        EXPECT_TRUE(start.MainWindow().windowTitle().endsWith(
            kWindows ? QStringLiteral("( [].tvf )") : QStringLiteral("( [*][*].tvf )")));
    }
    // Closed while it starts.
    ProgramWindows program(m_environment);
    m_dialogs.closedAll = false;
    m_dialogs.onMessage = [&] { program.Close(); };
    program.Start();
    EXPECT_FALSE(FindIn<QTimer>(program.MainWindow(), "Tmr_Autosave").isActive());
}

TEST_F(StartStop, FolderBelongsToTheFirstProgram) {
    const auto isHeld = [this](const char* name) {
        return FolderLock(m_folder / name).HeldByOther();
    };
    FolderLock first(m_folder / "");
    EXPECT_FALSE(first.HeldByOther());
    EXPECT_TRUE(isHeld(""));
    EXPECT_FALSE(isHeld("saves"));
    first.Release();
    EXPECT_FALSE(isHeld(""));
    // Stale locks: no such process, an empty lock, another machine, our own process id.
    const std::string own = std::to_string(NativeFileSystem().ProcessId());
    const std::string name = QCoreApplication::applicationName().toStdString();
    for (const std::string& lock :
         {std::string("4194996\ntarvelin\n\n"), std::string(),
          std::string("1\nx\nanderswo\n1\n1\n"), own + "\n" + name + "\n\n"}) {
        WriteFile(m_folder / "mfx" / "tarvelin.lock", lock);
        EXPECT_FALSE(isHeld("mfx")) << lock;
    }
    EXPECT_FALSE(isHeld("fehlt"));
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
    Press("Chk_Speedfaktor");
    auto& buffer = Find<QSlider>("HSC_KlickPuffer");
    const int seconds = buffer.value();
    buffer.setValue(60);
    auto& list = Find<QTreeView>("LV_Bauliste");
    for (int i = 0; i < 2; ++i) {
        Choose("mnu_DateiLaden");
        EXPECT_EQ(RowCount("LV_Bauliste"), 2);
        EXPECT_EQ(RowCount("LV_Bauzeiten"), 2);
        EXPECT_EQ(RowCount("LV_Schlafzeiten"), 0);
        EXPECT_TRUE(Find("LBLDesc(0)").isVisible());
        EXPECT_EQ(TextOf("txt_TempMax"), "11");
        EXPECT_EQ(buffer.value(), seconds);
        EXPECT_FALSE(Find<QCheckBox>("Chk_Speedfaktor").isChecked());
        EXPECT_FALSE(list.currentIndex().isValid()) << "another list";
        list.setCurrentIndex(list.model()->index(0, 0));
    }
    EXPECT_TRUE(m_window.windowTitle().endsWith(QStringLiteral("      ( meiner )")));
    EXPECT_TRUE(m_dialogs.texts.empty());
}

TEST_F(StartStop, NewBeginsToday) {
    Load(PlanOf("GM"));
    Choose("mnuSleep");
    Choose("mnuEinstellungen");
    Press("Chk_BauWeckfunktion");
    Type("txt_UniStartZeitStunden", "99");
    m_now = *ParseDateTime("05.03.2007 01:00:00");
    Choose("mnu_DateiNeu");
    EXPECT_EQ(RowCount("LV_Bauliste") + RowCount("LV_Bauzeiten"), 0);
    EXPECT_EQ(TextOf("LBL_Punkte"), "0");
    EXPECT_EQ(TextOf("LBL_Timegone"), "Dauer: dd:hh:mm:ss");
    EXPECT_EQ(TextOf("txt_UniStartZeitJahr"), "2007");
    EXPECT_EQ(TextOf("LBL_Weekday"), "Mo.") << "whatever the hour says";
    EXPECT_TRUE(Find("Fra_Einstellungen").isVisible());
    EXPECT_FALSE(Find("Fra_Sleep").isVisible());
    EXPECT_FALSE(Find<QCheckBox>("Chk_BauWeckfunktion").isChecked()) << "as stored";
}

TEST_F(StartStop, AlarmsRingOnlyWhileTheyAreOn) {
    Load("GS GM");
    m_document.RunSimulation(true);
    m_now = m_document.CurrentRun().LV_Bauzeiten[1].start + -10;
    auto& timer = Find<QTimer>("Tmr_BauWeckfunktion");
    const auto tick = [&] { QMetaObject::invokeMethod(&timer, "timeout"); };
    Press("Chk_BauWeckfunktion");
    EXPECT_TRUE(timer.isActive());
    tick();
    EXPECT_EQ(m_sound.played, std::vector<fs::path>{m_folder / "mfx" / "alert.wav"});
    auto& before = Find<QComboBox>("Comb_Before");
    before.lineEdit()->clear();
    QTest::keyClicks(before.lineEdit(), QStringLiteral("9x"));
    tick();
    EXPECT_EQ(m_sound.played.size(), 1U);
    m_now = m_now + 1;
    const fs::path gong = m_folder / "anderswo" / "gong.wav";
    WriteFile(m_folder / "config.cfg", "[SoundSettings]\r\nAlertsound=" + gong.string() + "\r\n");
    tick();
    EXPECT_EQ(m_sound.played.back(), gong) << "read anew at each alarm";
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
    const std::size_t format = good.find("fmt ");
    // Offsets in the format: 0 kind, 4 sample rate, 14 bits per sample.
    const auto with = [&](std::size_t offset, std::uint32_t value, std::size_t length) {
        std::string bytes = good;
        for (std::size_t i = 0; i < length; ++i) {
            bytes[format + 8 + offset + i] = static_cast<char>(value >> 8 * i);
        }
        return bytes;
    };
    const std::vector<std::string> playable{with(4, 8000, 4), with(4, 192000, 4), good};
    std::vector<std::string> all{with(4, 7999, 4),
                                 with(4, 192001, 4),
                                 with(0, 3, 2),
                                 with(14, 24, 2),
                                 "kein Ton",
                                 "",
                                 good.substr(0, 30),
                                 good.substr(0, good.size() - 1),
                                 std::string(good).replace(format, 4, "xxx ")};
    all.insert(all.end(), playable.begin(), playable.end());
    SoundPlayer sound;
    for (const std::string& bytes : all) {
        WriteFile(m_folder / "ton.wav", bytes);
        EXPECT_EQ(ReadWave(m_folder / "ton.wav").has_value(),
                  std::ranges::count(playable, bytes) == 1)
            << bytes.size();
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
        // It is due between these two moments, however far apart they are on a busy machine.
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        const qint64 from = (before + timer.remainingTime()) % 1000;
        const qint64 until = from + QDateTime::currentMSecsSinceEpoch() - before;
        EXPECT_TRUE((from < 800 && until >= 40) || until >= 1040) << from << " " << until;
        EXPECT_LE(timer.interval(), 1050);
        QTest::qWait(i);
        QMetaObject::invokeMethod(&timer, "timeout");
    }
    timer.SetRunning(false);
    EXPECT_FALSE(timer.isActive());
}

/// Recognises pictures by the colour of one pixel.
class Skins : public MainWindow {
  protected:
    static QColor ColorOf(const QLabel& picture) {
        return picture.pixmap(Qt::ReturnByValue).toImage().pixelColor(0, 0);
    }
    QColor Color(const char* picture) { return ColorOf(Find<QLabel>(picture)); }
    static std::string Picture(const QColor& color) {
        return "P3 1 1 255 " + std::to_string(color.red()) + " " + std::to_string(color.green()) +
               " " + std::to_string(color.blue()) + "\n";
    }
    void ChooseSource(const char* option) { Find<QRadioButton>(option).click(); }
    /// Puts a skin below an address, each picture in a colour of its own.
    void PutOnline(const std::string& address) {
        int red = 0;
        for (const SkinPicture& picture : SkinPictures()) {
            m_fetcher.files[address + "/" + std::string(picture.folder) + "/" +
                            std::string(picture.name) + ".gif"] = Picture(QColor(red += 5, 0, 0));
        }
    }
    void ApplyWebSkin(const char* address) {
        ChooseSource("Opt_Web");
        Find<QLineEdit>("txt_Pfad").setText(QString::fromLatin1(address));
        Press("Cmd_ApplySkin");
    }
};

TEST_F(Skins, LocalSkinKeepsPicturesThatItLacks) {
    const auto blue = m_folder / "img" / "skins" / "blau" / "gebaeude";
    fs::create_directories(blue);
    WriteFile(blue / "4.gif", Picture(Qt::blue));
    WriteFile(blue / "1.gif", "kein Bild");
    const QColor before = Color("ImgMetMine");
    Choose("mnuSkin");
    const auto& skins = Find<QComboBox>("Comb_Skins");
    EXPECT_EQ(skins.count(), 1);
    for (const auto& [option, path, list] :
         {std::tuple("Opt_Web", true, false), std::tuple("Opt_Standard", false, false),
          std::tuple("Opt_Lokal", false, true)}) {
        const std::string label = TextOf("LBL_Skin");
        ChooseSource(option);
        EXPECT_NE(TextOf("LBL_Skin"), label);
        EXPECT_EQ(Find("txt_Pfad").isVisible(), path) << option;
        EXPECT_EQ(Find("Comb_Skins").isVisible(), list) << option;
    }
    // Each opening reads the folder anew.
    fs::create_directory(m_folder / "img" / "skins" / "rot");
    Choose("mnu_SpecialEvents");
    EXPECT_EQ(skins.count(), 2);
    Choose("mnuSkin");
    EXPECT_NE(Color("ImgSKW"), QColor(Qt::blue)) << "not yet applied";
    Press("Cmd_ApplySkin");
    EXPECT_EQ(Color("ImgSKW"), QColor(Qt::blue));
    EXPECT_EQ(Color("ImgMetMine"), before);
    EXPECT_FALSE(Find("Fra_Skin").isVisible());
    m_window.close();
    {
        Restart start(m_environment);
        EXPECT_EQ(ColorOf(start.Find<QLabel>("ImgSKW")), QColor(Qt::blue));
        EXPECT_TRUE(start.Find<QRadioButton>("Opt_Lokal").isChecked());
    }
    // Without any pictures the window opens all the same.
    fs::remove_all(m_folder / "img");
    Restart start(m_environment);
    EXPECT_EQ(start.Find("ImgSKW").cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(Skins, WebSkinIsFetchedFileByFile) {
    PutOnline("http://skin.example/");
    // The folder for web skins isn't created.
    const auto folder = m_folder / "img" / "skins" / "temp_webskin";
    fs::rename(folder, m_folder / "weg");
    ApplyWebSkin("http://skin.example/");
    EXPECT_EQ(m_dialogs.texts.size(), 1U + 24U) << "a notice, a question for each file";
    EXPECT_EQ(m_dialogs.headers.front(),
              std::pair(std::string("Fortsetzen..."), MessageIcon::Information));
    EXPECT_EQ(m_dialogs.headers.back(),
              std::pair(std::string("Download-Fehler..."), MessageIcon::Warning));
    fs::rename(m_folder / "weg", folder);
    m_fetcher.addresses.clear();
    ApplyWebSkin("http://skin.example/");
    EXPECT_EQ(m_dialogs.texts.size(), 26U);
    EXPECT_EQ(m_fetcher.addresses.size(), 24U);
    int red = 0;
    for (const SkinPicture& picture : SkinPictures()) {
        const std::string name(picture.pictureName);
        EXPECT_EQ(Color(name.c_str()), QColor(red += 5, 0, 0)) << name;
    }
    EXPECT_EQ(TextOf("txt_Pfad"), "http://skin.example");
    m_window.close();
    m_fetcher.addresses.clear();
    Restart start(m_environment);
    EXPECT_TRUE(m_fetcher.addresses.empty()) << "a start fetches nothing";
    EXPECT_TRUE(start.Find<QRadioButton>("Opt_Web").isChecked());
    EXPECT_EQ(start.Find<QLineEdit>("txt_Pfad").text(), QStringLiteral("http://skin.example"));
    EXPECT_EQ(ColorOf(start.Find<QLabel>("ImgMetMine")), QColor(5, 0, 0)) << "what landed is shown";
}

// Closing the window ends a fetch, and nothing more is asked or shown.
TEST_F(Skins, ClosingEndsTheFetch) {
    m_fetcher.onFetch = [this] {
        if (m_fetcher.addresses.size() == 3) {
            m_window.close();
        }
    };
    ApplyWebSkin("http://skin.example");
    EXPECT_EQ(m_fetcher.addresses.size(), 3U);
    EXPECT_EQ(m_fetcher.aborted, 1);
    EXPECT_TRUE(fs::exists(m_folder / "saves" / "autosave.tvf"));
    Choose("mnu_UpdateCheck");
    EXPECT_EQ(m_dialogs.texts.size(), 3U) << "one at the start, two for the missing files";
}

TEST_F(StartStop, VersionCheckComparesEveryCharacter) {
    Choose("mnu_UpdateCheck");
    EXPECT_EQ(m_dialogs.texts.back(), "Die Versions-Datei konnte nicht geladen werden...");
    const std::string address = m_fetcher.addresses.at(0);
    const std::string own = kVersion;
    // The answer of the server, and what is shown of it.
    for (const auto& [content, shown] : std::vector<std::pair<std::string, std::string>>{
             {own + "\r\n", own + "\r\n"},
             {"", ""},
             {"<b>" + own + "</b>", "<b>" + own + "</b>"},
             {std::string(2 * 80, '\x80'), std::string(64, '\x80')},
             {ToQString("ä").repeated(80).toStdString(),
              ToQString("ä").repeated(64).toStdString()}}) {
        m_fetcher.files[address] = content;
        Choose("mnu_UpdateCheck");
        EXPECT_NE(m_dialogs.texts.back().find("NICHT die aktuelle (v" + shown + ")zu sein!"),
                  std::string::npos)
            << content;
    }
    EXPECT_TRUE(m_pages.empty());
    m_fetcher.files[address] = own;
    m_dialogs.answer = true;
    Choose("mnu_UpdateCheck");
    EXPECT_EQ(m_dialogs.texts.back().find("NICHT"), std::string::npos);
    EXPECT_EQ(m_pages, std::vector<std::string>{DownloadsPage()});
}

TEST_F(StartStop, InfoWindowsOpenOnceAndLeadToThePages) {
    Choose("mnuAbout_TV");
    Choose("mnuAbout_TV");
    QWidget& about = OnlyWindow("frmAbout");
    auto& link = FindIn<QAbstractButton>(about, "Label1");
    link.click();
    EXPECT_EQ(m_pages, std::vector<std::string>{HomePage()});
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        about.showMinimized();
        Choose("mnuAbout_TV");
        EXPECT_TRUE(about.isVisible() && !about.isMinimized());
        link.setFocus();
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_FALSE(about.isVisible());
    }

    Press("ImgDonate_1");
    Choose("mnu_DOnate");
    QWidget& donate = OnlyWindow("frmDonate");
    m_pages.clear();
    for (auto* const button : donate.findChildren<PictureButton*>()) {
        button->click();
    }
    ASSERT_EQ(m_pages.size(), 6U);
    EXPECT_NE(m_pages[0].find("&amount=0%2e50&no_shipping=1&cn="), std::string::npos);
    EXPECT_NE(m_pages[5].find("Projekt&no_shipping=1&no_note=1&cn="), std::string::npos);
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
