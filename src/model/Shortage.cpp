// The words for a lack.
#include "model/Shortage.h"

#include <cmath>
#include <string_view>

#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::string_view ResourceText(Shortage::Kind kind) {
    switch (kind) {
        case Shortage::Kind::Metall:
            return " Metall";
        case Shortage::Kind::Kristall:
            return " Kristall";
        case Shortage::Kind::Deuterium:
            return " Deuterium";
        case Shortage::Kind::Unstated:
        case Shortage::Kind::None:
            break;
    }
    return "";
}

}  // namespace

std::string Shortage::Text() const {
    switch (kind) {
        case Kind::Unstated:
            return "";
        case Kind::None:
            return "Keine Verzögerung wegen der Ressourcen!";
        default:
            return "Es fehlten: " + WholeText(std::floor(missingAmount)) +
                   std::string(ResourceText(kind));
    }
}

}  // namespace tarvelin
