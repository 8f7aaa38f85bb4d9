// The door to the profile files: one key is read, one key is written.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "persistence/Dateisystem.h"

namespace tarvelin {

/// The value of a key as the file holds it now, or `Default` if file, section or key is missing.
/// See `Profil::Lies`. Never creates or changes anything.
[[nodiscard]] std::string ReadINI(std::string_view Section, std::string_view Key,
                                  const std::filesystem::path& File, std::string_view Default,
                                  const Dateisystem& system = Platte());

/// Sets a key; the file is made if it is missing. A write that fails is lost without a word.
void WriteINI(std::string_view Section, std::string_view Key, std::string_view Value,
              const std::filesystem::path& File, const Dateisystem& system = Platte());

}  // namespace tarvelin
