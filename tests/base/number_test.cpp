#include "base/number.h"
#include "base/text.h"
#include "base/windows1252.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <locale>

namespace wortlex {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// The whole process under commas, as far as this machine knows them, and back.
class CommaLocale {
public:
    CommaLocale() {
        for (const auto* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German"})
            if (std::setlocale(LC_ALL, name)) break;
        std::locale::global(std::locale(std::locale(), new Commas));
    }
    ~CommaLocale() {
        std::locale::global(std::locale::classic());
        std::setlocale(LC_ALL, "C");
    }

private:
    struct Commas : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
};

TEST(Numbers, NarrowRoundsToTheNearestFloat) {
    EXPECT_EQ(narrow(16777217.0), 16777216.0F) << "halfway goes to the even one";
    EXPECT_EQ(narrow(16777219.0), 16777220.0F);
    EXPECT_TRUE(std::isinf(narrow(1e300)));
    EXPECT_TRUE(std::isnan(narrow(not_a_number)));
}

TEST(Numbers, TruncateIsDefinedForEveryNumber) {
    constexpr auto lowest = std::numeric_limits<std::int32_t>::min();
    struct Row {
        double x;
        std::int32_t cut;
    };
    for (const auto& row : {Row{2.999, 2}, Row{-2.999, -2}, Row{-0.5, 0}, Row{2147483647.9, 2147483647},
                            Row{2147483648.0, lowest}, Row{-2147483648.9, lowest}, Row{-2147483649.0, lowest},
                            Row{infinity, lowest}, Row{-infinity, lowest}, Row{not_a_number, lowest}})
        EXPECT_EQ(truncate(row.x), row.cut) << row.x;
}

void expect_prints_and_reads() {
    EXPECT_EQ(fixed(1234.5, 2), "1234.50");
    EXPECT_EQ(fixed(2.5, 0), "2") << "as C prints it: half to even";
    EXPECT_EQ(fixed(-0.004, 2), "-0.00");
    EXPECT_EQ(fixed(-1e308, 2).size(), 1U + 309 + 3);
    EXPECT_EQ(significant(0.25, 6), "0.25");
    EXPECT_EQ(significant(1234567.0, 6), "1.23457e+06");
    EXPECT_EQ(parse_number(" 1.25\r\n"), 1.25);
    EXPECT_EQ(parse_number("+.5"), 0.5);
    EXPECT_EQ(parse_number("-1e3"), -1000.0);
    EXPECT_EQ(parse_whole(" +42 "), 42);
    EXPECT_EQ(parse_whole("-2147483648"), std::numeric_limits<std::int32_t>::min());
    for (const auto* rubbish :
         {"", " ", "+", "-", "+-1", "--1", "1,5", "1.5x", "1 2", "0x10", "1e", ".", "1e999", "inf", "nan"})
        EXPECT_FALSE(parse_number(rubbish)) << '"' << rubbish << '"';
    for (const auto* rubbish : {"", "2147483648", "1.0", "1e3", "+-1", "4 2"})
        EXPECT_FALSE(parse_whole(rubbish)) << '"' << rubbish << '"';
    EXPECT_FALSE(parse_number(std::string_view("1\0", 2)));
}

TEST(Numbers, ReadAndPrintAlikeInEveryLocale) {
    expect_prints_and_reads();
    const CommaLocale commas;
    expect_prints_and_reads();
}

TEST(Windows1252, EveryByteComesBackFromUtf8) {
    std::string every;
    for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(byte);
    EXPECT_EQ(windows1252_from_utf8(utf8_from_windows1252(every)), every);
}

TEST(Windows1252, CharactersAreThoseOfTheCodePage) {
    std::string upper = "K\xF6lsch ";
    for (int byte = 0x80; byte < 0xA1; ++byte) upper += static_cast<char>(byte);
    EXPECT_EQ(utf8_from_windows1252(upper),
              "K\u00F6lsch "
              "\u20AC\xC2\x81\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\xC2\x8D\u017D"
              "\xC2\x8F\xC2\x90\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\xC2"
              "\x9D\u017E\u0178\u00A0");
    struct Row {
        const char* why;
        std::string utf8;
    };
    for (const auto& row :
         {Row{"beyond the code page", "\u0100"}, Row{"its byte means the Euro", "\xC2\x80"},
          Row{"four bytes", "\U0001F37A"}, Row{"cut after the first byte", "a\xC3"},
          Row{"cut after the second", "\xE2\x82"}, Row{"continuation alone", "\x82"},
          Row{"letter in place of a continuation", "\xC3z"}, Row{"slash in two bytes", "\xC0\xAF"},
          Row{"letter in three bytes", "\xE0\x83\xB6"}, Row{"a half of a pair", "\xED\xA0\x80"},
          Row{"no byte of UTF-8", "\xFF"}})
        EXPECT_FALSE(windows1252_from_utf8(row.utf8)) << row.why;
}

TEST(Text, EndsWithItsNulOrWithTheArray) {
    Text<4> text;
    EXPECT_TRUE(text.empty());
    text.assign("too long");
    EXPECT_EQ(text.view(), "too") << "a NUL is kept behind it";
    text.bytes = {'f', 'u', 'l', 'l'};
    EXPECT_EQ(text.view(), "full") << "not terminated";
    text.assign(std::string_view("a\0b", 3));
    EXPECT_EQ(text.bytes, (std::array<char, 4>{'a', '\0', '\0', '\0'})) << "clears what stood there";
    Text<4> other("a");
    other.bytes[3] = 'z';
    EXPECT_TRUE(text == other) << "what stands behind the NUL does not count";
    EXPECT_FALSE(text == Text<4>("b"));
}

} // namespace
} // namespace wortlex
