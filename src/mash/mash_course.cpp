#include "mash/mash_course.h"

#include "base/windows1252.h"

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr double ramp_minutes = 5;       // of a simple schedule, and to return a decoction
constexpr double room_on_axis = 10;      // degrees above and below the course
constexpr double low_of_nothing = 10000; // the lowest of no step at all

// The lowest and the highest temperature of an axis.
class DegreeRange {
public:
    void cover(double degrees) {
        low_ = std::min(low_, degrees);
        cover_above(degrees);
    }
    void cover_above(double degrees) { high_ = std::max(high_, degrees); }
    void put(MashCourse& course) const {
        course.low = low_ - room_on_axis;
        course.high = high_ + room_on_axis;
    }

private:
    double low_ = low_of_nothing;
    double high_ = 0;
};

double heating_minutes(const ComplexMash& mash, std::size_t at) {
    const auto& step = mash.steps[at];
    return at > 0 && step.heat_type == StepHeat::decoction ? ramp_minutes : step.step_minutes;
}

bool has_heat(std::span<const MashStep> steps, StepHeat heat) {
    return std::any_of(steps.begin(), steps.end(),
                       [heat](const MashStep& step) { return step.heat_type == heat; });
}

bool is_spiked(const MashStep& step, const MashChartOptions& options) {
    return (step.heat_type == StepHeat::decoction && options.decoction_spikes) ||
           (step.heat_type == StepHeat::infuse && options.infusion_spikes);
}

DegreeRange range_of(const ComplexMash& mash, const MashChartOptions& options) {
    DegreeRange range;
    for (const auto& step : mash.used_steps()) {
        range.cover(step.start_temperature);
        range.cover(step.stop_temperature);
        if (is_spiked(step, options)) range.cover_above(step.infuse_temperature);
    }
    return range;
}

void add_spike(MashCourse& course, const ComplexMash& mash, std::size_t at, const CoursePoint& heated) {
    const auto& step = mash.steps[at];
    const CoursePoint from{heated.minute - step.step_minutes,
                           static_cast<double>(mash.steps[at - 1].stop_temperature)};
    course.spikes.push_back(
        {step.heat_type == StepHeat::decoction, from, heated, static_cast<double>(step.infuse_temperature)});
}

// Both parts of a step begin where the course has come to.
void add_step(MashCourse& course, CoursePoint& at, const MashStep& step, double heating) {
    const CoursePoint heated{at.minute + heating, static_cast<double>(step.start_temperature)};
    course.patches.push_back({{at, heated}, step.step_colour});
    at = heated;
    if (step.rest_minutes == 0) return;
    const CoursePoint rested{at.minute + step.rest_minutes, static_cast<double>(step.stop_temperature)};
    course.patches.push_back({{at, rested}, step.rest_colour});
    at = rested;
}

// A rest of the simple schedule that is there.
struct ShownRest {
    const Rest& rest;
    const char* name;
    std::uint32_t colour;
    bool has_ramp;
    const Infusion* infusion; ///< of the water that heats it; may be null
};

class SimpleCourse {
public:
    SimpleCourse(const SimpleMash& mash, const InfusionExtras* infusions) : infusions_(infusions) {
        const bool is_multi = mash.mash_kind != MashKind::single_step && mash.mash_kind != MashKind::none;
        const bool acid = is_multi && mash.acid.is_present();
        const bool protein = is_multi && mash.protein.is_present();
        const bool intermediate = is_multi && mash.intermediate.is_present();
        const bool dough_in = mash.dough_in.is_present();
        const auto water = [infusions](Infusion InfusionExtras::*infusion) {
            return infusions == nullptr ? nullptr : &(infusions->*infusion);
        };
        add({mash.dough_in, "- Dough In", 0x7D0000, false, nullptr});
        if (acid) add({mash.acid, "- Acid Rest", 0x007D00, false, nullptr});
        if (protein)
            add({mash.protein, "- Protein Rest", 0x7D007D, acid || dough_in,
                 water(&InfusionExtras::protein)});
        if (intermediate)
            add({mash.intermediate, "- Intermediate Rest", 0x7D7D00, acid || protein || dough_in,
                 water(&InfusionExtras::intermediate)});
        add({mash.saccharification, "- Saccharification Rest", 0x0000FF, acid || protein || intermediate,
             water(&InfusionExtras::saccharification)});
        add({mash.mash_out, "- Mash Out", 0x007D7D, true, water(&InfusionExtras::mash_out)});
        add({mash.sparge, "- Sparge", 0x00FFFF, true, nullptr});
    }

