// Layout of the donation dialog.
#include "ui/mainwindow/frmDonate.h"

#include <QGridLayout>

#include "ui/mainwindow/MakerSite.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/PictureButton.h"
#include "ui/widgets/Pictures.h"

namespace tarvelin {

frmDonate::frmDonate(const Environment& umgebung) {
    setObjectName(QStringLiteral("frmDonate"));
    setWindowTitle(QStringLiteral("Tarvelin unterstützen..."));
    const auto bilder = umgebung.programFolder / "img";
    setWindowIcon(LoadIconFile(bilder / "icon.ico"));

    constexpr int kSpalten = 3;
    auto* const layout = new QGridLayout(this);
    layout->addWidget(
        NewLabel(QStringLiteral("Label1"),
                 QStringLiteral("Auch du kannst das 'Tarvelin'-Projekt unterstützen!"), this),
        0, 0, 1, kSpalten, Qt::AlignCenter);
    int stelle = kSpalten;
    for (const Spendenknopf& knopf : kSpendenknoepfe) {
        auto* const bild = new PictureButton(QString::fromLatin1(knopf.Bild), {110, 34},
                                             QString::fromUtf8(knopf.Hinweis), this);
        bild->SetPicture(LoadPixmap(bilder / knopf.Datei));
        bild->setCursor(Qt::PointingHandCursor);
        connect(bild, &QAbstractButton::clicked, this,
                [&umgebung, &knopf] { umgebung.openPage(Spendenseite(knopf)); });
        layout->addWidget(bild, stelle / kSpalten, stelle % kSpalten);
        ++stelle;
    }
    layout->addWidget(
        NewLabel(
            QStringLiteral("Label2"),
            QStringLiteral(" Alle Spenden werden über eine sichere https-Verbindung getätigt!"),
            this),
        3, 0, 1, kSpalten, Qt::AlignCenter);
    layout->addWidget(NewLabel(QStringLiteral("Label3"),
                               QStringLiteral("Schon wider Top100 ;)\n"
                                              "Jede(!) Spende hilft dem Projekt..."),
                               this),
                      4, 0, 1, kSpalten, Qt::AlignCenter);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace tarvelin
