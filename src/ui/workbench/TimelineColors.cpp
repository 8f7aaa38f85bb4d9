// The two sets of colours.
#include "ui/workbench/TimelineColors.h"

namespace tarvelin {

namespace {

/// Half of both.
QColor Mische(const QColor& a, const QColor& b) {
    return QColor::fromRgb((a.red() + b.red()) / 2, (a.green() + b.green()) / 2,
                           (a.blue() + b.blue()) / 2);
}

QColor Durchscheinend(QColor farbe, int deckung) {
    farbe.setAlpha(deckung);
    return farbe;
}

}  // namespace

bool IstDunkel(const QPalette& palette) {
    constexpr int kMitte = 128;
    return palette.color(QPalette::Window).lightness() < kMitte;
}

Werkbankfarben::Werkbankfarben(const QPalette& palette)
    : Grund(palette.color(QPalette::Base)),
      Spur(Mische(palette.color(QPalette::Base), palette.color(QPalette::Window))),
      Linie(Mische(palette.color(QPalette::Text), palette.color(QPalette::Base))),
      Text(palette.color(QPalette::Text)),
      Auswahl(palette.color(QPalette::Highlight)) {
    const bool dunkel = IstDunkel(palette);
    const auto farbe = [&](QRgb hell, QRgb imDunkeln) {
        return QColor::fromRgb(dunkel ? imDunkeln : hell);
    };
    constexpr int kBand = 60;
    // clang-format off
    Schlaf        = Durchscheinend(farbe(0x7a5cc8, 0x9a84e0), kBand);
    Jetzt         = farbe(0xc81e1e, 0xff6a5a);
    Produktion    = farbe(0x8a5a00, 0xe0b050);
    Energie       = farbe(0xa07800, 0xe8d040);
    Energiemangel = farbe(0xd02020, 0xff5040);
    Balken[Queue::Building]  = farbe(0xf0c070, 0x8a6220);
    Balken[Queue::Shipyard]     = farbe(0x9ccf9c, 0x3c703c);
    Balken[Queue::Research] = farbe(0x9cc4f0, 0x35608f);
    Vorrat[Resource::Metall]    = farbe(0x606060, 0xb8b8b8);
    Vorrat[Resource::Kristall]  = farbe(0x1060c8, 0x60a8ff);
    Vorrat[Resource::Deuterium] = farbe(0x008878, 0x40d0b8);
    // clang-format on
}

QColor Werkbankfarben::Warten(const Delay& grund) const {
    switch (grund.cause) {
        case DelayCause::Resource:
            switch (grund.shortage.kind) {
                case Shortage::Kind::Kristall:
                    return Vorrat[Resource::Kristall];
                case Shortage::Kind::Deuterium:
                    return Vorrat[Resource::Deuterium];
                default:
                    return Vorrat[Resource::Metall];
            }
        case DelayCause::Deuterium:
            return Vorrat[Resource::Deuterium];
        case DelayCause::Queue:
        case DelayCause::FacilityUpgrade:
            return Balken[grund.queue];
        case DelayCause::Sleep:
            return Durchscheinend(Schlaf, 255);
        case DelayCause::Level:
            return Energiemangel;
        case DelayCause::None:
            break;
    }
    return Linie;
}

}  // namespace tarvelin
