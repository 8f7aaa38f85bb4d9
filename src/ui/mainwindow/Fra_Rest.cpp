// Places and connects the six groups.
#include "ui/mainwindow/Fra_Rest.h"

#include <algorithm>
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

Fra_Rest::Fra_Rest(const Document& document, QWidget* parent)
    : QWidget(parent),
      m_document(document),
      m_Frame8(new BuildListGroup(document.CurrentPlan().LV_Bauliste, this)),
      m_Frame6(new ScheduleGroup(document.CurrentRun().LV_Bauzeiten, this)),
      m_tiles(AddItemGroups()) {
    setObjectName(QStringLiteral("Fra_Rest"));
    resize(TwipsToPixels(12735), TwipsToPixels(4335));
    PlaceGroup(*m_Frame8, 0, 3375);
    PlaceGroup(*m_Frame6, 9360, 3375);
    std::vector<QWidget*> tabOrder = m_Frame6->TabOrder();
    tabOrder.insert(tabOrder.begin(), m_tiles.back().picture);
    ChainTabOrder(tabOrder);
    connect(m_Frame8, &BuildListGroup::DragDrop, this, &Fra_Rest::DragDrop);
    connect(m_Frame8, &BuildListGroup::Cmd_Undo_Click, this, &Fra_Rest::Cmd_Undo_Click);
    connect(m_Frame8, &BuildListGroup::Cmd_Clear_Click, this, &Fra_Rest::Cmd_Clear_Click);
    connect(m_Frame8, &BuildListGroup::Cmd_Simulate_Click, this, &Fra_Rest::Cmd_Simulate_Click);
    connect(m_Frame6->DonationButton(), &QAbstractButton::clicked, this,
            &Fra_Rest::ImgDonate_Click);
    m_pictures = m_Frame8->StockPictures();
    m_pictures.push_back(m_Frame6->PointsPicture());
    for (const ItemTile& tile : m_tiles) {
        m_pictures.push_back(tile.picture);
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

QLabel* Fra_Rest::Picture(std::string_view name) const {
    return *std::ranges::find(m_pictures, ToQString(name), &QObject::objectName);
}

void Fra_Rest::SetCursors(const DragCursors& cursors) {
    for (const ItemTile& tile : m_tiles) {
        tile.picture->SetCursors(cursors);
    }
    m_Frame6->DonationButton()->setCursor(cursors.openHand);
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

void Fra_Rest::SetDonationPicture(const QPixmap& picture) {
    m_Frame6->DonationButton()->SetPicture(picture);
}

void Fra_Rest::ShowChange(const DocumentChange& change) {
    if (change.rows != DocumentChange::Rows::Kept) {
        m_Frame8->ShowRows(change.rows);
        RefreshStufenLabels();
    }
    if (change.results != DocumentChange::Results::Kept) {
        m_Frame8->ShowResult(m_document.Texts());
        m_Frame6->ShowResult(m_document.Texts());
        m_Frame6->ShowSchedule(change.results);
    }
    if (change.showDesc) {
        ShowNames();
    }
}

void Fra_Rest::RefreshStufenLabels() {
    for (const ItemTile& tile : m_tiles) {
        tile.level->setNum(m_document.CurrentPlan().LV_Bauliste.Orders().ListStufe(tile.item));
    }
}

void Fra_Rest::ShowNames() {
    for (const ItemTile& tile : m_tiles) {
        tile.desc->setVisible(m_document.CurrentPlan().ShowDesc);
    }
}

}  // namespace tarvelin
