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

void boil_rows(Rows& rows, const PreBoilSubject& subject) {
    rows.shown("boil_minutes",
               [&document = subject.document] { return formatted("%d", document.boil_minutes); })
        .figure()
        .label("Boil Time:")
        .unit("Minutes");
    rows.shown_number(
            "rate",
            [rate = subject.rate, &settings = subject.settings] { return shown_rate(rate(), settings); },
            "%0.2f")
        .label("Evaporation Rate:")
        .unit([&settings = subject.settings] { return rate_unit(settings); });
}

// A volume, and a gravity with its Plato, of the wort in one kettle.
void kettle_rows(Rows& rows, const std::string& key, const std::string& label,
                 const std::function<PreBoil()>& kettle, const Settings& settings) {
    const auto sg = [kettle] { return sg_from_points(kettle().points); };
    rows.shown_number(
            key + "_volume", [kettle, &settings] { return to_shown_volume(kettle().volume, settings); },
            "%0.2f")
        .label(label + " Wort Size:")
        .unit([&settings] { return std::string(volume_unit(settings).usual); });
    rows.shown_sg(key + "_sg", sg, settings).label(label + " Gravity:").unit("SG");
    rows.shown_plato(
            key + "_plato", [sg] { return sg_to_plato(sg()); }, settings)
        .named(label + " Plato")
        .label("Plato:");
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

void print_pre_boil(PageContext& page, const PreBoilSubject& subject) {
    const auto& [document, rate, settings, water] = subject;
    page.SetHeader(0, std::string(title));
    print_line(page, "Recipe:\t" + utf8_from_windows1252(document.title.view()));
    page.NewLines(1);
    print_kettle(page, "End-Of-Boil", end_of_boil(document, settings), settings);
    page.NewLines(1);
    print_line(page, formatted("Boil Time:\t%d\tMinutes", document.boil_minutes));
    print_line(page,
               formatted("Evaporation Rate:\t%0.2f\t", shown_rate(rate(), settings)) + rate_unit(settings));
    page.NewLines(1);
    print_kettle(page, "Raw Pre-Boil", raw_pre_boil(document, rate(), settings), settings);
    if (water == nullptr) return;
    page.NewLines(1);
    print_kettle(page, "Pre-Boil", water_pre_boil(document, *water, settings), settings);
}

} // namespace

void pre_boil_form(Form& form, const PreBoilSubject& subject, PreBoilActions actions) {
    const auto& [document, rate, settings, water] = subject;
    auto& rows = form.group();
    kettle_rows(
        rows, "end", "End-Of-Boil",
        [&document = document, &settings = settings] { return end_of_boil(document, settings); }, settings);
    boil_rows(rows, subject);
    kettle_rows(
        rows, "raw", "Raw Pre-Boil",
        [&document = document, rate = rate, &settings = settings] {
            return raw_pre_boil(document, rate(), settings);
        },
        settings);
    if (water != nullptr)
        kettle_rows(
            rows, "water", "Pre-Boil",
            [&document = document, water = water, &settings = settings] {
                return water_pre_boil(document, *water, settings);
            },
            settings);
    auto& buttons = form.group();
    buttons.button("print", "&Print", std::move(actions.print));
    buttons.button("help", "&Help", std::move(actions.help));
}

PrintRequest pre_boil_printout(const PreBoilSubject& subject) {
    return {std::string(title), subject.settings.printer_scale,
            [subject](PageContext& page) { print_pre_boil(page, subject); }};
}

} // namespace wortlex
