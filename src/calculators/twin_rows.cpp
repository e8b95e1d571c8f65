#include "calculators/twin_rows.h"

#include "measures/rounding.h"

#include <utility>

namespace wortlex {
namespace {

std::string with_unit(const std::string& label, const Settings& settings) {
    return label + " (" + std::string(volume_words(settings).american) + "):";
}

// The word of the second field: a line whose label ends with a colon has one there, too.
std::string second_word(std::string_view word, std::string_view label) {
    return std::string(word) + (label.ends_with(':') ? ":" : "");
}

std::function<float(float)> scaled(double by) {
    return [by](float value) { return narrow(value * by); };
}

// Cut off as the fields of the scales are; what is no number stays so.
float cut(float value, int digits) {
    return std::isfinite(value) ? trunc_to_precision(value, digits) : value;
}

} // namespace

void tool_buttons(Rows& rows, ToolActions actions) {
    rows.button("print", "&Print", std::move(actions.print));
    rows.button("help", "Help", std::move(actions.help));
}

void state_buttons(Form& form, StateActions actions, std::function<Bytes()> present) {
    auto& rows = form.group();
    const auto saved = std::make_shared<std::optional<Bytes>>();
    rows.note("saved", [saved, present] {
        return *saved == present() ? "The present values are the defaults now." : "";
    });
    std::function<void()> save;
    if (actions.save)
        save = [saved, present = std::move(present), save = std::move(actions.save)] {
            if (save()) *saved = present();
        };
    rows.button("save", "&Save As Default", std::move(save));
    tool_buttons(rows, std::move(actions.page));
}

VolumeWords volume_words(const Settings& settings) {
    if (is_pro(settings)) return {"BBL", "Hectoliters", 31, 100};
    return {"GAL", "Liters"};
}

std::string volume_text(const std::string& label, const TwinGallons& volume, const Settings& settings) {
    const auto words = volume_words(settings);
    return with_unit(label, settings) + formatted("\t%0.2f\t", volume.gallons / words.gallons) +
           std::string(words.metric) + formatted(":\t%0.2f", volume.litres / words.litres);
}

TwinLines::TwinLines(Rows& rows, std::string key, const Settings& settings, std::function<void()> changed)
    : table_(rows.grid(std::move(key), {})), settings_(settings), changed_(std::move(changed)) {}

template <class Pair>
Binding<float> TwinLines::bound(Pair& pair, float Pair::*part, Pair (*both)(float)) const {
    return {[&pair, part] { return pair.*part; },
            [&pair, both, changed = changed_](float typed) {
                pair = both(typed);
                if (changed) changed();
            }};
}

TwinLines::Gravity TwinLines::gravity(const std::string& key, const std::string& label, TwinGravity& pair) {
    auto& line = table_.line(label);
    auto& sg = line.sg(key + "_sg", bound(pair, &TwinGravity::sg, of_sg), settings_).step(0.001F);
    line.note(key + "_word", second_word("Plato", label));
    auto& plato =
        line.plato(key + "_plato", bound(pair, &TwinGravity::plato, of_plato), settings_).step(0.1F);
    return {sg, plato, line};
}

void TwinLines::correctable_gravity(const std::string& key, const std::string& label, TwinGravity& pair,
                                    const CorrectGravity& correct) {
    const auto rows = gravity(key, label, pair);
    rows.sg.range(1.0F, 5.0F).outside(Outside::clamp);
    rows.plato.range(0.0F, 200.0F).outside(Outside::clamp);
    std::function<void()> press;
    if (correct)
        press = [correct, &pair, changed = changed_] {
            if (const auto corrected = correct(pair.sg)) pair = of_sg(*corrected);
            if (changed) changed();
        };
    rows.line.button(key + "_hydrometer", "Hydro Calc", std::move(press)).named("Hydro Calc, " + label);
}

TwinLines::Volume TwinLines::volume(const std::string& key, const std::string& label, TwinGallons& pair) {
    return named_volume(key, with_unit(label, settings_), pair);
}

TwinLines::Volume TwinLines::named_volume(const std::string& key, const std::string& label,
                                          TwinGallons& pair) {
    const auto words = volume_words(settings_);
    auto& line = table_.line(label);
    const auto as_amount = [](NumberRow& row, double unit) -> NumberRow& {
        return row.range(0.0F, 10000.0F).step(0.5F).shown_as(scaled(1 / unit), scaled(unit));
    };
    auto& gallons = as_amount(line.number(key + "_gallons", bound(pair, &TwinGallons::gallons, of_gallons)),
                              words.gallons);
    line.note(key + "_word", second_word(words.metric, label));
    auto& litres = as_amount(
        line.number(key + "_litres", bound(pair, &TwinGallons::litres, gallons_of_litres)), words.litres);
    return {gallons, litres};
}

void TwinLines::degrees(const std::string& key, const std::string& label, TwinDegrees& pair, Range fahrenheit,
                        Range celsius) {
    auto& line = table_.line(label);
    line.signed_number(key + "_fahrenheit", bound(pair, &TwinDegrees::fahrenheit, of_fahrenheit))
        .range(fahrenheit.low, fahrenheit.high)
        .step(1.0F);
    line.note(key + "_f", "F");
    line.signed_number(key + "_celsius", bound(pair, &TwinDegrees::celsius, of_celsius))
        .range(celsius.low, celsius.high)
        .step(1.0F);
    line.note(key + "_c", "C");
}

IntegerRow& TwinLines::integer(const std::string& key, const std::string& label, std::int32_t& value) {
    return table_.line(label).integer(key, value).step(1).outside(Outside::clamp).changed(changed_);
}

void TwinLines::shown(const std::string& label, const Figure& only) {
    table_.line(label).shown_number(only.key, only.value, only.pattern);
}

void TwinLines::shown(const std::string& label, const Figure& first, const Live<std::string>& word,
                      const Figure& second) {
    auto& line = table_.line(label);
    line.shown_number(first.key, first.value, first.pattern);
    line.note(first.key + "_word", word);
    line.shown_number(second.key, second.value, second.pattern).named(second.name);
}

void TwinLines::shown_degrees(const std::string& key, const std::string& label,
                              std::function<TwinDegrees()> pair) {
    auto& line = table_.line(label);
    line.shown_number(
        key + "_fahrenheit", [pair] { return pair().fahrenheit; }, "%0.2f");
    line.note(key + "_f", "F");
    line.shown_number(
        key + "_celsius", [pair = std::move(pair)] { return pair().celsius; }, "%0.2f");
    line.note(key + "_c", "C");
}

void TwinLines::shown_gravity(const std::string& key, const std::string& label,
                              const std::function<TwinGravity()>& pair) {
    shown(label, {key + "_sg", [pair] { return cut(pair().sg, 5); }, sg_pattern(0, settings_)},
          second_word("Plato", label),
          {key + "_plato", [pair] { return cut(pair().plato, 3); }, plato_pattern(0, settings_)});
}

void TwinLines::shown_volume(const std::string& key, const std::string& label,
                             const std::function<TwinGallons()>& pair) {
    const auto words = volume_words(settings_);
    const auto in_unit = with_unit(label, settings_);
    shown(in_unit, {key + "_gallons", [pair, words] { return narrow(pair().gallons / words.gallons); }},
          second_word(words.metric, in_unit),
          {key + "_litres", [pair, words] { return narrow(pair().litres / words.litres); }});
}

} // namespace wortlex
