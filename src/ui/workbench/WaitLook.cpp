// The looks of the causes.
#include "ui/workbench/WaitLook.h"

namespace tarvelin {

namespace {

// clang-format off
constexpr WaitLook kMetall   {Symbol::Metall,    Color::Metall,    Color::MetallTint,    Color::MetallHatch};
constexpr WaitLook kKristall {Symbol::Kristall,  Color::Kristall,  Color::KristallTint,  Color::KristallHatch};
constexpr WaitLook kDeuterium{Symbol::Deuterium, Color::Deuterium, Color::DeuteriumTint, Color::DeuteriumHatch};
constexpr WaitLook kQueue    {Symbol::Queue,     Color::BarEdge,   Color::Bar,           Color::Bar};
constexpr WaitLook kSleep    {Symbol::Sleep,     Color::NightText, Color::NightChip,     Color::NightChip};
constexpr WaitLook kLevel    {Symbol::Level,     Color::Deficit,   Color::DeficitTint,   Color::DeficitHatch};
constexpr WaitLook kRowBefore{Symbol::RowBefore, Color::Weak,      Color::RowTint,       Color::RowDots};
// clang-format on

}  // namespace

WaitLook LookOf(Resource resource) {
    static constexpr PerResource<WaitLook> kLooks{{kMetall, kKristall, kDeuterium}};
    return kLooks[resource];
}

WaitLook LookOf(const Delay& delay) {
    switch (delay.cause) {
        case DelayCause::Resource:
            switch (delay.shortage.kind) {
                case Shortage::Kind::Kristall:
                    return kKristall;
                case Shortage::Kind::Deuterium:
                    return kDeuterium;
                default:
                    return kMetall;
            }
        case DelayCause::Deuterium:
            return kDeuterium;
        case DelayCause::Queue:
        case DelayCause::FacilityUpgrade:
            return kQueue;
        case DelayCause::Sleep:
            return kSleep;
        case DelayCause::Level:
            return kLevel;
        case DelayCause::None:
            break;
    }
    return kRowBefore;
}

}  // namespace tarvelin
