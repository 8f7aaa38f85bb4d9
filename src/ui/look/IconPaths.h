// Which icons the workbench has, and the shapes that they are made of.
#pragma once

#include <cstdint>
#include <span>

namespace tarvelin {

/// The tool bar's and the pages' pictures.
enum class Icon : std::uint8_t {
    New,
    Open,
    Save,
    Undo,
    Redo,
    Up,
    Down,
    Duplicate,
    Delete,
    Calendar,
    Picture,
    Help,
    Search,
    Minus,
    Plus,
    WholePlan,
    Size
};

/// Signs of one color beside words: what a row waited for, and marks.
enum class Symbol : std::uint8_t {
    Metall,
    Kristall,
    Deuterium,
    Queue,
    Sleep,
    Level,
    RowBefore,
    Click,
    Energy,
    Warning,
    Info,
    Tick,
    Cross,
    Rises,
    Falls,
    Next,
    Slack,
    Size
};

/// The side of their squares, in the units of the shapes.
inline constexpr int kIconSide = 20;
inline constexpr int kSymbolSide = 12;

/// `Accent` is for the part that acts.
enum class Ink : std::uint8_t { Text, Accent };

struct Shape {
    Ink ink;
    /// Of the pen, with round ends; 0 for a shape that is filled, by the odd-even rule.
    double width;
    /// M, L, C and Z as in SVG, with absolute coordinates; everything is parted by one space.
    const char* commands;
};

[[nodiscard]] std::span<const Shape> ShapesOf(Icon icon);
[[nodiscard]] std::span<const Shape> ShapesOf(Symbol symbol);

}  // namespace tarvelin
