// Lets a monkey click, type and drop at random in the window, with fixed seeds. Nothing may crash,
// no unknown message may come up, and the list must show the plan.
#include <QRegularExpression>
#include <random>

#include "MainWindowFixture.h"
#include "persistence/PlanFile.h"

namespace tarvelin {
namespace {

/// All texts of message boxes, without those about unknown orders, which no player can give.
const std::vector<const char*> kTexts{
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

const std::vector<Qt::Key> kKeys{Qt::Key_Return, Qt::Key_Escape,    Qt::Key_Tab,    Qt::Key_Space,
                                 Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Left,   Qt::Key_Right,
                                 Qt::Key_Home,   Qt::Key_End,       Qt::Key_PageUp, Qt::Key_Delete,
                                 Qt::Key_E,      Qt::Key_Backspace, Qt::Key_S,      Qt::Key_F1};

class Monkey : public MainWindow {
  protected:
    std::size_t Below(std::size_t count) { return m_random() % count; }

    QWidget& AnyWidget() {
        QList<QWidget*> visible;
        for (auto* const widget : m_window.findChildren<QWidget*>()) {
            // The calendar's menu of months would block until it is answered.
            if (widget->isVisible() && widget->isEnabled() && !widget->inherits("QToolButton")) {
                visible.append(widget);
            }
        }
        return *visible[static_cast<qsizetype>(Below(static_cast<std::size_t>(visible.size())))];
    }

    void Click() {
        QWidget& target = AnyWidget();
        const QPoint position(
            static_cast<int>(Below(static_cast<std::size_t>(target.width()) + 1)),
            static_cast<int>(Below(static_cast<std::size_t>(target.height()) + 1)));
        if (Below(8) == 0) {
            QTest::mouseDClick(&target, Qt::LeftButton, {}, position);
        } else {
            QTest::mouseClick(&target, Qt::LeftButton, {}, position);
        }
    }

    void Type() {
        QWidget* const target = QApplication::focusWidget();
        if (target == nullptr) {
            return;
        }
        if (Below(2) == 0) {
            const Qt::KeyboardModifiers modifiers =
                Below(6) == 0 ? Qt::AltModifier : Qt::NoModifier;
            QTest::keyClick(target, kKeys[Below(kKeys.size())], modifiers);
        } else {
            constexpr std::string_view kCharacters = "0123456789+-,.x;=[";
            QTest::keyClick(target, kCharacters[Below(kCharacters.size())]);
        }
    }

    void DoAnything() {
        m_dialogs.answer = Below(2) == 0;
        m_dialogs.file = Below(2) == 0 ? "affe.tvf" : "fehlt/affe.tvf";
        const std::size_t what = Below(20);
        if (what < 9) {
            Click();
        } else if (what < 14) {
            Type();
        } else if (what < 19) {
            emit Find<BuildListView>("LV_Bauliste")
                .DragDrop(ToQString(ItemDisplays()[Below(kNumItems)].pictureName));
        } else {
            const auto entries = m_window.findChildren<QAction*>();
            QAction& entry =
                *entries[static_cast<qsizetype>(Below(static_cast<std::size_t>(entries.size())))];
            if (entry.objectName() != QStringLiteral("mnu_Datei_Beenden")) {
                entry.trigger();
            }
        }
        QCoreApplication::processEvents();
    }

    void Check() {
        for (const std::string& text : m_dialogs.texts) {
            EXPECT_TRUE(std::ranges::any_of(kTexts, [&](const char* pattern) {
                return QRegularExpression(
                           QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)),
                           QRegularExpression::DotMatchesEverythingOption)
                    .match(QString::fromStdString(text))
                    .hasMatch();
            })) << text;
        }
        m_dialogs.texts.clear();
        const auto& rows = m_document.CurrentPlan().LV_Bauliste.Rows();
        ASSERT_EQ(RowCount("LV_Bauliste"), static_cast<int>(rows.size()));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            EXPECT_EQ(Cell("LV_Bauliste", static_cast<int>(i), 1), rows[i].SubItems1);
        }
    }

    std::mt19937 m_random;
};

TEST_F(Monkey, BreaksNothing) {
    for (const unsigned seed : {1U, 2U, 3U}) {
        m_random.seed(seed);
        for (int i = 0; i < 300; ++i) {
            SCOPED_TRACE("seed " + std::to_string(seed) + ", action " + std::to_string(i));
            DoAnything();
            Check();
            ASSERT_TRUE(m_window.isVisible() && !HasFailure());
        }
    }
    m_window.close();
    Plan plan;
    MessageRecorder messages;
    EXPECT_TRUE(ReadPlan(*IniFile::Load(m_folder / "saves" / "autosave.tvf"), plan, RunConditions(),
                         messages));
}

}  // namespace
}  // namespace tarvelin
