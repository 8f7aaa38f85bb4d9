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

[[nodiscard]] std::string Homepage();
[[nodiscard]] std::string Downloadseite();
/// A text file with the current version and nothing else.
[[nodiscard]] std::string Versionsdatei();

/// A button of the donation dialog.
struct Spendenknopf {
    const char* Bild;
    const char* Datei;
    /// Empty where the user chooses the amount on the page.
    const char* Betrag;
    const char* Hinweis;
};

extern const std::array<Spendenknopf, 6> kSpendenknoepfe;

[[nodiscard]] std::string Spendenseite(const Spendenknopf& knopf);

/// What to ask the user after the fetch of the version file, whose every character counts. At most
/// 64 characters of it are shown.
[[nodiscard]] Question Versionsfrage(std::string_view geladen);

/// The message when the version file can't be fetched.
[[nodiscard]] Message Versionsfehler();

}  // namespace tarvelin
