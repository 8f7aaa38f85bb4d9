// What the file layer makes of the calls on any platform.
#include "persistence/FileSystem.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarvelin {

std::optional<std::string> LiesDatei(const std::filesystem::path& datei, std::size_t hoechstens,
                                     const Dateisystem& system) {
    // What is no plain file might never come to an end.
    if (system.Sieh(datei) != Dateisystem::Art::Datei) {
        return std::nullopt;
    }
    const int nummer = system.Oeffne(datei);
    if (nummer < 0) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, std::size_t{64} << 10U> block{};
    std::ptrdiff_t gelesen = 1;
    while (gelesen > 0 && bytes.size() <= hoechstens) {
        gelesen = system.Lies(nummer, block);
        bytes.append(block.data(), static_cast<std::size_t>(gelesen < 0 ? 0 : gelesen));
    }
    static_cast<void>(system.Schliesse(nummer));
    return gelesen == 0 ? std::optional(std::move(bytes)) : std::nullopt;
}

bool FileExists(const std::filesystem::path& File, const Dateisystem& system) {
    const auto art = system.Sieh(File);
    return art && *art != Dateisystem::Art::Nichts && *art != Dateisystem::Art::Ordner;
}

std::vector<std::string> GetSubfolders(const std::filesystem::path& Path,
                                       const Dateisystem& system) {
    std::vector<std::string> namen;
    for (const auto& eintrag : system.Eintraege(Path)) {
        if (system.IstSchlichterOrdner(eintrag)) {
            const auto name = eintrag.filename().u8string();
            namen.emplace_back(name.begin(), name.end());
        }
    }
    std::ranges::sort(namen);
    if (namen.empty()) {
        namen.emplace_back();
    }
    return namen;
}

}  // namespace tarvelin
