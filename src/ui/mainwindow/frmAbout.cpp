// Layout of the about box.
#include "ui/mainwindow/frmAbout.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <array>

#include "ui/mainwindow/MakerSite.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/Pictures.h"

namespace tarvelin {

namespace {

constexpr std::array<const char*, 2> kAuthors{"Das Tarvelin-Team", "und seine Spieler"};

QString Description() {
    QString text = QStringLiteral(" Programming:");
    for (const char* const author : kAuthors) {
        text += QStringLiteral("\n") + QString(15, QLatin1Char(' ')) + QString::fromUtf8(author);
    }
    return text;
}

}  // namespace

frmAbout::frmAbout(const Environment& environment) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Tarvelin"));
    const auto icon = LoadIconFile(environment.programFolder / "img" / "icon.ico");
    setWindowIcon(icon);
    constexpr int kIconSide = 64;
    QLabel* const picture =
        NewPicture(QStringLiteral("Img_About"), {kIconSide, kIconSide}, {}, this);
    picture->setPixmap(icon.pixmap({kIconSide, kIconSide}, devicePixelRatioF()));
    QLabel* const title = NewLabel(QStringLiteral("lblTitle"), QStringLiteral("Tarvelin"), this);
    QFont large = title->font();
    large.setPixelSize(2 * large.pixelSize());
    title->setFont(large);
    title->setMinimumWidth(QFontMetrics(large).boundingRect(title->text()).width() + 4);
    QPushButton* const homepage =
        NewButton(QStringLiteral("Label1"), QStringLiteral("Homepage"), this);
    homepage->setFlat(true);
    // Enter presses OK, wherever the focus is.
    homepage->setAutoDefault(false);
    homepage->setCursor(Qt::PointingHandCursor);
    homepage->setStyleSheet(QStringLiteral("color: rgb(255, 0, 0);"));
    homepage->setToolTip(QStringLiteral(" Visit "));
    connect(homepage, &QAbstractButton::clicked, this,
            [&environment] { environment.openPage(HomePage()); });
    QPushButton* const ok = NewButton(QStringLiteral("cmdOK"), QStringLiteral("OK"), this);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QWidget::close);

    auto* const layout = new QGridLayout(this);
    layout->addWidget(picture, 0, 0, 2, 1);
    layout->addWidget(title, 0, 1);
    layout->addWidget(NewLabel(QStringLiteral("lblVersion"),
                               QStringLiteral(" Version ") + QString::fromLatin1(kVersion), this),
                      1, 1);
    layout->addWidget(NewLabel(QStringLiteral("lblDescription"), Description(), this), 2, 0, 1, 2);
    layout->addWidget(homepage, 3, 0);
    layout->addWidget(ok, 3, 1);
    // Room for the window title.
    constexpr int kTextWidth = 170;
    layout->setColumnMinimumWidth(1, kTextWidth);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAbout::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace tarvelin
