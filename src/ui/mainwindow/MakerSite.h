// Version, pages and donations: what the menu "Info" leads to.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Three numbers with points, as the program is built with.
inline constexpr const char* kVersion = TARVELIN_VERSION;

[[nodiscard]] std::string HomePage();
[[nodiscard]] std::string DownloadsPage();
/// A text file with the current version and nothing else.
[[nodiscard]] std::string VersionFile();

/// A button of the donation dialog.
struct DonationButton {
    const char* pictureName;
    const char* file;
    /// Empty where the user chooses the amount on the page.
    const char* amount;
    const char* hint;
};

extern const std::array<DonationButton, 6> kDonationButtons;

[[nodiscard]] std::string DonationPage(const DonationButton& button);

/// What to ask the user after the fetch of the version file, whose every character counts. At most
/// 64 characters of it are shown.
[[nodiscard]] Question VersionQuestion(std::string_view loaded);

/// The message when the version file can't be fetched.
[[nodiscard]] Message VersionErrorMessage();

}  // namespace tarvelin
