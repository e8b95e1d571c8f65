#include "documents/work/set_to_search.h"

#include "documents/work/recipe_lines.h"
#include "measures/precision.h"
#include "measures/rounding.h"
#include "measures/units.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace wortlex {
namespace {

constexpr int fewest_decimals = 2, most_decimals = 5; // of amounts, in the unit shown
constexpr int halvings = 64;

// Between these the weights are looked for; everything on the way lies on a straight line.
struct WeightSpan {
    Weights from, to;

    Weights at(double place) const {
        auto weights = from;
        for (std::size_t i = 0; i < from.size(); ++i) weights[i] += place * (to[i] - from[i]);
        return weights;
    }
};

bool is_by_malts(SetToTarget target) {
    return target == SetToTarget::og || target == SetToTarget::colour;
}

template <class Line>
Weights weights_of(const std::vector<Line>& lines) {
    Weights weights;
    for (const auto& line : lines) weights.push_back(line.amount);
    return weights;
}

template <class Line>
void put_weights(std::vector<Line>& lines, const Weights& weights) {
    for (std::size_t i = 0; i < lines.size(); ++i) lines[i].amount = narrow(weights[i]);
}

// More extract than any wort can hold has no gravity: it lies beyond them all.
float gravity_of(const BrewDocument& document) {
    return document.og_points < 0 ? std::numeric_limits<float>::infinity() : hop_gravity(document);
}

float value_of(const OpenDocument& open, SetToTarget target) {
    if (target == SetToTarget::og) return gravity_of(open.document);
    return target == SetToTarget::ibu ? open.document.total_ibu : open.figures.colour.srm;
}

float value_of(const SetToWish& wish) {
    if (wish.target == SetToTarget::og) return wish.og;
    return wish.target == SetToTarget::ibu ? wish.ibu : wish.colour;
}

// As it is read in the window.
std::string reading(SetToTarget target, float value, const Settings& settings) {
    if (target == SetToTarget::og) return fixed(trunc_to_precision(value, 5), sg_decimals(settings));
    return fixed(target == SetToTarget::ibu ? value : to_shown_colour(value, settings), 1);
}

// A recipe that is weighed anew until it is as wanted.
class Trial {
public:
    Trial(const OpenDocument& open, const SetToWish& wish)
        : open_(open), wish_(wish), now_(changing_weights(open.document, wish.target)),
          gravity_(first_gravity()) {}

    // Why it cannot be; else it is.
    std::string reach() {
        if (is_met()) return "";
        const auto span = wish_.target == SetToTarget::colour ? one_malt_against_others() : from_nothing();
        const auto [least, most] = std::minmax({value_at(span, 0), value_at(span, 1)});
        if (!(most > least)) return without_effect();
        if (!(wanted() >= least && wanted() <= most))
            return "Only " + read(least) + " to " + read(most) + " can be reached";
        weigh_roundly(span.at(place_in(span)));
        return "";
    }

private:
    // A figure may be older than what it is made of.
    float first_gravity() {
        weigh(open_, wish_.target, now_);
        return gravity_of(open_.document);
    }

    float wanted() const { return value_of(wish_); }
    std::string read(float value) const { return reading(wish_.target, value, open_.settings); }

    bool is_met() const {
        const auto holds = [&](SetToTarget target, float now, float then) {
            return reading(target, now, open_.settings) == reading(target, then, open_.settings);
        };
        return holds(wish_.target, value_of(open_, wish_.target), wanted()) &&
               (wish_.target != SetToTarget::colour ||
                holds(SetToTarget::og, gravity_of(open_.document), gravity_));
    }

    float value_at(const WeightSpan& span, double place) {
        weigh(open_, wish_.target, span.at(place));
        return value_of(open_, wish_.target);
    }

    double place_in(const WeightSpan& span) {
        const bool rises = value_at(span, 1) > value_at(span, 0);
        double low = 0, high = 1;
        for (int i = 0; i < halvings; ++i) {
            const double middle = low + (high - low) / 2;
            const bool is_below = value_at(span, middle) < wanted();
            (is_below == rises ? low : high) = middle;
        }
        return high;
    }

