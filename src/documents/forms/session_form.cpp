#include "documents/forms/session_form.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "brewing/calendar.h"
#include "documents/figure_catalogue.h"
#include "documents/forms/session_page_rows.h"
#include "documents/forms/style_rows.h"
#include "documents/session_figures.h"
#include "measures/gravity.h"
#include "measures/precision.h"
#include "measures/rounding.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr std::size_t longest_brewer = 253;

void day_rows(Rows& rows, const SessionSubject& subject) {
    auto& editor = subject.editor;
    auto& session = *editor.open.session;
    rows.shown("brew_date",
               [&] { return short_date(existing_day(brew_date(session)), editor.open.settings.date_format); })
        .label("Date Of Brewing:")
        .width(12);
    rows.button("pick_date", "Pick &It!", subject.actions.pick_date).hint("The day on a calendar");
    rows.text(
            "head_brewer", [&] { return session.head_brewer.view(); },
            [&](std::string_view name) { set_head_brewer(editor, name); }, longest_brewer)
        .label("&Brewer(s) Name:")
        .width(30);
    rows.text(
            "assistant_brewer", [&] { return session.assistant_brewer.view(); },
            [&](std::string_view name) { set_assistant_brewer(editor, name); }, longest_brewer)
        .label("Ass&t. Brewer(s) Name:")
        .width(30);
}

std::string kind_word(RecipeKind kind) {
    switch (kind) {
    case RecipeKind::all_grain:
        return "All Grain";
    case RecipeKind::partial_mash:
        return "Partial Mash";
    case RecipeKind::extract:
        return "Extract";
    }
    return "";
}

void recipe_rows(Rows& rows, const SessionSubject& subject) {
    const auto& open = subject.editor.open;
    rows.shown("title", [&open] { return utf8_from_windows1252(open.document.title.view()); })
        .label("Recipe Name:")
        .width(30);
    rows.button("pick_recipe", "Pick &Recipe", subject.actions.pick_recipe)
        .hint("Brews a recipe from its file; what is logged here stays");
    rows.shown("recipe_kind",
               [&open] {
                   return has_picked_recipe(open) ? kind_word(open.document.recipe_kind) : std::string();
               })
        .label("Type of Recipe")
        .width(12);
}

// Figures of a recipe, blank as long as there is none.
class BrewFigures {
public:
    BrewFigures(Rows& rows, const OpenDocument& open) : rows_(rows), open_(open) {}

    void number(std::string key, const std::string& label, int decimals, std::function<float()> value) {
        text(std::move(key), label,
             [decimals, value = std::move(value)] { return fixed(value(), decimals); });
    }
    void figure(std::string key, const std::string& label, const Figure& figure) {
        text(std::move(key), label, [&figure, &open = open_] {
            return fixed(shown_value(figure, source_of(open)), figure.decimals);
        });
    }
    void gravity(const std::string& key, const std::string& label, const std::function<float()>& sg) {
        const auto& settings = open_.settings;
        text(key, label,
             [&settings, sg] { return fixed(trunc_to_precision(sg(), 5), sg_decimals(settings)); });
        text(key + "_plato", "Plato", [&settings, sg] {
            return fixed(trunc_to_precision(sg_to_plato(sg()), 3), plato_decimals(settings));
        }).named(label + " in Plato");
    }
    ShownRow& text(std::string key, const std::string& label, std::function<std::string()> shown) {
        return rows_
            .shown(std::move(key),
                   [&open = open_, shown = std::move(shown)] {
                       return has_picked_recipe(open) ? shown() : std::string();
                   })
            .figure()
            .width(7)
            .label(label);
    }

private:
    Rows& rows_;
    const OpenDocument& open_;
};

void aim_rows(Rows& rows, const SessionSubject& subject) {
    const auto& open = subject.editor.open;
    const auto& settings = open.settings;
    BrewFigures aim(rows, open);
    aim.gravity("est_og", "Est. OG", [&open] { return hop_gravity(open.document); });
    aim.number("batch_size", size_label("Batch Size", settings), 1,
               [&open] { return to_shown_volume(open.document.batch_size, open.settings); });
    aim.figure("aimed_efficiency", "% Efficiency", recipe_figure::efficiency);
    aim.figure("total_ibu", "Est. IBU's", recipe_figure::total_ibu);
    aim.figure("colour", "Est. " + std::string(colour_unit(settings).usual), recipe_figure::colour);
    rows.swatch("swatch",
                [&open, &colours = subject.colours] {
                    return swatch_colour(colours, open.figures.colour.srm, open.settings);
                })
        .named("Color of the beer")
        .hint("Press for its detail")
        .enabled([&open] { return has_picked_recipe(open); })
        .pressed(subject.actions.show_colour);
    aim.figure("boil_minutes", "Boil Time", recipe_figure::boil_minutes);
}

// "" where there is no mash, or nothing that it could be told from.
std::string efficiency_text(const OpenDocument& open) {
    const auto& document = open.document;
    const bool is_recorded = open.session->tail.recorded_volume != 0;
    if (document.recipe_kind == RecipeKind::extract || document.malts.empty() || !is_recorded) return "";
    return fixed(recorded_efficiency(document, *open.session, open.settings).efficiency * 100.0, 0);
}

void measured_rows(Rows& rows, RecipeEditor& editor) {
    const auto& open = editor.open;
    BrewFigures measured(rows, open);
    const auto& session = *open.session;
    measured.gravity("actual_og", "Actual OG", [&session] { return session.actual_og; });
    measured.gravity("actual_fg", "Actual FG", [&session] { return session.actual_fg; });
    measured.text("actual_efficiency", "% - Actual Mash System Efficiency",
                  [&open] { return efficiency_text(open); });
    const auto fermented = [&](const char* key, const char* label, float FermentationFigures::*figure) {
        measured.number(key, label, 2, [&editor, figure] {
            return editor.fermentation.of(*editor.open.session, editor.open.settings).*figure;
        });
    };
    fermented("alcohol_by_weight", "% Alcohol by Weight", &FermentationFigures::alcohol_by_weight);
    fermented("alcohol_by_volume", "% Alcohol by Volume", &FermentationFigures::alcohol_by_volume);
    fermented("adf", "% ADF", &FermentationFigures::apparent_attenuation);
    fermented("rdf", "% RDF", &FermentationFigures::real_attenuation);
}

} // namespace

void session_form(Form& form, const SessionSubject& subject) {
    const auto& open = subject.editor.open;
    day_rows(form.group("Brew Day"), subject);
    recipe_rows(form.group("Recipe"), subject);
    style_rows(form.group("Style Guidelines"), open);
    aim_rows(form.group("The Recipe Aims At"), subject);
    measured_rows(form.group("Measured"), subject.editor);
    session_page_rows(form.group("Pages"), subject);
    session_end_rows(form.group(), subject);
    form.on_leave([&editor = subject.editor] { end_edit(editor); });
}

} // namespace wortlex
