// The page of a calculator: a title, and lines whose tabs lead to the same stops.
#pragma once

#include "base/number.h"
#include "page/page.h"
#include "settings/settings.h"

namespace wortlex {

/// Lines of a page; an empty one is left blank.
using PageLines = std::vector<std::string>;

inline PrintRequest tool_page(std::string title, PageLines lines, std::vector<int> stops,
                              const Settings& settings) {
    auto name = title;
    return {
        std::move(name), settings.printer_scale,
        [title = std::move(title), lines = std::move(lines), stops = std::move(stops)](PageContext& page) {
            page.SetHeader(0, title);
            page.NewLines(1);
            for (const auto& line : lines) page.TabbedLine(stops, line);
        }};
}

} // namespace wortlex
