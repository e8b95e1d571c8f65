#include "base/number.h"
#include "measures/units.h"
#include "water/shown_water.h"
#include "water/water_flow.h"

#include <utility>

namespace wortlex {
namespace {

constexpr float most_of_anything = 5000;
constexpr auto figure_pattern = "%6.2f";
constexpr int entry_width = 7; // digits

// Makes the rows of one plan.
class WaterNeedsRows {
public:
    WaterNeedsRows(WaterPlan plan, const Settings& settings) : plan_(std::move(plan)), settings_(settings) {}

    void fill(Form& form) const {
        sparge_rows(form.group("Sparge"));
        mash_rows(form.group("Mash"));
        form.next_column();
        kettle_rows(form.group("Kettle"));
        boil_rows(form.group("Boil"));
        form.next_column();
        fermenter_rows(form.group("To Fermenter"));
    }

    ShownRow& result(Rows& rows, const char* key, const Live<std::string>& label,
                     const float& gallons) const {
        return rows
            .shown_number(
                key, [this_ = *this, &gallons] { return this_.to_shown(gallons); }, figure_pattern)
            .label(label);
    }

    const char* unit() const { return water_unit(plan_.units, settings_).full; }

private:
    float to_shown(float gallons) const {
        return to_shown_volume(gallons, plan_.units, settings_.system_mode);
    }
    float from_shown(float shown) const {
        return from_shown_volume(shown, plan_.units, settings_.system_mode);
    }

    static NumberRow& entry(Rows& rows, const char* key, const Live<std::string>& label,
                            const Binding<float>& value) {
        return rows.number(key, value)
            .label(label)
            .range(0, most_of_anything)
            .step(0.25F)
            .format(figure_pattern)
            .width(entry_width);
    }
    NumberRow& volume(Rows& rows, const char* key, const Live<std::string>& label,
                      const Binding<float>& gallons) const {
        return entry(rows, key, label, gallons)
            .shown_as([this_ = *this](float value) { return this_.to_shown(value); },
                      [this_ = *this](float shown) { return this_.from_shown(shown); });
    }

    bool is_session() const { return plan_.own_units == nullptr; }

    // Without a mash nothing is sparged, whatever stands in the record.
    void need_mash(NumberRow& row) const {
        row.enabled([plan = plan_] { return has_mash(plan); })
            .when_disabled("0.00")
            .disabled_because("An extract recipe has no mash");
    }
    // Only shown, and 0 without a mash.
    ShownRow& of_mash(Rows& rows, const char* key, const Live<std::string>& label,
                      const std::function<float()>& value) const {
        return rows
            .shown_number(
                key, [plan = plan_, value] { return has_mash(plan) ? value() : 0; }, figure_pattern)
            .label(label);
    }

    void sparge_rows(Rows& rows) const {
        const auto label = [this_ = *this] {
            const auto& words = water_unit(this_.plan_.units, this_.settings_);
            const bool is_long = &words == &words_of(Unit::hectolitres);
            return std::string("&Sparge ") + (is_long ? words.usual : words.full);
        };
        need_mash(volume(rows, "sparge", label, plan_.needs.sparge));
        need_mash(volume(rows, "sparge_deadspace", "Sparge &Deadspace", plan_.needs.sparge_deadspace));
        of_mash(rows, "total_into_mash", "Total Into Mash",
                [this_ = *this, &needs = plan_.needs] { return this_.to_shown(needs.total_into_mash); });
    }

    void grain_entries(Rows& rows) const {
        auto& needs = plan_.needs;
        const auto& units = plan_.units;
        entry(rows, "grain", grain_label(),
              {[&needs] { return needs.grain; }, [&needs](float pounds) { enter_grain(needs, pounds); }})
            .shown_as([&units](float pounds) { return shown_grain(pounds, units); },
                      [&units](float shown) { return grain_from_shown(shown, units); });
        entry(rows, "ratio", ratio_label(),
              {[&needs, &units] { return shown_water_ratio(needs, units); },
               [&needs, &units](float ratio) { enter_water_ratio(needs, ratio, units); }})
            .step(0.01F);
        volume(rows, "mash_water", mash_label(),
               {[&needs] { return needs.mash_water; },
                [&needs](float gallons) { enter_mash_water(needs, gallons); }});
    }
    void grain_figures(Rows& rows) const {
        const auto& needs = plan_.needs;
        const auto& units = plan_.units;
        of_mash(rows, "grain", grain_label(), [&] { return shown_grain(needs.grain, units); });
        of_mash(rows, "ratio", ratio_label(), [&] { return shown_water_ratio(needs, units); });
        of_mash(rows, "mash_water", mash_label(),
                [this_ = *this, &needs] { return this_.to_shown(needs.mash_water); });
    }
    Live<std::string> grain_label() const {
        return [&units = plan_.units, session = is_session()] {
            return std::string(session ? "Total Grain " : "Total &Grain ") + grain_unit(units).capital;
        };
    }
    Live<std::string> ratio_label() const {
        return [&units = plan_.units, session = is_session()] {
            if (session) return std::string(is_american(units) ? "Quarts Per LBS" : "Liters Per kg");
            return std::string(is_american(units) ? "&Quarts Per LBS" : "&Liters Per kg");
        };
    }
    Live<std::string> mash_label() const {
        return
            [this_ = *this] { return std::string(this_.is_session() ? "Mash " : "&Mash ") + this_.unit(); };
    }

