// A monkey at the window: it clicks, types and drops at random, with fixed seeds. Nothing may
// crash, say what the program never says, or show another list than the plan has.
#include <QRegularExpression>
#include <random>

#include "MainWindowFixture.h"
#include "persistence/PlanFile.h"

namespace tarvelin {
namespace {

/// Every text that a box can have; but not what a run says of orders that it doesn't know, which no
/// player can give.
const std::vector<const char*> kTexte{
    "Die Bauliste ist leer\\.\\.\\.",
    "Die Bauliste ist voll: mehr als 254 Einträge sind nicht möglich\\.\\.\\.",
    "Die Bauliste konnte nicht (geladen|gespeichert) werden\\.\\.\\.",
    "Keine gültige (Temperatur|Dauer) eingegeben\\.\\.\\.",
    "Kein gültiges Datum eingegeben\\.\\.\\.",
    "Kein überschneidenden Zeiträumen eingegeben\\.\\.\\.",
    "Wirklich alle löschen \\?",
    "Negative Ressourcen: Metall: [-\\d,]+    Kristall:[-\\d,]+    Deuterium: [-\\d,]+",
    "Der folgende Vorgang kann einige Sekunden dauern, je nach Internet-Anbindung\\.\\.\\.",
    "\"/(gebaeude/\\d+|images/[a-z]+)\\.gif\" konnte nicht von der angegebenen URL geladen "
    "werden.*",
    "Die Versions-Datei konnte nicht geladen werden\\.\\.\\.",
};

const std::vector<Qt::Key> kTasten{
    Qt::Key_Return, Qt::Key_Escape,    Qt::Key_Tab,  Qt::Key_Space, Qt::Key_Up,     Qt::Key_Down,
    Qt::Key_Left,   Qt::Key_Right,     Qt::Key_Home, Qt::Key_End,   Qt::Key_PageUp, Qt::Key_Delete,
    Qt::Key_E,      Qt::Key_Backspace, Qt::Key_S,    Qt::Key_F1};

class Affe : public Fenster {
  protected:
    std::size_t Bis(std::size_t anzahl) { return m_zufall() % anzahl; }

    QWidget& IrgendeinWidget() {
        QList<QWidget*> sichtbare;
        for (auto* const widget : m_fenster.findChildren<QWidget*>()) {
            // The calendar's menu of months waits for its answer.
            if (widget->isVisible() && widget->isEnabled() && !widget->inherits("QToolButton")) {
                sichtbare.append(widget);
            }
        }
        return *sichtbare[static_cast<qsizetype>(Bis(static_cast<std::size_t>(sichtbare.size())))];
    }

    void Klicke() {
        QWidget& ziel = IrgendeinWidget();
        const QPoint ort(static_cast<int>(Bis(static_cast<std::size_t>(ziel.width()) + 1)),
                         static_cast<int>(Bis(static_cast<std::size_t>(ziel.height()) + 1)));
        if (Bis(8) == 0) {
            QTest::mouseDClick(&ziel, Qt::LeftButton, {}, ort);
        } else {
            QTest::mouseClick(&ziel, Qt::LeftButton, {}, ort);
        }
    }

    void Tippe() {
        QWidget* const ziel = QApplication::focusWidget();
        if (ziel == nullptr) {
            return;
        }
        if (Bis(2) == 0) {
            const Qt::KeyboardModifiers alt = Bis(6) == 0 ? Qt::AltModifier : Qt::NoModifier;
            QTest::keyClick(ziel, kTasten[Bis(kTasten.size())], alt);
        } else {
            constexpr std::string_view kZeichen = "0123456789+-,.x;=[";
            QTest::keyClick(ziel, kZeichen[Bis(kZeichen.size())]);
        }
    }

    void TuIrgendwas() {
        m_boxen.Antwort = Bis(2) == 0;
        m_boxen.Datei = Bis(2) == 0 ? "affe.tvf" : "fehlt/affe.tvf";
        const std::size_t was = Bis(20);
        if (was < 9) {
            Klicke();
        } else if (was < 14) {
            Tippe();
        } else if (was < 19) {
            emit Finde<BuildListView>("LV_Bauliste")
                .DragDrop(ToQString(ItemDisplays()[Bis(kNumItems)].pictureName));
        } else {
            const auto eintraege = m_fenster.findChildren<QAction*>();
            QAction& eintrag =
                *eintraege[static_cast<qsizetype>(Bis(static_cast<std::size_t>(eintraege.size())))];
            if (eintrag.objectName() != QStringLiteral("mnu_Datei_Beenden")) {
                eintrag.trigger();
            }
        }
        QCoreApplication::processEvents();
    }

    void Pruefe() {
        for (const std::string& text : m_boxen.Texte) {
            EXPECT_TRUE(std::ranges::any_of(kTexte, [&](const char* muster) {
                return QRegularExpression(
                           QRegularExpression::anchoredPattern(QString::fromUtf8(muster)),
                           QRegularExpression::DotMatchesEverythingOption)
                    .match(QString::fromStdString(text))
                    .hasMatch();
            })) << text;
        }
        m_boxen.Texte.clear();
        const auto& zeilen = m_fenster.CurrentPlan().LV_Bauliste.Rows();
        ASSERT_EQ(Zeilen("LV_Bauliste"), static_cast<int>(zeilen.size()));
        for (std::size_t i = 0; i < zeilen.size(); ++i) {
            EXPECT_EQ(Zelle("LV_Bauliste", static_cast<int>(i), 1), zeilen[i].SubItems1);
        }
    }

    std::mt19937 m_zufall;
};

TEST_F(Affe, MachtNichtsKaputt) {
    for (const unsigned saat : {1U, 2U, 3U}) {
        m_zufall.seed(saat);
        for (int i = 0; i < 300; ++i) {
            SCOPED_TRACE("seed " + std::to_string(saat) + ", action " + std::to_string(i));
            TuIrgendwas();
            Pruefe();
            ASSERT_TRUE(m_fenster.isVisible() && !HasFailure());
        }
    }
    m_fenster.close();
    Plan plan;
    Merker meldungen;
    EXPECT_TRUE(ReadPlan(*IniFile::Load(m_ordner / "saves" / "autosave.tvf"), plan, RunConditions(),
                         meldungen));
}

}  // namespace
}  // namespace tarvelin
