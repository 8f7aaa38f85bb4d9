// The text of a shortage.
#include "model/Shortage.h"

#include <cmath>

#include "model/Resource.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::string MissingText(double amount, Resource resource) {
    return "Es fehlten: " + WholeText(std::floor(amount)) + " " +
           std::string(kResourceNames[resource]);
}

}  // namespace

std::string Shortage::Text() const {
    switch (kind) {
        case Kind::Unstated:
            break;
        case Kind::None:
            return "Keine Verzögerung wegen der Ressourcen!";
        case Kind::Metall:
            return MissingText(missingAmount, Resource::Metall);
        case Kind::Kristall:
            return MissingText(missingAmount, Resource::Kristall);
        case Kind::Deuterium:
            return MissingText(missingAmount, Resource::Deuterium);
    }
    return "";
}

}  // namespace tarvelin
