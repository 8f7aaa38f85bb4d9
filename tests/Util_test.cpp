// Tests roundings, fixed-point numbers, number texts, dates, text helpers and the code page.
#include <cmath>
#include <limits>

#include "TestSupport.h"
#include "util/Codepage1252.h"
#include "util/DateTime.h"
#include "util/FixedPoint.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {
namespace {

constexpr auto kMax64 = std::numeric_limits<std::int64_t>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr auto kMin64 = std::numeric_limits<std::int64_t>::min();

TEST(Rounding, GoesAsNamedAndSaturates) {
    struct Case {
        double value;
        std::int64_t half, cut, floor;
    };
    for (const Case& testCase :
         {Case{2.5, 2, 2, 2}, Case{3.5, 4, 3, 3}, Case{-2.5, -2, -2, -3}, Case{-0.1, 0, 0, -1},
          Case{7, 7, 7, 7}, Case{1e300, kMax64, kMax64, kMax64},
          Case{-9223372036854775808.0, kMin64, kMin64, kMin64},
          Case{-kInfinity, kMin64, kMin64, kMin64}, Case{kNaN, 0, 0, 0}}) {
        EXPECT_EQ(Rounding::HalfEven(testCase.value), testCase.half) << testCase.value;
        EXPECT_EQ(Rounding::Cut(testCase.value), testCase.cut) << testCase.value;
        EXPECT_EQ(Rounding::Floor(testCase.value), testCase.floor) << testCase.value;
    }
    EXPECT_EQ(LongSum(kMax64 / 2, 5), std::numeric_limits<Long>::max());
    EXPECT_EQ(LongSum(-3'000'000'000, 5), std::numeric_limits<Long>::min());
    EXPECT_EQ(Saturate<Byte>(300), 255);
    EXPECT_EQ(Saturate<Byte>(-1), 0);
}

TEST(FixedPoint, CalculatesExactlyAndSaturates) {
    const auto max = FixedPoint::FromRaw(kMax64);
    const auto min = FixedPoint::FromRaw(kMin64);
    EXPECT_EQ(max + FixedPoint::FromRaw(1), max);
    EXPECT_EQ(min - FixedPoint::FromRaw(1), min);
    EXPECT_EQ(max * -2, min);
    EXPECT_EQ(min * -1, max);
    EXPECT_EQ(FixedPoint::FromDouble(1e30), max);
    EXPECT_EQ(FixedPoint::FromDouble(0.00005).Raw(), 0);
    EXPECT_EQ(FixedPoint::FromDouble(0.00035).Raw(), 4);
    EXPECT_EQ(FixedPoint::FromDouble(-12.9).WholePart(), -12);
    EXPECT_EQ(FourDecimalsText(min), "-922337203685477.5808");
    EXPECT_EQ(DecimalText(FixedPoint::FromDouble(-0.05)), "-0,05");
}

TEST(NumberText, WritesPlainDecimals) {
    EXPECT_EQ(DecimalText(0.1 - 40 + 40, 10), "0,1");
    EXPECT_EQ(DecimalText(0.0625, 3), "0,062");
    EXPECT_EQ(DecimalText(999999999, 10), "999999999");
    EXPECT_EQ(DecimalText(1e22, 10), "10000000000000000000000");
    EXPECT_EQ(WholeText(-0.5), "0");
    EXPECT_EQ(WholeText(std::ldexp(1.0, 80)), "1208925819614629174706176");
}

TEST(DateTime, KnowsWeekdaysAndLargeYears) {
    const DateTime saturday = *ParseDateTime("18.11.2006 23:59:59");
    EXPECT_EQ(WeekdayLong(saturday + 1), "Sonntag");
    EXPECT_EQ(DateTimeText(*ParseDateTime("31.12.9999 23:59:59") + 1), "01.01.10000 00:00:00");
    EXPECT_EQ(WeekdayShort(*ParseDateTime("29.12.1899 12:00")), "Fr");
    EXPECT_EQ(*ParseDateTime("01.01.9999 00:00") - saturday, std::numeric_limits<Long>::max());
    EXPECT_FALSE(ParseDateTime(""));
}

TEST(Nuetzliches, CutsTexts) {
    EXPECT_EQ(GetToken("GX:8:10:5", 4, ""), "5");
    EXPECT_EQ(GetToken("GX:8", std::numeric_limits<int>::max(), ":"), "");
    EXPECT_EQ(TextAfter("a | b", " | "), "| b");
    EXPECT_EQ(TextAfter("xäy", "ä"), "y");
}

TEST(Nuetzliches, WritesDurations) {
    EXPECT_EQ(FormatDuration(90061, "s", "d(0)h(1)m(2)s(3)(&)", "d"), "1 Tage 1h 1m 1s und");
    EXPECT_EQ(FormatDuration(90061, "s", "hh:mm:ss", "h"), "25:01:01");
    EXPECT_EQ(FormatDuration(3700, "s", "mm:ss", "d"), "01:40");
    EXPECT_EQ(FormatDuration(100, "d", "dd(0)", "x"), "100 Tage ");
    EXPECT_EQ(FormatDuration(5, "w", "ss", "d"), "");
}

TEST(Codepage1252, ReplacesWhatItLacks) {
    EXPECT_EQ(To1252("\xE0\x81\x81\xC0\xAF\xF4\x90\x80\x80"), "?????????");
    EXPECT_EQ(To1252("漢\xF0\x9F\x98\x80 \xFFx\xC3"), "?? ?x?");
}

}  // namespace
}  // namespace tarvelin
