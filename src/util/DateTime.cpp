// Calendar arithmetic and German date texts.
#include "util/DateTime.h"

#include <array>
#include <charconv>
#include <chrono>

namespace tarvelin {

namespace {

using std::chrono::sys_days;

constexpr std::int64_t kSekundenJeTag = 86400;
constexpr sys_days kTagNull{std::chrono::year{1899} / std::chrono::December / 30};

struct Wochentagname {
    std::string_view kurz;
    std::string_view lang;
};

constexpr std::array<Wochentagname, 7> kWochentage{{{"So", "Sonntag"},
                                                    {"Mo", "Montag"},
                                                    {"Di", "Dienstag"},
                                                    {"Mi", "Mittwoch"},
                                                    {"Do", "Donnerstag"},
                                                    {"Fr", "Freitag"},
                                                    {"Sa", "Samstag"}}};

/// Reads a text from left to right; a step that fails leaves it spoilt for good.
class Leser {
  public:
    explicit Leser(std::string_view text) : m_rest(text) {}

    /// Takes `min` to `max` digits, as many as stand there.
    int Ziffern(std::size_t min, std::size_t max) {
        std::size_t n = 0;
        while (n < max && n < m_rest.size() && m_rest[n] >= '0' && m_rest[n] <= '9') {
            ++n;
        }
        int wert = 0;
        std::from_chars(m_rest.data(), m_rest.data() + n, wert);
        m_gut = m_gut && n >= min;
        m_gelesen = n;
        m_rest.remove_prefix(n);
        return wert;
    }
    void Zeichen(char zeichen) {
        const bool da = Beginnt(zeichen);
        m_gut = m_gut && da;
        m_rest.remove_prefix(da ? 1 : 0);
    }
    [[nodiscard]] bool Beginnt(char zeichen) const {
        return !m_rest.empty() && m_rest.front() == zeichen;
    }
    [[nodiscard]] std::size_t Gelesen() const { return m_gelesen; }
    [[nodiscard]] bool AmEndeUndGut() const { return m_gut && m_rest.empty(); }
    void Verdirb() { m_gut = false; }

  private:
    std::string_view m_rest;
    std::size_t m_gelesen = 0;
    bool m_gut = true;
};

int LiesJahr(Leser& leser) {
    constexpr int kErstesJahr = 100;
    constexpr int kLetztesJahrDesJahrhunderts20xx = 29;
    const int jahr = leser.Ziffern(2, 4);
    if (leser.Gelesen() == 2) {
        return jahr <= kLetztesJahrDesJahrhunderts20xx ? 2000 + jahr : 1900 + jahr;
    }
    if (leser.Gelesen() == 3 || jahr < kErstesJahr) {
        leser.Verdirb();
    }
    return jahr;
}

std::int64_t TagZahl(Zeitpunkt zeitpunkt) {
    const std::int64_t s = zeitpunkt.Sekunden();
    return s >= 0 ? s / kSekundenJeTag : -((-s + kSekundenJeTag - 1) / kSekundenJeTag);
}

void HaengeZiffernAn(std::string& text, std::int64_t zahl, std::size_t stellen) {
    const std::string ziffern = std::to_string(zahl);
    text.append(ziffern.size() < stellen ? stellen - ziffern.size() : 0, '0');
    text += ziffern;
}

void HaengeDatumAn(std::string& text, Zeitpunkt zeitpunkt) {
    const std::chrono::year_month_day tag{kTagNull + std::chrono::days{TagZahl(zeitpunkt)}};
    HaengeZiffernAn(text, static_cast<unsigned>(tag.day()), 2);
    text += '.';
    HaengeZiffernAn(text, static_cast<unsigned>(tag.month()), 2);
    text += '.';
    HaengeZiffernAn(text, static_cast<int>(tag.year()), 4);
}

void HaengeUhrzeitAn(std::string& text, Zeitpunkt zeitpunkt) {
    const std::int64_t s = zeitpunkt.Sekunden() - TagZahl(zeitpunkt) * kSekundenJeTag;
    HaengeZiffernAn(text, s / 3600, 2);
    text += ':';
    HaengeZiffernAn(text, s / 60 % 60, 2);
    text += ':';
    HaengeZiffernAn(text, s % 60, 2);
}

}  // namespace

std::optional<Zeitpunkt> LiesDatumzeit(std::string_view text) {
    Leser leser(text);
    const auto tag = static_cast<unsigned>(leser.Ziffern(1, 2));
    leser.Zeichen('.');
    const auto monat = static_cast<unsigned>(leser.Ziffern(1, 2));
    leser.Zeichen('.');
    const int jahr = LiesJahr(leser);
    leser.Zeichen(' ');
    const int stunde = leser.Ziffern(1, 2);
    leser.Zeichen(':');
    const int minute = leser.Ziffern(1, 2);
    int sekunde = 0;
    if (leser.Beginnt(':')) {
        leser.Zeichen(':');
        sekunde = leser.Ziffern(1, 2);
    }
    const std::chrono::year_month_day datum{std::chrono::year{jahr}, std::chrono::month{monat},
                                            std::chrono::day{tag}};
    if (!leser.AmEndeUndGut() || !datum.ok() || stunde > 23 || minute > 59 || sekunde > 59) {
        return std::nullopt;
    }
    const std::int64_t tage = (sys_days{datum} - kTagNull).count();
    const int sekundeDesTages = stunde * 3600 + minute * 60 + sekunde;
    return Zeitpunkt(tage * kSekundenJeTag + sekundeDesTages);
}

int Wochentag(Zeitpunkt zeitpunkt) {
    const std::chrono::weekday tag{kTagNull + std::chrono::days{TagZahl(zeitpunkt)}};
    return static_cast<int>(tag.c_encoding()) + 1;
}

std::string_view WochentagKurz(Zeitpunkt zeitpunkt) {
    return kWochentage.at(static_cast<std::size_t>(Wochentag(zeitpunkt) - 1)).kurz;
}

std::string_view WochentagLang(Zeitpunkt zeitpunkt) {
    return kWochentage.at(static_cast<std::size_t>(Wochentag(zeitpunkt) - 1)).lang;
}

std::string Datumtext(Zeitpunkt zeitpunkt) {
    std::string text;
    HaengeDatumAn(text, zeitpunkt);
    return text;
}

std::string Uhrzeittext(Zeitpunkt zeitpunkt) {
    std::string text;
    HaengeUhrzeitAn(text, zeitpunkt);
    return text;
}

std::string Datumzeittext(Zeitpunkt zeitpunkt) {
    std::string text;
    HaengeDatumAn(text, zeitpunkt);
    text += ' ';
    HaengeUhrzeitAn(text, zeitpunkt);
    return text;
}

}  // namespace tarvelin
