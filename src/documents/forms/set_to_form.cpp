#include "documents/forms/set_to_form.h"

#include "base/windows1252.h"
#include "documents/forms/gravity_rows.h"
#include "documents/forms/hop_amount.h"
#include "documents/forms/result_strip.h"
#include "measures/unit_words.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr float least_sg = 1.001F, most_sg = 1.3F;
constexpr float most_plato = 60; // of that gravity

std::string malt_words(const MaltUse& malt) {
    return utf8_from_windows1252(malt.record.name.view());
}

std::string hop_words(const HopUse& hop, const BrewDocument& document) {
    const bool is_timed = hop_timing(hop.boil_time, document.boil_minutes) == HopTiming::boil;
    const auto time = is_timed ? std::to_string(hop.boil_time) + " min"
                               : boil_time_text(hop.boil_time, document.boil_minutes);
    return utf8_from_windows1252(hop.record.name.view()) + ", " + time;
}

std::string with_unit(double value, const UnitWords& unit) {
    return fixed(value, 2) + " " + unit.usual;
}

// Fills the lines that the dialog compares.
class Comparison {
public:
    Comparison(const OpenDocument& before, const OpenDocument& after, const SetToWork& work)
        : before_(before.document), after_(after.document), settings_(before.settings), work_(work) {
        const auto old_strip = result_strip(before), new_strip = result_strip(after);
        for (std::size_t i = 0; i < old_strip.size(); ++i)
            add(old_strip[i].name, words_of_cell(old_strip[i]), words_of_cell(new_strip[i]));
        add_size(size_label("Batch Size", settings_), before_.batch_size, after_.batch_size);
        add_size(size_label("Wort Size", settings_), before_.wort_size, after_.wort_size);
        const auto target = work.wish.target;
        if (target != SetToTarget::ibu) add_malts();
        if (target == SetToTarget::ibu || target == SetToTarget::batch_size) add_hops();
        if (target == SetToTarget::batch_size) add_extras();
    }

    std::vector<std::array<std::string, 3>> lines;

private:
    static std::string words_of_cell(const StripCell& cell) {
        return cell.word.empty() ? cell.figure : cell.word + ", " + cell.figure;
    }

    void add(const std::string& name, const std::string& before, const std::string& after) {
        lines.push_back({name, before, work_.plan.fault.empty() ? after : "--"});
    }

    void add_size(const std::string& label, float before, float after) {
        const auto text = [this](float gallons) { return fixed(to_shown_volume(gallons, settings_), 1); };
        add(label, text(before), text(after));
    }

    void add_malts() {
        const auto text = [this](const MaltUse& malt) {
            return with_unit(grain_to_shown(malt.amount, settings_), grain_unit(settings_));
        };
        for (std::size_t i = 0; i < before_.malts.size(); ++i)
            add(malt_words(before_.malts[i]), text(before_.malts[i]), text(after_.malts[i]));
    }

    void add_hops() {
        const auto text = [this](const HopUse& hop) {
            return with_unit(hop_to_shown(hop.amount, settings_), hop_unit(settings_));
        };
        for (std::size_t i = 0; i < before_.hops.size(); ++i)
            add(hop_words(before_.hops[i], before_), text(before_.hops[i]), text(after_.hops[i]));
    }

    void add_extras() {
        constexpr std::size_t name = 0, amount = 3;
        for (std::size_t i = 0; i < before_.extras.size(); ++i)
            add(extra_cell(before_.extras[i], name), extra_cell(before_.extras[i], amount),
                extra_cell(after_.extras[i], amount));
    }

    const BrewDocument& before_;
    const BrewDocument& after_;
    const Settings& settings_;
    const SetToWork& work_;
};

void plan_anew(SetToWork& work) {
    const auto& open = work.editor.open;
    if (!is_same(open, work.before)) return; // it has become another: what was planned is told as it was
    work.plan = plan_set_to(open, work.wish);
    work.lines = Comparison(open, {work.plan.document, work.plan.figures, open.settings}, work).lines;
}

std::function<bool()> asked_for(const SetToWork& work, SetToTarget target) {
    return [&work, target] { return work.wish.target == target; };
}

