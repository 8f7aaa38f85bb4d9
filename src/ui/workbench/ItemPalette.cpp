// Pictures in rows, the factors below them.
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

constexpr int kJeZeile = 5;
constexpr std::array<const char*, 3> kMinen{"Metallmine", "Kristallmine", "Deuteriummine"};

}  // namespace

Itempalette::Itempalette(QWidget* parent) : QWidget(parent), m_layout(new QGridLayout(this)) {
    setObjectName(QStringLiteral("Itempalette"));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(3);
    BaueBilder();
    BaueProduktion();
    PasseGroesseAn();
}

void Itempalette::BaueBilder() {
    int platz = 0;
    for (const ItemDisplay& ansicht : ItemDisplays()) {
        auto* const bild = new Palettenbild(ToQString(ansicht.pictureName), QSize(0, 0), {}, this);
        bild->setAccessibleName(ToQString(RowOf(ansicht.item).name));
        m_layout->addWidget(bild, platz / kJeZeile, platz % kJeZeile);
        connect(bild, &QAbstractButton::clicked, this,
                [this, item = ansicht.item] { emit ItemGewaehlt(item); });
        m_bilder[ansicht.item] = bild;
        ++platz;
    }
}

void Itempalette::BaueProduktion() {
    int zeile = m_layout->rowCount();
    for (std::size_t i = 0; i < m_faktoren.size(); ++i) {
        const QString name = QString::fromLatin1(kMinen[i]);
        auto* const wahl = new QComboBox(this);
        wahl->setObjectName(QStringLiteral("Comb_") + name);
        wahl->setAccessibleName(name + QStringLiteral(" in Prozent"));
        for (int zehntel = kFullFactor; zehntel >= 0; --zehntel) {
            wahl->addItem(QStringLiteral("%1 %").arg(10 * zehntel), zehntel);
        }
        auto* const label = new QLabel(name + QStringLiteral(":"), this);
        label->setBuddy(wahl);
        m_layout->addWidget(label, zeile, 0, 1, 3);
        m_layout->addWidget(wahl, zeile, 3, 1, 2);
        m_faktoren[i] = wahl;
        ++zeile;
    }
    auto* const knopf = new QPushButton(QStringLiteral("&Produktion einfügen"), this);
    knopf->setObjectName(QStringLiteral("Cmd_Produktion"));
    m_layout->addWidget(knopf, zeile, 0, 1, kJeZeile);
    m_layout->setRowStretch(zeile + 1, 1);
    connect(knopf, &QPushButton::clicked, this, [this] {
        MineFactors faktoren{};
        for (std::size_t i = 0; i < faktoren.size(); ++i) {
            faktoren[i] = static_cast<Byte>(m_faktoren[i]->currentData().toInt());
        }
        emit ProduktionGewaehlt(faktoren);
    });
}

void Itempalette::SetzeBilder(const PerItem<QPixmap>& bilder) {
    for (const ItemDisplay& ansicht : ItemDisplays()) {
        m_bilder[ansicht.item]->SetPicture(bilder[ansicht.item]);
    }
}

void Itempalette::SetzeEinwaende(const std::function<std::optional<std::string>(ItemId)>& einwand) {
    for (const ItemDisplay& ansicht : ItemDisplays()) {
        const auto wort = einwand(ansicht.item);
        Palettenbild& bild = *m_bilder[ansicht.item];
        bild.SetDimmed(wort.has_value());
        const QString grund = ToQString(wort.value_or(""));
        SetHint(bild, wort ? grund : ToQString(RowOf(ansicht.item).name));
        bild.setAccessibleDescription(grund);
    }
}

void Itempalette::PasseGroesseAn() {
    constexpr int kZeilen = 3;
    const int seite = kZeilen * fontMetrics().height();
    for (Palettenbild* const bild : m_bilder) {
        bild->setFixedSize(seite, seite);
    }
}

void Itempalette::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        PasseGroesseAn();
    }
}

}  // namespace tarvelin
