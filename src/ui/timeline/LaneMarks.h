// The pictures of a lane and the words beside them: which orders share a picture, and which names
// and moments there is room for.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "ui/timeline/PlacedText.h"

namespace tarvelin {

/// An order of a lane, in pixels.
struct LaneOrder {
    std::size_t row = 0;
    double start = 0;
    double finish = 0;
    /// Whether it keeps a picture of its own, as those do that are chosen, next or refused.
    bool apart = false;
    QString name{};
    QString moment{};
};

/// A picture. Its left edge is the start of its first order, unless it had to make room for the
/// mark before it.
struct LaneMark {
    /// Which of the lane's orders it stands for.
    std::size_t first = 0;
    std::size_t count = 1;
    double left = 0;
    /// The badge of several orders included.
    double right = 0;
    bool apart = false;

    [[nodiscard]] bool Moved(std::span<const LaneOrder> orders) const {
        return left > orders[first].start;
    }
};

inline constexpr double kBadgeBeyond = 10;

/// `orders` come by their starts. An order joins the mark before it if its picture would begin less
/// than 2 pixels behind that mark and neither stays apart; where one does, the picture moves right.
/// Each order is in one mark; marks keep 2 pixels between them.
[[nodiscard]] std::vector<LaneMark> MarksOf(std::span<const LaneOrder> orders, double picture);

struct LaneText {
    enum class Place { Bar, Middle, UpperLine, LowerLine };

    PlacedText text;
    Place place = Place::Bar;
};

/// The limits of a lane's words.
struct LaneRoom {
    double left = 0;
    double right = 0;
    /// Lines that no word may cross.
    std::vector<double> lines;
};

/// A name stands in its bar, else with the moment right of the picture, else left of it; a mark
/// without a name has its moment at the right. What has no room is left out, so no two texts
/// overlap.
[[nodiscard]] std::vector<LaneText> TextsOf(std::span<const LaneOrder> orders,
                                            std::span<const LaneMark> marks, const LaneRoom& room,
                                            const TextWidth& widthOf);

}  // namespace tarvelin
