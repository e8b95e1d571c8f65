#include "reports/catalogue.h"

#include "documents/recipe_gravity.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

DocumentReport titles(const ReportSource& source) {
    const auto name = line_text(source.open.document.title);
    const std::string behind = name.empty() ? "" : " - " + name;
    if (source.open.session == nullptr)
        return {"A Wortlex Recipe Report",
                "Wortlex Recipe Printout",
                "A Wortlex Recipe Printout",
                "A Wortlex Recipe" + behind,
                {}};
    return {"A Wortlex Brewing Session - Recipe Details Report",
            "Wortlex Brewing Session - Recipe Details Printout",
            "A Wortlex Brewing Session Printout",
            "A Wortlex Brewing Session" + behind,
            {}};
}

} // namespace

RecipeView default_report_view(const Settings& settings) {
    RecipeView view;
    view.show_potential =
        settings.efficiency_mode < EfficiencyMode::method_2 && settings.view_actual_extract == 0;
    return view;
}

DocumentReport document_report(const ReportSource& source, const PrintSelection& wanted) {
    auto report = titles(source);
    const auto add = [&](bool is_wanted, ReportSection (*section)(const ReportSource&)) {
        if (is_wanted) report.sections.push_back(section(source));
    };
    const auto is_on = [&](PrintSection section) {
        return wanted.sections[static_cast<std::size_t>(section)] != 0;
    };
    const bool is_session = source.open.session != nullptr;
    add(true, heading_section);
    add(is_on(is_session ? PrintSection::session_style_guidelines : PrintSection::recipe_style_guidelines),
        style_section);
    add(true, specifics_section);
    add(is_on(PrintSection::pre_boil), pre_boil_section);
    add(is_on(PrintSection::formula_specifics), formulas_section);
    add(true, grain_section);
    add(true, hop_section);
    add(true, extras_section);
    add(true, yeast_section);
    add(is_on(PrintSection::water_profile), water_section);
    add(is_on(PrintSection::mash_schedule) && has_mashable_grain(source.open.document), mash_section);
    add(is_on(PrintSection::notes_and_awards), notes_section);
    add(is_on(PrintSection::notes_and_awards), awards_section);
    return report;
}

} // namespace wortlex
