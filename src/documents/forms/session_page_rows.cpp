#include "documents/forms/session_page_rows.h"

#include "documents/recipe_gravity.h"
#include "documents/work/session_pages.h"

namespace wortlex {
namespace {

constexpr const char* pick_first = "Pick a recipe first.";

void draw_page_mark(Surface& surface, bool is_full) {
    constexpr std::uint32_t green = 0x00468C32, grey = 0x00909090, white = 0x00FFFFFF;
    const auto [width, height] = surface.size();
    surface.set_pen({.colour = is_full ? green : grey, .width = 2});
    surface.set_brush(is_full ? std::optional(green) : std::nullopt);
    surface.ellipse({2, 2, width - 2, height - 2});
    if (!is_full) return;
    surface.set_pen({.colour = white, .width = 2});
    const std::array tick = {Point{width * 3 / 10, height / 2}, Point{width * 9 / 20, height * 13 / 20},
                             Point{width * 7 / 10, height * 7 / 20}};
    surface.polyline(tick);
}

using WhyNot = std::function<std::string(const BrewDocument&)>;

class PageRows {
public:
    PageRows(Rows& rows, const SessionSubject& subject)
        : rows_(rows), open_(subject.editor.open), usual_water_(subject.usual_water) {}

    /// A button of a page, whose mark stands before it. `why_not` tells what else than a missing recipe keeps
    /// it closed.
    void add(const std::string& key, const std::string& caption, const std::function<void()>& action,
             SessionPage page, const std::string& what, const WhyNot& why_not = nullptr) {
        const auto is_full = [&open = open_, &usual = usual_water_, page] {
            return has_picked_recipe(open) && is_filled(page, open.document, *open.session, usual);
        };
        rows_
            .canvas(key + page_mark, Extent{18, 18},
                    [is_full](Surface& surface) { draw_page_mark(surface, is_full()); })
            .named([is_full, what] { return what + (is_full() ? ": filled" : ": empty"); })
            .hint([is_full] { return std::string(is_full() ? "Filled" : "Empty"); });
        button(key, caption, action, what + " cannot be kept here yet.", why_not);
    }
    void button(const std::string& key, const std::string& caption, const std::function<void()>& action,
                const std::string& not_there, const WhyNot& why_not = nullptr) {
        const auto reason = [&open = open_, why_not, not_there,
                             is_there = action != nullptr]() -> std::string {
            if (!is_there) return not_there;
            if (!has_picked_recipe(open)) return pick_first;
            return why_not ? why_not(open.document) : "";
        };
        rows_.button(key, caption, action)
            .enabled([reason] { return reason().empty(); })
            .disabled_because(reason);
    }

private:
    Rows& rows_;
    const OpenDocument& open_;
    const WaterNeeds& usual_water_;
};

std::string no_mash(const BrewDocument& document) {
    return has_mashable_grain(document) ? "" : "There is no grain to mash.";
}

std::string mash_of_extract(const BrewDocument& document) {
    return document.recipe_kind == RecipeKind::extract ? "An extract recipe has no mash" : "";
}

} // namespace

void session_page_rows(Rows& rows, const SessionSubject& subject) {
    using enum SessionPage;
    const auto& open = subject.editor.open;
    const auto& actions = subject.actions;
    const auto booked = [&open](const BrewDocument&) {
        return std::string(open.session->inventory_finalized != 0 ? "The stock is booked already." : "");
    };
    PageRows pages(rows, subject);
    pages.add("ingredients", "Edit In&gredients", actions.ingredients, ingredients, "Ingredients");
    pages.add("mash", "&Mash Schedule", actions.mash, mash, "Mash schedule", no_mash);
    pages.add("water_needed", "&Water Needed", actions.water_needed, water_needed, "Water needed");
    pages.add("water_profile", "Water Profi&le", actions.water_profile, water_profile, "Water profile");
    pages.add("efficiency", "Effi&ciency", actions.efficiency, efficiency, "Efficiency", mash_of_extract);
    pages.add("fermentation", "Ferment&ation", actions.fermentation, fermentation, "Fermentation");
    pages.add("bottling", "Bottling / &Kegging", actions.bottling, bottling, "Bottling and kegging");
    pages.add("notes", "&Notes", actions.notes, notes, "Notes");
    pages.button("analyze", "Anal&yze Inventory", actions.analyze, "");
    pages.add("finalize", "Finali&ze Inventory", actions.finalize, inventory, "Inventory booked", booked);
}

void session_end_rows(Rows& rows, const SessionSubject& subject) {
    PageRows pages(rows, subject);
    pages.button("save", "&Save", subject.actions.save, "");
    pages.button("print", "&Print", subject.actions.print, "");
    rows.button("help", "Help", subject.actions.help);
}

} // namespace wortlex
