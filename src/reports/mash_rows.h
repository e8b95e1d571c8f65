// The rows of the two kinds of mash schedule.
#pragma once

#include "reports/report.h"
#include "reports/report_source.h"

namespace wortlex {

struct ShownWater {
    float shown = 0;
    std::string_view unit;
};

/// An amount of mash water in the unit of the mash and, of a brewery's recipe, also in that of its vessels.
std::vector<ShownWater> shown_waters(float quarts, const ReportSource& source);

std::vector<ReportBlock> simple_schedule(const ReportSource& source);
std::vector<ReportBlock> complex_schedule(const ReportSource& source);

} // namespace wortlex
