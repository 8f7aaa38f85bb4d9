// Tests the real message boxes; a timer presses their buttons.
#include "ui/services/QtDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <set>

#include "TestSupport.h"

namespace tarvelin {
namespace {

/// Presses a button of the box that comes up, and records what it showed.
class ButtonPresser {
  public:
    explicit ButtonPresser(const QString& button) {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, [this, button] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                return;
            }
            constexpr int kTries = 100;
            if (++m_tries > kTries) {
                ADD_FAILURE() << "no button " << button.toStdString();
                box->reject();
            }
            title = box->windowTitle();
            icon = box->icon();
            text = box->text();
            format = box->textFormat();
            if (box->checkBox() != nullptr) {
                box->checkBox()->setChecked(checkBox);
            }
            for (QAbstractButton* const b : box->buttons()) {
                buttons << b->text().remove(QLatin1Char('&'));
                if (buttons.back() == button) {
                    b->click();
                }
            }
        });
        m_timer.start();
    }

    QString title;
    QString text;
    QStringList buttons;
    QMessageBox::Icon icon{};
    Qt::TextFormat format{};
    bool checkBox = false;

  private:
    QTimer m_timer;
    int m_tries = 0;
};

TEST(QtDialogs, ShowsMessagesAsTheyAre) {
    ButtonPresser presser(QStringLiteral("OK"));
    QtDialogs().Show({.text = "a < b & <b>c</b>", .title = ""});
    EXPECT_EQ(presser.title, QStringLiteral("Tarvelin"));
    EXPECT_EQ(presser.text, QStringLiteral("a < b & <b>c</b>"));
    EXPECT_EQ(presser.format, Qt::PlainText);
    EXPECT_EQ(presser.icon, QMessageBox::Critical);
    EXPECT_EQ(presser.buttons, QStringList{QStringLiteral("OK")});
}

TEST(QtDialogs, AsksInGerman) {
    for (const bool yes : {true, false}) {
        ButtonPresser presser(yes ? QStringLiteral("Ja") : QStringLiteral("Nein"));
        EXPECT_EQ(QtDialogs().Ask({.text = "Wirklich?", .title = "Frage..."}), yes);
        EXPECT_EQ(presser.title, QStringLiteral("Frage..."));
        EXPECT_EQ(presser.buttons.size(), 2);
    }
}

TEST(QtDialogs, SuppressibleOnesHaveACheckBox) {
    for (const bool suppress : {true, false}) {
        ButtonPresser presser(QStringLiteral("OK"));
        presser.checkBox = suppress;
        EXPECT_EQ(QtDialogs().ShowSuppressible({.text = "Nochmal", .title = ""}), !suppress);
    }
}

TEST(QtDialogs, AcceptsTheNameOfAMissingFile) {
    QtDialogs dialogs;
    const TempFolder folder;
    WriteFile(folder / "plan.tvf", std::string(1234, ';'));
    std::set<QString> texts;
    QTimer::singleShot(0, [&texts] {
        auto* const files = qobject_cast<QDialog*>(QApplication::activeModalWidget())
                                ->findChild<QTreeView*>(QStringLiteral("treeView"));
        const auto read = [&] {
            const auto root = files->rootIndex();
            for (int column = 0; column < files->model()->columnCount(root); ++column) {
                texts.insert(files->model()->index(0, column, root).data().toString());
            }
            return texts.contains(QStringLiteral("plan.tvf"));
        };
        EXPECT_TRUE(QTest::qWaitFor(read));
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(QStringLiteral("fehlt.tvf"));
        dialog->accept();
    });
    EXPECT_EQ(dialogs.AskForFile(Dialogs::Purpose::Load, folder / ""), folder / "fehlt.tvf");
    EXPECT_TRUE(texts.contains(QStringLiteral("1,21 KiB"))) << "in German, whatever the system";
}

TEST(QtDialogs, CloseAllClosesWhatIsOpen) {
    QtDialogs dialogs;
    QTimer::singleShot(0, [&] { dialogs.CloseAll(); });
    EXPECT_FALSE(dialogs.Ask({.text = "Wirklich?", .title = ""}));
    // Later boxes return at once.
    dialogs.Show({.text = "Noch eine", .title = ""});
    EXPECT_FALSE(dialogs.Ask({.text = "Und noch eine?", .title = ""}));
    EXPECT_TRUE(dialogs.AskForFile(Dialogs::Purpose::Load, ".").empty());
}

}  // namespace
}  // namespace tarvelin
