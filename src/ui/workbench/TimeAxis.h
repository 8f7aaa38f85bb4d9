// Where the marks of a time axis stand, and what they say.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <string>

#include "util/DateTime.h"

namespace tarvelin {

/// Marks stand at round moments of the wall clock, as many as there is room for their words.
class Zeitachse {
  public:
    /// `jeSekunde` and `breite` in the same unit: how long a second is, and a mark's words.
    Zeitachse(double jeSekunde, double breite) {
        for (const std::int64_t schritt : kSchritte) {
            m_schritt = schritt;
            if (static_cast<double>(schritt) * jeSekunde >= breite) {
                return;
            }
        }
        while (static_cast<double>(m_schritt) * jeSekunde < breite && m_schritt < kLaengster) {
            m_schritt *= 2;
        }
    }

    /// Tells the marks from `von` to `bis`, in seconds since `beginn`: the second and the words.
    template <class Strich>
    void JederStrich(DateTime beginn, double von, double bis, Strich strich) const {
        const auto erste = beginn + static_cast<std::int64_t>(std::floor(von));
        const auto letzte = beginn + static_cast<std::int64_t>(std::ceil(bis));
        const std::int64_t nummer = erste.Seconds() / m_schritt;
        for (std::int64_t um = nummer * m_schritt; um <= letzte.Seconds(); um += m_schritt) {
            strich(um - beginn.Seconds(), Text(DateTime(um)));
        }
    }

  private:
    static constexpr std::int64_t kMinute = 60;
    static constexpr std::int64_t kStunde = 60 * kMinute;
    static constexpr std::int64_t kTag = 24 * kStunde;
    static constexpr std::int64_t kLaengster = 1'000'000 * kTag;
    static constexpr std::array<std::int64_t, 17> kSchritte{1,
                                                            5,
                                                            15,
                                                            30,
                                                            kMinute,
                                                            5 * kMinute,
                                                            15 * kMinute,
                                                            30 * kMinute,
                                                            kStunde,
                                                            2 * kStunde,
                                                            3 * kStunde,
                                                            6 * kStunde,
                                                            12 * kStunde,
                                                            kTag,
                                                            2 * kTag,
                                                            7 * kTag,
                                                            14 * kTag};

    [[nodiscard]] std::string Text(DateTime um) const {
        const std::string datum = DateText(um);
        std::string tag = std::string(WeekdayShort(um)) + " " +
                          (m_schritt > kTag ? datum : datum.substr(0, datum.rfind('.') + 1));
        if (m_schritt >= kTag) {
            return tag;
        }
        const std::string uhrzeit = TimeOfDayText(um);
        const bool mitSekunden = m_schritt < kMinute;
        return tag + " " + (mitSekunden ? uhrzeit : uhrzeit.substr(0, uhrzeit.rfind(':')));
    }

    std::int64_t m_schritt = 1;
};

}  // namespace tarvelin