    // Some formulae find bitterness in a dry hop; nobody adds one for that.
    bool is_bittering(const HopUse& hop) const {
        return hop.ibu > 0 && hop_timing(hop.boil_time, open_.document.boil_minutes) != HopTiming::dry;
    }

    bool changes(std::size_t line) const {
        if (wish_.target == SetToTarget::og) return true;
        if (wish_.hop == all_bittering_hops) return is_bittering(open_.document.hops[line]);
        return static_cast<std::size_t>(wish_.hop) == line;
    }

    // Up to what the heaviest line can hold.
    WeightSpan from_nothing() const {
        WeightSpan span{now_, now_};
        double heaviest = 0;
        for (std::size_t i = 0; i < now_.size(); ++i) {
            if (!changes(i)) continue;
            span.from[i] = 0;
            heaviest = std::max(heaviest, now_[i]);
        }
        const bool is_one = wish_.target == SetToTarget::ibu && wish_.hop != all_bittering_hops;
        if (is_one) span.to[static_cast<std::size_t>(wish_.hop)] = most_hop_weight;
        if (is_one || !(heaviest > 0)) return span;
        const double most = is_by_malts(wish_.target) ? most_malt_weight : most_hop_weight;
        for (std::size_t i = 0; i < now_.size(); ++i)
            if (changes(i)) span.to[i] *= most / heaviest;
        return span;
    }

    // From none of the malt to nothing else. The gravity goes by the sum of what the lines give, and each
    // gives by its weight.
    WeightSpan one_malt_against_others() {
        const auto malt = static_cast<std::size_t>(wish_.malt);
        const double total = open_.figures.total_value;
        auto weights = now_;
        weights[malt] = 1;
        weigh(open_, wish_.target, weights);
        const double of_pound = open_.figures.lines[malt].line_value;
        const double of_others = open_.figures.total_value - of_pound;
        WeightSpan span{now_, now_};
        if (!(of_others > 0)) return span;
        for (std::size_t i = 0; i < now_.size(); ++i) {
            span.from[i] = now_[i] * total / of_others;
            if (of_pound > 0) span.to[i] = 0;
        }
        span.from[malt] = 0;
        span.to[malt] = of_pound > 0 ? total / of_pound : most_malt_weight;
        return span;
    }

    std::string without_effect() const {
        if (wish_.target == SetToTarget::og) return "The malts give no gravity";
        if (wish_.target == SetToTarget::colour) return "This malt cannot change the color";
        return wish_.hop == all_bittering_hops ? "None of the hops gives bitterness"
                                               : "This hop gives no bitterness";
    }

    // What is weighed at all stays so.
    double rounded(double weight, double step) const {
        const auto& settings = open_.settings;
        const double whole =
            is_by_malts(wish_.target)
                ? shown_to_grain(to_nearest(grain_to_shown(narrow(weight), settings), step), settings)
                : shown_to_hop(to_nearest(hop_to_shown(narrow(weight), settings), step), settings);
        return whole > 0 ? whole : weight;
    }

    void weigh_roundly(const Weights& exact) {
        for (int decimals = fewest_decimals; decimals <= most_decimals; ++decimals) {
            auto weights = exact;
            for (std::size_t i = 0; i < exact.size(); ++i)
                if (exact[i] != now_[i]) weights[i] = rounded(exact[i], std::pow(10.0, -decimals));
            weigh(open_, wish_.target, weights);
            if (is_met()) return;
        }
        weigh(open_, wish_.target, exact);
    }

    const OpenDocument& open_;
    const SetToWish& wish_;
    Weights now_;
    float gravity_; // to be held
};

} // namespace

Weights changing_weights(const BrewDocument& document, SetToTarget target) {
    return is_by_malts(target) ? weights_of(document.malts) : weights_of(document.hops);
}

void weigh(const OpenDocument& open, SetToTarget target, const Weights& weights) {
    auto& document = open.document;
    if (is_by_malts(target)) {
        put_weights(document.malts, weights);
        malts_changed(open);
    } else {
        put_weights(document.hops, weights);
        hops_update(document, open.figures, open.settings);
    }
}

std::string weigh_until_reached(const OpenDocument& trial, const SetToWish& wish) {
    return Trial(trial, wish).reach();
}

} // namespace wortlex
