// Cuts the curves to what is in sight, and scales them to it.
#include "ui/timeline/FieldCurves.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <utility>

#include "simulation/MomentState.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// Rates stand at the curve from this zoom on.
constexpr double kRatesFromPerHour = 60;
constexpr double kRateMargin = 8;
constexpr double kFactorMargin = 4;

/// A point of a run's curve, and the part of its time that is in sight, in seconds.
struct Piece {
    const HistoryPoint& point;
    double from;
    double until;

    [[nodiscard]] PerResource<FixedPoint> StockAt(double second) const {
        const Long seconds = static_cast<Long>(std::lround(second)) - point.time.Seconds();
        return seconds == 0 ? point.stock : StockAfter(point, seconds);
    }
};

template <class Action>
void ForEachPiece(const RunTrace& run, const TimeScale& scale, Action action) {
    const auto& curve = run.curve;
    const auto behind = std::ranges::upper_bound(
        curve, scale.first, {},
        [](const HistoryPoint& point) { return static_cast<double>(point.time.Seconds()); });
    const std::ptrdiff_t first = std::max<std::ptrdiff_t>(0, behind - curve.begin() - 1);
    for (auto i = static_cast<std::size_t>(first); i < curve.size(); ++i) {
        const HistoryPoint& point = curve[i];
        const SimTime next = i + 1 < curve.size() ? curve[i + 1].time : run.Duration();
        const double begin = point.time.Seconds();
        if (begin > scale.Last()) {
            break;
        }
        const double end = std::max(next, point.time).Seconds();
        if (end >= scale.first) {
            action(Piece{point, std::max(begin, scale.first),
                         std::min(end, std::max(scale.Last(), begin))});
        }
    }
}

/// The values, not yet in pixels.
PerResource<QPolygonF> CurvesOf(const RunTrace& run, const TimeScale& scale) {
    PerResource<QPolygonF> curves;
    ForEachPiece(run, scale, [&](const Piece& piece) {
        for (const double second : {piece.from, piece.until}) {
            const auto stock = piece.StockAt(second);
            for (const Resource resource : kResources) {
                curves[resource] << QPointF(scale.X(second), stock[resource].ToDouble());
            }
        }
    });
    return curves;
}

/// Adds a step to a curve of levels.
void AddStep(QPolygonF& curve, double from, double until, double value) {
    if (!curve.isEmpty() && curve.back().y() == value) {
        curve.back().setX(until);
    } else {
        curve << QPointF(from, value) << QPointF(until, value);
    }
}

struct Range {
    double lowest = 0;
    double highest = 0;
    bool isEmpty = true;

    void Include(const QPolygonF& curve) {
        for (const QPointF& point : curve) {
            lowest = isEmpty ? point.y() : std::min(lowest, point.y());
            highest = isEmpty ? point.y() : std::max(highest, point.y());
            isEmpty = false;
        }
    }
};

/// From values to pixels.
void ToPixels(QPolygonF& curve, const Field& field) {
    for (QPointF& point : curve) {
        point.setY(field.Y(point.y()));
    }
}

/// The highest and the lowest place of curves along a text, in pixels from the top.
struct Reach {
    double highest;
    double lowest;
};

Reach ReachAlong(const PlacedText& text, const QRectF& rect,
                 std::initializer_list<const QPolygonF*> curves) {
    Reach reach{rect.bottom(), rect.top()};
    for (const QPolygonF* const curve : curves) {
        QPointF last = curve->isEmpty() ? QPointF() : curve->front();
        for (const QPointF& point : *curve) {
            if (point.x() >= text.left && last.x() <= text.Right()) {
                reach.highest = std::min({reach.highest, last.y(), point.y()});
                reach.lowest = std::max({reach.lowest, last.y(), point.y()});
            }
            last = point;
        }
    }
    return reach;
}

/// At the top of a field, else at its foot, where the curve leaves room.
std::optional<FieldText> PlaceRate(const StockField& field, double line, const PlacedText& text) {
    const Reach reach = ReachAlong(text, field.rect, {&field.curve});
    if (reach.highest - field.rect.top() > line) {
        return FieldText{.text = text, .top = field.rect.top() + 1};
    }
    return field.rect.bottom() - reach.lowest >= line
               ? std::optional(
                     FieldText{.text = text, .top = field.rect.bottom() - line, .below = true})
               : std::nullopt;
}

/// At the foot of the field, else where energy lacks, else at the top.
std::optional<FieldText> PlaceFactor(const EnergyField& field, double line,
                                     const PlacedText& text) {
    const Reach reach = ReachAlong(text, field.rect, {&field.supply, &field.need});
    if (field.rect.bottom() - reach.lowest >= line) {
        return FieldText{.text = text, .top = field.rect.bottom() - line};
    }
    const auto deficit = std::ranges::find_if(field.deficits, [&](const QRectF& candidate) {
        return candidate.left() <= text.left && text.Right() <= candidate.right() &&
               candidate.height() > line;
    });
    if (deficit != field.deficits.end()) {
        return FieldText{.text = text, .top = deficit->center().y() - line / 2};
    }
    return reach.highest - field.rect.top() > line
               ? std::optional(FieldText{.text = text, .top = field.rect.top()})
               : std::nullopt;
}

/// Texts along a field: each stretch of one value has one, if it fits.
class StretchTexts {
  public:
    StretchTexts(const TimeScale& scale, const TextWidth& widthOf, double margin)
        : m_scale(scale), m_widthOf(widthOf), m_margin(margin), m_from(scale.left) {}

