// The looks of the causes.
#include "ui/look/WaitLook.h"

#include <array>

#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

enum Look { Metall, Kristall, Deuterium, InQueue, Asleep, Level, RowBefore, Click };

// clang-format off
constexpr std::array kLooks{
    WaitLook{Symbol::Metall,    "Metall",      Hatching::Rising,  Color::Metall,    Color::MetallTint,    Color::MetallHatch},
    WaitLook{Symbol::Kristall,  "Kristall",    Hatching::Crossed, Color::Kristall,  Color::KristallTint,  Color::KristallHatch},
    WaitLook{Symbol::Deuterium, "Deuterium",   Hatching::Level,   Color::Deuterium, Color::DeuteriumTint, Color::DeuteriumHatch},
    WaitLook{Symbol::Queue,     "Schleife",    Hatching::None,    Color::BarEdge,   Color::Bar,           Color::Bar},
    WaitLook{Symbol::Sleep,     "Schlaf",      Hatching::None,    Color::NightText, Color::NightChip,     Color::NightChip},
    WaitLook{Symbol::Level,     "Stufe",       Hatching::Upright, Color::Deficit,   Color::DeficitTint,   Color::DeficitHatch},
    WaitLook{Symbol::RowBefore, "Zeile davor", Hatching::Dots,    Color::Weak,      Color::RowTint,       Color::RowDots},
    WaitLook{Symbol::Click,     "Klick",       Hatching::None,    Color::Weak,      Color::RowTint,       Color::RowTint},
};
// clang-format on

}  // namespace

WaitLook LookOf(Resource resource) {
    static constexpr PerResource<Look> kOf{{Metall, Kristall, Deuterium}};
    return kLooks[kOf[resource]];
}

WaitLook LookOf(const RunTrace& trace, const StartEvent& start) {
    switch (start.delay.cause) {
        case DelayCause::Resource:
            return LookOf(start.delay.shortage.ShortResource().value_or(Resource::Metall));
        case DelayCause::Deuterium:
            return kLooks[Deuterium];
        case DelayCause::Queue:
        case DelayCause::FacilityUpgrade:
            return kLooks[InQueue];
        case DelayCause::Sleep:
            return kLooks[Asleep];
        case DelayCause::Level:
            return kLooks[Level];
        case DelayCause::None:
            break;
    }
    return kLooks[WaitsForClick(trace, start) ? Click : RowBefore];
}

std::span<const WaitLook> WaitLooks() {
    return kLooks;
}

}  // namespace tarvelin
