// The real message boxes, pressed by a timer.
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

/// Presses a button of the box that comes up, and keeps what it showed.
class Druecker {
  public:
    explicit Druecker(const QString& knopf) {
        m_takt.setInterval(10);
        QObject::connect(&m_takt, &QTimer::timeout, [this, knopf] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr) {
                return;
            }
            constexpr int kVersuche = 100;
            if (++m_versuche > kVersuche) {
                ADD_FAILURE() << "no button " << knopf.toStdString();
                box->reject();
            }
            Titel = box->windowTitle();
            Symbol = box->icon();
            Text = box->text();
            Format = box->textFormat();
            if (box->checkBox() != nullptr) {
                box->checkBox()->setChecked(Kaestchen);
            }
            for (QAbstractButton* const b : box->buttons()) {
                Knoepfe << b->text().remove(QLatin1Char('&'));
                if (Knoepfe.back() == knopf) {
                    b->click();
                }
            }
        });
        m_takt.start();
    }

    QString Titel;
    QString Text;
    QStringList Knoepfe;
    QMessageBox::Icon Symbol{};
    Qt::TextFormat Format{};
    bool Kaestchen = false;

  private:
    QTimer m_takt;
    int m_versuche = 0;
};

TEST(Meldungsfenster, ZeigtMeldungenWieSieSind) {
    Druecker druecker(QStringLiteral("OK"));
    QtDialogs().Show({.text = "a < b & <b>c</b>", .title = ""});
    EXPECT_EQ(druecker.Titel, QStringLiteral("Tarvelin"));
    EXPECT_EQ(druecker.Text, QStringLiteral("a < b & <b>c</b>"));
    EXPECT_EQ(druecker.Format, Qt::PlainText);
    EXPECT_EQ(druecker.Symbol, QMessageBox::Critical);
    EXPECT_EQ(druecker.Knoepfe, QStringList{QStringLiteral("OK")});
}

TEST(Meldungsfenster, FragtAufDeutsch) {
    for (const bool ja : {true, false}) {
        Druecker druecker(ja ? QStringLiteral("Ja") : QStringLiteral("Nein"));
        EXPECT_EQ(QtDialogs().Ask({.text = "Wirklich?", .title = "Frage..."}), ja);
        EXPECT_EQ(druecker.Titel, QStringLiteral("Frage..."));
        EXPECT_EQ(druecker.Knoepfe.size(), 2);
    }
}

TEST(Meldungsfenster, AbstellbareHabenEinKaestchen) {
    for (const bool ab : {true, false}) {
        Druecker druecker(QStringLiteral("OK"));
        druecker.Kaestchen = ab;
        EXPECT_EQ(QtDialogs().ShowSuppressible({.text = "Nochmal", .title = ""}), !ab);
    }
}

TEST(Meldungsfenster, NimmtAuchDenNamenEinerDateiDieFehlt) {
    QtDialogs boxen;
    const Ordner ordner;
    SchreibeDatei(ordner / "plan.tvf", std::string(1234, ';'));
    std::set<QString> texte;
    QTimer::singleShot(0, [&texte] {
        auto* const dateien = qobject_cast<QDialog*>(QApplication::activeModalWidget())
                                  ->findChild<QTreeView*>(QStringLiteral("treeView"));
        const auto lies = [&] {
            const auto wurzel = dateien->rootIndex();
            for (int spalte = 0; spalte < dateien->model()->columnCount(wurzel); ++spalte) {
                texte.insert(dateien->model()->index(0, spalte, wurzel).data().toString());
            }
            return texte.contains(QStringLiteral("plan.tvf"));
        };
        EXPECT_TRUE(QTest::qWaitFor(lies));
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
            ->setText(QStringLiteral("fehlt.tvf"));
        dialog->accept();
    });
    EXPECT_EQ(boxen.AskForFile(Dialogs::Purpose::Load, ordner / ""), ordner / "fehlt.tvf");
    EXPECT_TRUE(texte.contains(QStringLiteral("1,21 KiB"))) << "in German, whatever the system";
}

TEST(Meldungsfenster, AmEndeGehtZuWasOffenIst) {
    QtDialogs boxen;
    QTimer::singleShot(0, [&] { boxen.CloseAll(); });
    EXPECT_FALSE(boxen.Ask({.text = "Wirklich?", .title = ""}));
    // None of them waits for anybody.
    boxen.Show({.text = "Noch eine", .title = ""});
    EXPECT_FALSE(boxen.Ask({.text = "Und noch eine?", .title = ""}));
    EXPECT_TRUE(boxen.AskForFile(Dialogs::Purpose::Load, ".").empty());
}

}  // namespace
}  // namespace tarvelin
