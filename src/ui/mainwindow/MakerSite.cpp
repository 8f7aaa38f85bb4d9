// Builds the addresses and compares versions.
#include "ui/mainwindow/MakerSite.h"

#include "util/Utf8.h"

namespace tarvelin {

// clang-format off
const std::array<DonationButton, 6> kDonationButtons{{
    {"ImgDonate_05", "spende_05.png", "0%2e50", " Öffnet eine Seite, auf der du 0.50€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_1", "spende_1.png", "1%2e00", " Öffnet eine Seite, auf der du 1€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_2", "spende_2.png", "2%2e00", " Öffnet eine Seite, auf der du 2€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_5", "spende_5.png", "5%2e00", " Öffnet eine Seite, auf der du 5€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_10", "spende_10.png", "10%2e00", " Öffnet eine Seite, auf der du 10€ für das Tarvelin-Projekt spenden kannst "},
    {"ImgDonate_X", "spende_X.png", "", " Öffnet eine Seite, auf der du einen frei wählbahren Betrag für das Tarvelin-Projekt spenden kannst "},
}};
// clang-format on

namespace {

constexpr const char* kLineEnd = "\r\n";

/// The text should be UTF-8; an invalid byte counts as a character.
std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::string_view rest = text;
    for (std::size_t i = 0; i < count && !rest.empty(); ++i) {
        static_cast<void>(TakeCodePoint(rest));
    }
    return text.substr(0, text.size() - rest.size());
}

}  // namespace

std::string HomePage() {
    return TARVELIN_MAKER_SITE "/";
}

std::string DownloadsPage() {
    return TARVELIN_MAKER_SITE "/modules.php?name=Downloads&d_op=viewdownload&cid=9";
}

std::string VersionFile() {
    return TARVELIN_MAKER_SITE "/tarvelinversion.txt";
}

std::string DonationPage(const DonationButton& button) {
    const std::string amount = button.amount;
    const bool free = amount.empty();
    return std::string(TARVELIN_PAYMENT_SITE "/cgi-bin/webscr?cmd=_xclick&business=") +
           (free ? TARVELIN_DONATION_ACCOUNT_FREE : TARVELIN_DONATION_ACCOUNT) +
           "&item_name=Spende%20f%c3%bcr%20das%20Tarvelin%2dProjekt" +
           (free ? "" : "&amount=" + amount) + "&no_shipping=1" + (free ? "&no_note=1" : "") +
           "&cn=Optionales%20%2d%2d%3eSpenderliste&tax=0&currency_code=EUR&lc=DE"
           "&bn=PP%2dDonationsBF&charset=UTF%2d8";
}

Question VersionQuestion(std::string_view loaded) {
    constexpr std::size_t kShown = 64;
    const std::string version = std::string("Deine Version (v") + kVersion + ") scheint ";
    const std::string verdict =
        loaded == kVersion
            ? "die aktuelle zu sein!"
            : "NICHT die aktuelle (v" + std::string(FirstCharacters(loaded, kShown)) + ")zu sein!";
    return {.text = version + verdict + kLineEnd +
                    "Möglicherweise habe ich aber auch nur vergessen die Versions-Datei auf dem "
                    "Server zu ändern..." +
                    kLineEnd + kLineEnd + "Hersteller-Homepage aufrufen ?",
            .title = "Version-Check...",
            .icon = MessageIcon::Information};
}

Message VersionErrorMessage() {
    return {.text = "Die Versions-Datei konnte nicht geladen werden...",
            .title = "Version-Check..."};
}

}  // namespace tarvelin
