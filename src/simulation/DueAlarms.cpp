// The clock against the tables.
#include "simulation/DueAlarms.h"

#include <algorithm>

#include "util/NumberText.h"

namespace tarvelin {

std::optional<Long> LiesVorlauf(std::string_view vorher) {
    constexpr std::int64_t kLaengstens = 86400;
    const auto sekunden = ParseWholeNumber(vorher, 0, kLaengstens);
    return sekunden ? std::optional(static_cast<Long>(*sekunden)) : std::nullopt;
}

std::size_t FaelligeBauzeiten(const Bauzeiten& bauzeiten, DateTime jetzt, std::string_view vorher) {
    const auto sekunden = LiesVorlauf(vorher);
    if (!sekunden) {
        return 0;
    }
    return static_cast<std::size_t>(
        std::ranges::count(bauzeiten, jetzt + *sekunden, &Bauzeit::Start));
}

std::size_t FaelligeSchlafzeiten(const SleepTable& tabelle, DateTime jetzt) {
    constexpr std::int64_t kEineMinute = 60;
    const std::string gleich = DateTimeText(jetzt + kEineMinute);
    return static_cast<std::size_t>(std::ranges::count_if(
        tabelle, [&](const SleepRow& zeile) { return zeile.Endzeit + ":00" == gleich; }));
}

}  // namespace tarvelin
