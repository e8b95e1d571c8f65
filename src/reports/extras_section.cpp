#include "page/text_sink.h"
#include "records/ingredients/amount_words.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

#include <array>

namespace wortlex {
namespace {

constexpr std::size_t name_width = 30, unit_width = 7;

// The word of a code, and of one that no file should hold a blank of the same width.
template <class Code, std::size_t N>
std::string word(Code code, const std::array<std::string_view, N>& words) {
    const auto index = static_cast<std::size_t>(code);
    return index < N ? std::string(words[index]) : std::string(words[0].size(), ' ');
}

// As wide as each other, so that what follows stands in columns.
constexpr std::array<std::string_view, 6> types = {" Spice  ", " Fruit  ", " Coffee ",
                                                   " Other  ", " Fining ", " Herb   "};
constexpr std::array<std::string_view, 2> time_units = {"Days", "Min."};
constexpr std::array<std::string_view, 3> places = {"(boil)", "(fermenter)", "(mash)"};

ReportRow row(const ExtraUse& line) {
    const auto& extra = line.record;
    return {"%6.2f " + padded(words_of(extra.amount_unit).amount, unit_width) + "|%s|%s  |%3d " +
                word(extra.time_unit, time_units) + word(extra.time_place, places) + " \n",
            {line.amount, {line_text(extra.name), name_width}, word(extra.extra_type, types), extra.time}};
}

} // namespace

ReportSection extras_section(const ReportSource& source) {
    ReportTable list;
    list.columns = {{"Amount", 2, 0, 90, HtmlAlign::right},
                    {"Name", 14, 90, 230},
                    {"Type", 45, 325, 80},
                    {"Time", 55, 385, 150}};
    for (const auto& line : source.open.document.extras) list.rows.push_back(row(line));
    return section_of("Extras", std::move(list));
}

ReportSection yeast_section(const ReportSource& source) {
    const auto& yeast = source.open.document.yeast.record;
    return {
        "Yeast",
        {ReportLines{{},
                     {{"%s %s %s\n\n",
                       {line_text(yeast.lab), line_text(yeast.catalog_number), line_text(yeast.name)}}}}}};
}

} // namespace wortlex
