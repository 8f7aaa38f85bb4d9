// Layout of the pictures, with labels on top of them that let the mouse through.
#include "ui/mainwindow/ItemGroup.h"

#include "model/ItemTable.h"

namespace tarvelin {

namespace {

constexpr int kPictureSide = TwipsToPixels(915);
constexpr int kPerColumn = 4;

QLabel* NewLevelLabel(const QString& name, const QString& text, QWidget* parent) {
    QLabel* const label = NewLabel(name, text, parent);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setAlignment(Qt::AlignCenter);
    label->setStyleSheet(
        QStringLiteral("background: rgba(16, 20, 30, 190); color: white; border-radius: 3px;"));
    return label;
}

ItemTile NewTile(ItemId item, QWidget* parent) {
    const ItemDisplay& display = ItemDisplays()[item];
    QLabel* const level =
        NewLevelLabel(ToQString(display.levelLabelName), QStringLiteral("0"), parent);
    level->setAccessibleDescription(ToQString(RowOf(item).HoverName()));
    return {.item = item,
            .picture = new ItemPicture(item, parent),
            .level = level,
            .desc = NewLevelLabel(QStringLiteral("LBLDesc(%1)").arg(IndexOf(item)),
                                  ToQString(display.caption), parent)};
}

void Place(const ItemTile& tile, const QPoint& corner) {
    constexpr int kLabelHeight = 14;
    constexpr int kMargin = 4;
    const QRect picture(corner, QSize(kPictureSide, kPictureSide));
    tile.picture->setGeometry(picture);
    const int levelWidth = tile.level->fontMetrics().horizontalAdvance(QStringLiteral("254"));
    tile.level->setGeometry(picture.right() - levelWidth - kMargin, picture.top() + 1,
                            levelWidth + kMargin, kLabelHeight);
    QRect name(picture.left(), picture.bottom() - kLabelHeight + 1, picture.width(), kLabelHeight);
    const int tooWide = tile.desc->sizeHint().width() + kMargin - name.width();
    if (tooWide > 0) {
        name.adjust(-(tooWide + 1) / 2, 0, (tooWide + 1) / 2, 0);
    }
    tile.desc->setGeometry(name);
}

}  // namespace

ItemGroup::ItemGroup(const QString& name, const QString& title, PictureGroup group, QWidget* parent)
    : GroupBox(name, title, parent) {
    for (const ItemDisplay& display : ItemDisplays()) {
        if (display.group == group) {
            m_tiles.push_back(NewTile(display.item, this));
        }
    }
    for (const ItemTile& tile : m_tiles) {
        tile.level->raise();
        tile.desc->raise();
    }
}

void ItemGroup::resizeEvent(QResizeEvent* event) {
    GroupBox::resizeEvent(event);
    const QRect inner = contentsRect();
    const auto count = static_cast<int>(m_tiles.size());
    const int columns = (count + kPerColumn - 1) / kPerColumn;
    const int width = inner.width() / columns;
    const int height = inner.height() / kPerColumn;
    for (int i = 0; i < count; ++i) {
        const QPoint corner(inner.left() + i / kPerColumn * width + (width - kPictureSide) / 2,
                            inner.top() + i % kPerColumn * height + (height - kPictureSide) / 2);
        Place(m_tiles[static_cast<std::size_t>(i)], corner);
    }
}

}  // namespace tarvelin
