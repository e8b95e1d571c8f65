#include "base/windows1252.h"
#include "documents/forms/page_forms.h"
#include "documents/forms/style_rows.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr std::size_t longest_notes = 4022;

void extras_list(Rows& rows, RecipeEditor& editor, const ExtrasActions& actions) {
    const auto& extras = editor.open.document.extras;
    rows.list(
            "extras",
            {{.caption = "Ingredient Name", .width = 26, .stretches = true},
             {.caption = "Type of Ingredient", .width = 14},
             {.caption = "Time", .is_number = true, .width = 10},
             {.caption = "Amount", .is_number = true, .width = 12}},
            [&extras] { return extras.size(); },
            [&extras](std::size_t row, std::size_t column) { return extra_cell(extras[row], column); })
        .label("Extras")
        .when_empty("Insert adds an extra ingredient")
        .selection(editor.view.selected_extra)
        .header_clicked([&editor](std::size_t column) { sort_extras(editor, column); })
        .activated(actions.edit_extra);
}

void extras_buttons(Rows& rows, RecipeEditor& editor, const ExtrasActions& actions) {
    const auto about_line = [&](const char* key, const char* caption, const char* meaning,
                                std::function<void()> action) {
        rows.button(key, caption, std::move(action))
            .named(meaning)
            .hint(meaning)
            .enabled([&editor] { return selected_extra(editor).has_value(); })
            .disabled_because("The list is empty");
    };
    rows.button("extra_new", "&New", actions.new_extra).hint("Add an extra ingredient");
    about_line("extra_del", "&Del", "Delete the extra ingredient", [&editor] { delete_extra(editor); });
    about_line("extra_edit", "&Edit", "Edit the extra ingredient", actions.edit_extra);
    about_line("amount_more", "+&Amt", "More of it", [&editor] { step_extra(editor, Step::more); });
    about_line("amount_less", "-A&mt", "Less of it", [&editor] { step_extra(editor, Step::less); });
    about_line("time_more", "+&Time", "Add it earlier", [&editor] { step_extra_time(editor, Step::more); });
    about_line("time_less", "-T&ime", "Add it later", [&editor] { step_extra_time(editor, Step::less); });
}

} // namespace

void extras_form(Form& form, RecipeEditor& editor, const ExtrasActions& actions) {
    auto& document = editor.open.document;
    const auto& settings = editor.open.settings;
    auto& recipe = form.group("Recipe");
    recipe.shown("title", [&document] { return utf8_from_windows1252(document.title.view()); })
        .label("Recipe Name:")
        .width(36);
    recipe
        .shown_number(
            "batch_size", [&] { return to_shown_volume(document.batch_size, settings); }, "%0.1f")
        .label([&settings] { return size_label("Batch Size", settings); });
    style_rows(form.group("Style Guidelines"), editor.open);
    auto& extras = form.group("Extra Ingredients");
    extras_list(extras, editor, actions);
    extras_buttons(extras, editor, actions);
    auto& texts = form.group();
    texts.text("notes", document.notes).label("N&otes:").limit(longest_notes).lines();
    texts.text("awards", document.awards).label("A&wards:").limit(longest_notes).lines();
    form.restore_on_cancel(document.extras);
    form.restore_on_cancel(document.notes);
    form.restore_on_cancel(document.awards);
}

} // namespace wortlex
