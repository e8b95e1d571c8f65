#include "documents/pre_boil_form.h"

#include "base/number.h"
#include "measures/gravity.h"
#include "measures/units.h"

#include <utility>

namespace wortlex {
namespace {

std::string volume_unit(const Settings& settings) {
    const bool american = settings.volume_units == Units::american;
    if (settings.system_mode == SystemMode::pro_brewer) return american ? "bbl" : "hl";
    return american ? "Gal" : "L";
}

void boil_rows(Rows& rows, const BrewDocument& document, float rate, const Settings& settings) {
    const bool by_volume = settings.evaporation_by_volume != 0;
    rows.shown("boil_minutes", [&document] { return formatted("%d", document.boil_minutes); })
        .figure()
        .label("Boil Time:")
        .unit("Minutes");
    const float shown_rate = by_volume ? to_shown_volume(rate, settings) : rate;
    rows.shown_number(
            "rate", [shown_rate] { return shown_rate; }, "%0.2f")
        .label("Evaporation Rate:")
        .unit((by_volume ? volume_unit(settings) : "%") + " Per Hour");
}

} // namespace

void kettle_rows(Rows& rows, const std::string& key, const std::string& label, const PreBoil& kettle,
                 const Settings& settings) {
    const float volume = to_shown_volume(kettle.volume, settings);
    const float sg = narrow(kettle.points / 1000.0 + 1);
    rows.shown_number(
            key + "_volume", [volume] { return volume; }, "%0.2f")
        .label(label + " Wort Size:")
        .unit(volume_unit(settings));
    rows.shown_sg(
            key + "_sg", [sg] { return sg; }, settings)
        .label(label + " Gravity:")
        .unit("SG");
    rows.shown_plato(
            key + "_plato", [sg] { return sg_to_plato(sg); }, settings)
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

} // namespace wortlex
