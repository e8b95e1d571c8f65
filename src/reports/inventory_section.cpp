#include "documents/work/inventory_analysis.h"
#include "measures/unit_words.h"
#include "page/characters.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

constexpr std::size_t stock_name_width = 30, stock_origin_width = 15;
constexpr std::string_view form_mark = " - ";

// A long name gives way to the form of its hop.
std::string shortened(const std::string& name, bool is_hop) {
    const auto form = is_hop ? name.rfind(form_mark) : std::string::npos;
    if (form == std::string::npos || character_count(name) <= stock_name_width) return name;
    const auto behind = name.substr(form);
    return std::string(first_characters(name, stock_name_width - character_count(behind))) + behind;
}

std::string ending(const StockLine& line) {
    return line.is_short() ? "  *\n" : "\n";
}

ReportTable weighed_list(const char* head, const std::string& unit, const StockList& list, bool is_hop) {
    ReportTable table{{{head, 0, 0, 190},
                       {"Origin", 31, 170, 100},
                       {"Recipe " + unit, 47, 290, 85, HtmlAlign::right},
                       {unit + " In Stock", 61, 370, 90, HtmlAlign::right},
                       {unit + " Needed", 75, 460, 85, HtmlAlign::right}},
                      {}};
    for (const auto& line : list.lines)
        table.rows.push_back({"%s |%s |%10.2f    |%12.2f  |%10.2f" + ending(line),
                              {{shortened(line.name, is_hop), stock_name_width},
                               {line.origin, stock_origin_width},
                               line.wanted,
                               line.in_stock,
                               line.needed}});
    return table;
}

// The amounts stand below their heads, the first of which may be longer.
ReportTable counted_list(const std::string& head, const std::string& wanted, const StockList& list,
                         bool is_hop) {
    constexpr std::size_t place = 31, gap = 2, stock_width = 8;
    const auto in_stock = place + wanted.size() + gap;
    ReportTable table{{{head, 0, 0, 290},
                       {wanted, place, 290, 85, HtmlAlign::right},
                       {"In Stock", in_stock, 370, 90, HtmlAlign::right},
                       {"Needed", in_stock + stock_width + gap, 460, 85, HtmlAlign::right}},
                      {}};
    const auto amounts = "%" + std::to_string(wanted.size()) + ".2f  |%8.2f  |%6.2f";
    for (const auto& line : list.lines)
        table.rows.push_back(
            {"%s |" + amounts + ending(line),
             {{shortened(line.name, is_hop), stock_name_width}, line.wanted, line.in_stock, line.needed}});
    return table;
}

} // namespace

ReportSection inventory_section(const ReportSource& source) {
    const auto& settings = source.open.settings;
    const auto& document = source.open.document;
    const auto analysis = source.stocks != nullptr ? analyze_inventory(document, *source.stocks, settings)
                                                   : analyze_inventory(document, {}, settings);
    ReportSection section{"Inventory Analysis", {}};
    const auto add = [&](ReportTable table) {
        section.blocks.emplace_back(std::move(table));
        section.blocks.emplace_back(ReportLines{{}, {{"\n", {}}}});
    };
    add(weighed_list("Grain/Malt/Extract/Sugar", grain_unit(settings).head, analysis.at(0), false));
    add(weighed_list("Hop", hop_unit(settings).usual, analysis.at(1), true));
    std::size_t next = 2;
    if (analysis.at(next).is_told_again) {
        add(counted_list(analysis.at(next).heads.front(), "In Recipe", analysis.at(next), true));
        ++next;
    }
    add(counted_list("Extras", "Recipe", analysis.at(next), false));
    add(counted_list("Yeast", "Recipe", analysis.at(next + 1), false));
    return section;
}

} // namespace wortlex
