// What the tests of the window share: a window in a scripted world.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QTest>
#include <QTreeView>

#include "Hilfen.h"
#include "ui/frmMain.h"

namespace tarvelin {

/// Keeps messages and questions, and answers at once.
class Boxenmerker final : public Dialoge {
  public:
    void Zeige(const Meldung& meldung) override {
        Texte.push_back(meldung.Text);
        if (BeiMeldung) {
            BeiMeldung();
        }
    }
    void Piepton() override {}
    bool Stelle(const Frage& frage) override {
        Texte.push_back(frage.Text);
        return Antwort;
    }

    std::vector<std::string> Texte;
    std::function<void()> BeiMeldung;
    bool Antwort = false;
};

/// The window on Saturday, 18 November 2006, over the data of the repository.
class Fenster : public testing::Test {
  protected:
    Fenster() {
        m_fenster.show();
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
    void Lade(std::string_view codes) {
        m_fenster.UebernimmPlan(PlanAus(codes, m_fenster.DerLauf().Planet));
    }

    Boxenmerker m_boxen;
    Umgebung m_umgebung{.Boxen = m_boxen,
                        .Jetzt = [] { return *LiesDatumzeit("18.11.2006 09:15:00"); },
                        .Programmordner = std::filesystem::path(TARVELIN_QUELLEN) / "data"};
    frmMain m_fenster{m_umgebung};
};

}  // namespace tarvelin
