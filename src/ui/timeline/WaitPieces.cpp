// Cuts the waits to the plot and finds words that fit.
#include "ui/timeline/WaitPieces.h"

#include <QStringList>
#include <algorithm>

#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// What a text and a symbol need beside their own width.
constexpr double kBesideText = 24;
constexpr double kForSymbol = 14;

/// From the longest to the shortest.
QStringList WaitTexts(const RunTrace& trace, const StartEvent& start) {
    const QString wait = ToQString(WaitText(trace, start));
    switch (start.delay.cause) {
        case DelayCause::Resource:
            return {wait + QStringLiteral(" für ") + ToQString(OrderText(start)), wait,
                    ToQString(BriefWaitText(trace, start))};
        case DelayCause::Level:
        case DelayCause::Deuterium:
            return {wait + QStringLiteral(" für ") + ToQString(OrderText(start)), wait};
        default:
            return {wait, ToQString(BriefWaitText(trace, start))};
    }
}

}  // namespace

std::vector<WaitPiece> WaitPieces(const RunTrace& trace, const TimeScale& scale,
                                  const TextWidth& widthOf) {
    std::vector<WaitPiece> pieces;
    double from = scale.X(0.0);
    for (const StartEvent& start : trace.starts) {
        const double until = scale.X(start.start);
        constexpr double kSeen = 0.5;
        if (until - from >= kSeen && until > scale.left && from < scale.right) {
            WaitPiece piece{.row = start.row,
                            .look = LookOf(trace, start),
                            .from = std::max(from, scale.left),
                            .until = std::min(until, scale.right),
                            .anchor = from,
                            .text = {}};
            const double width = piece.until - piece.from;
            piece.symbol = width >= kForSymbol;
            if (width > kBesideText) {
                for (const QString& text : WaitTexts(trace, start)) {
                    if (piece.text.isEmpty() && widthOf(text) + kBesideText <= width) {
                        piece.text = text;
                    }
                }
            }
            pieces.push_back(std::move(piece));
        }
        // The clock can step back by a click buffer.
        from = std::max(from, until);
    }
    return pieces;
}

}  // namespace tarvelin
