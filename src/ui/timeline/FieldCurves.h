// The curves of the fields: stocks, and energy as supply against need.
#pragma once

#include <QPolygonF>
#include <QRectF>
#include <vector>

#include "ui/timeline/PlacedText.h"
#include "ui/timeline/TimeScale.h"
#include "ui/timeline/TimelineContent.h"
#include "ui/timeline/ValueScale.h"

namespace tarvelin {

/// A text in a field.
struct FieldText {
    PlacedText text;
    /// In pixels.
    double top = 0;
    /// Whether it stands below the curve.
    bool below = false;
};

/// A field that isn't there has an empty rectangle and nothing else.
struct Field {
    QRectF rect;
    ValueScale scale;
    /// Of the scale.
    std::vector<double> figures;

    [[nodiscard]] double Y(double value) const {
        return rect.top() + scale.Down(value, rect.height());
    }
};

struct StockField : Field {
    /// Cut to the plot.
    QPolygonF curve;
    /// Of the content's other runs.
    std::vector<QPolygonF> others;
    /// "+509/h" where a rate begins, where an hour is wide enough and the curve leaves room.
    std::vector<FieldText> rates;
};

struct EnergyField : Field {
    QPolygonF supply;
    QPolygonF need;
    /// Between the two where supply falls short.
    std::vector<QRectF> deficits;
    /// "Faktor 0,88", once for each stretch of the same factor that has room for it.
    std::vector<FieldText> factors;
};

/// `line` is the height of a text.
[[nodiscard]] PerResource<StockField> StockFieldsOf(const TimelineContent& content,
                                                    const PerResource<QRectF>& rects,
                                                    const TimeScale& scale, double line,
                                                    const TextWidth& widthOf);

[[nodiscard]] EnergyField EnergyFieldOf(const RunTrace& run, const QRectF& rect,
                                        const TimeScale& scale, double line,
                                        const TextWidth& widthOf);

}  // namespace tarvelin
