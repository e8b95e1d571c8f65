#include "windows/documents/recipe_actions.h"

#include "windows/documents/line_dialogs.h"

namespace wortlex {
namespace {

struct Side {
    RecipeEditor& editor;
    WindowPorts ports;
    Opener opener;
    QWidget* owner;
};

void add_malt_actions(RecipeActions& actions, const Side& side) {
    actions.new_malt = [side] {
        if (const auto malt = pick_malt(side.ports, side.opener, side.owner)) add_malt(side.editor, *malt);
    };
    actions.edit_malt = [side] {
        const auto line = selected_malt(side.editor);
        if (!line) return;
        const auto& malt = side.editor.open.document.malts[*line];
        if (const auto changed = edit_malt_line(side.ports, malt, side.opener, side.owner))
            replace_malt(side.editor, *changed);
    };
    actions.malt_contribution = [side] {
        if (const auto line = selected_malt(side.editor))
            show_malt_contribution(side.ports, side.editor.open, *line, side.opener, side.owner);
    };
}

// One of the dialogs that hand a hop line back changed.
using HopDialog = std::optional<HopUse> (*)(const Side&, const HopUse&);

std::optional<HopUse> edit_hop(const Side& side, const HopUse& hop) {
    return edit_hop_line(side.ports, side.editor.open, hop, side.opener, side.owner);
}

std::optional<HopUse> lose_alpha(const Side& side, const HopUse& hop) {
    return lose_hop_alpha(side.ports, hop, side.opener, side.owner);
}

std::function<void()> change_by(HopDialog dialog, const Side& side) {
    return [side, dialog] {
        const auto line = selected_hop(side.editor);
        if (!line) return;
        const auto& hop = side.editor.open.document.hops[*line];
        if (const auto changed = dialog(side, hop)) replace_hop(side.editor, *changed);
    };
}

} // namespace

RecipeActions line_actions(RecipeEditor& editor, const WindowPorts& ports, Opener opener, QWidget* owner) {
    const Side side{editor, ports, opener, owner};
    RecipeActions actions;
    actions.pick_style = [side] {
        if (const auto style = pick_style(side.ports, side.opener, side.owner))
            set_style(side.editor, *style);
    };
    actions.pre_boil = [side] { show_pre_boil(side.ports, side.editor.open, side.owner); };
    add_malt_actions(actions, side);
    actions.new_hop = [side] {
        if (const auto hop = pick_hop(side.ports, side.opener, side.owner)) add_hop(side.editor, *hop);
    };
    actions.edit_hop = change_by(edit_hop, side);
    actions.lose_alpha = change_by(lose_alpha, side);
    return actions;
}

YeastWaterActions yeast_water_actions(RecipeEditor& editor, const WindowPorts& ports, Opener opener,
                                      QWidget* owner) {
    const Side side{editor, ports, opener, owner};
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

ExtrasActions extras_actions(RecipeEditor& editor, const WindowPorts& ports, Opener opener, QWidget* owner) {
    const Side side{editor, ports, opener, owner};
    ExtrasActions actions;
    actions.new_extra = [side] {
        if (const auto extra = pick_extra(side.ports, side.opener, side.owner))
            add_extra(side.editor, *extra);
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

} // namespace wortlex
