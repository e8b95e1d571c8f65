#include "measures/units.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

constexpr std::size_t hop_name_width = 30;
constexpr std::size_t form_width = 6;

ReportRow row(const HopUse& line, const ReportSource& source) {
    const std::string unit(hop_unit(source.open.settings).column);
    const auto format = "%6.2f " + unit + "   |%s    |%s |%6.2f  |%4.1f  |";
    ReportRow row{format + "%s\n",
                  {hop_to_shown(line.amount, source.open.settings),
                   {line_text(line.record.name), hop_name_width},
                   {std::string(form_word(form(line.record))), form_width},
                   line.alpha,
                   hop_bitterness(line, source.view, source.open.settings)}};
    switch (hop_timing(line.boil_time, source.open.document.boil_minutes)) {
    case HopTiming::dry:
        row.values.emplace_back("Dry Hop");
        break;
    case HopTiming::first_wort:
        row.values.emplace_back("First WH");
        break;
    case HopTiming::mash:
        row.values.emplace_back("Mash H");
        break;
    default:
        row.format = format + "%d min.\n";
        row.values.emplace_back(line.boil_time);
    }
    return row;
}

} // namespace

ReportSection hop_section(const ReportSource& source) {
    ReportTable list;
    list.columns = {{"Amount", 3, 0, 80, HtmlAlign::right},
                    {"Name", 14, 75, 210},
                    {"Form", 48, 310, 60},
                    {"Alpha", 56, 370, 55, HtmlAlign::right},
                    {hop_bitterness_head(source.view, source.open.settings), 63, 420, 55, HtmlAlign::right},
                    {"Boil Time", 68, 470, 90}};
    for (const auto& line : source.open.document.hops) list.rows.push_back(row(line, source));
    return section_of("Hops", std::move(list));
}

} // namespace wortlex
