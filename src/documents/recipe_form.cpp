#include "documents/recipe_form.h"

#include "base/windows1252.h"
#include "measures/gravity.h"
#include "measures/units.h"

namespace wortlex {
namespace {

float sg_of(float points) {
    return narrow(points / 1000.0 + 1);
}

// What a style says, blank where none was chosen.
class StyleRows {
public:
    StyleRows(Rows& rows, const BrewDocument& document) : rows_(rows), document_(document) {}

    void words(std::string key, const std::string& label,
               std::function<std::string(const StyleRecord&)> text) {
        rows_.shown(std::move(key), blank_without_style(std::move(text)))
            .label(label)
            .colours(ColorArea::style_guidelines);
    }

    void number(std::string key, const std::string& label, std::string pattern,
                std::function<float(const StyleRecord&)> value) {
        auto text = [pattern = std::move(pattern), value = std::move(value)](const StyleRecord& style) {
            return formatted(pattern, value(style));
        };
        rows_.shown(std::move(key), blank_without_style(std::move(text)))
            .label(label)
            .figure()
            .width(6)
            .colours(ColorArea::style_guidelines);
    }

private:
    std::function<std::string()> blank_without_style(std::function<std::string(const StyleRecord&)> text) {
        return [&document = document_, text = std::move(text)] {
            return has_style(document) ? text(document.style) : std::string();
        };
    }

