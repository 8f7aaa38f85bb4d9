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
    Balken[Schlange::Gebaeude]  = farbe(0xf0c070, 0x8a6220);
    Balken[Schlange::Werft]     = farbe(0x9ccf9c, 0x3c703c);
    Balken[Schlange::Forschung] = farbe(0x9cc4f0, 0x35608f);
    Vorrat[Rohstoff::Metall]    = farbe(0x606060, 0xb8b8b8);
    Vorrat[Rohstoff::Kristall]  = farbe(0x1060c8, 0x60a8ff);
    Vorrat[Rohstoff::Deuterium] = farbe(0x008878, 0x40d0b8);
    // clang-format on
}

QColor Werkbankfarben::Warten(const Aufenthalt& grund) const {
    switch (grund.Was) {
        case Hindernis::Rohstoff:
            switch (grund.Mangel.Grund) {
                case Verzoegerung::Art::Kristall:
                    return Vorrat[Rohstoff::Kristall];
                case Verzoegerung::Art::Deuterium:
                    return Vorrat[Rohstoff::Deuterium];
                default:
                    return Vorrat[Rohstoff::Metall];
            }
        case Hindernis::Deuterium:
            return Vorrat[Rohstoff::Deuterium];
        case Hindernis::Schlange:
        case Hindernis::Ausbau:
            return Balken[grund.Queue];
        case Hindernis::Schlafzeit:
            return Durchscheinend(Schlaf, 255);
        case Hindernis::Stufe:
            return Energiemangel;
        case Hindernis::Keines:
            break;
    }
    return Linie;
}

}  // namespace tarvelin
