#include "documents/forms/efficiency_form.h"

#include "documents/session_figures.h"
#include "measures/gravity.h"
#include "measures/unit_words.h"
#include "measures/units.h"
#include "records/documents/document_files.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr float highest_recorded = 5;

constexpr const char* in_kettle = "The most accurate measure will be taken immediately after sparging ends, "
                                  "after all top-up water, extracts "
                                  "and sugars have been added, and before the boil begins.";
constexpr const char* in_fermenter =
    "All losses from the Kettle to the Fermenter are taken from the Water Needed section and added to the "
    "recorded volume. Cooling shrinkage is also applied to losses.";

std::string volume_label(const char* of, const Settings& settings) {
    return std::string(of) + " (" + volume_unit(settings).capital + "):";
}

EfficiencyFigures recorded_figures(const OpenDocument& open) {
    return recorded_efficiency(open.document, *open.session, open.settings);
}

void answer_rows(Rows& rows, const OpenDocument& open) {
    rows.shown_number(
            "actual_efficiency", [&open] { return narrow(recorded_figures(open).efficiency * 100.0); },
            "%0.0f")
        .label("Actual Mash System Efficiency:")
        .unit("%");
    rows.shown_number(
            "recipe_efficiency",
            [&open] { return static_cast<float>(whole_percent(open.document.efficiency)); }, "%0.0f")
        .label("Recipe Efficiency Setting:")
        .unit("%");
}

using Kettle = std::function<PreBoil()>;

// The wort aimed at, in one kettle, below words in two lines.
void target_column(Rows& rows, const std::string& key, const std::string& head, const Kettle& kettle,
                   const Settings& settings) {
    const auto sg = [kettle] { return sg_from_points(kettle().points); };
    auto words = head;
    std::replace(words.begin(), words.end(), '\n', ' ');
    rows.note(key + "_head", head);
    rows.shown_number(
            key + "_volume", [kettle, &settings] { return to_shown_volume(kettle().volume, settings); },
            "%0.2f")
        .named(words + " Target Volume");
    rows.shown_sg(key + "_sg", sg, settings).named(words + " Estimated OG");
    rows.shown_plato(
            key + "_plato", [sg] { return sg_to_plato(sg()); }, settings)
        .named(words + " Plato");
}

void target_rows(Rows& rows, const OpenDocument& open) {
    const auto& settings = open.settings;
    rows.note("volume_word", [&settings] { return volume_label("Target Volume", settings); });
    rows.note("sg_word", "Estimated OG:");
    rows.note("plato_word", "Plato:");
    target_column(
        rows, "water", "Water Needed\nPre-Boil Targets:",
        [&open] { return water_pre_boil(open.document, open.session->water_needs, open.settings); },
        settings);
    target_column(
        rows, "raw", "Raw\nPre-Boil Targets:",
        [&open] {
            return raw_pre_boil(open.document, open.session->water_needs.evaporation_rate, open.settings);
        },
        settings);
    target_column(
        rows, "post", "Post-Boil\nTargets:", [&open] { return end_of_boil(open.document, open.settings); },
        settings);
}

void volume_rows(Rows& rows, const OpenDocument& open) {
    const auto& settings = open.settings;
    auto& session = *open.session;
    const auto shown = [&settings](float gallons) { return to_shown_volume(gallons, settings); };
    rows.number("recorded_volume", session.tail.recorded_volume)
        .label([&settings] { return volume_label("Recorded &Volume", settings); })
        .shown_as(shown, [&settings](float volume) { return from_shown_volume(volume, settings); })
        .range(0.0F, 100000.0F)
        .step(0.5F);
    rows.shown_number(
            "losses", [&open, shown] { return shown(recording_losses(*open.session, open.settings)); },
            "%0.2f")
        .label("+Losses");
    rows.shown_number(
            "total_volume", [&open, shown] { return shown(recorded_gallons(*open.session, open.settings)); },
            "%0.2f")
        .label("Total");
}

