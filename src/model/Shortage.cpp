// The words for a lack.
#include "model/Shortage.h"

#include <cmath>
#include <string_view>

#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::string_view Rohstofftext(Verzoegerung::Art art) {
    switch (art) {
        case Verzoegerung::Art::Metall:
            return " Metall";
        case Verzoegerung::Art::Kristall:
            return " Kristall";
        case Verzoegerung::Art::Deuterium:
            return " Deuterium";
        case Verzoegerung::Art::OhneAngabe:
        case Verzoegerung::Art::Keine:
            break;
    }
    return "";
}

}  // namespace

std::string Verzoegerung::Text() const {
    switch (Grund) {
        case Art::OhneAngabe:
            return "";
        case Art::Keine:
            return "Keine Verzögerung wegen der Ressourcen!";
        default:
            return "Es fehlten: " + WholeText(std::floor(Fehlmenge)) +
                   std::string(Rohstofftext(Grund));
    }
}

}  // namespace tarvelin