    void mash_rows(Rows& rows) const {
        auto& needs = plan_.needs;
        is_session() ? grain_figures(rows) : grain_entries(rows);
        of_mash(rows, "grain_absorption", "Grain Absorbtion", [this_ = *this, &needs] {
            return this_.to_shown(needs.grain_absorption);
        }).unit([this_ = *this] { return std::string(this_.unit()); });
        result(rows, "from_mash", "Total  From Mash", plan_.balance.from_mash);
    }

    void kettle_rows(Rows& rows) const {
        volume(rows, "lauter_loss", "&Amount Lost in Lauter Tun\nDeadspace, Grant and Misc.\nto Kettle",
               plan_.needs.lauter_loss);
        volume(rows, "top_up", "&Top Up Water Added\nTo Kettle", plan_.needs.top_up);
        result(rows, "into_kettle", "Into Kettle", plan_.balance.into_kettle);
    }

    bool is_by_volume() const { return settings_.evaporation_by_volume != 0; }

    void boil_time(Rows& rows) const {
        auto& minutes = plan_.needs.boil_minutes;
        if (is_session())
            rows.shown_number(
                    "boil_minutes", [&minutes] { return minutes; }, "%0.2f")
                .label("Boil Time")
                .unit("(Minutes)");
        else
            entry(rows, "boil_minutes", "&Boil Time", minutes).step(5).format("%0.2f").unit("(Minutes)");
    }

    void boil_rows(Rows& rows) const {
        auto& rate = plan_.needs.evaporation_rate;
        boil_time(rows);
        entry(rows, "evaporation_rate", "&Evaporation Rate",
              {[this_ = *this, &rate] { return this_.is_by_volume() ? this_.to_shown(rate) : rate; },
               [this_ = *this, &rate](float shown) {
                   rate = this_.is_by_volume() ? this_.from_shown(shown) : shown;
               }})
            .step([this_ = *this] { return this_.is_by_volume() ? 0.5F : 1.0F; })
            .unit([this_ = *this] {
                return std::string("(") + (this_.is_by_volume() ? this_.unit() : "%") + " per Hour)";
            });
        result(rows, "after_boil", "After Boil", plan_.balance.after_boil);
    }

    void fermenter_rows(Rows& rows) const {
        auto& needs = plan_.needs;
        volume(rows, "kettle_deadspace", "Left In &Kettle Deadspace", needs.kettle_deadspace);
        volume(rows, "hopback", "Left in &Hopback", needs.hopback);
        volume(rows, "chiller", "Left in &Counterflow Chiller", needs.chiller);
        volume(rows, "other", "Left in Other Equipme&nt /\nOther Absorption", needs.other);
        result(rows, "to_chillers", "To Chillers", plan_.balance.to_chillers);
        const auto label = [this_ = *this] {
            return formatted("After Cooling (%0.0f%%)\nTo Fermenter", this_.settings_.cooling_shrink * 100.0);
        };
        result(rows, "after_cooling", label, plan_.balance.after_cooling);
    }

    static float shown_grain(float pounds, Units units) {
        return is_american(units) ? pounds : narrow(pounds * grams_per_pound / 1000.0);
    }
    static float grain_from_shown(float shown, Units units) {
        return is_american(units) ? shown : narrow(shown * 1000.0 / grams_per_ounce / 16.0);
    }

    WaterPlan plan_;
    const Settings& settings_;
};

void unit_choice(Rows& rows, Units& units, const Settings& settings) {
    const auto option = [&settings](const char* prefix, Units of, const char* and_weight) {
        return [&settings, prefix, of, and_weight] {
            return std::string(prefix) + water_unit(of, settings).full + and_weight;
        };
    };
    rows.choice(
            "units", units,
            {option("&US ", Units::american, " and Pounds"), option("", Units::metric, " and Kilog&rams")})
        .named("Units")
        .codes({static_cast<std::int32_t>(Units::american), static_cast<std::int32_t>(Units::metric)});
}

} // namespace

void water_needs_form(Form& form, const WaterPlan& plan, const Settings& settings,
                      WaterNeedsActions actions) {
    const WaterNeedsRows rows(plan, settings);
    rows.fill(form);
    auto& need = form.group();
    rows.result(need, "needed", "You Will Need", plan.balance.needed).unit([rows] {
        return std::string(rows.unit()) + " of Water";
    });
    if (plan.own_units != nullptr) unit_choice(need, *plan.own_units, settings);
    need.canvas("flow", water_flow_size,
                [plan, &settings](Surface& surface) { draw_water_flow(surface, plan, settings); })
        .named([plan, &settings] { return words_of_water_flow(plan, settings); });
    need.button("save_default", "Sa&ve As Default", std::move(actions.save_default));
    need.button("print", "&Print", std::move(actions.print));
    need.button("help", "Help", std::move(actions.help));
    form.after_edit(
        [plan, &settings](Row&) { plan.balance = BalanceWater(plan.needs, has_mash(plan), settings); });
}

} // namespace wortlex
