#include "reports/catalogue.h"

#include "documents/recipe_gravity.h"
#include "page/text_sink.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

namespace wortlex {
namespace {

std::string ruled_title(std::string_view title) {
    const auto dashes = dashes_below(title) + "\n";
    return dashes + std::string(title) + "\n" + dashes + "\n";
}

std::string name_of(const ReportSource& source) {
    return line_text(source.open.document.title);
}

std::string behind(const std::string& name) {
    return name.empty() ? "" : " - " + name;
}

DocumentReport recipe_titles(const ReportSource& source) {
    return {ruled_title("A Wortlex Recipe Report"), "Wortlex Recipe Printout", "A Wortlex Recipe Printout",
            "A Wortlex Recipe" + behind(name_of(source))};
}

DocumentReport recipe_part_titles(const ReportSource& source) {
    return {ruled_title("A Wortlex Brewing Session - Recipe Details Report"),
            "Wortlex Brewing Session - Recipe Details Printout", "",
            "A Wortlex Brewing Session" + behind(name_of(source))};
}

DocumentReport session_titles(const ReportSource& source) {
    const auto name = name_of(source);
    const auto first_line = date_words(brew_date(*source.open.session), source.open.settings) + "  " + name;
    return {first_line + "\n" + ruled_title("A Wortlex Brewing Session Report"),
            "A Wortlex Brewing Session Printout", "", "A Wortlex Brewing Session" + behind(name)};
}

// What has a section. A switch that stands for none is always on.
struct Entry {
    ReportSection (*section)(const ReportSource&) = nullptr;
    std::optional<PrintSection> wanted_by{};
    bool is_of_session = false;
    bool is_on_form = false;
    bool (*has_any)(const ReportSource&) = nullptr; ///< else it is left out
    /// Of a chart, instead of a section.
    ReportSection (*chart)(const ReportSource&, const PrintSelection&) = nullptr;
};

bool has_mash(const ReportSource& source) {
    return has_mashable_grain(source.open.document);
}

bool has_vessels(const ReportSource& source) {
    return !source.is_competition_form || has_filled_vessels(*source.open.session);
}

bool has_own_water(const ReportSource& source) {
    return has_water_chart(*source.open.session);
}

template <SessionNote Note>
bool has_note(const ReportSource& source) {
    return has_session_note(*source.open.session, Note);
}

template <SessionNote Note>
ReportSection note_section(const ReportSource& source) {
    return session_note_section(source, Note);
}

template <SessionNote Note>
constexpr Entry note_entry() {
    return {note_section<Note>, PrintSection::session_notes, true, false, has_note<Note>};
}

// In the order of the text form.
constexpr std::array catalogue = {
    Entry{heading_section},
    Entry{style_section, PrintSection::recipe_style_guidelines},
    Entry{specifics_section},
    Entry{pre_boil_section, PrintSection::pre_boil},
    Entry{formulas_section, PrintSection::formula_specifics},
    Entry{.section = grain_section, .is_on_form = true},
    Entry{.section = hop_section, .is_on_form = true},
    Entry{.section = extras_section, .is_on_form = true},
    Entry{.section = yeast_section, .is_on_form = true},
    Entry{water_section, PrintSection::water_profile, false, true},
    Entry{mash_section, PrintSection::mash_schedule, false, true, has_mash},
    Entry{nullptr, PrintSection::mash_graph, false, false, has_mash_chart, mash_chart_section},
    Entry{water_match_section, PrintSection::water_analysis, true},
    Entry{water_adjustment_section, PrintSection::water_analysis, true},
    Entry{nullptr, PrintSection::water_graph, true, false, has_own_water, water_chart_section},
    Entry{water_needed_section, PrintSection::water_needed, true},
    Entry{efficiency_section, PrintSection::efficiency, true},
    Entry{fermentation_section, PrintSection::fermentation, true, true},
    Entry{bottling_section, PrintSection::bottling, true, true, has_vessels},
    Entry{inventory_section, PrintSection::inventory, true},
    note_entry<SessionNote::mash>(),
    note_entry<SessionNote::fermentation>(),
    note_entry<SessionNote::tasting>(),
    note_entry<SessionNote::problems>(),
    Entry{notes_section, PrintSection::notes_and_awards},
    Entry{awards_section, PrintSection::notes_and_awards},
};

// A session has a switch of its own for the style.
bool is_on(const ReportSource& source, PrintSelection wanted, PrintSection section) {
    if (section == PrintSection::recipe_style_guidelines && source.open.session != nullptr)
        section = PrintSection::session_style_guidelines;
    return wanted[section] != 0;
}

bool is_wanted(const Entry& entry, const ReportSource& source, const PrintSelection& wanted) {
    if (entry.is_of_session && source.open.session == nullptr) return false;
    if (entry.wanted_by && !is_on(source, wanted, *entry.wanted_by)) return false;
    return entry.has_any == nullptr || entry.has_any(source);
}

DocumentReport with_sections(DocumentReport report, const ReportSource& source,
                             const PrintSelection& wanted) {
    for (const auto& entry : catalogue) {
        if (!is_wanted(entry, source, wanted)) continue;
        report.sections.push_back(entry.chart != nullptr ? entry.chart(source, wanted)
                                                         : entry.section(source));
    }
    return report;
}

} // namespace

RecipeView default_report_view(const Settings& settings) {
    RecipeView view;
    view.show_potential =
        settings.efficiency_mode < EfficiencyMode::method_2 && settings.view_actual_extract == 0;
    return view;
}

DocumentReport document_report(const ReportSource& source, const PrintSelection& wanted, ReportPart part) {
    if (source.open.session == nullptr) return with_sections(recipe_titles(source), source, wanted);
    if (part == ReportPart::whole) return with_sections(session_titles(source), source, wanted);
    const OpenDocument recipe{source.open.document, source.open.figures, source.open.settings};
    return with_sections(recipe_part_titles(source),
                         {recipe, source.view, source.color_table, source.evaporation_rate, source.stocks},
                         wanted);
}

std::vector<ReportSection> competition_sections(const ReportSource& source, const PrintSelection& wanted) {
    std::vector<ReportSection> sections;
    for (const auto& entry : catalogue)
        if (entry.is_on_form && is_wanted(entry, source, wanted)) sections.push_back(entry.section(source));
    return sections;
}

} // namespace wortlex
