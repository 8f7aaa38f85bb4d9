// Layout: groups of pictures, what the one that is pointed at would do, the factors below.
#include "ui/workbench/ItemPalette.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <array>

#include "model/ItemTable.h"
#include "simulation/RunTexts.h"
#include "ui/look/Icons.h"
#include "ui/look/WaitLook.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/workbench/PageParts.h"
#include "ui/workbench/PaletteGroups.h"
#include "ui/workbench/PalettePicture.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr int kPerRow = 5;
constexpr PerResource<const char*> kMines{{"Metallmine", "Kristallmine", "Deuteriummine"}};

/// "Deuteriummine 6"; one without a number has none here either.
std::string NameAt(ItemId item, Byte number) {
    return OrderText(Order::Of(item), number);
}

std::string PriceAndTime(const InsertPreview& preview) {
    std::string text;
    for (const Resource resource : kResources) {
        if (preview.price[resource] > 0) {
            text += GroupedText(preview.price[resource]) + " " +
                    std::string(kResourceNames[resource]) + ", ";
        }
    }
    return text + TimeSpanText(HalfEvenLong(preview.seconds));
}

std::string EnergyLine(double energy) {
    if (energy == 0) {
        return "";
    }
    return energy < 0 ? "braucht " + GroupedText(-energy) + " Energie mehr"
                      : "bringt " + GroupedText(energy) + " Energie";
}

QString DetailsText(ItemId item, const PaletteOffer& offer) {
    const std::string name = NameAt(item, offer.preview.number);
    if (offer.objection) {
        return QStringLiteral("<b>%1</b> geht hier nicht: %2")
            .arg(ToQString(std::string(RowOf(item).name)).toHtmlEscaped(),
                 ToQString(*offer.objection).toHtmlEscaped());
    }
    return QStringLiteral("<b>%1</b>: %2<br>%3")
        .arg(ToQString(name).toHtmlEscaped(), ToQString(PriceAndTime(offer.preview)),
             ToQString(EnergyLine(offer.preview.energy)));
}

QString PlaceText(std::size_t before, std::size_t size) {
    const auto row = [&](const char* text) { return QString::fromUtf8(text).arg(before + 1); };
    if (size == 0) {
        return row("Ein Klick setzt <b>Zeile %1</b>");
    }
    return before == size ? row("Ein Klick hängt <b>Zeile %1</b> an, Ziehen irgendwo")
                          : row("Ein Klick fügt vor <b>Zeile %1</b> ein, Ziehen irgendwo");
}

}  // namespace

