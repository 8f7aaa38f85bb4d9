// Addresses, and the comparison of versions.
#include "ui/mainwindow/MakerSite.h"

#include <bit>

namespace tarvelin {

// clang-format off
const std::array<Spendenknopf, 6> kSpendenknoepfe{{
    {"ImgDonate_05", "spende_05.png", "0%2e50", " Öffnet eine Seite, auf der du 0.50€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_1", "spende_1.png", "1%2e00", " Öffnet eine Seite, auf der du 1€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_2", "spende_2.png", "2%2e00", " Öffnet eine Seite, auf der du 2€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_5", "spende_5.png", "5%2e00", " Öffnet eine Seite, auf der du 5€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_10", "spende_10.png", "10%2e00", " Öffnet eine Seite, auf der du 10€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_X", "spende_X.png", "", " Öffnet eine Seite, auf der du einen frei wählbahren Betrag für das Tarvelin-Projekt spenden kannst "},
}};
// clang-format on

namespace {

constexpr const char* kZeilenende = "\r\n";

/// The first characters of a text that should be UTF-8; a byte that isn't counts as one.
std::string_view Anfang(std::string_view text, std::size_t zeichen) {
    std::size_t ende = 0;
    int folgen = 0;
    for (; ende < text.size(); ++ende) {
        const int einsen = std::countl_one(static_cast<unsigned char>(text[ende]));
        if (einsen == 1 && folgen > 0) {
            --folgen;
            continue;
        }
        if (zeichen-- == 0) {
            break;
        }
        folgen = einsen >= 2 && einsen <= 4 ? einsen - 1 : 0;
    }
    return text.substr(0, ende);
}

}  // namespace

std::string Homepage() {
    return TARVELIN_MAKER_SITE "/";
}

std::string Downloadseite() {
    return TARVELIN_MAKER_SITE "/modules.php?name=Downloads&d_op=viewdownload&cid=9";
}

std::string Versionsdatei() {
    return TARVELIN_MAKER_SITE "/tarvelinversion.txt";
}

std::string Spendenseite(const Spendenknopf& knopf) {
    const std::string betrag = knopf.Betrag;
    const bool frei = betrag.empty();
    return std::string(TARVELIN_PAYMENT_SITE "/cgi-bin/webscr?cmd=_xclick&business=") +
           (frei ? TARVELIN_DONATION_ACCOUNT_FREE : TARVELIN_DONATION_ACCOUNT) +
           "&item_name=Spende%20f%c3%bcr%20das%20Tarvelin%2dProjekt" +
           (frei ? "" : "&amount=" + betrag) + "&no_shipping=1" + (frei ? "&no_note=1" : "") +
           "&cn=Optionales%20%2d%2d%3eSpenderliste&tax=0&currency_code=EUR&lc=DE"
           "&bn=PP%2dDonationsBF&charset=UTF%2d8";
}

Question Versionsfrage(std::string_view geladen) {
    constexpr std::size_t kGezeigt = 64;
    const std::string version = std::string("Deine Version (v") + kVersion + ") scheint ";
    const std::string urteil =
        geladen == kVersion
            ? "die aktuelle zu sein!"
            : "NICHT die aktuelle (v" + std::string(Anfang(geladen, kGezeigt)) + ")zu sein!";
    return {.text = version + urteil + kZeilenende +
                    "Möglicherweise habe ich aber auch nur vergessen die Versions-Datei auf dem "
                    "Server zu ändern..." +
                    kZeilenende + kZeilenende + "Hersteller-Homepage aufrufen ?",
            .title = "Version-Check...",
            .icon = MessageIcon::Information};
}

Message Versionsfehler() {
    return {.text = "Die Versions-Datei konnte nicht geladen werden...",
            .title = "Version-Check..."};
}

}  // namespace tarvelin
