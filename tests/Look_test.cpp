// Tests how the workbench looks: the contrast of each color on the grounds that it is drawn on, and
// that icons are drawn whole.
#include <QImage>
#include <cmath>
#include <vector>

#include "TestSupport.h"
#include "ui/look/Icons.h"
#include "ui/look/WorkbenchColors.h"

namespace tarvelin {
namespace {

/// What texts, and lines that carry meaning, need at least.
constexpr double kText = 4.5;
constexpr double kSign = 3;

struct Ground {
    Color color;
    /// Under the band of a night.
    bool night = false;
};

struct Pairs {
    const char* what;
    Color color;
    double needs;
    /// The lowest contrast on any of the grounds, as designed.
    double light;
    double dark;
    std::vector<Ground> grounds;
};

const std::vector<Ground> kPlain{
    {Color::Window}, {Color::Toolbar}, {Color::Background}, {Color::Alternate}, {Color::Lane}};

std::vector<Ground> Plain(const std::vector<Ground>& more) {
    std::vector<Ground> grounds = kPlain;
    grounds.insert(grounds.end(), more.begin(), more.end());
    return grounds;
}

/// A row of a list or page, and what lies below a night.
const std::vector<Ground> kUsual =
    Plain({{Color::Chosen}, {Color::Hover}, {Color::Lane, true}, {Color::Background, true}});
const std::vector<Ground> kTimeline{
    {Color::Lane}, {Color::Background}, {Color::Lane, true}, {Color::Background, true}};

// clang-format off
const std::vector<Pairs> kPairs{
    {"text on window",     Color::Text,        kText, 14.2, 12.4, {{Color::Window}}},
    {"text on bars",       Color::Text,        kText, 15.3, 11.1, {{Color::Toolbar}}},
    {"text on buttons",    Color::Text,        kText, 15.8,  9.8, {{Color::Button}}},
    {"text in fields",     Color::Text,        kText, 16.2, 14.0, {{Color::Background}}},
    {"text on lanes",      Color::Text,        kText, 14.8, 12.9, {{Color::Lane}}},
    {"text in rows",       Color::Text,        kText, 12.5,  8.9, {{Color::Chosen}}},
    {"text under pointer", Color::Text,        kText, 14.0,  9.7, {{Color::Hover}}},
    {"text anywhere",      Color::Text,        kText, 10.8,  7.4, Plain({{Color::Bar}, {Color::Given}, {Color::Slack}, {Color::NightChip}, {Color::RowTint}, {Color::Lane, true}})},
    {"text, metal",        Color::Text,        kText, 13.1, 10.3, {{Color::MetallTint}}},
    {"rate of metal",      Color::Metall,      kText,  5.2,  6.4, {{Color::MetallTint}, {Color::Background}}},
    {"rate of crystal",    Color::Kristall,    kText,  5.6,  5.8, {{Color::KristallTint}, {Color::Background}}},
    {"rate of deuterium",  Color::Deuterium,   kText,  5.2,  6.2, {{Color::DeuteriumTint}, {Color::Background}}},
    {"factor at a curve",  Color::Deficit,     kText,  4.9,  4.9, {{Color::EnergyTint}, {Color::EnergyTint, true}, {Color::DeficitTint}}},
    {"text, crystal",      Color::Text,        kText, 12.7, 10.6, {{Color::KristallTint}}},
    {"text, deuterium",    Color::Text,        kText, 13.4, 10.1, {{Color::DeuteriumTint}}},
    {"text, deficit",      Color::Text,        kText, 13.1, 11.0, {{Color::DeficitTint}}},
    {"weak",               Color::Weak,        kText,  4.9,  5.0, kUsual},
    {"weak, late strip",   Color::Weak,        kText,  5.2,  6.2, {{Color::DeficitTint}}},
    {"disabled",           Color::Disabled,    kText,  4.5,  4.8, kPlain},
    {"edge",               Color::Edge,        kSign,  3.1,  3.4, kPlain},
    {"accent",             Color::Accent,      kText,  4.8,  4.9, kUsual},
    {"accent text",        Color::AccentText,  kText,  6.2,  7.6, {{Color::Accent}}},
    {"bar's edge",         Color::BarEdge,     kSign,  4.7,  5.2, kTimeline},
    {"bar's edge on bar",  Color::BarEdge,     kSign,  4.0,  3.8, {{Color::Bar}}},
    {"given edge",         Color::GivenEdge,   kSign,  3.1,  3.3, kTimeline},
    {"given text",         Color::GivenText,   kText,  4.7,  5.1, Plain({{Color::Given}, {Color::Lane, true}})},
    {"given text, chosen", Color::GivenText,   kText,  4.6,  4.5, {{Color::Chosen}}},
    {"slack edge",         Color::SlackEdge,   kSign,  3.1,  3.0, kTimeline},
    {"slack edge on tail", Color::SlackEdge,   kSign,  3.2,  3.1, {{Color::Slack}}},
    {"night text",         Color::NightText,   kText,  7.3,  7.7, {{Color::NightChip}}},
    {"metal",              Color::Metall,      kText,  5.0,  5.6, kUsual},
    {"metal on tint",      Color::Metall,      kSign,  4.5,  5.1, {{Color::MetallTint}, {Color::MetallTint, true}}},
    {"crystal",            Color::Kristall,    kText,  5.6,  4.9, kUsual},
    {"crystal on tint",    Color::Kristall,    kSign,  4.8,  4.6, {{Color::KristallTint}, {Color::KristallTint, true}}},
    {"deuterium",          Color::Deuterium,   kText,  4.8,  5.5, kUsual},
    {"deuterium on tint",  Color::Deuterium,   kSign,  4.4,  4.9, {{Color::DeuteriumTint}, {Color::DeuteriumTint, true}}},
    {"energy",             Color::Energy,      kText,  4.9,  7.3, kPlain},
    {"energy's marks",     Color::Energy,      kSign,  4.4,  5.8, kUsual},
    {"supply",             Color::EnergyCurve, kSign,  3.6,  7.5, {{Color::Background}}},
    {"supply on tint",     Color::EnergyCurve, kSign,  3.0,  5.7, {{Color::EnergyTint}, {Color::Background, true}}},
    {"deficit",            Color::Deficit,     kText,  5.0,  5.3, Plain({{Color::Chosen}, {Color::Hover}, {Color::DeficitTint}, {Color::Lane, true}, {Color::Background, true}})},
    {"gain",               Color::Gain,        kText,  5.5,  7.4, {{Color::Window}, {Color::Toolbar}, {Color::Background}}},
    {"gain's line",        Color::Gain,        kSign,  4.9,  6.6, kTimeline},
    {"now",                Color::Now,         kText,  4.7,  6.5, Plain({{Color::Lane, true}, {Color::Background, true}})},
    {"now's mark, chosen", Color::Now,         kSign,  4.7,  5.8, {{Color::Chosen}}},
    {"now's text",         Color::NowText,     kText,  6.1,  9.4, {{Color::Now}}},
    {"dots",               Color::RowDots,     kSign,  3.1,  4.1, {{Color::RowTint}}},
    {"badge text",         Color::BadgeText,   kText, 12.8, 14.0, {{Color::Badge}}},
    {"warning",            Color::WarnText,    kText,  6.6,  7.9, {{Color::WarnTint}}},
};
// clang-format on

QColor Blend(const QColor& above, const QColor& below) {
    const auto mix = [&](float a, float b) {
        return a * above.alphaF() + b * (1 - above.alphaF());
    };
    return QColor::fromRgbF(mix(above.redF(), below.redF()), mix(above.greenF(), below.greenF()),
                            mix(above.blueF(), below.blueF()));
}

/// As the guidelines for accessible web content define it.
double Luminance(const QColor& color) {
    const auto linear = [](float channel) {
        const auto part = static_cast<double>(channel);
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

double LowestContrast(const Pairs& pairs, const WorkbenchColors& colors) {
    double lowest = 21;
    for (const Ground& ground : pairs.grounds) {
        const QColor plain = colors[ground.color];
        const QColor below = ground.night ? Blend(colors[Color::Night], plain) : plain;
        lowest = std::min(lowest, Contrast(colors[pairs.color], below));
    }
    return lowest;
}

TEST(Look, EveryColorIsReadableOnItsGrounds) {
    for (const Pairs& pairs : kPairs) {
        for (const auto& [set, designed] : {std::pair(WorkbenchColors::Set::Light, pairs.light),
                                            std::pair(WorkbenchColors::Set::Dark, pairs.dark)}) {
            const double lowest = LowestContrast(pairs, WorkbenchColors(set));
            EXPECT_GE(lowest, pairs.needs) << pairs.what;
            EXPECT_GE(std::round(lowest * 10) / 10, designed) << pairs.what << ": " << lowest;
        }
    }
}

/// Calls `paint` for a square in the middle of an image, and looks at what it leaves: something, of
/// `color` alone, and nothing outside the square.
template <class PaintInto>
void ExpectWholeIn(const QColor& color, int index, PaintInto paint) {
    constexpr int kSide = 60;
    constexpr QRect kSquare(kSide / 4, kSide / 4, kSide / 2, kSide / 2);
    QImage image(kSide, kSide, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(painter, kSquare);
    painter.end();
    int solid = 0;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const QColor pixel = image.pixelColor(x, y);
            ASSERT_TRUE(pixel.alpha() == 0 || kSquare.contains(x, y))
                << index << ": " << x << "," << y;
            ASSERT_TRUE(pixel.alpha() < 255 || pixel == color) << index << ": " << x << "," << y;
            solid += pixel.alpha() == 255 ? 1 : 0;
        }
    }
    EXPECT_GT(solid, 0) << index;
}

TEST(Look, IconsAreDrawnWhole) {
    const WorkbenchColors colors(WorkbenchColors::Set::Dark);
    for (int i = 0; i < static_cast<int>(Icon::Size); ++i) {
        const QIcon icon = ToolIcon(static_cast<Icon>(i), colors);
        ExpectWholeIn(colors[Color::Disabled], i, [&](QPainter& painter, const QRect& square) {
            icon.paint(&painter, square, Qt::AlignCenter, QIcon::Disabled);
        });
        EXPECT_EQ(icon.pixmap(QSize(20, 20), 1.5).size(), QSize(30, 30));
    }
    for (int i = 0; i < static_cast<int>(Symbol::Size); ++i) {
        ExpectWholeIn(colors[Color::Gain], i, [&](QPainter& painter, const QRect& square) {
            PaintSymbol(painter, static_cast<Symbol>(i), square, colors[Color::Gain]);
        });
    }
}

}  // namespace
}  // namespace tarvelin