    /// A stretch with another text begins; none if it is empty.
    void Begin(double x, const QString& text) {
        End(x);
        m_from = std::max(x, m_scale.left);
        m_text = text;
    }
    void End(double x) {
        const double width = m_text.isEmpty() ? 0 : m_widthOf(m_text);
        if (!m_text.isEmpty() && m_from + width + 2 * m_margin <= std::min(x, m_scale.right)) {
            m_texts.push_back({.left = m_from + m_margin, .width = width, .text = m_text});
        }
        m_text.clear();
    }
    [[nodiscard]] const std::vector<PlacedText>& Texts() const { return m_texts; }

  private:
    const TimeScale& m_scale;
    const TextWidth& m_widthOf;
    double m_margin;
    double m_from;
    QString m_text;
    std::vector<PlacedText> m_texts;
};

void AddRates(StockField& field, const RunTrace& run, Resource resource, const TimeScale& scale,
              double line, const TextWidth& widthOf) {
    StretchTexts texts(scale, widthOf, kRateMargin);
    std::optional<FixedPoint> last;
    ForEachPiece(run, scale, [&](const Piece& piece) {
        const FixedPoint rate = piece.point.ProStunde[resource];
        if (last != rate) {
            texts.Begin(scale.X(piece.from), ToQString(RateText(rate)));
            last = rate;
        }
    });
    texts.End(scale.X(run.Duration()));
    for (const PlacedText& text : texts.Texts()) {
        if (const auto clear = PlaceRate(field, line, text)) {
            field.rates.push_back(*clear);
        }
    }
}

void AddFactors(EnergyField& field, const RunTrace& run, const TimeScale& scale, double line,
                const TextWidth& widthOf) {
    StretchTexts texts(scale, widthOf, kFactorMargin);
    std::optional<FixedPoint> last;
    ForEachPiece(run, scale, [&](const Piece& piece) {
        if (last != piece.point.ProdFaktor) {
            texts.Begin(scale.X(piece.from), ToQString(FactorText(piece.point)));
            last = piece.point.ProdFaktor;
        }
    });
    texts.End(scale.X(run.Duration()));
    for (const PlacedText& text : texts.Texts()) {
        if (const auto clear = PlaceFactor(field, line, text)) {
            field.factors.push_back(*clear);
        }
    }
}

void AddDeficits(EnergyField& field, const RunTrace& run, const TimeScale& scale) {
    ForEachPiece(run, scale, [&](const Piece& piece) {
        const HistoryPoint& point = piece.point;
        if (point.EnergieProduktion >= point.EnergieVerbrauch) {
            return;
        }
        const double top = field.Y(static_cast<double>(point.EnergieVerbrauch));
        const double foot = field.Y(static_cast<double>(point.EnergieProduktion));
        const QRectF deficit(scale.X(piece.from), top, (piece.until - piece.from) * scale.perSecond,
                             foot - top);
        if (!field.deficits.empty() && field.deficits.back().top() == deficit.top() &&
            field.deficits.back().bottom() == deficit.bottom() &&
            field.deficits.back().right() >= deficit.left() - 1) {
            field.deficits.back().setRight(deficit.right());
        } else {
            field.deficits.push_back(deficit);
        }
    });
}

}  // namespace

PerResource<StockField> StockFieldsOf(const TimelineContent& content,
                                      const PerResource<QRectF>& rects, const TimeScale& scale,
                                      double line, const TextWidth& widthOf) {
    auto curves = CurvesOf(*content.run, scale);
    std::vector<PerResource<QPolygonF>> others;
    for (const DashedRun& other : content.others) {
        others.push_back(CurvesOf(other.run, scale));
    }
    PerResource<StockField> fields;
    for (const Resource resource : kResources) {
        StockField& field = fields[resource];
        field.rect = rects[resource];
        if (field.rect.isEmpty()) {
            continue;
        }
        field.curve = std::move(curves[resource]);
        Range range;
        range.Include(field.curve);
        for (auto& other : others) {
            field.others.push_back(std::move(other[resource]));
            range.Include(field.others.back());
        }
        field.scale = ValueScale::FromZero(range.lowest, range.highest);
        field.figures = field.scale.Figures(field.rect.height(), line);
        ToPixels(field.curve, field);
        std::ranges::for_each(field.others, [&](QPolygonF& other) { ToPixels(other, field); });
        if (scale.PerHour() >= kRatesFromPerHour) {
            AddRates(field, *content.run, resource, scale, line, widthOf);
        }
    }
    return fields;
}

EnergyField EnergyFieldOf(const RunTrace& run, const QRectF& rect, const TimeScale& scale,
                          double line, const TextWidth& widthOf) {
    EnergyField field;
    field.rect = rect;
    if (rect.isEmpty()) {
        return field;
    }
    ForEachPiece(run, scale, [&](const Piece& piece) {
        const double from = scale.X(piece.from);
        const double until = scale.X(piece.until);
        AddStep(field.supply, from, until, static_cast<double>(piece.point.EnergieProduktion));
        AddStep(field.need, from, until, static_cast<double>(piece.point.EnergieVerbrauch));
    });
    Range range;
    range.Include(field.supply);
    range.Include(field.need);
    constexpr double kFits = 40;
    field.scale = rect.height() >= kFits ? ValueScale::Fitting(range.lowest, range.highest)
                                         : ValueScale::FromZero(range.lowest, range.highest);
    field.figures = field.scale.Figures(rect.height(), line);
    ToPixels(field.supply, field);
    ToPixels(field.need, field);
    AddDeficits(field, run, scale);
    AddFactors(field, run, scale, line, widthOf);
    return field;
}

}  // namespace tarvelin
