// Reads a run at a moment.
#include "simulation/MomentState.h"

#include <algorithm>
#include <cmath>

#include "model/Cost.h"
#include "simulation/RunTexts.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"
#include "util/Rounding.h"

namespace tarvelin {

MomentState StateAt(const RunTrace& trace, SimTime moment) {
    MomentState state;
    state.moment = moment;
    state.point = PointAt(trace.curve, moment);
    state.stock = StockAfter(state.point, std::max(Long{0}, moment - state.point.time));
    for (const StartEvent& start : trace.starts) {
        if (start.start > moment) {
            state.waiting = start;
            break;
        }
        if (start.finish > moment) {
            state.building.push_back(start);
        }
    }
    std::ranges::stable_sort(state.building, {},
                             [](const StartEvent& start) { return start.order.queue; });
    return state;
}

std::string StillMissingText(const RunTrace& trace, const MomentState& state) {
    if (!state.waiting) {
        return "";
    }
    const StartEvent& next = *state.waiting;
    const auto resource = next.delay.shortage.ShortResource();
    if (next.delay.cause == DelayCause::Resource && resource && next.number > 0) {
        const FixedPoint missing =
            StockDeduction(next.order.item, static_cast<Byte>(next.number - 1))[*resource] -
            state.stock[*resource];
        if (const double amount = std::ceil(missing.ToDouble()); amount > 0) {
            return GroupedText(amount) + " " + std::string(kResourceNames[*resource]);
        }
    }
    return WaitCauseText(trace, next);
}

std::string FactorText(const HistoryPoint& point) {
    constexpr FixedPoint kFull = FixedPoint::FromWhole(1);
    if (point.ProdFaktor >= kFull) {
        return "";
    }
    constexpr int kDecimals = 2;
    constexpr double kHundred = 100;
    // What lacks a little isn't rounded to a whole.
    const auto hundredths =
        std::min(Rounding::HalfEven(point.ProdFaktor.ToDouble() * kHundred), std::int64_t{99});
    return "Faktor " +
           PadDecimals(DecimalText(FixedPoint::FromRaw(hundredths * (FixedPoint::kUnit / 100))),
                       kDecimals);
}

std::string EnergyText(const HistoryPoint& point) {
    return GroupedText(static_cast<double>(point.EnergieProduktion)) + " von " +
           GroupedText(static_cast<double>(point.EnergieVerbrauch));
}

std::string RateText(FixedPoint perHour) {
    return (perHour.WholePart() < 0 ? "" : "+") + GroupedText(perHour.ToDouble()) + "/h";
}

}  // namespace tarvelin
