// Tests the real message boxes; a timer presses their buttons.
#include "ui/services/QtDialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <functional>
#include <set>

#include "TestSupport.h"

namespace tarvelin {
namespace {

/// Looks at the box that comes up, and presses a button of it.
class ButtonPresser {
  public:
    ButtonPresser(const QString& button, const std::function<void(QMessageBox&)>& look) {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, [button, look] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                return;
            }
            look(*box);
            for (QAbstractButton* const b : box->buttons()) {
                if (b->text().remove(QLatin1Char('&')) == button) {
                    b->click();
                    return;
                }
            }
            ADD_FAILURE() << "no button " << button.toStdString();
            box->reject();
        });
        m_timer.start();
    }

  private:
    QTimer m_timer;
};

TEST(QtDialogs, ShowsMessagesAsTheyAre) {
    const ButtonPresser presser(QStringLiteral("OK"), [](const QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Tarvelin"));
        EXPECT_EQ(box.text(), QStringLiteral("a < b & <b>c</b>"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.buttons().size(), 1);
    });
    QtDialogs().Show({.text = "a < b & <b>c</b>", .title = ""});
}

TEST(QtDialogs, AsksInGerman) {
    for (const bool yes : {true, false}) {
        const ButtonPresser presser(yes ? QStringLiteral("Ja") : QStringLiteral("Nein"),
                                    [](const QMessageBox& box) {
                                        EXPECT_EQ(box.windowTitle(), QStringLiteral("Frage..."));
                                        EXPECT_EQ(box.buttons().size(), 2);
                                    });
        EXPECT_EQ(QtDialogs().Ask({.text = "Wirklich?", .title = "Frage..."}), yes);
    }
}

TEST(QtDialogs, SuppressibleOnesHaveACheckBox) {
    for (const bool suppress : {true, false}) {
        const ButtonPresser presser(QStringLiteral("OK"), [suppress](const QMessageBox& box) {
            box.checkBox()->setChecked(suppress);
        });
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
