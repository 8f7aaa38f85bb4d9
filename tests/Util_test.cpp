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
    EXPECT_EQ(FourDecimalsText(FixedPoint::FromDouble(-0.5)), "-0.5000");
    EXPECT_EQ(FourDecimalsText(min), "-922337203685477.5808");
    EXPECT_EQ(DecimalText(FixedPoint::FromDouble(440.6278)), "440,6278");
    EXPECT_EQ(DecimalText(FixedPoint::FromDouble(-0.05)), "-0,05");
    EXPECT_EQ(DecimalText(FixedPoint::FromWhole(500)), "500");
    EXPECT_EQ(DecimalText(FixedPoint()), "0");
}

TEST(NumberText, WritesPlainDecimals) {
    EXPECT_EQ(DecimalText(0.1 - 40 + 40, 10), "0,1");
    EXPECT_EQ(DecimalText(-0.00004, 4), "0");
    EXPECT_EQ(DecimalText(0.0625, 3), "0,062");
    EXPECT_EQ(DecimalText(1234.5678, 0), "1235");
    EXPECT_EQ(DecimalText(-27.95, 10), "-27,95");
    EXPECT_EQ(DecimalText(999999999, 10), "999999999");
    EXPECT_EQ(DecimalText(123456789.5, 10), "123456789,5");
    EXPECT_EQ(DecimalText(-1e15 / 2, 10), "-500000000000000");
    EXPECT_EQ(DecimalText(1e22, 10), "10000000000000000000000");
    EXPECT_EQ(WholeText(-12.9), "-12");
    EXPECT_EQ(WholeText(-0.5), "0");
    EXPECT_EQ(WholeText(std::ldexp(1.0, 80)), "1208925819614629174706176");
}

TEST(DateTime, ParsesOnlyTheseTexts) {
    const auto parsed = [](const char* text) {
        const auto time = ParseDateTime(text);
        return time ? DateTimeText(*time) : "-";
    };
    for (const auto& [text, time] : {std::pair("1.2.06 3:4", "01.02.2006 03:04:00"),
                                     std::pair("01.02.2006 03:04:5", "01.02.2006 03:04:05"),
                                     std::pair("29.02.29 23:59:59", "-"),
                                     std::pair("28.02.29 23:59:59", "28.02.2029 23:59:59"),
                                     std::pair("28.02.30 00:00:00", "28.02.1930 00:00:00"),
                                     std::pair("29.02.2000 00:00", "29.02.2000 00:00:00"),
                                     std::pair("01.01.0100 00:00", "01.01.0100 00:00:00")}) {
        EXPECT_EQ(parsed(text), time) << text;
    }
    for (const char* const text : {"18.11.206 12:30",
                                   "18.11.0099 12:30",
                                   "18.11.20006 12:30",
                                   "18.11.6 12:30",
                                   "018.11.2006 12:30",
                                   "18.011.2006 12:30",
                                   "18.11.2006 012:30",
                                   "18.11.2006 12:030",
                                   "18.11.2006 12:30:000",
                                   "18.11.2006 12:30:",
                                   "18.11.2006 24:00",
                                   "18.11.2006 12:60",
                                   "18.11.2006 12:30:60",
                                   "00.11.2006 12:30",
                                   "31.11.2006 12:30",
                                   "18.13.2006 12:30",
                                   "29.02.1900 12:30",
                                   " 18.11.2006 12:30",
                                   "18.11.2006 12:30 ",
                                   "18.11.2006  12:30",
                                   "18.11.2006",
                                   "18.11.2006 12",
                                   "-1.11.2006 12:30",
                                   "18/11/2006 12:30",
                                   ""}) {
        EXPECT_EQ(parsed(text), "-") << text;
    }
}

TEST(DateTime, KnowsWeekdaysAndLargeYears) {
    const DateTime saturday = *ParseDateTime("18.11.2006 23:59:59");
    EXPECT_EQ(WeekdayShort(saturday), "Sa");
    EXPECT_EQ(WeekdayLong(saturday + 1), "Sonntag");
    EXPECT_EQ(Weekday(saturday + 1), 1);
    EXPECT_EQ(DateTimeText(*ParseDateTime("31.12.9999 23:59:59") + 1), "01.01.10000 00:00:00");
    const DateTime before = *ParseDateTime("29.12.1899 12:00");
    EXPECT_EQ(DateTimeText(before), "29.12.1899 12:00:00");
    EXPECT_EQ(WeekdayShort(before), "Fr");
    EXPECT_EQ(*ParseDateTime("01.01.9999 00:00") - saturday, std::numeric_limits<Long>::max());
}

TEST(Nuetzliches, CutsAndPadsTexts) {
    EXPECT_EQ(GetToken("GX:8:10:5", 4, ""), "5");
    EXPECT_EQ(GetToken("GX:8", std::numeric_limits<int>::max(), ":"), "");
    EXPECT_EQ(TextBefore("abc", ":"), "");
    EXPECT_EQ(TextAfter("a | b", " | "), "| b");
    EXPECT_EQ(TextAfter("xäy", "ä"), "y");
    EXPECT_EQ(PadIntegerDigits("-5", 4), "00-5");
    EXPECT_EQ(PadDecimals("1", 2), "1,00");
}

TEST(Nuetzliches, WritesDurations) {
    EXPECT_EQ(FormatDuration(90061, "s", "d(0)h(1)m(2)s(3)(&)", "d"), "1 Tage 1h 1m 1s und");
    EXPECT_EQ(FormatDuration(90061, "s", "hh:mm:ss", "h"), "25:01:01");
    EXPECT_EQ(FormatDuration(3700, "s", "mm:ss", "d"), "01:40");
    EXPECT_EQ(FormatDuration(3700, "s", "mm:ss", "m"), "61:40");
    EXPECT_EQ(FormatDuration(3700, "s", "ss", "s"), "3700");
    EXPECT_EQ(FormatDuration(100, "d", "dd(0)", "x"), "100 Tage ");
    EXPECT_EQ(FormatDuration(2, "h", "m", "m"), "120");
    EXPECT_EQ(FormatDuration(std::numeric_limits<Long>::max(), "d", "dd(0)hh:mm:ss", "d"),
              "24855 Tage 03:14:07");
    EXPECT_EQ(FormatDuration(5, "w", "ss", "d"), "");
}

TEST(Codepage1252, KeepsEveryByte) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    EXPECT_EQ(To1252(From1252(all)), all);
    EXPECT_EQ(From1252("\x80\xE4"), "€ä");
    EXPECT_EQ(To1252("\xE0\x81\x81\xC0\xAF\xF4\x90\x80\x80"), "?????????");
    EXPECT_EQ(To1252("漢\xF0\x9F\x98\x80 \xFFx\xC3"), "?? ?x?");
}

}  // namespace
}  // namespace tarvelin
