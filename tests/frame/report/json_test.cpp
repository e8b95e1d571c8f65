#include "frame/report/json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace wortlex {
namespace {

TEST(JsonWriter, separates_and_nests) {
    JsonWriter json;
    json.begin_object().number("a", 1).begin_list("b").end_list().begin_list("c");
    json.begin_object().truth("d", false).end_object().begin_object().end_object().end_list();
    json.begin_object("e").string("f", "").end_object().truth("g", true).end_object();
    EXPECT_EQ(json.text(), R"({"a":1,"b":[],"c":[{"d":false},{}],"e":{"f":""},"g":true})");
}

TEST(JsonWriter, numbers_have_nine_digits_and_nothing_that_json_lacks) {
    const auto written = [](double value) { return JsonWriter().number("", value).text(); };
    EXPECT_EQ(written(0.1F), "0.100000001");
    EXPECT_EQ(written(-1234567890.0), "-1.23456789e+09");
    EXPECT_EQ(written(1.0 / 3), "0.333333333");
    EXPECT_EQ(written(60), "60");
    EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "null");
    EXPECT_EQ(written(-std::numeric_limits<double>::infinity()), "null");
    EXPECT_EQ(written(std::nan("")), "null");
}

TEST(JsonWriter, texts_are_escaped_and_always_utf8) {
    const std::string lost = "\xEF\xBF\xBD";
    const struct {
        const char* why;
        std::string text, written;
    } rows[] = {
        {"quote and backslash", R"(a"b\c)", R"(a\"b\\c)"},
        {"line ends and tab", "\r\n\t", R"(\r\n\t)"},
        {"other control characters, NUL too", std::string("\0\x1F\x7F", 3), "\\u0000\\u001f\x7F"},
        {"two, three and four bytes", "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8D\xBA",
         "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8D\xBA"},
        {"a lone Windows-1252 letter", "K\xF6lsch", "K" + lost + "lsch"},
        {"a continuation without a start", "\x80z", lost + "z"},
        {"a start at the end", "z\xE2\x82", "z" + lost + lost},
        {"a start before a quote", "\xC3\"", lost + "\\\""},
        {"an overlong slash", "\xC0\xAF", lost + lost},
        {"an overlong three-byte form", "\xE0\x80\xAF", lost + lost + lost},
        {"a surrogate", "\xED\xA0\x80", lost + lost + lost},
        {"beyond the last character", "\xF4\x90\x80\x80", lost + lost + lost + lost},
    };
    for (const auto& row : rows)
        EXPECT_EQ(JsonWriter().string("", row.text).text(), '"' + row.written + '"') << row.why;
    EXPECT_EQ(JsonWriter().begin_object().truth("a\"b", true).end_object().text(), R"({"a\"b":true})");
}

} // namespace
} // namespace wortlex