ItemPalette::ItemPalette(QWidget* parent)
    : QWidget(parent),
      m_place(NewLabel(QStringLiteral("LBL_Einfuegeort"), {}, this)),
      m_placeIcon(new QLabel(this)),
      m_details(NewLabel(QStringLiteral("LBL_Palettenbild"), {}, this)) {
    setObjectName(QStringLiteral("Itempalette"));
    auto* const place = new QHBoxLayout;
    place->setSpacing(kControlGap);
    place->addWidget(m_placeIcon);
    place->addWidget(m_place, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
    layout->setSpacing(2);
    layout->addLayout(place);
    AddPictures(*layout);
    m_place->setTextFormat(Qt::RichText);
    m_details->setTextFormat(Qt::RichText);
    m_details->setWordWrap(true);
    m_details->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addSpacing(kControlGap);
    layout->addWidget(m_details);
    AddFactorInputs(*layout);
    layout->addStretch(1);
    ShowDetails(std::nullopt);
    FollowAppearance();
}

void ItemPalette::AddPictures(QVBoxLayout& layout) {
    for (const PaletteGroup& group : PaletteGroups()) {
        layout.addSpacing(kControlGap);
        layout.addWidget(NewSection(QString::fromUtf8(group.caption), this));
        auto* const grid = new QGridLayout;
        grid->setSpacing(0);
        grid->setColumnStretch(kPerRow, 1);
        int index = 0;
        for (const ItemId item : group.items) {
            auto* const picture =
                new PalettePicture(ToQString(ItemDisplays()[item].pictureName), this);
            picture->setAccessibleName(ToQString(RowOf(item).name));
            grid->addWidget(picture, index / kPerRow, index % kPerRow);
            connect(picture, &QAbstractButton::clicked, this,
                    [this, item] { emit ItemChosen(item); });
            connect(picture, &PalettePicture::PointedAt, this, [this, item](bool here) {
                ShowDetails(here ? std::optional(item) : std::nullopt);
            });
            m_pictures[item] = picture;
            ++index;
        }
        layout.addLayout(grid);
    }
}

void ItemPalette::AddFactorInputs(QVBoxLayout& layout) {
    layout.addSpacing(kControlGap);
    layout.addWidget(NewSection(QStringLiteral("Minen regeln"), this));
    auto* const row = new QHBoxLayout;
    row->setSpacing(kControlGap);
    for (const Resource resource : kResources) {
        const QString name = QString::fromLatin1(kMines[resource]);
        auto* const choice = new QComboBox(this);
        choice->setObjectName(QStringLiteral("Comb_") + name);
        choice->setAccessibleName(name + QStringLiteral(" in Prozent"));
        choice->setToolTip(name);
        for (int tenths = kFullFactor; tenths >= 0; --tenths) {
            choice->addItem(QStringLiteral("%1 %").arg(10 * tenths), tenths);
        }
        row->addWidget(choice, 1);
        m_factors[resource] = choice;
    }
    auto* const button = new QPushButton(QStringLiteral("Ein&fügen"), this);
    button->setObjectName(QStringLiteral("Cmd_Produktion"));
    button->setToolTip(QStringLiteral("Fügt eine Zeile ein, von der an die Minen so laufen"));
    row->addWidget(button, 1);
    layout.addLayout(row);
    connect(button, &QPushButton::clicked, this, [this] {
        MineFactors factors{};
        for (const Resource resource : kResources) {
            factors[resource] = static_cast<Byte>(m_factors[resource]->currentData().toInt());
        }
        emit ProductionChosen(factors);
    });
}

void ItemPalette::SetPictures(const PerItem<QPixmap>& pictures) {
    for (const ItemDisplay& display : ItemDisplays()) {
        m_pictures[display.item]->SetPicture(pictures[display.item]);
    }
}

void ItemPalette::ShowOffers(const PerItem<PaletteOffer>& offers, std::size_t before,
                             std::size_t size) {
    m_offers = offers;
    m_place->setText(PlaceText(before, size));
    for (const ItemDisplay& display : ItemDisplays()) {
        const PaletteOffer& offer = offers[display.item];
        PalettePicture& picture = *m_pictures[display.item];
        const QString name = QString::fromUtf8(TwoLineName(display.item));
        const bool numbered = !offer.objection && RowOf(display.item).traits.showsNumber;
        picture.SetCaption(numbered ? QStringLiteral("%1 %2").arg(name).arg(offer.preview.number)
                                    : name);
        picture.SetLocked(offer.objection.has_value());
        const QString reason = ToQString(offer.objection.value_or(""));
        SetHint(picture, reason);
        picture.setAccessibleDescription(reason);
    }
    ShowDetails(m_pointedAt);
}

void ItemPalette::ShowDetails(std::optional<ItemId> item) {
    m_pointedAt = item;
    m_details->setText(item ? DetailsText(*item, m_offers[*item])
                            : QStringLiteral("Zeig auf ein Bild: hier steht, was es kostet und was "
                                             "ihm fehlt."));
    m_details->setForegroundRole(item ? QPalette::WindowText : QPalette::PlaceholderText);
}

void ItemPalette::FollowAppearance() {
    const WorkbenchColors colors = ColorsFor(palette());
    constexpr int kSymbol = 12;
    m_placeIcon->setPixmap(SymbolIcon(Symbol::Next, Color::Accent, colors)
                               .pixmap(QSize(kSymbol, kSymbol), devicePixelRatioF()));
    for (const Resource resource : kResources) {
        const WaitLook look = LookOf(resource);
        const QIcon icon = SymbolIcon(look.symbol, look.symbolColor, colors);
        QComboBox& choice = *m_factors[resource];
        choice.setIconSize(QSize(kSymbol, kSymbol));
        for (int i = 0; i < choice.count(); ++i) {
            choice.setItemIcon(i, icon);
        }
    }
    // A fixed height, so that nothing moves when the pointer does.
    constexpr int kLines = 2;
    m_details->setFixedHeight(kLines * m_details->fontMetrics().lineSpacing() + 2);
}

}  // namespace tarvelin
