#include "reports/print_options.h"

#include "forms/print_scale.h"

namespace wortlex {
namespace {

void text_rows(Rows& rows, PrintSelection& selection, bool has_mash) {
    const auto section = [&](const char* key, const char* label, PrintSection place) -> CheckRow& {
        return rows.check(key, selection[place]).label(label);
    };
    section("style", "&Style Guidelines", PrintSection::recipe_style_guidelines);
    section("pre_boil", "Pre-&Boil Specifics", PrintSection::pre_boil);
    section("formulas", "&Formula Specifics", PrintSection::formula_specifics);
    section("water", "&Water Profile", PrintSection::water_profile);
    section("mash", "&Mash Schedule", PrintSection::mash_schedule).enabled(has_mash);
    section("notes", "&Notes && Awards", PrintSection::notes_and_awards);
}

// There is no chart to print yet: the switches keep what the file says.
void graph_rows(Rows& rows, PrintSelection& selection) {
    const auto disabled = [&](const char* key, const char* label, std::uint8_t& flag) {
        rows.check(key, flag).label(label).enabled(false).disabled_because(not_yet);
    };
    disabled("mash_graph", "Mash &Graph", selection[PrintSection::mash_graph]);
    disabled("fine_lines", "Fine Temp Lines", selection[PrintOption::fine_temperature_lines]);
    disabled("solid_fill", "Solid Fill", selection[PrintOption::solid_fill]);
    disabled("decoction_spikes", "Decoction Spikes", selection[PrintOption::decoction_spikes]);
    disabled("infusion_spikes", "Infusion Spikes", selection[PrintOption::infusion_spikes]);
}

void output_rows(Rows& rows, PrintSelection& selection, const PrintOptionsActions& actions) {
    rows.choice(
            "form",
            {[&selection] { return static_cast<std::int32_t>(report_form(selection)); },
             [&selection](std::int32_t form) { set_report_form(selection, static_cast<ReportForm>(form)); }},
            {"&Print to Printer", "Export to &Text File", "Export to &HTML File (webpage)",
             "&Copy to Clipboard"})
        .look(ChoiceRow::Look::down);
    rows.check("competition_form", selection[PrintSection::competition_form])
        .label("As Competition Form")
        .enabled(false)
        .disabled_because(not_yet);
    rows.check("competition_labels", selection[PrintSection::competition_labels])
        .label("As Competition Labels")
        .enabled(false)
        .disabled_because(not_yet);
    rows.button("html_themes", "HTM&L Themes", actions.html_themes);
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

void recipe_print_form(Form& form, PrintSelection& selection, bool has_mash,
                       const PrintOptionsActions& actions) {
    text_rows(form.group("Text"), selection, has_mash);
    form.next_column();
    graph_rows(form.group("Graph"), selection);
    print_scale_row(form.group("Scaling Ratio"), "scale", selection.scale)
        .enabled(false)
        .disabled_because(not_yet);
    form.next_column();
    output_rows(form.group("Output"), selection, actions);
    auto& buttons = form.group();
    buttons.button("save_as_default", "Save As &Default", actions.save_as_default);
    buttons.button("help", "Help", actions.help);
}

} // namespace wortlex
