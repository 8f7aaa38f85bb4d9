// The table of the colors, and the table of the palette's roles.
#include "ui/look/WorkbenchColors.h"

#include <QtGlobal>
#include <algorithm>
#include <array>

#include "ui/services/DesktopColors.h"
#include "util/EnumArray.h"

namespace tarvelin {

namespace {

/// A color in both sets.
struct ColorRow {
    Color color;
    QRgb light;
    QRgb dark;
    /// In percent.
    int lightOpacity = 100;
    int darkOpacity = 100;
};

// clang-format off
constexpr EnumArray<Color, ColorRow> kColors{{{
    {Color::Window,         0xEEF0F3, 0x23282E},
    {Color::Toolbar,        0xF7F8FA, 0x2A3037},
    {Color::Button,         0xFBFCFD, 0x323941},
    {Color::Background,     0xFFFFFF, 0x1A1E23},
    {Color::Alternate,      0xF6F7F9, 0x1F242A},
    {Color::Lane,           0xF3F5F8, 0x20252B},
    {Color::Text,           0x1B2128, 0xE8EBEF},
    {Color::Weak,           0x56606C, 0xA9B3BF},
    {Color::Disabled,       0x656E79, 0x929DA9},
    {Color::Line,           0xDFE3E8, 0x30373F},
    {Color::LineStrong,     0xB4BCC7, 0x4C5661},
    {Color::Edge,           0x7F8995, 0x75818E},
    {Color::Accent,         0x1560B8, 0x79B4F5},
    {Color::AccentText,     0xFFFFFF, 0x10202F},
    {Color::Chosen,         0xD3E4F8, 0x24405F},
    {Color::Hover,          0xE7EFF9, 0x2B3A4B},
    {Color::Bar,            0xC3D5EA, 0x2F4C6D},
    {Color::BarEdge,        0x40658F, 0x86AEDC},
    {Color::Given,          0xEEF1F4, 0x262C33},
    {Color::GivenEdge,      0x75818E, 0x7C8895},
    {Color::GivenText,      0x5A6470, 0xA0AAB6},
    {Color::Slack,          0xDCE7F3, 0x263647},
    {Color::SlackEdge,      0x5F82AE, 0x5F83AD},
    {Color::Night,          0x5568A8, 0x93A5E8, 13, 14},
    {Color::NightChip,      0xD3D9EA, 0x2F3857},
    {Color::NightText,      0x333F66, 0xC9D2F2},
    {Color::Metall,         0x6B5C48, 0xCDB99A},
    {Color::MetallTint,     0xEDE6DB, 0x3A342B},
    {Color::MetallHatch,    0x9A866A, 0x9C8A6E},
    {Color::Kristall,       0x5A3FC0, 0xB3A4FF},
    {Color::KristallTint,   0xE5E0FB, 0x332D56},
    {Color::KristallHatch,  0x8672DC, 0x8C7CE0},
    {Color::Deuterium,      0x006B74, 0x4FCBD4},
    {Color::DeuteriumTint,  0xD5EEF0, 0x173B3F},
    {Color::DeuteriumHatch, 0x3B9DA6, 0x2F9AA3},
    {Color::Energy,         0x8A5F00, 0xE7B94C},
    {Color::EnergyCurve,    0xB57C00, 0xD9A62E},
    {Color::EnergyTint,     0xFBF0D2, 0x3B321B},
    {Color::Deficit,        0xB3261E, 0xFF9C91},
    {Color::DeficitTint,    0xFBE1DE, 0x4A2623},
    {Color::DeficitHatch,   0xD0584F, 0xD9685E},
    {Color::Gain,           0x1B6E3C, 0x6FD598},
    {Color::Now,            0xA34700, 0xFFAE66},
    {Color::NowText,        0xFFFFFF, 0x2B1600},
    {Color::RowTint,        0xE6E9ED, 0x2C333A},
    {Color::RowDots,        0x7A8592, 0x8792A0},
    {Color::Badge,          0x2B333D, 0xE8EBEF},
    {Color::BadgeText,      0xFFFFFF, 0x1A1E23},
    {Color::WarnTint,       0xFFF1D6, 0x41361C},
    {Color::WarnText,       0x7A4B00, 0xF1CE85},
}}};

static_assert(std::ranges::all_of(kColors, [](const ColorRow& row) {
    return kColors[row.color].color == row.color && &kColors[row.color] == &row;
}), "The rows stand in the order of the enumerators.");

struct RoleRow {
    QPalette::ColorRole role;
    Color enabled;
    Color disabled;
};

/// Texts that are disabled can't be read on `Button` and `Chosen`, so these grounds go as well.
constexpr std::array kRoles{
    RoleRow{QPalette::Window,          Color::Window,     Color::Window},
    RoleRow{QPalette::WindowText,      Color::Text,       Color::Disabled},
    RoleRow{QPalette::Base,            Color::Background, Color::Window},
    RoleRow{QPalette::AlternateBase,   Color::Alternate,  Color::Window},
    RoleRow{QPalette::Text,            Color::Text,       Color::Disabled},
    RoleRow{QPalette::PlaceholderText, Color::Weak,       Color::Disabled},
    RoleRow{QPalette::BrightText,      Color::AccentText, Color::Disabled},
    RoleRow{QPalette::Button,          Color::Button,     Color::Window},
    RoleRow{QPalette::ButtonText,      Color::Text,       Color::Disabled},
    RoleRow{QPalette::Highlight,       Color::Accent,     Color::Window},
    RoleRow{QPalette::HighlightedText, Color::AccentText, Color::Disabled},
    RoleRow{QPalette::Link,            Color::Accent,     Color::Disabled},
    RoleRow{QPalette::LinkVisited,     Color::Accent,     Color::Disabled},
    RoleRow{QPalette::ToolTipBase,     Color::Background, Color::Background},
    RoleRow{QPalette::ToolTipText,     Color::Text,       Color::Text},
    RoleRow{QPalette::Light,           Color::Button,     Color::Button},
    RoleRow{QPalette::Midlight,        Color::Line,       Color::Line},
    RoleRow{QPalette::Mid,             Color::LineStrong, Color::LineStrong},
    RoleRow{QPalette::Dark,            Color::Edge,       Color::LineStrong},
    RoleRow{QPalette::Shadow,          Color::Edge,       Color::LineStrong},
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    RoleRow{QPalette::Accent,          Color::Accent,     Color::Disabled},
#endif
};
// clang-format on

// `NoRole` is one of them, and has no color.
static_assert(kRoles.size() == QPalette::NColorRoles - 1);

}  // namespace

QColor WorkbenchColors::operator[](Color color) const {
    const ColorRow& row = kColors[color];
    const bool dark = m_set == Set::Dark;
    QColor result = QColor::fromRgb(dark ? row.dark : row.light);
    constexpr float kPercent = 100;
    result.setAlphaF(static_cast<float>(dark ? row.darkOpacity : row.lightOpacity) / kPercent);
    return result;
}

QPalette WorkbenchColors::ViewPalette() const {
    QPalette palette = Palette();
    palette.setColor(QPalette::Highlight, (*this)[Color::Chosen]);
    palette.setColor(QPalette::HighlightedText, (*this)[Color::Text]);
    return palette;
}

QPalette WorkbenchColors::Palette() const {
    QPalette palette;
    for (const RoleRow& row : kRoles) {
        palette.setColor(QPalette::Active, row.role, (*this)[row.enabled]);
        palette.setColor(QPalette::Inactive, row.role, (*this)[row.enabled]);
        palette.setColor(QPalette::Disabled, row.role, (*this)[row.disabled]);
    }
    return palette;
}

WorkbenchColors ColorsFor(const QPalette& desktop) {
    return WorkbenchColors(IsDark(desktop) ? WorkbenchColors::Set::Dark
                                           : WorkbenchColors::Set::Light);
}

}  // namespace tarvelin
