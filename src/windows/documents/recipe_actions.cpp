#include "windows/documents/recipe_actions.h"

#include "windows/calculators/color_swatch_window.h"
#include "windows/documents/document_keys.h"
#include "windows/documents/line_dialogs.h"

namespace wortlex {
namespace {

void add_malt_actions(RecipeActions& actions, const RecipeSide& side) {
    actions.new_malt = [side] {
        pick_malts([&side](const MaltRecord& malt) { add_malt(side.editor, malt); }, side.ports, side.opener,
                   side.owner);
    };
    actions.edit_malt = [side] {
        const auto line = selected_malt(side.editor);
        if (!line) return;
        const auto& malt = side.editor.open.document.malts[*line];
        if (const auto changed = edit_malt_line(side.ports, malt, side.opener, side.owner))
            replace_malt(side.editor, *line, *changed);
    };
    actions.malt_contribution = [side] {
        if (const auto line = selected_malt(side.editor))
            show_malt_contribution(side.ports, side.editor.open, *line, side.opener, side.owner);
    };
}

// One of the dialogs that hand a hop line back changed.
using HopDialog = std::optional<HopUse> (*)(const RecipeSide&, const HopUse&);

std::optional<HopUse> edit_hop(const RecipeSide& side, const HopUse& hop) {
    return edit_hop_line(side.ports, side.editor.open, hop, side.opener, side.owner);
}

std::optional<HopUse> lose_alpha(const RecipeSide& side, const HopUse& hop) {
    return lose_hop_alpha(side.ports, hop, side.opener, side.owner);
}

std::function<void()> change_by(HopDialog dialog, const RecipeSide& side) {
    return [side, dialog] {
        const auto line = selected_hop(side.editor);
        if (!line) return;
        const auto& hop = side.editor.open.document.hops[*line];
        if (const auto changed = dialog(side, hop)) replace_hop(side.editor, *line, *changed);
    };
}

RecipeActions line_actions(const RecipeSide& side) {
    RecipeActions actions;
    actions.pick_style = [side] {
        if (const auto style = pick_style(side.ports, side.opener, side.owner))
            set_style(side.editor, *style);
    };
    actions.pre_boil = [side] { show_pre_boil(side.ports, side.editor.open, side.owner); };
    add_malt_actions(actions, side);
    actions.new_hop = [side] {
        pick_hops([&side](const HopRecord& hop) { add_hop(side.editor, hop); }, side.ports, side.opener,
                  side.owner);
    };
    actions.edit_hop = change_by(edit_hop, side);
    actions.lose_alpha = change_by(lose_alpha, side);
    return actions;
}

YeastWaterActions yeast_water_actions(const RecipeSide& side) {
    YeastWaterActions actions;
    actions.pick_yeast = [side] {
        if (const auto yeast = pick_yeast(side.ports, side.opener, side.owner))
            set_yeast(side.editor, *yeast);
    };
    actions.pick_water = [side] {
        if (const auto water = pick_water(side.ports, side.opener, side.owner))
            set_water(side.editor, *water);
    };
    return actions;
}

ExtrasActions extras_actions(const RecipeSide& side) {
    ExtrasActions actions;
    actions.new_extra = [side] {
        pick_extras([&side](const ExtraRecord& extra) { add_extra(side.editor, extra); }, side.ports,
                    side.opener, side.owner);
    };
    actions.edit_extra = [side] {
        const auto line = selected_extra(side.editor);
        if (!line) return;
        const auto& extras = side.editor.open.document.extras;
        const auto before = extras[*line];
        const auto changed = edit_extra_line(side.ports, before, side.opener, side.owner);
        // The recipe window stays open beside this one: meanwhile the line may have become another.
        if (changed && selected_extra(side.editor) == line && extras[*line] == before)
            replace_extra(side.editor, *changed);
    };
    return actions;
}

RecipeSide over(const RecipeSide& side, QWidget* page) {
    return {side.editor, side.ports, side.opener, page};
}

RecipePageUse yeast_water_page(const RecipeSide& side) {
    return {.template_name = yeast_water_template(side.opener),
            .step = "Yeast And Water",
            .opener = side.opener,
            .fill = [side](Form& form, QWidget* page) {
                yeast_water_form(form, side.editor, yeast_water_actions(over(side, page)));
            }};
}

RecipePageUse extras_page(const RecipeSide& side) {
    return {
        .template_name = extras_template(side.opener),
        .step = "Extras & Notes",
        .opener = side.opener,
        .fill = [side](Form& form,
                       QWidget* page) { extras_form(form, side.editor, extras_actions(over(side, page))); },
        .arrange = arrange_extras};
}

} // namespace

void show_page(const RecipeSide& side, OpenPages& pages, const RecipePageUse& use,
               const std::function<void()>& save) {
    pages.show(use.template_name, [&] {
        auto* const page = new RecipePage(side.editor, use, side.ports, side.owner);
        add_document_keys(*page, side.editor, save);
        return page;
    });
}

RecipeActions recipe_actions(const RecipeSide& side, OpenPages& pages, const std::function<void()>& save) {
    auto actions = line_actions(side);
    actions.yeast_and_water = [side, &pages, save] { show_page(side, pages, yeast_water_page(side), save); };
    actions.extras_and_notes = [side, &pages, save] { show_page(side, pages, extras_page(side), save); };
    actions.show_colour = [side, &pages] { show_colour(side, pages); };
    return actions;
}

std::string_view yeast_water_template(Opener opener) {
    return opener == Opener::session ? "BATCH4DIALOG" : "RECIPE4DIALOG";
}

std::string_view extras_template(Opener opener) {
    return opener == Opener::session ? "BATCHEXTRADIALOG" : "RECIPEEXTRADIALOG";
}

void show_colour(const RecipeSide& side, OpenPages& pages) {
    pages.show("COLORSWATCHDIALOG",
               [&] { return new ColorSwatchWindow(side.ports.program, side.opener, side.owner); });
}

} // namespace wortlex
