#include "documents/work/set_to.h"

#include "documents/work/set_to_search.h"
#include "measures/rounding.h"

#include <algorithm>

namespace wortlex {
namespace {

void change_batch_size(const OpenDocument& open, float gallons) {
    const float before = open.document.batch_size;
    open.document.batch_size = gallons;
    batch_size_changed(open, before, {.to_batch = true});
}

bool has_line(std::size_t lines, std::int32_t line) {
    return line >= 0 && static_cast<std::size_t>(line) < lines;
}

std::string missing_lines(const BrewDocument& document, const SetToWish& wish) {
    const auto malts = document.malts.size(), hops = document.hops.size();
    switch (wish.target) {
    case SetToTarget::og:
        return malts == 0 ? "There are no malts" : "";
    case SetToTarget::colour:
        return malts < 2 || !has_line(malts, wish.malt) ? "It takes one malt and others to change against"
                                                        : "";
    default:
        return hops == 0 || (wish.hop != all_bittering_hops && !has_line(hops, wish.hop))
                   ? "There are no hops"
                   : "";
    }
}

std::string step_name(SetToTarget target) {
    switch (target) {
    case SetToTarget::og:
        return "Set OG";
    case SetToTarget::ibu:
        return "Set IBU";
    case SetToTarget::batch_size:
        return "Set Batch Size";
    default:
        return "Set Color";
    }
}

std::int32_t darkest_of(const std::vector<MaltUse>& malts) {
    const auto darkest = std::max_element(malts.begin(), malts.end(), [](const MaltUse& a, const MaltUse& b) {
        return a.record.colour < b.record.colour;
    });
    return static_cast<std::int32_t>(darkest - malts.begin());
}

} // namespace

SetToWish wish_as_is(const OpenDocument& open) {
    const auto& document = open.document;
    return {.og = trunc_to_precision(hop_gravity(document), 5),
            .ibu = document.total_ibu,
            .batch_size = document.batch_size,
            .colour = open.figures.colour.srm,
            .malt = darkest_of(document.malts)};
}

// Tried out on a recipe alone: what a session holds beside it changes nothing of these figures.
SetToPlan plan_set_to(const OpenDocument& open, const SetToWish& wish) {
    SetToPlan plan{.target = wish.target, .document = open.document, .figures = open.figures};
    const OpenDocument trial{plan.document, plan.figures, open.settings};
    if (wish.target == SetToTarget::batch_size) {
        change_batch_size(trial, wish.batch_size);
        return plan;
    }
    plan.fault = missing_lines(open.document, wish);
    if (plan.fault.empty()) plan.fault = weigh_until_reached(trial, wish);
    return plan;
}

void set_to(RecipeEditor& editor, const SetToPlan& plan) {
    if (!plan.fault.empty()) return;
    edit(editor, step_name(plan.target), [&] {
        if (plan.target == SetToTarget::batch_size)
            return change_batch_size(editor.open, plan.document.batch_size);
        weigh(editor.open, plan.target, changing_weights(plan.document, plan.target));
    });
}

} // namespace wortlex
