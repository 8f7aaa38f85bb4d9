// Makes nights from a rule and enters them into a table.
#include "plan/SleepRule.h"

#include <algorithm>
#include <utility>

namespace tarvelin {

namespace {

constexpr int kMinutesPerDay = 24 * 60;
// In seconds.
constexpr std::int64_t kMinute = 60;
constexpr std::int64_t kDay = kMinutesPerDay * kMinute;

bool HoldsAMoment(const cSchlafzeit& window) {
    return window.Startzeit() < window.Endzeit();
}

bool Overlap(const cSchlafzeit& a, const cSchlafzeit& b) {
    return a.Startzeit() < b.Endzeit() && b.Startzeit() < a.Endzeit();
}

bool Covers(const cSchlafzeit& outer, const cSchlafzeit& inner) {
    return outer.Startzeit() <= inner.Startzeit() && outer.Endzeit() >= inner.Endzeit();
}

/// The night of an evening, if a row can hold it.
std::optional<cSchlafzeit> NightOf(const SleepRule& rule, DateTime midnightBefore) {
    constexpr int kNoon = kMinutesPerDay / 2;
    const auto& times = rule.nights.at(static_cast<std::size_t>(Weekday(midnightBefore) - 1));
    if (!times || times->from == times->to) {
        return std::nullopt;
    }
    const int from = times->from + (times->from < kNoon ? kMinutesPerDay : 0);
    const int minutes = times->to - times->from + (times->to < times->from ? kMinutesPerDay : 0);
    const DateTime begin = midnightBefore + kMinute * from;
    return ParseSleepRow(SleepRowOf(begin, begin + kMinute * minutes));
}

/// By time; nights that overlap are one.
std::vector<cSchlafzeit> NightsOf(const SleepRule& rule, DateTime first, DateTime last) {
    std::vector<cSchlafzeit> nights;
    if (rule == SleepRule()) {
        return nights;
    }
    for (DateTime day = StartOfDay(first) + -kDay; day <= last && nights.size() < kMaxNights;
         day = day + kDay) {
        const auto night = NightOf(rule, day);
        if (!night || night->Startzeit() < first || night->Startzeit() > last) {
            continue;
        }
        if (!nights.empty() && Overlap(nights.back(), *night)) {
            nights.back().Init(nights.back().Startzeit(),
                               std::max(nights.back().Endzeit(), night->Endzeit()));
        } else {
            nights.push_back(*night);
        }
    }
    return nights;
}

/// A table while nights are entered.
class Filling {
  public:
    Filling(const SleepTable& table, AtOverlap atOverlap)
        : m_atOverlap(atOverlap), m_numOld(table.size()) {
        for (const SleepRow& text : table) {
            const auto window = ParseSleepRow(text);
            m_rows.push_back({.text = text, .window = window.value_or(cSchlafzeit())});
        }
    }

    void Enter(const cSchlafzeit& night) {
        const auto hits = RowsThatOverlap(night);
        const bool suffices = std::ranges::any_of(hits, [&](std::size_t i) {
            const cSchlafzeit& window = m_rows[i].window;
            return m_atOverlap == AtOverlap::KeepRows ||
                   (Covers(window, night) &&
                    (m_atOverlap == AtOverlap::Merge || Covers(night, window)));
        });
        m_present += suffices ? 1 : 0;
        if (m_atOverlap == AtOverlap::ReplaceRows) {
            RemoveAllBut(night, hits);
        }
        if (suffices) {
            return;
        }
        if (m_atOverlap == AtOverlap::Merge && !hits.empty()) {
            Merge(night);
        } else {
            m_rows.push_back({.text = SleepRowOf(night.Startzeit(), night.Endzeit()),
                              .window = night,
                              .isChanged = true});
        }
    }

    [[nodiscard]] FilledSleepTable Result() const {
        FilledSleepTable result{.table = {}, .changedRows = {}, .present = m_present};
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const Row& row = m_rows[i];
            if (row.isGone) {
                ++result.removed;
                continue;
            }
            if (row.isChanged) {
                ++(i < m_numOld ? result.merged : result.added);
                result.changedRows.push_back(result.table.size());
            }
            result.table.push_back(row.text);
        }
        return result;
    }

  private:
    struct Row {
        SleepRow text;
        /// Holds no moment if the row isn't dates.
        cSchlafzeit window;
        bool isChanged = false;
        bool isGone = false;
    };

    [[nodiscard]] std::vector<std::size_t> RowsThatOverlap(const cSchlafzeit& window) const {
        std::vector<std::size_t> hits;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            const Row& row = m_rows[i];
            if (!row.isGone && HoldsAMoment(row.window) && Overlap(row.window, window)) {
                hits.push_back(i);
            }
        }
        return hits;
    }

