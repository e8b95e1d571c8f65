#include "calculators/dilution_calculator.h"
#include "calculators/tool_page.h"

#include <utility>

namespace wortlex {
void dilution_form(Form& form, DilutionCalculator& calculator, const Settings& settings,
                   StateActions actions) {
    TwinLines water(form.group("Wort Diluted With Water Calculator"), "with_water", settings);
    water.volume("wort", "&Wort Volume Before Dilution", calculator.wort);
    water.correctable_gravity("gravity", "SG &Before Dilution:", calculator.gravity, actions.correct);
    water.volume("water", "&Volume of Water Added", calculator.water);
    water.shown_volume("diluted", "Total Volume", [&calculator] { return diluted_volume(calculator); });
    water.shown_gravity("diluted",
                        "SG After Dilution:", [&calculator] { return diluted_gravity(calculator); });
    TwinLines wort(form.group("Wort Diluted With Wort Calculator"), "with_wort", settings);
    wort.volume("first", "&First Wort Volume", calculator.first);
    wort.correctable_gravity("first_gravity", "SG F&irst Wort:", calculator.first_gravity, actions.correct);
    wort.volume("second", "Seco&nd Wort Volume", calculator.second);
    wort.correctable_gravity("second_gravity", "SG &of Second Wort:", calculator.second_gravity,
                             actions.correct);
    wort.shown_volume("blended", "Total Volume", [&calculator] { return blended_volume(calculator); });
    wort.shown_gravity("blended",
                       "SG After Dilution:", [&calculator] { return blended_gravity(calculator); });
    state_buttons(form, std::move(actions), [&calculator] { return dilution_bytes(calculator); });
}

PrintRequest dilution_printout(const DilutionCalculator& calculator, const Settings& settings) {
    const auto volume = [&](const char* label, const TwinGallons& pair) {
        return volume_text(label, pair, settings);
    };
    const auto gravity = [&](const char* label, const TwinGravity& pair) {
        return label + formatted(sg_pattern(0, settings), pair.sg);
    };
    return tool_page("Wortlex Generic Dilution Calculator",
                     {"Wort Diluted With Water:", volume("Wort Volume Before Dilution", calculator.wort),
                      gravity("SG Before Dilution:\t", calculator.gravity),
                      volume("Volume of Water Added", calculator.water),
                      volume("Volume After Dilution", diluted_volume(calculator)),
                      gravity("SG After Dilution:\t", diluted_gravity(calculator)), "",
                      "Wort Diluted With Wort:", volume("First Wort Volume", calculator.first),
                      gravity("SG First Wort:\t", calculator.first_gravity),
                      volume("Second Wort Volume", calculator.second),
                      gravity("SG of Second Wort:\t", calculator.second_gravity),
                      volume("Volume After Dilution", blended_volume(calculator)),
                      gravity("SG After Dilution:\t", blended_gravity(calculator))},
                     {215, 280, 355}, settings);
}

} // namespace wortlex
