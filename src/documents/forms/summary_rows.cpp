#include "documents/forms/summary_rows.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "documents/work/recipe_view.h"

#include <algorithm>

namespace wortlex {
namespace {

void add_part(std::string& line, const std::string& part) {
    if (!part.empty()) line += (line.empty() ? "" : ", ") + part;
}

std::string attenuation_words(const YeastRecord& yeast) {
    const auto low = std::to_string(yeast.low_attenuation), high = std::to_string(yeast.high_attenuation);
    if (yeast.low_attenuation <= 0 && yeast.high_attenuation <= 0) return "";
    return (low == high ? low : low + " to " + high) + " %";
}

std::string yeast_line(const YeastRecord& yeast) {
    std::string line;
    add_part(line, utf8_from_windows1252(yeast.name.view()));
    if (line.empty()) return line;
    add_part(line, utf8_from_windows1252(yeast.lab.view()));
    add_part(line, utf8_from_windows1252(yeast.catalog_number.view()));
    add_part(line, attenuation_words(yeast));
    return line;
}

std::string extras_line(const std::vector<ExtraUse>& extras) {
    constexpr std::size_t amount = 3;
    std::string line;
    for (const auto& extra : extras)
        add_part(line, utf8_from_windows1252(extra.record.name.view()) + " " + extra_cell(extra, amount));
    return line;
}

// As much of the text as a line could show.
std::string notes_line(std::string_view notes) {
    constexpr std::size_t most = 200;
    auto line = std::string(notes.substr(0, most));
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
    return utf8_from_windows1252(line);
}

void summary_row(Rows& rows, const char* key, const char* label, std::function<std::string()> text) {
    rows.shown(key, std::move(text)).label(label).width(16);
}

} // namespace

void summary_rows(Rows& rows, const BrewDocument& document) {
    summary_row(rows, "yeast_line", "Yeast", [&document] { return yeast_line(document.yeast.record); });
    summary_row(rows, "water_line", "Water",
                [&document] { return utf8_from_windows1252(document.water.name.view()); });
    summary_row(rows, "extras_line", "Extras", [&document] { return extras_line(document.extras); });
    summary_row(rows, "notes_line", "Notes", [&document] { return notes_line(document.notes.view()); });
}

} // namespace wortlex
