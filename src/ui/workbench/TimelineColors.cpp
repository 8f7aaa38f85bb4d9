// The two sets of colors, and the color of each kind of wait.
#include "ui/workbench/TimelineColors.h"

#include "ui/services/DesktopColors.h"

namespace tarvelin {

namespace {

QColor Mix(const QColor& a, const QColor& b) {
    return QColor::fromRgb((a.red() + b.red()) / 2, (a.green() + b.green()) / 2,
                           (a.blue() + b.blue()) / 2);
}

QColor Translucent(QColor color, int opacity) {
    color.setAlpha(opacity);
    return color;
}

}  // namespace

TimelineColors::TimelineColors(const QPalette& palette)
    : background(palette.color(QPalette::Base)),
      lane(Mix(palette.color(QPalette::Base), palette.color(QPalette::Window))),
      line(Mix(palette.color(QPalette::Text), palette.color(QPalette::Base))),
      text(palette.color(QPalette::Text)),
      chosen(palette.color(QPalette::Highlight)) {
    const bool dark = IsDark(palette);
    const auto color = [&](QRgb light, QRgb inDark) {
        return QColor::fromRgb(dark ? inDark : light);
    };
    constexpr int kBand = 60;
    // clang-format off
    sleep                      = Translucent(color(0x7a5cc8, 0x9a84e0), kBand);
    now                        = color(0xc81e1e, 0xff6a5a);
    production                 = color(0x8a5a00, 0xe0b050);
    energy                     = color(0xa07800, 0xe8d040);
    energyDeficit              = color(0xd02020, 0xff5040);
    bars[Queue::Building]      = color(0xf0c070, 0x8a6220);
    bars[Queue::Shipyard]      = color(0x9ccf9c, 0x3c703c);
    bars[Queue::Research]      = color(0x9cc4f0, 0x35608f);
    stock[Resource::Metall]    = color(0x606060, 0xb8b8b8);
    stock[Resource::Kristall]  = color(0x1060c8, 0x60a8ff);
    stock[Resource::Deuterium] = color(0x008878, 0x40d0b8);
    // clang-format on
}

QColor TimelineColors::ForDelay(const Delay& delay) const {
    switch (delay.cause) {
        case DelayCause::Resource:
            switch (delay.shortage.kind) {
                case Shortage::Kind::Kristall:
                    return stock[Resource::Kristall];
                case Shortage::Kind::Deuterium:
                    return stock[Resource::Deuterium];
                default:
                    return stock[Resource::Metall];
            }
        case DelayCause::Deuterium:
            return stock[Resource::Deuterium];
        case DelayCause::Queue:
        case DelayCause::FacilityUpgrade:
            return bars[delay.queue];
        case DelayCause::Sleep:
            return Translucent(sleep, 255);
        case DelayCause::Level:
            return energyDeficit;
        case DelayCause::None:
            break;
    }
    return line;
}

}  // namespace tarvelin
