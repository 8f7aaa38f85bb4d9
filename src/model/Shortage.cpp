// The text of a shortage.
#include "model/Shortage.h"

#include <cmath>
#include <optional>

#include "model/Resource.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::optional<Resource> ResourceOf(Shortage::Kind kind) {
    switch (kind) {
        case Shortage::Kind::Metall:
            return Resource::Metall;
        case Shortage::Kind::Kristall:
            return Resource::Kristall;
        case Shortage::Kind::Deuterium:
            return Resource::Deuterium;
        case Shortage::Kind::Unstated:
        case Shortage::Kind::None:
            break;
    }
    return std::nullopt;
}

}  // namespace

std::string Shortage::Text() const {
    if (const auto resource = ResourceOf(kind)) {
        return "Es fehlten: " + WholeText(std::floor(missingAmount)) + " " +
               std::string(kResourceNames[*resource]);
    }
    return kind == Kind::None ? "Keine Verzögerung wegen der Ressourcen!" : "";
}

std::string Shortage::AmountText() const {
    const auto resource = ResourceOf(kind);
    return resource ? GroupedText(std::floor(missingAmount)) + " " +
                          std::string(kResourceNames[*resource])
                    : "";
}

}  // namespace tarvelin
