// Addresses on the maker's site, donations, and the check for a new version.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Three numbers with dots.
inline constexpr const char* kVersion = TARVELIN_VERSION;

[[nodiscard]] std::string HomePage();
[[nodiscard]] std::string DownloadsPage();
/// A text file that contains the current version and nothing else.
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

/// Compares the content of the version file with this version, character by character. Shows at
/// most 64 characters of it.
[[nodiscard]] Question VersionQuestion(std::string_view loaded);

/// For a version file that can't be fetched.
[[nodiscard]] Message VersionErrorMessage();

}  // namespace tarvelin
