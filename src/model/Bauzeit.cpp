// Texts of the table of build times.
#include "model/Bauzeit.h"

#include <cmath>

#include "util/Zahlentext.h"

namespace tarvelin {

namespace {

std::string_view Rohstoff(Verzoegerung::Art art) {
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
            return "Es fehlten: " + Ganztext(std::floor(Fehlmenge)) + std::string(Rohstoff(Grund));
    }
}

std::string Bauzeit::theText() const {
    if (m_name.empty()) {
        const auto prozent = [this](std::size_t i) { return std::to_string(m_faktoren[i] * 10); };
        return prozent(0) + "% " + prozent(1) + "% " + prozent(2) + "%";
    }
    std::string text(m_name);
    return m_nummer == 0 ? text : text + std::to_string(m_nummer);
}

std::string Bauzeit::Tag() const {
    std::string tag = std::string(WochentagLang(m_zeit)) + " " + Datumzeittext(m_zeit);
    const std::string grund = m_grund.Text();
    return grund.size() > 1 ? tag + " | " + grund : tag;
}

}  // namespace tarvelin
