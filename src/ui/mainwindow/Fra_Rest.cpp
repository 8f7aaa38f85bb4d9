// Places and connects the six groups.
#include "ui/mainwindow/Fra_Rest.h"

#include <array>

namespace tarvelin {

namespace {

constexpr int kHeight = 4300;

struct GroupPlace {
    const char* name;
    const char* title;
    /// Twips.
    int left;
    int width;
    PictureGroup group;
};

// clang-format off
constexpr std::array<GroupPlace, 4> kItemGroups{{
    {"Frame3", "Gebäude:",      3480, 2175, PictureGroup::Buildings},
    {"Frame1", "Forschung:",    5760, 1155, PictureGroup::Research},
    {"Frame9", "Verteidigung:", 6960, 1155, PictureGroup::Defense},
    {"Frame4", "Raumschiffe:",  8160, 1155, PictureGroup::Ships},
}};
// clang-format on

void PlaceGroup(QWidget& group, int left, int width) {
    group.setGeometry(TwipsToPixels(left), 0, TwipsToPixels(width), TwipsToPixels(kHeight));
}

}  // namespace

Fra_Rest::Fra_Rest(const BuildList& list, const LastRun& run, QWidget* parent)
    : QWidget(parent),
      m_list(list),
      m_Frame8(new BuildListGroup(list, this)),
      m_Frame6(new ScheduleGroup(run.LV_Bauzeiten, this)),
      m_tiles(AddItemGroups()) {
    setObjectName(QStringLiteral("Fra_Rest"));
    resize(TwipsToPixels(12735), TwipsToPixels(4335));
    PlaceGroup(*m_Frame8, 0, 3375);
    PlaceGroup(*m_Frame6, 9360, 3375);
    ChainTabOrder({m_tiles.back().picture, m_Frame6->LV_Bauzeiten, m_Frame6->Chk_BauWeckfunktion,
                   m_Frame6->Comb_Before});
    connect(m_Frame8->LV_Bauliste, &BuildListView::DragDrop, this, &Fra_Rest::DragDrop);
    connect(m_Frame8->Cmd_Undo, &QPushButton::clicked, this, &Fra_Rest::Cmd_Undo_Click);
    connect(m_Frame8->Cmd_Clear, &QPushButton::clicked, this, &Fra_Rest::Cmd_Clear_Click);
    connect(m_Frame8->Cmd_Simulate, &QPushButton::clicked, this, &Fra_Rest::Cmd_Simulate_Click);
    connect(m_Frame6->ImgDonate_1, &QAbstractButton::clicked, this, &Fra_Rest::ImgDonate_Click);
    for (const ItemTile& tile : m_tiles) {
        connect(tile.picture, &ItemPicture::MouseMove, this,
                [this, tile] { emit Img_MouseMove(tile); });
        connect(tile.picture, &ItemPicture::Chosen, this,
                [this, tile] { emit DragDrop(tile.picture->objectName()); });
    }
}

PerItem<QPixmap> Fra_Rest::ItemPictures() const {
    PerItem<QPixmap> pictures;
    for (const ItemTile& tile : m_tiles) {
        pictures[tile.item] = tile.picture->pixmap(Qt::ReturnByValue);
    }
    return pictures;
}

void Fra_Rest::SetCursors(const DragCursors& cursors) {
    for (const ItemTile& tile : m_tiles) {
        tile.picture->SetCursors(cursors);
    }
    m_Frame6->ImgDonate_1->setCursor(cursors.openHand);
}

std::vector<ItemTile> Fra_Rest::AddItemGroups() {
    std::vector<ItemTile> tiles;
    for (const GroupPlace& place : kItemGroups) {
        auto* const group = new ItemGroup(QString::fromUtf8(place.name),
                                          QString::fromUtf8(place.title), place.group, this);
        if (tiles.empty()) {
            group->SetCornerLabel(NewHoverInfo(QStringLiteral("Label8"),
                                               QStringLiteral(" Drag'n'Drop in die linke Liste "),
                                               group));
        }
        PlaceGroup(*group, place.left, place.width);
        tiles.insert(tiles.end(), group->Tiles().begin(), group->Tiles().end());
    }
    return tiles;
}

void Fra_Rest::ShowList() {
    m_Frame8->ShowList();
    RefreshStufenLabels();
}

void Fra_Rest::RefreshStufenLabels() {
    for (const ItemTile& tile : m_tiles) {
        tile.level->setNum(m_list.Orders().ListStufe(tile.item));
    }
}

void Fra_Rest::ShowResult(const ResultTexts& texts) {
    m_Frame8->ShowResult(texts);
    m_Frame6->ShowResult(texts);
}

void Fra_Rest::ShowNames(bool show) {
    for (const ItemTile& tile : m_tiles) {
        tile.desc->setVisible(show);
    }
}

}  // namespace tarvelin
