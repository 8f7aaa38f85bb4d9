// What the tests of the window share: a window in a scripted world.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QTest>
#include <QTreeView>
#include <limits>
#include <map>

#include "TestSupport.h"
#include "ui/mainwindow/BuildListView.h"
#include "ui/mainwindow/frmMain.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"

namespace tarvelin {

/// Keeps messages and questions, and answers at once.
class Boxenmerker final : public Dialogs {
  public:
    void Show(const Message& meldung) override {
        if (Beendet) {
            return;
        }
        Texte.push_back(meldung.text);
        Koepfe.emplace_back(meldung.title, meldung.icon);
        if (BeiMeldung) {
            BeiMeldung();
        }
    }
    bool ShowSuppressible(const Message& meldung) override {
        Show(meldung);
        return ++Abstellbare < Abstellen;
    }
    void Beep() override {}
    bool Ask(const Question& frage) override {
        if (Beendet) {
            return false;
        }
        Texte.push_back(frage.text);
        Koepfe.emplace_back(frage.title, frage.icon);
        if (BeiFrage) {
            BeiFrage();
        }
        return Antwort && !Beendet;
    }
    std::filesystem::path AskForFile(Purpose /*zweck*/,
                                     const std::filesystem::path& ordner) override {
        return Datei.empty() || Beendet ? std::filesystem::path() : ordner / Datei;
    }
    void CloseAll() override { Beendet = true; }

    std::vector<std::string> Texte;
    /// Title and icon of each.
    std::vector<std::pair<std::string, MessageIcon>> Koepfe;
    std::function<void()> BeiMeldung;
    std::function<void()> BeiFrage;
    bool Antwort = false;
    /// The how manieth box with a check box gets it checked.
    int Abstellen = std::numeric_limits<int>::max();
    int Abstellbare = 0;
    /// What the file dialogs answer, from their folder on.
    std::filesystem::path Datei;
    bool Beendet = false;
};

/// Has the files of a table and no others; keeps what was asked.
class Netzmerker final : public Fetcher {
  public:
    std::optional<std::string> Fetch(const std::string& adresse) override {
        Adressen.push_back(adresse);
        if (BeiAbruf) {
            BeiAbruf();
        }
        const auto datei = Dateien.find(adresse);
        return datei == Dateien.end() ? std::nullopt : std::optional(datei->second);
    }
    void ProcessEvents() override {}
    void Abort() override { ++Abgebrochen; }

    std::function<void()> BeiAbruf;
    int Abgebrochen = 0;

    std::map<std::string, std::string> Dateien;
    std::vector<std::string> Adressen;
};

class Klangmerker final : public Sound {
  public:
    void Play(const std::filesystem::path& datei) override { Gespielt.push_back(datei); }

    std::vector<std::filesystem::path> Gespielt;
};

/// A move of the pointer over a control, whatever the screen's own pointer does.
inline void Bewege(QWidget& widget, const QPoint& ort) {
    QMouseEvent bewegung(QEvent::MouseMove, ort, widget.mapToGlobal(ort), Qt::NoButton, {}, {});
    QCoreApplication::sendEvent(&widget, &bewegung);
}

inline void LegeDatenAn(const std::filesystem::path& ordner) {
    namespace fs = std::filesystem;
    // One platform's library copies nothing to a name that ends with a slash.
    fs::copy(fs::path(TARVELIN_SOURCE_DIR) / "data", ordner / ".",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    fs::remove(ordner / "saves" / "basic.tvf");
}

/// The window on Saturday, 18 November 2006, in a folder of its own with the data of the
/// repository, but for the starter plan.
class Fenster : public testing::Test {
  protected:
    Fenster() {
        LegeDatenAn(m_ordner / "");
        m_fenster.Form_Load();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_fenster));
    }

    template <class T = QWidget>
    T& Finde(const char* name) {
        T* const gefunden = m_fenster.findChild<T*>(QString::fromUtf8(name));
        if (gefunden == nullptr) {
            throw std::out_of_range(name);
        }
        return *gefunden;
    }
    std::string Text(const char* name) {
        return Finde(name).property("text").toString().toStdString();
    }
    void Druecke(const char* name) { Finde<QAbstractButton>(name).click(); }
    void Waehle(const char* eintrag) { Finde<QAction>(eintrag).trigger(); }
    void Tippe(const char* name, const char* text) {
        auto& eingabe = Finde<QLineEdit>(name);
        eingabe.selectAll();
        QTest::keyClick(&eingabe, Qt::Key_Delete);
        QTest::keyClicks(&eingabe, QString::fromUtf8(text));
    }
    /// The pointer comes over a picture, or moves on it.
    void Zeige(const char* bild) {
        auto& widget = Finde(bild);
        QTest::mouseMove(&widget, QPoint(1, 1));
        QTest::mouseMove(&widget, widget.rect().center());
    }
    std::string Zelle(const char* liste, int zeile, int spalte) {
        const auto* const modell = Finde<QTreeView>(liste).model();
        return modell->index(zeile, spalte).data().toString().toStdString();
    }
    int Zeilen(const char* liste) { return Finde<QTreeView>(liste).model()->rowCount(); }
    /// Clears the list and drops items, told by their codes.
    void Lade(std::string_view codes) {
        Druecke("Cmd_Clear");
        for (std::size_t anfang = 0; anfang < codes.size();) {
            const std::size_t ende = std::min(codes.find(' ', anfang), codes.size());
            const auto item = ItemFromCode(codes.substr(anfang, ende - anfang));
            emit Finde<BuildListView>("LV_Bauliste")
                .DragDrop(ToQString(ItemDisplays()[*item].pictureName));
            anfang = ende + 1;
        }
    }
    /// Loads a plan through its file, which runs it.
    void Lade(const Plan& plan) {
        ASSERT_TRUE(SaveBauliste(m_ordner / "plan.tvf", plan));
        m_fenster.LoadBauliste(m_ordner / "plan.tvf", true);
    }

    Ordner m_ordner;
    Boxenmerker m_boxen;
    Netzmerker m_netz;
    Klangmerker m_ton;
    DateTime m_jetzt = *ParseDateTime("18.11.2006 09:15:00");
    std::vector<std::string> m_seiten;
    Environment m_umgebung{.dialogs = m_boxen,
                           .fetcher = m_netz,
                           .sound = m_ton,
                           .now = [this] { return m_jetzt; },
                           .openPage = [this](const std::string& s) { m_seiten.push_back(s); },
                           .programFolder = m_ordner / ""};
    frmMain m_fenster{m_umgebung};
};

}  // namespace tarvelin
