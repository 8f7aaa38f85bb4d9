// Joins pictures, and finds room for words.
#include "ui/timeline/LaneMarks.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tarvelin {

namespace {

constexpr double kBetweenMarks = 2;
/// Between a picture and a word, and between a word and a line.
constexpr double kGap = 4;

/// Where a word of this width can stand between two places without crossing a line.
std::optional<double> FirstPlace(double from, double until, double width,
                                 const std::vector<double>& lines) {
    double left = from;
    for (const double line : lines) {
        if (line > left - kGap && line < until && left + width + kGap > line) {
            left = line + kGap;
        }
    }
    return left + width <= until ? std::optional(left) : std::nullopt;
}

bool IsFree(double from, double until, const std::vector<double>& lines) {
    return std::ranges::none_of(
        lines, [&](double line) { return line > from - kGap && line < until + kGap; });
}

class LaneWriter {
  public:
    LaneWriter(std::span<const LaneOrder> orders, std::span<const LaneMark> marks, LaneRoom room,
               const TextWidth& widthOf)
        : m_orders(orders), m_marks(marks), m_room(std::move(room)), m_widthOf(widthOf) {
        std::ranges::sort(m_room.lines);
        m_isNamed.resize(orders.size());
    }

    std::vector<LaneText> Write() {
        for (std::size_t i = 0; i < m_orders.size(); ++i) {
            WriteIntoBar(i);
        }
        double occupied = m_room.left;
        for (std::size_t i = 0; i < m_marks.size(); ++i) {
            const LaneMark& mark = m_marks[i];
            if (mark.right < m_room.left || mark.left > m_room.right) {
                continue;
            }
            const double until = i + 1 < m_marks.size()
                                     ? std::min(m_room.right, m_marks[i + 1].left - kGap)
                                     : m_room.right;
            occupied = std::max({occupied, mark.right, WriteBeside(mark, occupied, until)});
        }
        return std::move(m_texts);
    }

  private:
    void WriteIntoBar(std::size_t index) {
        const LaneOrder& order = m_orders[index];
        const double next = index + 1 < m_orders.size() ? m_orders[index + 1].start : order.finish;
        const double from = std::max(order.start, m_room.left) + kGap;
        const double until = std::min({order.finish, next, m_room.right}) - kGap;
        constexpr double kAnyName = 20;
        if (until - from < kAnyName) {
            return;
        }
        const double width = m_widthOf(order.name);
        if (const auto left = FirstPlace(from, until, width, m_room.lines)) {
            Add(*left, width, order.name, LaneText::Place::Bar);
            m_isNamed[index] = true;
        }
    }

    /// Returns where the words end; the room's left edge for none.
    double WriteBeside(const LaneMark& mark, double occupied, double until) {
        const LaneOrder& order = m_orders[mark.first];
        const double from = mark.right + kGap;
        const double moment = m_widthOf(order.moment);
        const auto fitsRight = [&](double width) {
            return from >= m_room.left && from + width <= until &&
                   IsFree(from, from + width, m_room.lines);
        };
        if (mark.count == 1 && !m_isNamed[mark.first]) {
            const double name = m_widthOf(order.name);
            const double width = std::max(name, moment);
            if (fitsRight(width)) {
                Add(from, name, order.name, LaneText::Place::UpperLine);
                Add(from, moment, order.moment, LaneText::Place::LowerLine);
                return from + width;
            }
            const double right = mark.left - kGap;
            if (right - width >= occupied + kGap && IsFree(right - width, right, m_room.lines)) {
                Add(right - name, name, order.name, LaneText::Place::UpperLine);
                Add(right - moment, moment, order.moment, LaneText::Place::LowerLine);
                return right;
            }
        }
        if (!fitsRight(moment)) {
            return m_room.left;
        }
        Add(from, moment, order.moment, LaneText::Place::Middle);
        return from + moment;
    }

    void Add(double left, double width, const QString& text, LaneText::Place place) {
        m_texts.push_back({{.left = left, .width = width, .text = text}, place});
    }

    std::span<const LaneOrder> m_orders;
    std::span<const LaneMark> m_marks;
    LaneRoom m_room;
    const TextWidth& m_widthOf;
    std::vector<bool> m_isNamed;
    std::vector<LaneText> m_texts;
};

}  // namespace

std::vector<LaneMark> MarksOf(std::span<const LaneOrder> orders, double picture) {
    std::vector<LaneMark> marks;
    for (std::size_t i = 0; i < orders.size(); ++i) {
        const LaneOrder& order = orders[i];
        const double free = marks.empty() ? order.start : marks.back().right + kBetweenMarks;
        if (order.start < free) {
            LaneMark& last = marks.back();
            if (!order.apart && !last.apart) {
                ++last.count;
                last.right = last.left + picture + kBadgeBeyond;
                continue;
            }
        }
        const double left = std::max(order.start, free);
        marks.push_back({.first = i, .left = left, .right = left + picture, .apart = order.apart});
    }
    return marks;
}

std::vector<LaneText> TextsOf(std::span<const LaneOrder> orders, std::span<const LaneMark> marks,
                              const LaneRoom& room, const TextWidth& widthOf) {
    return LaneWriter(orders, marks, room, widthOf).Write();
}

}  // namespace tarvelin
