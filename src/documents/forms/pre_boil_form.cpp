#include "documents/forms/pre_boil_form.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "forms/numeric_fields.h"
#include "measures/gravity.h"
#include "measures/rounding.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <utility>

namespace wortlex {
namespace {

constexpr std::string_view title = "Wortlex Pre-Boil Calculator";

float shown_rate(float rate, const Settings& settings) {
    return settings.evaporation_by_volume != 0 ? to_shown_volume(rate, settings) : rate;
}

std::string rate_unit(const Settings& settings) {
    return std::string(settings.evaporation_by_volume != 0 ? volume_unit(settings).rate : "%") + " Per Hour";
}

void print_line(PageContext& page, const std::string& line) {
    page.TabbedLine({170, 230, 290, 340}, line);
}

void boil_rows(Rows& rows, const BrewDocument& document, float rate, const Settings& settings) {
    rows.shown("boil_minutes", [&document] { return formatted("%d", document.boil_minutes); })
        .figure()
        .label("Boil Time:")
        .unit("Minutes");
    const float shown = shown_rate(rate, settings);
    rows.shown_number(
            "rate", [shown] { return shown; }, "%0.2f")
        .label("Evaporation Rate:")
        .unit(rate_unit(settings));
}

void print_kettle(PageContext& page, const std::string& label, const PreBoil& kettle,
                  const Settings& settings) {
    const float sg = sg_from_points(kettle.points);
    print_line(page, label + formatted(" Wort Size:\t%0.2f\t", to_shown_volume(kettle.volume, settings)) +
                         volume_unit(settings).usual);
    print_line(page, label + " Gravity:\t" +
                         formatted(sg_pattern(0, settings) + "\tSG\t", trunc_to_precision(sg, 5)) +
                         formatted(plato_pattern(0, settings) + "\tPlato", sg_to_plato(sg)));
}

void print_pre_boil(PageContext& page, const BrewDocument& document, float rate, const Settings& settings) {
    page.SetHeader(0, std::string(title));
    print_line(page, "Recipe:\t" + utf8_from_windows1252(document.title.view()));
    page.NewLines(1);
    print_kettle(page, "End-Of-Boil", end_of_boil(document, settings), settings);
    page.NewLines(1);
    print_line(page, formatted("Boil Time:\t%d\tMinutes", document.boil_minutes));
    print_line(page,
               formatted("Evaporation Rate:\t%0.2f\t", shown_rate(rate, settings)) + rate_unit(settings));
    page.NewLines(1);
    print_kettle(page, "Raw Pre-Boil", raw_pre_boil(document, rate, settings), settings);
}

} // namespace

void kettle_rows(Rows& rows, const std::string& key, const std::string& label, const PreBoil& kettle,
                 const Settings& settings) {
    const float volume = to_shown_volume(kettle.volume, settings);
    const float sg = sg_from_points(kettle.points);
    rows.shown_number(
            key + "_volume", [volume] { return volume; }, "%0.2f")
        .label(label + " Wort Size:")
        .unit(volume_unit(settings).usual);
    rows.shown_sg(
            key + "_sg", [sg] { return sg; }, settings)
        .label(label + " Gravity:")
        .unit("SG");
    rows.shown_plato(
            key + "_plato", [sg] { return sg_to_plato(sg); }, settings)
        .named(label + " Plato")
        .label("Plato:");
}

void pre_boil_form(Form& form, const BrewDocument& document, float rate, const Settings& settings) {
    auto& rows = form.group();
    kettle_rows(rows, "end", "End-Of-Boil", end_of_boil(document, settings), settings);
    boil_rows(rows, document, rate, settings);
    kettle_rows(rows, "raw", "Raw Pre-Boil", raw_pre_boil(document, rate, settings), settings);
}

void pre_boil_buttons(Form& form, PreBoilActions actions) {
    auto& buttons = form.group();
    buttons.button("print", "&Print", std::move(actions.print));
    buttons.button("help", "&Help", std::move(actions.help));
}

PrintRequest pre_boil_printout(const BrewDocument& document, float rate, const Settings& settings) {
    return {std::string(title), settings.printer_scale, [&document, rate, &settings](PageContext& page) {
                print_pre_boil(page, document, rate, settings);
            }};
}

} // namespace wortlex