    Rows& rows_;
    const BrewDocument& document_;
};

void style_rows(Rows& rows, const OpenDocument& open) {
    rows.button("pick_style", "Pick St&yle", nullptr);
    StyleRows style(rows, open.document);
    style.words("style_class", "Style",
                [](const auto& s) { return utf8_from_windows1252(s.category.view()); });
    style.words("style_name", "Name", [](const auto& s) { return utf8_from_windows1252(s.name.view()); });
    style.words("style_type", "Type", [](const auto& s) { return std::string(beer_type_word(s.type)); });
    style.words("style_book", "Guidelines", [](const auto& s) { return std::string(style_book_word(s)); });
    style.number("min_sg", "Min SG", "%0.3f", [](const auto& s) { return s.min_og; });
    style.number("max_sg", "Max SG", "%0.3f", [](const auto& s) { return s.max_og; });
    style.number("min_ibu", "Min IBU", "%0.0f", [](const auto& s) { return s.min_ibu; });
    style.number("max_ibu", "Max IBU", "%0.0f", [](const auto& s) { return s.max_ibu; });
    style.number("min_colour", "Min CLR", "%0.0f",
                 [&open](const auto& s) { return to_shown_colour(s.min_colour, open.settings); });
    style.number("max_colour", "Max CLR", "%0.0f",
                 [&open](const auto& s) { return to_shown_colour(s.max_colour, open.settings); });
}

bool is_extract(const BrewDocument& document) {
    return document.recipe_kind == RecipeKind::extract;
}

void size_rows(Rows& rows, const RecipeSubject& subject) {
    auto& document = subject.open.document;
    const auto& settings = subject.open.settings;
    rows.shown("title", [&document] { return utf8_from_windows1252(document.title.view()); })
        .label("Recipe Name:")
        .width(40);
    rows.choice("recipe_kind", document.recipe_kind, {"All Grain", "Extract", "Partial"})
        .codes({0, 2, 1})
        .enabled(false);
    rows.shown_number(
            "batch_size", [&] { return to_shown_volume(document.batch_size, settings); }, "%0.1f")
        .label([&] { return size_label("Batch Size", settings); });
    rows.shown_number(
            "wort_size", [&] { return to_shown_volume(document.wort_size, settings); }, "%0.1f")
        .label([&] { return size_label("Wort Size", settings); });
    rows.check("lock_to_batch", subject.view.locks.to_batch)
        .label("Lock Ingredients to Batch Size")
        .enabled(false);
    rows.button("pre_boil", "Pre-Boil", nullptr);
    rows.shown("boil_minutes", [&] { return formatted("%d", document.boil_minutes); })
        .label("Boil Time")
        .figure()
        .width(6);
    rows.shown("efficiency",
               [&] {
                   return is_extract(document) ? std::string()
                                               : formatted("%0.0f", narrow(document.efficiency * 100.0));
               })
        .label("% Efficiency")
        .figure()
        .width(6);
    rows.check("efficiency_lock", subject.view.locks.efficiency).label("Lock").enabled(false);
}

void figure_rows(Rows& rows, const RecipeSubject& subject) {
    const auto& document = subject.open.document;
    const auto& figures = subject.open.figures;
    const auto& settings = subject.open.settings;
    rows.shown_sg(
            "sg", [&] { return sg_of(document.og_points); }, settings)
        .label("SG");
    rows.shown_plato(
            "plato", [&] { return sg_to_plato(sg_of(document.og_points)); }, settings)
        .label("Plato");
    rows.shown_number(
            "total_ibu", [&] { return document.total_ibu; }, "%0.1f")
        .label("Total IBU's");
    rows.shown_number(
            "colour", [&] { return to_shown_colour(figures.colour.srm, settings); }, "%0.1f")
        .label([&] { return "Est. " + colour_unit(settings); });
    rows.swatch("swatch",
                [&figures, &settings, &colours = subject.colours] {
                    return swatch_colour(colours, figures.colour.srm, settings);
                })
        .label("CLR")
        .pressed(subject.show_colour);
}

void malt_rows(Rows& rows, const RecipeSubject& subject) {
    auto& view = subject.view;
    const auto& settings = subject.open.settings;
    rows.choice("show_potential",
                {[&view] { return view.show_potential ? 0 : 1; },
                 [&view](std::int32_t code) { view.show_potential = code == 0; }},
                {"Potential", "Extract"})
        .option_enabled([&settings](std::size_t option) {
            return option != 0 || settings.efficiency_mode != EfficiencyMode::method_2;
        });
    rows.list(
            "malts",
            {{.caption = "Malt Name", .width = 24, .stretches = true},
             {.caption = "Origin", .width = 11},
             {.caption = [&] { return malt_value_head(subject.view, settings); },
              .is_number = true,
              .width = 10},
             {.caption = [&] { return malt_colour_head(settings); }, .is_number = true},
             {.caption = [&] { return malt_amount_head(settings); }, .is_number = true},
             {.caption = "%", .is_number = true, .width = 6}},
            [&] { return subject.open.document.malts.size(); },
            [&](std::size_t row, std::size_t column) {
                return malt_cell(subject.open, subject.view, row, column);
            })
        .label("Malts")
        .selection(view.selected_malt);
    rows.shown_number(
            "total_grain", [&] { return grain_to_shown(subject.open.figures.total_grain, settings); },
            "%0.2f")
        .label([&] { return grain_unit(settings); });
    const std::string unit = settings.weight_units == Units::american ? "Lbs" : "kg";
    for (const auto& [key, caption] : {std::pair{"malt_new", std::string("New")},
                                       {"malt_del", "Del"},
                                       {"malt_edit", "Edit"},
                                       {"malt_more", "+" + unit},
                                       {"malt_less", "-" + unit},
                                       {"malt_detail", "%"}})
        rows.button(key, caption, nullptr);
}

void hop_rows(Rows& rows, const RecipeSubject& subject) {
    auto& view = subject.view;
    const auto& settings = subject.open.settings;
    rows.choice("show_ibu",
                {[&view] { return view.show_ibu ? 0 : 1; },
                 [&view](std::int32_t code) { view.show_ibu = code == 0; }},
                {"IBU", [&settings] { return bittering_unit(settings); }})
        .visible([&settings] { return settings.display_home_bittering != 0; });
    rows.list(
            "hops",
            {{.caption = "Hop Name", .width = 24, .stretches = true},
             {.caption = "Form", .width = 8},
             {.caption = "Alpha", .is_number = true},
             {.caption = [&] { return hop_bitterness_head(subject.view, settings); }, .is_number = true},
             {.caption = [&] { return hop_amount_head(settings); }, .is_number = true},
             {.caption = "Boil", .is_number = true, .width = 6}},
            [&] { return subject.open.document.hops.size(); },
            [&](std::size_t row, std::size_t column) {
                return hop_cell(subject.open, subject.view, row, column);
            })
        .label("Hops")
        .selection(view.selected_hop);
    rows.shown_number(
            "total_hops", [&] { return hop_to_shown(subject.open.figures.total_hop_ounces, settings); },
            "%0.3f")
        .label([&] { return hop_unit(settings); });
    const auto unit = hop_amount_head(settings);
    for (const auto& [key, caption] : {std::pair{"hop_new", std::string("New")},
                                       {"hop_del", "Del"},
                                       {"hop_edit", "Edit"},
                                       {"hop_more", "+" + unit},
                                       {"hop_less", "-" + (unit == "Oz." ? std::string("Oz") : unit)},
                                       {"hop_loss", "Loss"},
                                       {"boil_more", "+Boil"},
                                       {"boil_less", "-Boil"}})
        rows.button(key, caption, nullptr);
}

void page_rows(Rows& rows) {
    rows.button("yeast_and_water", "Yeast And Water", nullptr);
    rows.button("extras_and_notes", "Extras && Notes", nullptr);
    rows.button("mash_schedule", "Mash Schedule", nullptr);
    rows.button("save", "&Save", nullptr);
    rows.button("print", "&Print", nullptr);
    rows.button("help", "&Help", nullptr);
}

} // namespace

void recipe_form(Form& form, const RecipeSubject& subject) {
    size_rows(form.group("Recipe"), subject);
    style_rows(form.group("Style Guidelines"), subject.open);
    figure_rows(form.group("Predicted"), subject);
    malt_rows(form.group("Malts"), subject);
    hop_rows(form.group("Hops"), subject);
    page_rows(form.group());
}

} // namespace wortlex
