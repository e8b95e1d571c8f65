#include "calculators/boil_off_calculator.h"
#include "calculators/tool_page.h"
#include "measures/units.h"

#include <utility>

namespace wortlex {
namespace {

constexpr std::int32_t most_minutes = 10000;

constexpr std::array method_lines = {"Amount boiled off calculated using volume per hour results below.",
                                     "Amount boiled off calculated using evaporation rate results below.",
                                     "Amount boiled off calculated from user entered value."};

// A volume whose twin is entered beside it only in the free method.
void evaporated_line(TwinLines& lines, BoilOffCalculator& calculator) {
    const auto is_free = [&calculator] { return calculator.method == BoilOffMethod::free_entry; };
    const auto rows = lines.volume("evaporated", "&Amount of Wort Evaporated", calculator.evaporated);
    rows.gallons.enabled(is_free);
    rows.litres.enabled(is_free);
}

void method_rows(Form& form, BoilOffCalculator& calculator, const std::function<void()>& settle) {
    form.group()
        .choice("method", calculator.method,
                {"&Calc Using % Per Hour from Evaporation Calculator",
                 "Calc &Using Volume Per Hour From Evaporation Calculator",
                 "&Free Form Entry for Evaporation Amount"})
        .named("Method")
        .codes({1, 0, 2})
        .look(ChoiceRow::Look::down)
        .changed(settle);
}

void boil_rows(Form& form, BoilOffCalculator& calculator, const Settings& settings,
               const CorrectGravity& correct, const std::function<void()>& settle) {
    TwinLines lines(form.group("Wort Boil Off Calculator"), "wort_boil", settings, settle);
    lines.volume("wort", "&Wort Volume Before Boil", calculator.wort);
    lines.correctable_gravity("gravity", "SG &Before Boil:", calculator.gravity, correct);
    evaporated_line(lines, calculator);
    lines.integer("minutes", "Boil &Length In Minutes:", calculator.minutes).range(0, most_minutes);
    lines.shown_volume("after", "Volume After Boil", [&calculator] { return volume_after_boil(calculator); });
    lines.shown_gravity("after", "SG After Boil:", [&calculator] { return gravity_after_boil(calculator); });
}

void rate_rows(Form& form, BoilOffCalculator& calculator, const Settings& settings,
               const std::function<void()>& settle) {
    const auto words = volume_words(settings);
    TwinLines lines(form.group("Evaporation Rate Calculator"), "rate", settings, settle);
    lines.volume("start", "S&tart Volume", calculator.rate_start);
    lines.integer("rate_minutes", "Boil Length in &Minutes:", calculator.rate_minutes).range(1, most_minutes);
    lines.volume("final", "F&inal Volume", calculator.rate_final);
    lines.shown("% Per Hour:",
                {"percent_per_hour", [&calculator] { return rate_of(calculator).percent_per_hour; }});
    const auto per_hour = [&calculator](double unit) {
        return [&calculator, unit] { return narrow(rate_of(calculator).volume_per_hour * unit); };
    };
    lines.shown(std::string(words.american) + " Per Hour:", {"volume_per_hour", per_hour(1 / words.gallons)},
                std::string(words.metric) + ":",
                {"litres_per_hour", per_hour(litres_per_gallon / words.litres)});
}

} // namespace

void boil_off_form(Form& form, BoilOffCalculator& calculator, const Settings& settings,
                   StateActions actions) {
    const auto settle = [&calculator] { settle_boil_off(calculator); };
    settle();
    method_rows(form, calculator, settle);
    boil_rows(form, calculator, settings, actions.correct, settle);
    rate_rows(form, calculator, settings, settle);
    state_buttons(form, std::move(actions), [&calculator] { return boil_off_bytes(calculator); });
}

PrintRequest boil_off_printout(const BoilOffCalculator& calculator, const Settings& settings) {
    const auto volume = [&](const char* label, const TwinGallons& pair) {
        return volume_text(label, pair, settings);
    };
    const auto sg = [&](const TwinGravity& gravity) {
        return formatted(sg_pattern(0, settings), gravity.sg);
    };
    const auto words = volume_words(settings);
    const auto rate = rate_of(calculator);
    const auto per_hour = std::string(words.american) + " Per Hour:";
    return tool_page("Wortlex Boil Off Calculator",
                     {"Wort Boil Off Calculator:", volume("Wort Volume Before Boil", calculator.wort),
                      "SG Before Boil:\t" + sg(calculator.gravity),
                      formatted("Boil Length In Minutes:\t%d", calculator.minutes),
                      volume("Amount of Wort Evaporated", evaporated_amount(calculator)),
                      volume("Volume After Boil", volume_after_boil(calculator)),
                      "SG After Boil:\t" + sg(gravity_after_boil(calculator)),
                      method_lines.at(static_cast<std::size_t>(calculator.method)), "",
                      "Evaporation Rate Calculator:", volume("Start Volume", calculator.rate_start),
                      formatted("Boil Length in Minutes:\t%d", calculator.rate_minutes),
                      volume("Final Volume", calculator.rate_final),
                      formatted("%% Per Hour:\t%0.2f", rate.percent_per_hour),
                      per_hour + formatted("\t%0.2f\t", rate.volume_per_hour / words.gallons) +
                          std::string(words.metric) +
                          formatted(":\t%0.2f", rate.volume_per_hour * litres_per_gallon / words.litres)},
                     {215, 280, 355}, settings);
}

} // namespace wortlex
