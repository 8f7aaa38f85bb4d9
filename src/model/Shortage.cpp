// The text of a shortage.
#include "model/Shortage.h"

#include <cmath>

#include "util/NumberText.h"

namespace tarvelin {

std::optional<Resource> Shortage::ShortResource() const {
    switch (kind) {
        case Kind::Metall:
            return Resource::Metall;
        case Kind::Kristall:
            return Resource::Kristall;
        case Kind::Deuterium:
            return Resource::Deuterium;
        case Kind::Unstated:
        case Kind::None:
            break;
    }
    return std::nullopt;
}

std::string Shortage::Text() const {
    if (const auto resource = ShortResource()) {
        return "Es fehlten: " + WholeText(std::floor(missingAmount)) + " " +
               std::string(kResourceNames[*resource]);
    }
    return kind == Kind::None ? "Keine Verzögerung wegen der Ressourcen!" : "";
}

std::string Shortage::AmountText() const {
    const auto resource = ShortResource();
    return resource ? GroupedText(std::floor(missingAmount)) + " " +
                          std::string(kResourceNames[*resource])
                    : "";
}

}  // namespace tarvelin
