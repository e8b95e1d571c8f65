#include "reports/print_options.h"

#include "documents/recipe_gravity.h"
#include "forms/print_scale.h"
#include "reports/sections.h"

#include <span>

namespace wortlex {
namespace {

constexpr const char* nothing_to_mash = "There is no grain to mash";

struct SectionSwitch {
    const char* key = nullptr;
    const char* label = nullptr;
    PrintSection section = {};
    bool is_on_form = false;                ///< of a competition
    bool PrintedDocument::*needs = nullptr; ///< without which it holds nothing
    const char* lack = "";                  ///< says so
    bool stands_in_reports = false;         ///< even so, for a part of it is always told
};

constexpr SectionSwitch mash_switch{"mash", "&Mash Schedule",           PrintSection::mash_schedule,
                                    true,   &PrintedDocument::has_mash, nothing_to_mash};

constexpr std::array recipe_switches = {
    SectionSwitch{"style", "&Style Guidelines", PrintSection::recipe_style_guidelines},
    SectionSwitch{"pre_boil", "Pre-&Boil Specifics", PrintSection::pre_boil},
    SectionSwitch{"formulas", "&Formula Specifics", PrintSection::formula_specifics},
    SectionSwitch{"water", "&Water Profile", PrintSection::water_profile, true},
    mash_switch,
    SectionSwitch{"notes", "&Notes && Awards", PrintSection::notes_and_awards}};

constexpr std::array session_recipe_switches = {
    SectionSwitch{"style", "&Style Guidelines", PrintSection::session_style_guidelines},
    SectionSwitch{"pre_boil", "Pre-&Boil Specifics", PrintSection::pre_boil},
    SectionSwitch{"formulas", "&Formula Specifics", PrintSection::formula_specifics},
    SectionSwitch{"water", "&Water Profile", PrintSection::water_profile, true},
    SectionSwitch{"notes", "&Notes && Awards", PrintSection::notes_and_awards}};

constexpr std::array session_switches = {
    mash_switch,
    SectionSwitch{"water_analysis", "Water Profile Anal&ysis", PrintSection::water_analysis},
    SectionSwitch{"water_needed", "Water Nee&ded", PrintSection::water_needed},
    SectionSwitch{"efficiency", "&Efficiency Specifics", PrintSection::efficiency},
    SectionSwitch{"fermentation", "Fe&rmentation Specifics", PrintSection::fermentation, true},
    SectionSwitch{"bottling", "Bottling/&Kegging Specifics", PrintSection::bottling, true,
                  &PrintedDocument::has_vessels, "No vessel is told to be filled", true},
    SectionSwitch{"inventory", "In&ventory Analysis", PrintSection::inventory},
    SectionSwitch{"session_notes", "Sessi&on Notes", PrintSection::session_notes, false,
                  &PrintedDocument::has_notes, "The session has no notes"}};

// Empty for one that can be chosen.
std::string why_disabled(const SectionSwitch& section, const PrintSelection& selection,
                         const PrintedDocument& document) {
    const auto output = report_output(selection);
    if (output == ReportOutput::competition_labels)
        return "Labels hold nothing but the style, the name and the brewer";
    const bool is_form = output == ReportOutput::competition_form;
    if (is_form && !section.is_on_form) return "A competition form does not hold it";
    const bool is_missed = section.needs != nullptr && (is_form || !section.stands_in_reports);
    return is_missed && !(document.*section.needs) ? section.lack : "";
}

void section_rows(Rows& rows, std::span<const SectionSwitch> switches, PrintSelection& selection,
                  const PrintedDocument& document) {
    for (const auto& section : switches) {
        const auto why = [&section, &selection, document] {
            return why_disabled(section, selection, document);
        };
        rows.check(section.key, selection[section.section])
            .label(section.label)
            .enabled([why] { return why().empty(); })
            .disabled_because(why);
    }
}

bool can_hold_charts(const PrintSelection& selection) {
    const auto form = report_form(selection);
    return report_output(selection) == ReportOutput::report &&
           (form == ReportForm::print || form == ReportForm::html_file);
}

bool wants_mash_chart(PrintSelection selection, const PrintedDocument& document) {
    return document.has_mash && selection[PrintSection::mash_graph] != 0;
}

bool wants_water_chart(PrintSelection selection, const PrintedDocument& document) {
    return document.kind == DocumentKind::session && document.has_own_water &&
           selection[PrintSection::water_graph] != 0;
}

std::string lack_of_mash(const PrintSelection&, const PrintedDocument& document) {
    return document.has_mash ? "" : nothing_to_mash;
}

std::string lack_of_mash_chart(const PrintSelection& selection, const PrintedDocument& document) {
    if (!document.has_mash) return nothing_to_mash;
    return wants_mash_chart(selection, document) ? "" : "It belongs to the mash graph";
}

std::string lack_of_water(const PrintSelection&, const PrintedDocument& document) {
    return document.has_own_water ? "" : "Your water has no name yet";
}

void graph_rows(Rows& rows, PrintSelection& selection, const PrintedDocument& document) {
    const auto row = [&](const char* key, const char* label, std::uint8_t& flag, auto lack) {
        const auto why = [&selection, document, lack]() -> std::string {
            if (!can_hold_charts(selection)) return "Only a printed report and a page of HTML have charts";
            return lack(selection, document);
        };
        rows.check(key, flag).label(label).enabled([why] { return why().empty(); }).disabled_because(why);
    };
    row("mash_graph", "Mash &Graph", selection[PrintSection::mash_graph], lack_of_mash);
    row("fine_lines", "Fine Temp Lines", selection[PrintOption::fine_temperature_lines], lack_of_mash_chart);
    row("solid_fill", "Solid Fill", selection[PrintOption::solid_fill], lack_of_mash_chart);
    row("decoction_spikes", "Decoction Spikes", selection[PrintOption::decoction_spikes], lack_of_mash_chart);
    row("infusion_spikes", "Infusion Spikes", selection[PrintOption::infusion_spikes], lack_of_mash_chart);
    if (document.kind == DocumentKind::session)
        row("water_graph", "Water Profile Graph", selection[PrintSection::water_graph], lack_of_water);
}

// The one takes the other out.
CheckRow& competition_row(Rows& rows, const char* key, PrintSelection& selection, PrintSection own,
                          PrintSection other) {
    return rows.check(key, {[&selection, own] { return selection[own] != 0; },
                            [&selection, own, other](bool is_on) {
                                selection[own] = is_on ? 1 : 0;
                                if (is_on) selection[other] = 0;
                            }});
}

void output_rows(Rows& rows, PrintSelection& selection, const PrintOptionsActions& actions) {
    rows.choice(
            "form",
            {[&selection] { return static_cast<std::int32_t>(report_form(selection)); },
             [&selection](std::int32_t form) { set_report_form(selection, static_cast<ReportForm>(form)); }},
            {"&Print to Printer", "Export to &Text File", "Export to &HTML File (webpage)",
             "&Copy to Clipboard"})
        .look(ChoiceRow::Look::down);
    competition_row(rows, "competition_form", selection, PrintSection::competition_form,
                    PrintSection::competition_labels)
        .label("&As Competition Form");
    competition_row(rows, "competition_labels", selection, PrintSection::competition_labels,
                    PrintSection::competition_form)
        .label("As Compet&ition Labels");
    rows.button("html_themes", "HTM&L Themes", actions.html_themes);
}

bool has_scale(const PrintSelection& selection, const PrintedDocument& document) {
    if (report_output(selection) == ReportOutput::competition_form)
        return report_form(selection) == ReportForm::print;
    return can_hold_charts(selection) &&
           (wants_mash_chart(selection, document) || wants_water_chart(selection, document));
}

// Of charts, and of a competition form; the texts of a report take that of the settings.
void scale_row(Rows& rows, PrintSelection& selection, const PrintedDocument& document) {
    print_scale_row(rows, "scale", selection.scale)
        .enabled([&selection, document] { return has_scale(selection, document); })
        .disabled_because("Only charts and a printed competition form have a scale of their own");
}

void text_groups(Form& form, PrintSelection& selection, const PrintedDocument& document) {
    if (document.kind == DocumentKind::recipe)
        return section_rows(form.group("Text"), recipe_switches, selection, document);
    section_rows(form.group("Recipe Specific Text"), session_recipe_switches, selection, document);
    section_rows(form.group("Session Specific Text"), session_switches, selection, document);
}

} // namespace

PrintedDocument printed_document(DocumentKind kind, const BrewDocument& document,
                                 const SessionDocument& session) {
    return {.kind = kind,
            .has_mash = has_mashable_grain(document),
            .has_own_water = has_water_chart(session),
            .has_notes = has_session_notes(session),
            .has_vessels = has_filled_vessels(session)};
}

ReportForm report_form(const PrintSelection& selection) {
    auto read = selection;
    if (read[PrintSection::text_file] != 0) return ReportForm::text_file;
    if (read[PrintOption::html_file] != 0) return ReportForm::html_file;
    return read[PrintOption::clipboard] != 0 ? ReportForm::clipboard : ReportForm::print;
}

void set_report_form(PrintSelection& selection, ReportForm form) {
    selection[PrintSection::text_file] = form == ReportForm::text_file ? 1 : 0;
    selection[PrintOption::html_file] = form == ReportForm::html_file ? 1 : 0;
    selection[PrintOption::clipboard] = form == ReportForm::clipboard ? 1 : 0;
}

ReportOutput report_output(const PrintSelection& selection) {
    auto read = selection;
    if (read[PrintSection::competition_form] != 0) return ReportOutput::competition_form;
    return read[PrintSection::competition_labels] != 0 ? ReportOutput::competition_labels
                                                       : ReportOutput::report;
}

void print_options_form(Form& form, PrintSelection& selection, const PrintedDocument& document,
                        const PrintOptionsActions& actions) {
    text_groups(form, selection, document);
    form.next_column();
    graph_rows(form.group(document.kind == DocumentKind::session ? "Graphs" : "Graph"), selection, document);
    scale_row(form.group("Scaling Ratio"), selection, document);
    form.next_column();
    output_rows(form.group("Output"), selection, actions);
    auto& buttons = form.group();
    buttons.button("save_as_default", "Save As Defa&ult", actions.save_as_default);
    buttons.button("help", "Help", actions.help);
}

} // namespace wortlex
