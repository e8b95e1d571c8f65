#include "reports/print_options.h"

#include "forms/print_scale.h"

#include <span>

namespace wortlex {
namespace {

struct SectionSwitch {
    const char* key = nullptr;
    const char* label = nullptr;
    PrintSection section = {};
    bool is_on_form = false; ///< of a competition
    bool is_of_mash = false;
};

constexpr std::array recipe_switches = {
    SectionSwitch{"style", "&Style Guidelines", PrintSection::recipe_style_guidelines},
    SectionSwitch{"pre_boil", "Pre-&Boil Specifics", PrintSection::pre_boil},
    SectionSwitch{"formulas", "&Formula Specifics", PrintSection::formula_specifics},
    SectionSwitch{"water", "&Water Profile", PrintSection::water_profile, true},
    SectionSwitch{"mash", "&Mash Schedule", PrintSection::mash_schedule, true, true},
    SectionSwitch{"notes", "&Notes && Awards", PrintSection::notes_and_awards}};

constexpr std::array session_recipe_switches = {
    SectionSwitch{"style", "&Style Guidelines", PrintSection::session_style_guidelines},
    SectionSwitch{"pre_boil", "Pre-&Boil Specifics", PrintSection::pre_boil},
    SectionSwitch{"formulas", "&Formula Specifics", PrintSection::formula_specifics},
    SectionSwitch{"water", "&Water Profile", PrintSection::water_profile, true},
    SectionSwitch{"notes", "&Notes && Awards", PrintSection::notes_and_awards}};

constexpr std::array session_switches = {
    SectionSwitch{"mash", "&Mash Schedule", PrintSection::mash_schedule, true, true},
    SectionSwitch{"water_analysis", "Water Profile Anal&ysis", PrintSection::water_analysis},
    SectionSwitch{"water_needed", "Water Nee&ded", PrintSection::water_needed},
    SectionSwitch{"efficiency", "&Efficiency Specifics", PrintSection::efficiency},
    SectionSwitch{"fermentation", "Fe&rmentation Specifics", PrintSection::fermentation, true},
    SectionSwitch{"bottling", "Bottling/&Kegging Specifics", PrintSection::bottling, true},
    SectionSwitch{"inventory", "In&ventory Analysis", PrintSection::inventory},
    SectionSwitch{"session_notes", "Sessi&on Notes", PrintSection::session_notes}};

const char* why_disabled(const SectionSwitch& section, const PrintSelection& selection) {
    if (report_output(selection) == ReportOutput::competition_labels)
        return "Labels hold nothing but the style, the name and the brewer";
    const bool is_form = report_output(selection) == ReportOutput::competition_form;
    return is_form && !section.is_on_form ? "A competition form does not hold it"
                                          : "There is no grain to mash";
}

bool can_be_chosen(const SectionSwitch& section, const PrintSelection& selection,
                   const PrintedDocument& document) {
    if (section.is_of_mash && !document.has_mash) return false;
    const auto output = report_output(selection);
    return output == ReportOutput::report || (output == ReportOutput::competition_form && section.is_on_form);
}

void section_rows(Rows& rows, std::span<const SectionSwitch> switches, PrintSelection& selection,
                  const PrintedDocument& document) {
    for (const auto& section : switches)
        rows.check(section.key, selection[section.section])
            .label(section.label)
            .enabled([&section, &selection, document] { return can_be_chosen(section, selection, document); })
            .disabled_because([&section, &selection] { return why_disabled(section, selection); });
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
    return document.kind == DocumentKind::session && selection[PrintSection::water_graph] != 0;
}

const char* why_no_chart(const PrintSelection& selection, const PrintedDocument& document) {
    if (!can_hold_charts(selection)) return "Only a printed report and a page of HTML have charts";
    return document.has_mash ? "It belongs to the mash graph" : "There is no grain to mash";
}

void graph_row(Rows& rows, const char* key, const char* label, std::uint8_t& flag,
               const PrintSelection& selection, const PrintedDocument& document,
               bool (*is_of)(PrintSelection, const PrintedDocument&)) {
    rows.check(key, flag)
        .label(label)
        .enabled([&selection, document, is_of] {
            return can_hold_charts(selection) && is_of(selection, document);
        })
        .disabled_because([&selection, document] { return why_no_chart(selection, document); });
}

void graph_rows(Rows& rows, PrintSelection& selection, const PrintedDocument& document) {
    const auto row = [&](const char* key, const char* label, std::uint8_t& flag, auto is_of) {
        graph_row(rows, key, label, flag, selection, document, is_of);
    };
    row("mash_graph", "Mash &Graph", selection[PrintSection::mash_graph],
        [](PrintSelection, const PrintedDocument& of) { return of.has_mash; });
    row("fine_lines", "Fine Temp Lines", selection[PrintOption::fine_temperature_lines], wants_mash_chart);
    row("solid_fill", "Solid Fill", selection[PrintOption::solid_fill], wants_mash_chart);
    row("decoction_spikes", "Decoction Spikes", selection[PrintOption::decoction_spikes], wants_mash_chart);
    row("infusion_spikes", "Infusion Spikes", selection[PrintOption::infusion_spikes], wants_mash_chart);
    if (document.kind == DocumentKind::session)
        row("water_graph", "Water Profile Graph", selection[PrintSection::water_graph],
            [](PrintSelection, const PrintedDocument&) { return true; });
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