    MashCourse course(const MashChartOptions& options) const {
        MashCourse course;
        course.is_simple = true;
        range(options).put(course);
        CoursePoint at{0, course.low};
        for (const auto& shown : rests_) {
            if (options.infusion_spikes && is_infused(shown))
                course.spikes.push_back({false, at, at, static_cast<double>(shown.infusion->temperature)});
            add_rest(course, at, shown);
        }
        course.minutes = at.minute;
        return course;
    }

private:
    void add(const ShownRest& shown) {
        if (shown.rest.is_present()) rests_.push_back(shown);
    }
    bool is_infused(const ShownRest& shown) const {
        return shown.infusion != nullptr && shown.infusion->temperature != 0 && &shown != &rests_.front();
    }
    DegreeRange range(const MashChartOptions& options) const {
        DegreeRange range;
        for (const auto& shown : rests_) range.cover(shown.rest.temperature);
        if (infusions_ == nullptr || !options.infusion_spikes) return range;
        for (const auto* infusion : {&infusions_->protein, &infusions_->intermediate,
                                     &infusions_->saccharification, &infusions_->mash_out})
            range.cover_above(infusion->temperature);
        return range;
    }
    static void add_rest(MashCourse& course, CoursePoint& at, const ShownRest& shown) {
        const auto degrees = static_cast<double>(shown.rest.temperature);
        const double minutes = shown.rest.minutes;
        CoursePatch patch{{}, shown.colour};
        if (shown.has_ramp)
            patch.points = {at, {at.minute + std::min(ramp_minutes, minutes), degrees}};
        else
            patch.points = {{at.minute, degrees}};
        at = {at.minute + minutes, degrees};
        patch.points.push_back(at);
        course.patches.push_back(std::move(patch));
        course.names.push_back({shown.name, shown.colour, shown.rest.temperature, shown.rest.minutes});
    }

    const InfusionExtras* infusions_; ///< null where they do not heat
    std::vector<ShownRest> rests_;
};

MashCourse complex_course(const ComplexMash& mash, const MashChartOptions& options) {
    MashCourse course;
    course.name = utf8_from_windows1252(mash.mash_name.view());
    range_of(mash, options).put(course);
    CoursePoint at{0, course.low};
    const auto steps = mash.used_steps();
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const double heating = heating_minutes(mash, i);
        if (i > 0 && is_spiked(steps[i], options))
            add_spike(course, mash, i,
                      {at.minute + heating, static_cast<double>(steps[i].start_temperature)});
        add_step(course, at, steps[i], heating);
        course.names.push_back({utf8_from_windows1252(steps[i].name.view()), steps[i].rest_colour,
                                steps[i].start_temperature, steps[i].rest_minutes});
    }
    course.minutes = at.minute;
    return course;
}

} // namespace

ChartedMash charted(const ComplexMash& mash) {
    return {&mash, nullptr, nullptr};
}

ChartedMash charted(const SimpleMash& mash, const InfusionExtras* infusions) {
    return {nullptr, &mash, infusions};
}

bool has_decoctions(const ChartedMash& mash) {
    return mash.complex != nullptr && has_heat(mash.complex->used_steps(), StepHeat::decoction);
}

bool has_infusions(const ChartedMash& mash) {
    if (mash.complex == nullptr)
        return mash.infusions != nullptr && mash.infusions->heat_type == SimpleHeat::infusion;
    const auto steps = mash.complex->used_steps();
    return !steps.empty() && has_heat(steps.subspan(1), StepHeat::infuse);
}

MashCourse course_of(const ChartedMash& mash, const MashChartOptions& options) {
    const bool infusions = has_infusions(mash);
    auto course = mash.complex != nullptr
                      ? complex_course(*mash.complex, options)
                      : SimpleCourse(*mash.simple, infusions ? mash.infusions : nullptr).course(options);
    course.explains_decoctions = options.decoction_spikes && has_decoctions(mash);
    course.explains_infusions = options.infusion_spikes && infusions;
    return course;
}

} // namespace wortlex
