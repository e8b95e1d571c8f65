// The course of a mash over time, as its chart shows it.
#pragma once

#include "records/mash/schedules.h"

#include <string>
#include <vector>

namespace wortlex {

/// What the charts of schedules show.
struct MashChartOptions {
    std::int32_t minute_grid = 30; ///< at least 5
    TemperatureUnits units = TemperatureUnits::fahrenheit;
    bool solid_fill = true;
    bool fine_lines = false;
    bool decoction_spikes = true;
    bool infusion_spikes = false;
};

/// Minutes from the start of the mash, degrees F.
struct CoursePoint {
    double minute = 0;
    double degrees = 0;
};

/// A stretch of the course, down to the axis.
struct CoursePatch {
    std::vector<CoursePoint> points;
    std::uint32_t colour = 0; ///< 0x00BBGGRR
};

/// What happens in a separate vessel: mash that is boiled and returned, or water that is poured on.
struct CourseSpike {
    bool is_decoction = false;
    CoursePoint from; ///< as it was pulled, or where the water goes in
    CoursePoint to;   ///< of a decoction, as it is back
    double degrees = 0;
};

/// A step, as the legend names it.
struct CourseName {
    std::string name; ///< UTF-8
    std::uint32_t colour = 0;
    std::int32_t degrees = 0; ///< F, as its rest begins
    std::int32_t minutes = 0; ///< of its rest
};

struct MashCourse {
    std::string name; ///< UTF-8; empty: it has none
    bool is_simple = false;
    double minutes = 0;
    double low = 0;  ///< degrees F, of the axis
    double high = 0; ///< below `low` where there is no step at all
    std::vector<CoursePatch> patches;
    std::vector<CourseSpike> spikes;  ///< those shown
    bool explains_decoctions = false; ///< in the legend
    bool explains_infusions = false;
    std::vector<CourseName> names;
};

/// One of the two kinds of schedule, which stays where it is.
struct ChartedMash {
    const ComplexMash* complex = nullptr;
    const SimpleMash* simple = nullptr;
    const InfusionExtras* infusions = nullptr; ///< of a session with the simple one
};

ChartedMash charted(const ComplexMash& mash);
/// `infusions` of a session; nullptr for a recipe.
ChartedMash charted(const SimpleMash& mash, const InfusionExtras* infusions);

/// Whether a schedule has what such a spike shows.
bool has_decoctions(const ChartedMash& mash);
bool has_infusions(const ChartedMash& mash);

MashCourse course_of(const ChartedMash& mash, const MashChartOptions& options);

} // namespace wortlex
