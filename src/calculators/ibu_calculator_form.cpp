#include "calculators/ibu_calculator.h"

#include "base/number.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <memory>
#include <utility>

namespace wortlex {
namespace {

using namespace calculator_range;

// A field of the calculator with the edit that follows from it.
template <class Value>
Binding<Value> edited_by(void (*set)(HopCalculator&, Value, const Settings&), std::function<Value()> get,
                         HopCalculator& calculator, const Settings& settings) {
    return {std::move(get), [set, &calculator, &settings](Value value) { set(calculator, value, settings); }};
}

struct WeightLook {
    const char* label;
    const char* pro_label;
    double per_pro_unit; ///< ounces or grams
};

void weight_row(Rows& rows, const char* key, const WeightLook& look, Binding<float> weight,
                const Settings& settings) {
    const auto unit = [&settings, look] { return is_pro(settings) ? look.per_pro_unit : 1.0; };
    rows.number(key, std::move(weight))
        .label([&settings, look] { return is_pro(settings) ? look.pro_label : look.label; })
        .shown_as([unit](float stored) { return narrow(stored / unit()); },
                  [unit](float shown) { return narrow(shown * unit()); })
        .range(0, most_weight)
        .outside(Outside::clamp);
}

void units_row(Rows& rows, const char* key, const char* label, Binding<float> units,
               const Settings& settings) {
    rows.number(key, std::move(units))
        .label(label)
        .range(0, most_units)
        .step(1.0F)
        .outside(Outside::clamp)
        .visible([&settings] { return settings.display_home_bittering != 0; });
}

void weight_rows(Rows& rows, HopCalculator& calculator, const Settings& settings) {
    const auto bound = [&](auto set, std::function<float()> get) {
        return edited_by<float>(set, std::move(get), calculator, settings);
    };
    weight_row(rows, "ounces", {"Ou&nces of Hops", "Pou&nds of Hops", 16},
               bound(set_ounces, [&calculator] { return calculator.ounces; }), settings);
    weight_row(rows, "grams", {"&Grams of Hops", "Kilo&grams of Hops", 1000},
               bound(set_grams, [&calculator] { return calculator.grams; }), settings);
    units_row(rows, "hbu", "HB&U's",
              bound(set_hbu, [&calculator] { return hbu(calculator.ounces, calculator.adjusted_alpha); }),
              settings);
    units_row(rows, "mbu", "M&BU's",
              bound(set_mbu, [&calculator] { return mbu(calculator.grams, calculator.adjusted_alpha); }),
              settings);
}

void hop_rows(Rows& rows, HopCalculator& calculator, const Settings& settings, std::string name) {
    rows.shown("name", [name = std::move(name)] { return name; }).label("Hop Name");
    rows.number("start_alpha",
                edited_by<float>(
                    set_start_alpha, [&calculator] { return calculator.start_alpha; }, calculator, settings))
        .label("&Start Alpha %")
        .range(0, most_alpha)
        .step(0.05F)
        .outside(Outside::clamp);
    rows.shown_number(
            "adjusted_alpha", [&calculator] { return calculator.adjusted_alpha; }, "%0.2f")
        .label("Adjusted Alpha %");
    weight_rows(rows, calculator, settings);
}

void volume_row(Rows& rows, const char* key, const char* label, Binding<float> gallons,
                const Settings& settings) {
    rows.number(key, std::move(gallons))
        .label([&settings, label] { return volume_label(label, settings); })
        .shown_as([&settings](float stored) { return to_shown_volume(stored, settings); },
                  [&settings](float shown) { return from_shown_volume(shown, settings); })
        .range(least_volume, most_volume)
        .step(0.5F)
        .outside(Outside::clamp);
}

// The volume that is being edited, and what the one that follows it was before.
struct VolumeEdit {
    float HopCalculator::*volume = nullptr;
    float follower_before = 0;
};

// Only the last number typed counts: what follows starts each time from where it was as the edit began.
void volume_rows(Form& form, HopCalculator& calculator, const Settings& settings) {
    const auto edit = std::make_shared<VolumeEdit>();
    const auto edited = [&, edit](float HopCalculator::*volume, float HopCalculator::*follower, auto set) {
        return Binding<float>{[&calculator, volume] { return calculator.*volume; },
                              [&calculator, &settings, edit, volume, follower, set](float gallons) {
                                  if (edit->volume != volume) *edit = {volume, calculator.*follower};
                                  calculator.*follower = edit->follower_before;
                                  set(calculator, gallons, settings);
                              }};
    };
    constexpr auto wort = &HopCalculator::wort_volume, batch = &HopCalculator::batch_volume;
    volume_row(form.rows(), "wort_volume", "&Amount of Wort Boiled:", edited(wort, batch, set_wort),
               settings);
    volume_row(form.rows(), "batch_volume", "Batch Si&ze:", edited(batch, wort, set_batch), settings);
    form.on_leave([edit] { *edit = {}; });
}

void wort_rows(Rows& rows, HopCalculator& calculator, const Settings& settings) {
    rows.sg("sg",
            edited_by<float>(
                set_sg, [&calculator] { return calculator.sg; }, calculator, settings),
            settings)
        .label([&settings] {
            return settings.HopFormula == HopFormulaCode::Tinseth ? "Average &Wort SG:" : "&Wort SG:";
        })
        .range(least_sg, most_sg)
        .step(0.001F)
        .outside(Outside::clamp);
    rows.integer("boil_minutes", calculator.boil_minutes)
        .label("Boi&l Time:")
        .range(5, 120)
        .step(1)
        .outside(Outside::clamp)
        .changed([&calculator, &settings] { ibu_from_weight(calculator, settings); });
}

void result_rows(Rows& rows, HopCalculator& calculator, const Settings& settings) {
    rows.number("ibu", edited_by<float>(
                           set_ibu, [&calculator] { return calculator.ibu; }, calculator, settings))
        .label("&IBU's")
        .range(0, most_units)
        .outside(Outside::clamp);
    const auto factor = [&rows, &factors = calculator.factors](const char* key, const char* label,
                                                               float HopFactors::*part) -> ShownRow& {
        return rows
            .shown_number(
                key, [&factors, part] { return factors.*part; }, "%0.2f")
            .label(label);
    };
    factor("concentration", "Concentration Factor", &HopFactors::concentration).enabled([&settings] {
        return settings.HopFormula != HopFormulaCode::Tinseth;
    });
    factor("gravity", "Gravity Factor", &HopFactors::gravity);
    factor("utilization", "Utilization Factor.", &HopFactors::utilization);
}

void use_rows(Rows& rows, HopCalculator& calculator, const Settings& settings) {
    const auto only_of_garetz = [&](const char* key, const char* label, bool& flag) {
        rows.check(key, flag)
            .label(label)
            .enabled([&settings] { return settings.HopFormula == HopFormulaCode::Garetz; })
            .changed([&calculator, &settings] { ibu_from_weight(calculator, settings); });
    };
    only_of_garetz("bag_used", "Hop Bag Use&d", calculator.bag_used);
    only_of_garetz("beer_filtered", "Beer &Filtered", calculator.beer_filtered);
    rows.check("is_mash_hop",
               edited_by<bool>(
                   set_mash_hop, [&calculator] { return calculator.is_mash_hop; }, calculator, settings))
        .label("Is a &Mash Hop");
    rows.check("is_first_wort",
               edited_by<bool>(
                   set_first_wort, [&calculator] { return calculator.is_first_wort; }, calculator, settings))
        .label("Is a Fi&rst Wort Hop");
}

} // namespace

std::string volume_label(std::string_view of, const Settings& settings) {
    return std::string(of) + " (" + volume_unit(settings).usual + ")";
}

void ibu_calculator_form(Form& form, HopCalculator& calculator, const Settings& settings,
                         std::string hop_name, IbuCalculatorActions actions) {
    auto& hop = form.group("Hop");
    hop_rows(hop, calculator, settings, std::move(hop_name));
    hop.button("figure_time_loss", "Figure &Time Loss", std::move(actions.figure_time_loss));
    form.next_column();
    auto& wort = form.group("Wort");
    volume_rows(form, calculator, settings);
    wort_rows(wort, calculator, settings);
    auto& result = form.group("Bitterness");
    result_rows(result, calculator, settings);
    result.button("choose_formula", "&Calculation Type", std::move(actions.choose_formula));
    form.next_column();
    form.group("Form")
        .choice("form", calculator.form, {"W&hole", "&Plug", "P&ellet"})
        .look(ChoiceRow::Look::down)
        .enabled([&settings] { return settings.use_additional_utilization != 0; })
        .changed([&calculator, &settings] { ibu_from_weight(calculator, settings); });
    use_rows(form.group("Use"), calculator, settings);
    auto& buttons = form.group();
    buttons.button("print", "Print", std::move(actions.print));
    buttons.button("help", "Help", std::move(actions.help));
}

void formula_type_form(Form& form, Settings& settings) {
    auto& rows = form.rows();
    rows.choice("formula", settings.HopFormula, {"&Rager", "&Garetz", "&Tinseth", "G&eneric"})
        .named("Formula")
        .look(ChoiceRow::Look::down);
    rows.note("credit_0", "Jackie Rager, \"Calculating Hop Bitterness in Beer\", Zymurgy, 1990");
    rows.note("credit_1", "Mark Garetz, \"Using Hops\", HopTech, 1994");
    rows.note("credit_2", "Glenn Tinseth, \"Glenn's Hop Utilization Numbers\", 1997");
    rows.note("credit_3", "See Help Section.");
    form.restore_on_cancel(settings.HopFormula);
}

} // namespace wortlex
