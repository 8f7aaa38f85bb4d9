// What the file layer makes of the calls on any platform.
#include "persistence/Dateisystem.h"

#include <array>
#include <system_error>
#include <utility>

namespace tarvelin {

std::optional<std::filesystem::path> Dateisystem::LoeseAuf(
    const std::filesystem::path& pfad) const {
    std::error_code fehler;
    auto ziel = std::filesystem::weakly_canonical(std::filesystem::absolute(pfad, fehler), fehler);
    return fehler ? std::nullopt : std::optional(std::move(ziel));
}

std::vector<std::filesystem::path> Dateisystem::Eintraege(
    const std::filesystem::path& ordner) const {
    std::vector<std::filesystem::path> eintraege;
    std::error_code fehler;
    for (std::filesystem::directory_iterator eintrag(ordner, fehler), ende;
         !fehler && eintrag != ende; eintrag.increment(fehler)) {
        eintraege.push_back(eintrag->path());
    }
    return eintraege;
}

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

}  // namespace tarvelin
