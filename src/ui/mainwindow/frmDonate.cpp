// Layout of the donation dialog.
#include "ui/mainwindow/frmDonate.h"

#include <QGridLayout>

#include "ui/mainwindow/MakerSite.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/PictureButton.h"
#include "ui/widgets/Pictures.h"

namespace tarvelin {

frmDonate::frmDonate(const Environment& environment) {
    setObjectName(QStringLiteral("frmDonate"));
    setWindowTitle(QStringLiteral("Tarvelin unterstützen..."));
    const auto pictures = environment.programFolder / "img";
    setWindowIcon(LoadIconFile(pictures / "icon.ico"));

    constexpr int kColumns = 3;
    auto* const layout = new QGridLayout(this);
    layout->addWidget(
        NewLabel(QStringLiteral("Label1"),
                 QStringLiteral("Auch du kannst das 'Tarvelin'-Projekt unterstützen!"), this),
        0, 0, 1, kColumns, Qt::AlignCenter);
    int position = kColumns;
    for (const DonationButton& button : kDonationButtons) {
        auto* const picture = new PictureButton(QString::fromLatin1(button.pictureName), {110, 34},
                                                QString::fromUtf8(button.hint), this);
        picture->SetPicture(LoadPixmap(pictures / button.file));
        picture->setCursor(Qt::PointingHandCursor);
        connect(picture, &QAbstractButton::clicked, this,
                [&environment, &button] { environment.openPage(DonationPage(button)); });
        layout->addWidget(picture, position / kColumns, position % kColumns);
        ++position;
    }
    layout->addWidget(
        NewLabel(
            QStringLiteral("Label2"),
            QStringLiteral(" Alle Spenden werden über eine sichere https-Verbindung getätigt!"),
            this),
        3, 0, 1, kColumns, Qt::AlignCenter);
    layout->addWidget(NewLabel(QStringLiteral("Label3"),
                               QStringLiteral("Schon wider Top100 ;)\n"
                                              "Jede(!) Spende hilft dem Projekt..."),
                               this),
                      4, 0, 1, kColumns, Qt::AlignCenter);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace tarvelin
