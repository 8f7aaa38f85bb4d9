// The workbench's colors, light and dark, and the palette made from them.
#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace tarvelin {

/// What a color stands for. A tint is the ground of what a color means, a hatch its lines on it.
/// `tests/Look_test.cpp` says which color is drawn on which, and holds their contrasts.
enum class Color : std::uint8_t {
    // Grounds.
    Window,
    Toolbar,
    Button,
    Background,
    Alternate,
    Lane,
    // Texts and frames.
    Text,
    Weak,
    Disabled,
    Line,
    LineStrong,
    Edge,
    Accent,
    AccentText,
    Chosen,
    Hover,
    // Bars of the timeline.
    Bar,
    BarEdge,
    Given,
    GivenEdge,
    GivenText,
    Slack,
    SlackEdge,
    // Nights. `Night` is translucent.
    Night,
    NightChip,
    NightText,
    // What a plan has and lacks.
    Metall,
    MetallTint,
    MetallHatch,
    Kristall,
    KristallTint,
    KristallHatch,
    Deuterium,
    DeuteriumTint,
    DeuteriumHatch,
    Energy,
    EnergyCurve,
    EnergyTint,
    Deficit,
    DeficitTint,
    DeficitHatch,
    Gain,
    // The clock, waits for the row before, numbers on pictures, notices that ask for something.
    Now,
    NowText,
    RowTint,
    RowDots,
    Badge,
    BadgeText,
    WarnTint,
    WarnText,
    Size
};

/// One of the two sets.
class WorkbenchColors {
  public:
    enum class Set : std::uint8_t { Light, Dark };

    explicit WorkbenchColors(Set set = Set::Light) : m_set(set) {}

    [[nodiscard]] QColor operator[](Color color) const;
    /// Has every role in every group, so none is left to the program's palette.
    [[nodiscard]] QPalette Palette() const;

    /// The same for lists and tables, whose chosen rows are pale.
    [[nodiscard]] QPalette ViewPalette() const;

    friend bool operator==(const WorkbenchColors&, const WorkbenchColors&) = default;

  private:
    Set m_set;
};

/// The set that goes with a desktop of this palette.
[[nodiscard]] WorkbenchColors ColorsFor(const QPalette& desktop);

}  // namespace tarvelin