void recording_rows(Rows& rows, RecipeEditor& editor, const EfficiencyActions& actions) {
    const auto& open = editor.open;
    auto& tail = open.session->tail;
    volume_rows(rows, open);
    const auto gravity = gravity_fields(rows, "recorded_og", "Recorded O&G:", tail.recorded_og,
                                        highest_recorded, open.settings);
    gravity.plato.label("P&lato:");
    const auto tell = [&editor] { tell_change(editor); };
    measure_button(rows, "hydrometer", "&Hydro Calc", tail.recorded_og, highest_recorded, actions.hydrometer,
                   tell);
    measure_button(rows, "refractometer", "&Refractometer", tail.recorded_og, highest_recorded,
                   actions.refractometer, tell);
    rows.choice("measured_in_fermenter", tail.measured_in_fermenter,
                {"Measurement Taken in &Kettle", "Measurement Taken In &Fermenter"})
        .named("Place of the measurement");
    rows.note("where_note", [&tail] { return tail.measured_in_fermenter != 0 ? in_fermenter : in_kettle; });
}

// Points of one kind: the most there are, and those aimed at.
void point_column(Rows& rows, const std::string& key, const std::string& words, const OpenDocument& open,
                  float EfficiencyFigures::*part,
                  const std::function<double(const EfficiencyFigures&)>& aim) {
    rows.note(key + "_head", words);
    rows.shown_plato(
            key + "_most", [&open, part] { return recorded_figures(open).*part; }, open.settings)
        .named(words + " at 100%");
    rows.shown_plato(
            key + "_aimed", [&open, aim] { return narrow(aim(recorded_figures(open))); }, open.settings)
        .named(words + " with the recipe efficiency");
}

void point_rows(Rows& rows, const OpenDocument& open) {
    using Figures = EfficiencyFigures;
    const auto mash = [&document = open.document](const Figures& figures) {
        return double{figures.mash_points} * document.efficiency;
    };
    rows.note("most_word", "At 100% extraction from the maximum mash potential:");
    rows.note("aimed_word", "With the recipe efficiency setting, you should have achieved:");
    point_column(rows, "total", "Total Points", open, &Figures::total_points,
                 [mash](const Figures& figures) { return mash(figures) + figures.extract_points; });
    point_column(rows, "mash", "Points from Mash", open, &Figures::mash_points, mash);
    point_column(rows, "extract", "Points From Extract/Sugar", open, &Figures::extract_points,
                 [](const Figures& figures) { return double{figures.extract_points}; });
    rows.shown_plato(
            "actual_mash_points", [&open] { return recorded_figures(open).actual_mash_points; },
            open.settings)
        .label("Actual Points From Mash:");
}

// An extract brew has no mash to be judged.
void enable_with_mash(Form& form, const BrewDocument& document) {
    for (const auto* const key : {"measured_in_fermenter", "recorded_volume", "recorded_og",
                                  "recorded_og_plato", "hydrometer", "refractometer"}) {
        auto& row = form.row(key);
        row.is_enabled = [&document] { return document.recipe_kind != RecipeKind::extract; };
        row.reason_text = "An extract recipe has no mash";
    }
}

} // namespace

void efficiency_form(Form& form, RecipeEditor& editor, const EfficiencyActions& actions) {
    const auto& open = editor.open;
    auto& tail = open.session->tail;
    form.restore_on_cancel(tail, &SessionTail::recorded_volume, &SessionTail::recorded_og,
                           &SessionTail::measured_in_fermenter, &SessionTail::recorded_og_reading);
    repair_recording(*open.session, open.document);
    answer_rows(form.group(), open);
    target_rows(form.group(), open);
    recording_rows(form.group(), editor, actions);
    point_rows(form.group(), open);
    form.group().button("print", "&Print", actions.print);
    enable_with_mash(form, open.document);
}

} // namespace wortlex
