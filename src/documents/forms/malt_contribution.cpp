#include "documents/forms/malt_contribution.h"

#include "base/windows1252.h"
#include "measures/potential.h"
#include "measures/unit_words.h"
#include "measures/units.h"

namespace wortlex {
namespace {

float percent_of(double part, double whole) {
    return whole > 0 ? narrow(part / whole * 100) : 0;
}

double mcu_of(const MaltUse& malt, const BrewDocument& document) {
    return document.batch_size > 0 ? double{malt.record.colour} * malt.amount / document.batch_size : 0.0;
}

ShownRow& figure(Rows& rows, const char* key, const std::string& label, float value) {
    return rows
        .shown_number(
            key, [value] { return value; }, "%0.2f")
        .label(label);
}

void line_rows(Rows& rows, const OpenDocument& open, const MaltUse& malt) {
    const auto& settings = open.settings;
    rows.shown("name", [&malt] { return utf8_from_windows1252(malt.record.name.view()); })
        .label("Name:")
        .width(30);
    figure(rows, "weight", "Weight:", grain_to_shown(malt.amount, settings)).unit(grain_unit(settings).usual);
    figure(rows, "grist", "Percent of Grist:", percent_of(malt.amount, open.figures.total_grain)).unit("%");
}

void gravity_rows(Rows& rows, const OpenDocument& open, const LineFigures& gives) {
    const auto& settings = open.settings;
    const ExtractTotals totals{open.document.og_points, open.figures.total_extract_pounds};
    const auto as = [&](ExtractDisplay display) {
        return extract_to_shown(narrow(gives.line_sg), narrow(gives.line_extract), totals, settings, display);
    };
    rows.shown_sg(
            "sg", [sg = as(ExtractDisplay::sg)] { return sg; }, settings)
        .label("SG:");
    rows.shown_plato(
            "plato", [plato = as(ExtractDisplay::plato)] { return plato; }, settings)
        .label("Plato:");
    rows.shown_plato(
            "points", [points = as(ExtractDisplay::points)] { return points; }, settings)
        .label("Points:");
    const bool has_extract = totals.extract_pounds > 0;
    figure(rows, "extract_share", "% of Total Extract:", has_extract ? as(ExtractDisplay::percent) : 0.0F)
        .unit("%");
    figure(rows, "extract",
           std::string(extract_weight_word(settings)) + " Extract:", as(ExtractDisplay::weight));
    figure(rows, "sucrose", "Sucrose Value:", narrow(open.figures.recipe_sucrose))
        .unit(settings.gravity_base == GravityBase::mass ? "(variable value)" : "(fixed value)");
}

void colour_rows(Rows& rows, const OpenDocument& open, const MaltUse& malt) {
    const double mcu = mcu_of(malt, open.document);
    const float total = open.figures.colour.mcu;
    figure(rows, "mcu", "MCU's Contibuted:", narrow(mcu));
    figure(rows, "total_mcu", "Total Recipe MCU:", total);
    figure(rows, "mcu_share", "% of Total MCU:", percent_of(mcu, total)).unit("%");
    rows.note("note",
              "( SRM/EBC cannot be accurately calculated for individual entries, choose 'Help' for more "
              "details. )");
}

} // namespace

void malt_contribution_form(Form& form, const OpenDocument& open, std::size_t line) {
    const auto& malt = open.document.malts[line];
    const auto& figures = open.figures.lines;
    line_rows(form.group(), open, malt);
    gravity_rows(form.group("Gravity"), open, line < figures.size() ? figures[line] : LineFigures{});
    colour_rows(form.group("Color"), open, malt);
}

} // namespace wortlex
