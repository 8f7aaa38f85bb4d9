// Tests nights by rule: examples of a plan's nights, and laws on random tables.
#include "plan/SleepRule.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "search/Random.h"

namespace tarvelin {
namespace {

DateTime At(const char* text) {
    return *ParseDateTime(text);
}

/// 23:00 to 07:00, at the weekend 01:00 to 09:00, none from Wednesday to Thursday.
SleepRule Week() {
    SleepRule rule = SleepRule::EveryNight({});
    rule.nights[3].reset();
    rule.nights[5] = rule.nights[6] = NightTimes{.from = 60, .to = 9 * 60};
    return rule;
}

TEST(SleepRule, FillsFromTheStartToADayAfterTheEnd) {
    const SleepTable before{{"01.12.2026 23:00", "02.12.2026 07:00"}};
    const auto fill = FillWithNights(before, Week(), At("01.12.2026 18:00"),
                                     At("05.12.2026 06:59:12"), AtOverlap::KeepRows);
    EXPECT_EQ(fill.table, (SleepTable{before[0],
                                      {"03.12.2026 23:00", "04.12.2026 07:00"},
                                      {"05.12.2026 01:00", "05.12.2026 09:00"},
                                      {"06.12.2026 01:00", "06.12.2026 09:00"}}));
    EXPECT_EQ(fill.added, 3U);
    EXPECT_EQ(fill.present, 1U);
    const auto count = [](const char* start, const char* end, const NightTimes& times) {
        return FillWithNights({}, SleepRule::EveryNight(times), At(start), At(end),
                              AtOverlap::Merge)
            .table.size();
    };
    EXPECT_EQ(count("01.12.2026 23:30", "01.12.2026 23:40", {}), 1U);
    EXPECT_EQ(count("01.12.2026 00:30", "01.12.2026 00:40", {60, 120}), 1U);
    EXPECT_EQ(count("01.12.2026 18:00", "01.12.2036 18:00", {}), kMaxNights);
    EXPECT_EQ(count("30.12.9999 18:00", "31.12.9999 23:59", {}), 1U);
    EXPECT_EQ(count("01.12.2026 18:00", "01.12.2027 18:00", {90, 90}), 0U);
}

/// Rows of all lengths, some reversed, some in the player's own spelling, some no dates.
SleepTable RandomTable(Random& random) {
    SleepTable table;
    for (std::size_t n = random.Below(30); n > 0; --n) {
        const DateTime start = At("01.12.2026 12:00:30") + 60 * std::int64_t(random.Below(40000));
        const DateTime end = start + 60 * (std::int64_t(random.Below(2000)) - 200);
        table.push_back(random.OneIn(4)   ? SleepRow{"1.12.26 23:00", "2.12.26 7:00"}
                        : random.OneIn(5) ? SleepRow{"kein", DateTimeText(end)}
                                          : SleepRow{DateTimeText(start), DateTimeText(end)});
    }
    return table;
}

SleepRule RandomRule(Random& random) {
    SleepRule rule;
    for (auto& night : rule.nights) {
        if (!random.OneIn(6)) {
            night = {int(random.Below(1440)), int(random.Below(1440))};
        }
    }
    return random.OneIn(3) ? Week() : rule;
}

bool IsAsleep(const SleepTable& table, DateTime time) {
    return std::ranges::any_of(ParseSleepTable(table), [&](const cSchlafzeit& window) {
        return window.CheckifInside(time);
    });
}

bool Overlap(const SleepRow& a, const SleepRow& b) {
    const auto one = ParseSleepRow(a);
    const auto other = ParseSleepRow(b);
    return one && other && one->Startzeit() < one->Endzeit() &&
           other->Startzeit() < other->Endzeit() && one->Startzeit() < other->Endzeit() &&
           other->Startzeit() < one->Endzeit();
}

/// Rows that it doesn't name are as they were, and those that it names overlap none.
void CheckRows(const SleepTable& before, const FilledSleepTable& fill) {
    EXPECT_EQ(fill.changedRows.size(), fill.added + fill.merged);
    EXPECT_EQ(fill.table.size(), before.size() + fill.added - fill.removed);
    auto old = before.begin();
    for (std::size_t i = 0; i < fill.table.size(); ++i) {
        if (std::ranges::count(fill.changedRows, i) == 0) {
            old = std::find(old, before.end(), fill.table[i]);
            ASSERT_NE(old++, before.end()) << i;
            continue;
        }
        for (std::size_t other = 0; other < fill.table.size(); ++other) {
            EXPECT_TRUE(other == i || !Overlap(fill.table[i], fill.table[other])) << i;
        }
    }
}

TEST(SleepRule, KeepsItsLawsOnAnyTable) {
    Random random(1);
    for (int n = 0; n < 300; ++n) {
        const SleepTable before = RandomTable(random);
        const SleepRule rule = RandomRule(random);
        const DateTime start = At("03.12.2026 18:00") + std::int64_t(random.Below(86400));
        const DateTime end = start + std::int64_t(random.Below(20 * 86400));
        const SleepTable nights = FillWithNights({}, rule, start, end, AtOverlap::Merge).table;
        for (const auto choice : {AtOverlap::KeepRows, AtOverlap::Merge, AtOverlap::ReplaceRows}) {
            SCOPED_TRACE(testing::Message() << n << ", " << int(choice));
            const auto fill = FillWithNights(before, rule, start, end, choice);
            CheckRows(before, fill);
            const auto again = FillWithNights(fill.table, rule, start, end, choice);
            EXPECT_TRUE(again.ChangesNothing());
            EXPECT_EQ(again.table, fill.table);
            EXPECT_TRUE(choice != AtOverlap::KeepRows || fill.merged + fill.removed == 0);
            const DateTime time = start + std::int64_t(random.Below(20 * 86400));
            const bool atNight = IsAsleep(nights, time);
            const bool wasAsleep = IsAsleep(before, time);
            const bool isAsleep = IsAsleep(fill.table, time);
            EXPECT_TRUE(isAsleep ? atNight || wasAsleep
                                 : !atNight || choice == AtOverlap::KeepRows);
            EXPECT_TRUE(isAsleep || !wasAsleep || choice == AtOverlap::ReplaceRows);
        }
    }
}

TEST(SleepRule, TellsFromWhenOnAPlanHasNoNights) {
    const SleepTable table{{"02.12.2026 23:00", "03.12.2026 07:00"},
                           {"01.12.2026 23:00", "02.12.2026 07:00"},
                           {"04.12.2026 12:00", "04.12.2026 14:00"}};
    const auto from = [&](const char* start, const char* end) {
        const auto time = SleeplessFrom(table, At(start), At(end));
        return time ? DateTimeText(*time) : "";
    };
    EXPECT_EQ(from("01.12.2026 18:00", "03.12.2026 23:00"), "");
    EXPECT_EQ(from("01.12.2026 18:00", "03.12.2026 23:01"), "03.12.2026 23:00:00");
    EXPECT_EQ(from("08.12.2026 18:00", "09.12.2026 23:01"), "08.12.2026 18:00:00");
    EXPECT_FALSE(SleeplessFrom({table[2]}, At("01.12.2026 18:00"), At("09.12.2026 18:00")));
}

TEST(SleepRule, MovesWithTheStart) {
    const SleepTable table{{"27.2.28 23:00", "28.2.28 7:00:05"},
                           {"x", "01.01.2026 00:00"},
                           {"31.12.9999 12:00", "31.12.9999 13:00"}};
    EXPECT_EQ(MovedByDays(table, 2),
              (SleepTable{{"29.02.2028 23:00", "01.03.2028 07:00:05"}, table[1]}));
    EXPECT_EQ(MovedByDays(table, -1).back(), (SleepRow{"30.12.9999 12:00", "30.12.9999 13:00"}));
    EXPECT_EQ(MovedByDays(table, 0), table);
}

}  // namespace
}  // namespace tarvelin
