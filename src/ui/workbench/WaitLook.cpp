// The table of the causes' colors.
#include "ui/workbench/WaitLook.h"

namespace tarvelin {

Color StripColor(const Delay& delay) {
    switch (delay.cause) {
        case DelayCause::Resource:
            switch (delay.shortage.kind) {
                case Shortage::Kind::Kristall:
                    return Color::KristallHatch;
                case Shortage::Kind::Deuterium:
                    return Color::DeuteriumHatch;
                default:
                    return Color::MetallHatch;
            }
        case DelayCause::Deuterium:
            return Color::DeuteriumHatch;
        case DelayCause::Queue:
        case DelayCause::FacilityUpgrade:
            return Color::BarEdge;
        case DelayCause::Sleep:
            return Color::NightText;
        case DelayCause::Level:
            return Color::DeficitHatch;
        case DelayCause::None:
            break;
    }
    return Color::RowDots;
}

}  // namespace tarvelin
