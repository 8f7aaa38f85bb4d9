// Layout: rows of pictures, with the factors below.
#include "ui/workbench/ItemPalette.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>

#include "model/ItemTable.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/workbench/PalettePicture.h"

namespace tarvelin {

namespace {

constexpr int kPerRow = 5;
constexpr std::array<const char*, 3> kMines{"Metallmine", "Kristallmine", "Deuteriummine"};

}  // namespace

ItemPalette::ItemPalette(QWidget* parent) : QWidget(parent), m_layout(new QGridLayout(this)) {
    setObjectName(QStringLiteral("Itempalette"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(3);
    AddPictures();
    AddFactorInputs();
    FitToFont();
}

void ItemPalette::AddPictures() {
    int index = 0;
    for (const ItemDisplay& display : ItemDisplays()) {
        auto* const picture =
            new PalettePicture(ToQString(display.pictureName), QSize(0, 0), {}, this);
        picture->setAccessibleName(ToQString(RowOf(display.item).name));
        m_layout->addWidget(picture, index / kPerRow, index % kPerRow);
        connect(picture, &QAbstractButton::clicked, this,
                [this, item = display.item] { emit ItemChosen(item); });
        m_pictures[display.item] = picture;
        ++index;
    }
}

void ItemPalette::AddFactorInputs() {
    int row = m_layout->rowCount();
    for (std::size_t i = 0; i < m_factors.size(); ++i) {
        const QString name = QString::fromLatin1(kMines[i]);
        auto* const choice = new QComboBox(this);
        choice->setObjectName(QStringLiteral("Comb_") + name);
        choice->setAccessibleName(name + QStringLiteral(" in Prozent"));
        for (int tenths = kFullFactor; tenths >= 0; --tenths) {
            choice->addItem(QStringLiteral("%1 %").arg(10 * tenths), tenths);
        }
        auto* const label = new QLabel(name + QStringLiteral(":"), this);
        label->setBuddy(choice);
        m_layout->addWidget(label, row, 0, 1, 3);
        m_layout->addWidget(choice, row, 3, 1, 2);
        m_factors[i] = choice;
        ++row;
    }
    auto* const button = new QPushButton(QStringLiteral("&Produktion einfügen"), this);
    button->setObjectName(QStringLiteral("Cmd_Produktion"));
    m_layout->addWidget(button, row, 0, 1, kPerRow);
    m_layout->setRowStretch(row + 1, 1);
    connect(button, &QPushButton::clicked, this, [this] {
        MineFactors factors{};
        for (std::size_t i = 0; i < factors.size(); ++i) {
            factors[i] = static_cast<Byte>(m_factors[i]->currentData().toInt());
        }
        emit ProductionChosen(factors);
    });
}

void ItemPalette::SetPictures(const PerItem<QPixmap>& pictures) {
    for (const ItemDisplay& display : ItemDisplays()) {
        m_pictures[display.item]->SetPicture(pictures[display.item]);
    }
}

void ItemPalette::SetObjections(
    const std::function<std::optional<std::string>(ItemId)>& objection) {
    for (const ItemDisplay& display : ItemDisplays()) {
        const auto refusal = objection(display.item);
        PalettePicture& picture = *m_pictures[display.item];
        picture.SetDimmed(refusal.has_value());
        const QString reason = ToQString(refusal.value_or(""));
        SetHint(picture, refusal ? reason : ToQString(RowOf(display.item).name));
        picture.setAccessibleDescription(reason);
    }
}

void ItemPalette::FitToFont() {
    constexpr int kLines = 3;
    const int side = kLines * fontMetrics().height();
    for (PalettePicture* const picture : m_pictures) {
        picture->setFixedSize(side, side);
    }
}

void ItemPalette::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        FitToFont();
    }
}

}  // namespace tarvelin