void wanted_rows(Rows& rows, SetToWork& work) {
    const auto& settings = work.editor.open.settings;
    auto og = gravity_fields(rows, "og", "&Wanted", work.wish.og, most_sg, settings);
    og.sg.range(least_sg, most_sg).unit("SG").visible(asked_for(work, SetToTarget::og));
    og.plato.range(1.0F, most_plato)
        .label("or")
        .unit("Plato")
        .named("Wanted Plato")
        .visible(asked_for(work, SetToTarget::og));
    rows.number("ibu", work.wish.ibu)
        .label("&Wanted")
        .unit("IBU")
        .range(0.0F, 1000.0F)
        .step(1.0F)
        .format("%0.1f")
        .outside(Outside::clamp)
        .visible(asked_for(work, SetToTarget::ibu));
    rows.number("batch_size", work.wish.batch_size)
        .label("&Wanted")
        .unit(volume_unit(settings).usual)
        .shown_as([&settings](float gallons) { return to_shown_volume(gallons, settings); },
                  [&settings](float shown) { return from_shown_volume(shown, settings); })
        .range(1.0F, 100000.0F)
        .step(0.5F)
        .format("%0.1f")
        .outside(Outside::clamp)
        .visible(asked_for(work, SetToTarget::batch_size));
    rows.number("colour", work.wish.colour)
        .label("&Wanted")
        .unit(colour_unit(settings).usual)
        .shown_as([&settings](float srm) { return to_shown_colour(srm, settings); },
                  [&settings](float shown) { return from_shown_colour(shown, settings); })
        .range(0.0F, 1000.0F)
        .step(1.0F)
        .format("%0.1f")
        .outside(Outside::clamp)
        .visible(asked_for(work, SetToTarget::colour));
}

void hop_row(Rows& rows, SetToWork& work) {
    const auto& document = work.editor.open.document;
    std::vector<Live<std::string>> words = {"All bittering hops"};
    std::vector<std::int32_t> codes = {all_bittering_hops};
    for (const auto& hop : document.hops) {
        codes.push_back(static_cast<std::int32_t>(words.size()) - 1);
        words.emplace_back(hop_words(hop, document));
    }
    rows.choice("hop", work.wish.hop, std::move(words))
        .look(ChoiceRow::Look::drop_down)
        .codes(std::move(codes))
        .label("&Hops")
        .visible(asked_for(work, SetToTarget::ibu));
}

void malt_row(Rows& rows, SetToWork& work) {
    std::vector<Live<std::string>> words;
    for (const auto& malt : work.editor.open.document.malts) words.emplace_back(malt_words(malt));
    rows.choice("malt", work.wish.malt, std::move(words))
        .look(ChoiceRow::Look::drop_down)
        .label("B&y")
        .hint("This malt against all others; the gravity stays")
        .visible(asked_for(work, SetToTarget::colour));
}

std::string way_of(const SetToWork& work) {
    switch (work.wish.target) {
    case SetToTarget::og:
        return "Changes all malts alike.";
    case SetToTarget::ibu:
        return work.wish.hop == all_bittering_hops ? "Changes these hops alike." : "Changes this hop alone.";
    case SetToTarget::batch_size:
        return "Changes all amounts: the beer stays the same.";
    default:
        return "Changes this malt, and the others against it: the gravity stays.";
    }
}

} // namespace

SetToWork begin_set_to(RecipeEditor& editor) {
    const auto& open = editor.open;
    SetToWork work{.editor = editor,
                   .before = image_of(open),
                   .wish = wish_as_is(open),
                   .plan = {.document = open.document, .figures = open.figures},
                   .lines = {}};
    plan_anew(work);
    return work;
}

std::string set_to_fault(const SetToWork& work) {
    if (!is_same(work.editor.open, work.before)) return "The recipe has changed meanwhile";
    return work.plan.fault;
}

void set_to_form(Form& form, SetToWork& work) {
    auto& rows = form.group("Set");
    rows.choice("target", work.wish.target, {"&OG", "&IBU", "&Batch Size", "&Color"}).named("What is set");
    wanted_rows(rows, work);
    hop_row(rows, work);
    malt_row(rows, work);
    rows.note("note", [&work] {
        const auto fault = set_to_fault(work);
        return fault.empty() ? way_of(work) : fault + ".";
    });
    form.group("Before and After")
        .list(
            "comparison",
            {{.caption = "", .width = 24, .stretches = true},
             {.caption = "Before", .is_number = true, .width = 16},
             {.caption = "After", .is_number = true, .width = 16}},
            [&work] { return work.lines.size(); },
            [&work](std::size_t line, std::size_t column) { return work.lines[line].at(column); })
        .named("Before and after");
    form.after_edit([&work](Row&) { plan_anew(work); });
    form.accept_if([&work] { return set_to_fault(work).empty(); });
    form.on_accept([&work] { set_to(work.editor, work.plan); });
}

} // namespace wortlex