    /// Removes rows, except the first that is the night itself.
    void RemoveAllBut(const cSchlafzeit& night, const std::vector<std::size_t>& hits) {
        bool isKept = false;
        for (const std::size_t i : hits) {
            const cSchlafzeit& window = m_rows[i].window;
            const bool isNight = Covers(window, night) && Covers(night, window);
            m_rows[i].isGone = isKept || !isNight;
            isKept = isKept || isNight;
        }
    }

    /// One row over a night, all rows that it overlaps, and all that these overlap. Begin and end
    /// keep the texts that they have.
    void Merge(const cSchlafzeit& night) {
        Row whole{.text = SleepRowOf(night.Startzeit(), night.Endzeit()),
                  .window = night,
                  .isChanged = true};
        std::vector<std::size_t> hits;
        for (bool grows = true; grows;) {
            auto more = RowsThatOverlap(whole.window);
            grows = more.size() > hits.size();
            hits = std::move(more);
            for (const std::size_t i : hits) {
                const Row& row = m_rows[i];
                if (row.window.Startzeit() <= whole.window.Startzeit()) {
                    whole.text.Startzeit = row.text.Startzeit;
                    whole.window.Init(row.window.Startzeit(), whole.window.Endzeit());
                }
                if (row.window.Endzeit() >= whole.window.Endzeit()) {
                    whole.text.Endzeit = row.text.Endzeit;
                    whole.window.Init(whole.window.Startzeit(), row.window.Endzeit());
                }
            }
        }
        for (const std::size_t i : hits) {
            m_rows[i].isGone = true;
        }
        m_rows[hits.front()] = std::move(whole);
    }

    AtOverlap m_atOverlap;
    std::size_t m_numOld;
    std::vector<Row> m_rows;
    std::size_t m_present = 0;
};

/// The rows that are long enough to be nights, by their begin.
std::vector<cSchlafzeit> NightsIn(const SleepTable& table) {
    constexpr std::int64_t kShortestNight = 180 * kMinute;
    auto windows = ParseSleepTable(table);
    std::erase_if(windows, [](const cSchlafzeit& window) {
        return window.Endzeit() - window.Startzeit() < kShortestNight;
    });
    std::ranges::stable_sort(windows, {}, &cSchlafzeit::Startzeit);
    return windows;
}

NightTimes TimesOf(const cSchlafzeit& night) {
    const auto minuteOf = [](DateTime time) {
        return static_cast<int>((time - StartOfDay(time)) / kMinute);
    };
    return {.from = minuteOf(night.Startzeit()), .to = minuteOf(night.Endzeit())};
}

/// "dd.mm.yyyy hh:mm", and seconds where there are some.
std::string ShortText(DateTime time) {
    return time.Seconds() % kMinute == 0 ? SleepRowOf(time, time).Startzeit : DateTimeText(time);
}

}  // namespace

SleepRule SleepRule::EveryNight(const NightTimes& times) {
    SleepRule rule;
    rule.nights.fill(times);
    return rule;
}

FilledSleepTable FillWithNights(const SleepTable& table, const SleepRule& rule, DateTime planStart,
                                DateTime planEnd, AtOverlap atOverlap) {
    Filling filling(table, atOverlap);
    for (const cSchlafzeit& night :
         NightsOf(rule, planStart, std::max(planStart, planEnd) + kDay)) {
        filling.Enter(night);
    }
    return filling.Result();
}

std::optional<DateTime> SleeplessFrom(const SleepTable& table, DateTime planStart,
                                      DateTime planEnd) {
    const auto nights = NightsIn(table);
    if (nights.empty()) {
        return std::nullopt;
    }
    DateTime from = planStart;
    for (const cSchlafzeit& night : nights) {
        from = std::max({from, night.Startzeit() + kDay, night.Endzeit()});
    }
    return from < planEnd ? std::optional(from) : std::nullopt;
}

std::optional<SleepRule> RuleOf(const SleepTable& table) {
    const auto nights = NightsIn(table);
    if (nights.empty()) {
        return std::nullopt;
    }
    SleepRule rule = SleepRule::EveryNight(TimesOf(nights.back()));
    for (const cSchlafzeit& night : nights) {
        const DateTime evening = night.Startzeit() + -kDay / 2;
        rule.nights.at(static_cast<std::size_t>(Weekday(evening) - 1)) = TimesOf(night);
    }
    return rule;
}

SleepTable MovedByDays(const SleepTable& table, int days) {
    SleepTable moved;
    for (const SleepRow& row : table) {
        const auto window = ParseSleepRow(row);
        if (!window || days == 0) {
            moved.push_back(row);
            continue;
        }
        const std::int64_t seconds = days * kDay;
        const SleepRow later{ShortText(window->Startzeit() + seconds),
                             ShortText(window->Endzeit() + seconds)};
        if (ParseSleepRow(later)) {
            moved.push_back(later);
        }
    }
    return moved;
}

}  // namespace tarvelin
