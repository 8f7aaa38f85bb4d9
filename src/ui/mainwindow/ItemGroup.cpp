// Pictures lie behind their labels; labels let the pointer through.
#include "ui/mainwindow/ItemGroup.h"

#include "model/ItemTable.h"

namespace tarvelin {

namespace {

constexpr int kBildseite = TwipsToPixels(915);
constexpr int kJeSpalte = 4;

QLabel* NeuesSchild(const QString& name, const QString& text, QWidget* parent) {
    QLabel* const label = NewLabel(name, text, parent);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(
        QStringLiteral("background: rgba(16, 20, 30, 190); color: white; border-radius: 3px;"));
    return label;
}

Itemplatz NeuerPlatz(ItemId item, QWidget* parent) {
    const ItemDisplay& ansicht = ItemDisplays()[item];
    QLabel* const stufe =
        NeuesSchild(ToQString(ansicht.levelLabelName), QStringLiteral("0"), parent);
    stufe->setAccessibleDescription(ToQString(RowOf(item).HoverName()));
    return {.Item = item,
            .Bild = new ItemPicture(item, parent),
            .Stufe = stufe,
            .Desc = NeuesSchild(QStringLiteral("LBLDesc(%1)").arg(IndexOf(item)),
                                ToQString(ansicht.caption), parent)};
}

void Lege(const Itemplatz& platz, const QPoint& ecke) {
    constexpr int kSchildhoehe = 14;
    constexpr int kRand = 4;
    const QRect bild(ecke, QSize(kBildseite, kBildseite));
    platz.Bild->setGeometry(bild);
    const int stufenbreite = platz.Stufe->fontMetrics().horizontalAdvance(QStringLiteral("254"));
    platz.Stufe->setGeometry(bild.right() - stufenbreite - kRand, bild.top() + 1,
                             stufenbreite + kRand, kSchildhoehe);
    QRect name(bild.left(), bild.bottom() - kSchildhoehe + 1, bild.width(), kSchildhoehe);
    const int zuBreit = platz.Desc->sizeHint().width() + kRand - name.width();
    if (zuBreit > 0) {
        name.adjust(-(zuBreit + 1) / 2, 0, (zuBreit + 1) / 2, 0);
    }
    platz.Desc->setGeometry(name);
}

}  // namespace

Itemgruppe::Itemgruppe(const QString& name, const QString& titel, PictureGroup gruppe,
                       QWidget* parent)
    : GroupBox(name, titel, parent) {
    for (const ItemDisplay& ansicht : ItemDisplays()) {
        if (ansicht.group == gruppe) {
            m_plaetze.push_back(NeuerPlatz(ansicht.item, this));
        }
    }
    for (const Itemplatz& platz : m_plaetze) {
        platz.Stufe->raise();
        platz.Desc->raise();
    }
}

void Itemgruppe::resizeEvent(QResizeEvent* event) {
    GroupBox::resizeEvent(event);
    const QRect innen = contentsRect();
    const auto anzahl = static_cast<int>(m_plaetze.size());
    const int spalten = (anzahl + kJeSpalte - 1) / kJeSpalte;
    const int breite = innen.width() / spalten;
    const int hoehe = innen.height() / kJeSpalte;
    for (int i = 0; i < anzahl; ++i) {
        const QPoint ecke(innen.left() + i / kJeSpalte * breite + (breite - kBildseite) / 2,
                          innen.top() + i % kJeSpalte * hoehe + (hoehe - kBildseite) / 2);
        Lege(m_plaetze[static_cast<std::size_t>(i)], ecke);
    }
}

}  // namespace tarvelin
