#include "documents/forms/bottling_form.h"

#include "brewing/calendar.h"
#include "documents/bottling_date.h"
#include "measures/degrees.h"
#include "measures/unit_words.h"
#include "measures/units.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::array levels = {1.8F, 2.3F, 2.8F};
constexpr std::int32_t hottest = 300;

// Whole degrees F in the unit of the settings.
IntegerRow& degrees_row(Rows& rows, std::string key, std::int32_t& fahrenheit, const Settings& settings) {
    return rows
        .integer(std::move(key), {[&] { return shown_degrees(fahrenheit, settings.temperature_units); },
                                  [&](std::int32_t typed) {
                                      fahrenheit = stored_degrees(typed, settings.temperature_units);
                                  }})
        .range(0, hottest)
        .step(1);
}

std::string degrees_word(const Settings& settings) {
    return std::string("Degrees ") + temperature_unit(settings).usual;
}

std::string date_text(const BottlingLog& log, const Settings& settings) {
    return log.bottling_day == 0 ? "" : short_date(existing_day(bottling_date(log)), settings.date_format);
}

void whole_rows(Rows& rows, BottlingLog& log, const Settings& settings, const BottlingActions& actions) {
    rows.shown("bottling_date", [&] { return date_text(log, settings); })
        .label("Date Of Bottling/Kegging:")
        .width(12);
    rows.button("pick_date", "&Pick It!", actions.pick_date).hint("The day on a calendar");
    const auto chosen = [&log] {
        return static_cast<std::int32_t>(std::find(levels.begin(), levels.end(), log.co2_volumes) -
                                         levels.begin());
    };
    rows.choice(
            "carbonation_level",
            {chosen,
             [&log](std::int32_t level) { log.co2_volumes = levels.at(static_cast<std::size_t>(level)); }},
            {"&Low", "&Medium", "&High"})
        .label("Desired Carbonation Level");
    rows.number("co2_volumes", log.co2_volumes).label("&CO2 Vol").range(0.0F, 10.0F).step(0.1F);
    degrees_row(rows, "ferment_temperature", log.ferment_temperature, settings)
        .label("Temp D&uring Fermentation")
        .unit([&settings] { return degrees_word(settings); });
}

/// The table of the columns: a line of fields below their check boxes. A field is shown where its column is
/// on and carbonated in its way, and the words before a line where one of its fields is.
class Columns {
public:
    Columns(Rows& rows, BottlingLog& log, RecipeEditor& editor)
        : rows_(rows), log_(log), editor_(editor), settings_(editor.open.settings) {}

    enum class With { any, natural, forced };

    void add(const BottlingActions& actions);

private:
    using Shows = std::function<bool(std::size_t column)>;

    static constexpr std::array words_ = {"&Bottled", "&Kegged", "&Serving Tanks"};

    Shows shows(With with) const {
        return [&log = log_, with](std::size_t column) {
            const bool is_natural = log.natural_carbonation.at(column) != 0;
            return log.used.at(column) != 0 && (with == With::any || is_natural == (with == With::natural));
        };
    }

    /// A line: its words, and a field for each column that `make` makes.
    template <class Make>
    void line(const std::string& key, const Live<std::string>& words, With with, Make make) {
        const auto is_shown = shows(with);
        rows_.note(key + "_word", words).visible([is_shown] {
            return is_shown(0) || is_shown(1) || is_shown(2);
        });
        for (std::size_t column = 0; column < bottling_columns.size(); ++column)
            make(std::string(bottling_columns.at(column)) + "_" + key, column)
                .named([words, column] { return plain(words_.at(column)) + " " + words(); })
                .visible([is_shown, column] { return is_shown(column); });
    }

    NumberRow& amount(const std::string& key, float& value, float step,
                      float (*to_shown)(float, const Settings&), float (*from_shown)(float, const Settings&));
    void calc(const std::string& key, With with,
              const std::function<std::optional<float>(std::size_t)>& work_out, std::array<float, 3>& result);
    void priming_lines(const BottlingActions& actions);
    void pressure_lines(const BottlingActions& actions);

    static std::string plain(std::string word) {
        std::erase(word, '&');
        return word;
    }

    Rows& rows_;
    BottlingLog& log_;
    RecipeEditor& editor_;
    const Settings& settings_;
};

// What a calculation left below 0 stays as it is.
NumberRow& Columns::amount(const std::string& key, float& value, float step,
                           float (*to_shown)(float, const Settings&),
                           float (*from_shown)(float, const Settings&)) {
    const auto& settings = settings_;
    return rows_.number(key, value)
        .shown_as([&settings, to_shown](float stored) { return to_shown(stored, settings); },
                  [&settings, from_shown](float shown) { return from_shown(shown, settings); })
        .typed(0.0F, 10000.0F)
        .spun([&value, &settings, to_shown] { return std::min(to_shown(value, settings), 0.0F); }, 10000.0F,
              step);
}

void Columns::calc(const std::string& key, With with,
                   const std::function<std::optional<float>(std::size_t)>& work_out,
                   std::array<float, 3>& result) {
    const auto is_shown = shows(with);
    for (std::size_t column = 0; column < bottling_columns.size(); ++column) {
        std::function<void()> press;
        if (work_out)
            press = [this_editor = &editor_, work_out, column, &field = result.at(column)] {
                if (const auto worked_out = work_out(column)) field = *worked_out;
                tell_change(*this_editor);
            };
        rows_.button(std::string(bottling_columns.at(column)) + "_" + key, "Calc", std::move(press))
            .named(plain(words_.at(column)) + (with == With::natural ? " Calc Priming" : " Calc Pressure"))
            .visible([is_shown, column] { return is_shown(column); });
    }
}

void Columns::priming_lines(const BottlingActions& actions) {
    const auto& settings = settings_;
    line(
        "medium", "Priming Medium", With::natural, [&](const std::string& key, std::size_t column) -> auto& {
            return rows_.choice(key, log_.priming_medium.at(column), {"Corn Sugar", "DME", "Other"})
                .look(ChoiceRow::Look::drop_down);
        });
    line(
        "priming", [&settings] { return std::string("Priming ") + small_unit(settings).full; }, With::natural,
        [&](const std::string& key, std::size_t column) -> auto& {
            return amount(key, log_.priming_amount.at(column), 0.5F, small_to_shown, shown_to_small);
        });
    calc("natural_calc", With::natural, actions.natural, log_.priming_amount);
    line(
        "liquid", [&settings] { return std::string("Liquid Amnt (") + volume_unit(settings).capital + ")"; },
        With::natural,
        [&](const std::string& key, std::size_t column) -> auto& {
            return amount(key, log_.liquid_added.at(column), 0.1F, to_shown_volume, from_shown_volume);
        });
}

void Columns::pressure_lines(const BottlingActions& actions) {
    const auto& settings = settings_;
    line(
        "pressure",
        [&settings] {
            return std::string(is_american(settings.pressure_units) ? "Pressure Psi" : "Pressure kPa");
        },
        With::forced,
        [&](const std::string& key, std::size_t column) -> auto& {
            return amount(key, log_.pressure.at(column), 1.0F, pressure_to_shown, shown_to_pressure);
        });
    calc("forced_calc", With::forced, actions.forced, log_.pressure);
}

void Columns::add(const BottlingActions& actions) {
    const auto& settings = settings_;
    for (std::size_t column = 0; column < bottling_columns.size(); ++column)
        rows_
            .check(bottling_columns.at(column),
                   {[&used = log_.used.at(column)] { return used != 0; },
                    [&used = log_.used.at(column)](bool on) { used = on ? 1 : 0; }})
            .label(words_.at(column));
    rows_
        .note("choose_vessels",
              "Tick what the beer is filled into. What belongs to it is then asked for below.")
        .visible([&used = log_.used] { return used == std::array<std::uint8_t, 3>{}; });
    line(
        "amount", [&settings] { return std::string(volume_unit(settings).full); }, With::any,
        [&](const std::string& key, std::size_t column) -> auto& {
            return amount(key, log_.amount.at(column), 0.5F, to_shown_volume, from_shown_volume);
        });
    line(
        "method", "Carbonation", With::any, [&](const std::string& key, std::size_t column) -> auto& {
            return rows_.choice(key, log_.natural_carbonation.at(column), {"Natural", "Forced"})
                .codes({1, 0});
        });
    priming_lines(actions);
    line(
        "temperature", [&settings] { return "Temperature (" + degrees_word(settings) + ")"; }, With::any,
        [&](const std::string& key, std::size_t column) -> auto& {
            return degrees_row(rows_, key, log_.carbonation_temperature.at(column), settings);
        });
    pressure_lines(actions);
    line(
        "days", "Days Conditioned", With::any, [&](const std::string& key, std::size_t column) -> auto& {
            return rows_.integer(key, log_.days_conditioned.at(column)).range(0, 300).step(1);
        });
}

} // namespace

void bottling_form(Form& form, RecipeEditor& editor, const BottlingActions& actions) {
    auto& log = editor.open.session->bottling;
    whole_rows(form.group(), log, editor.open.settings, actions);
    Columns(form.group(), log, editor).add(actions);
    form.restore_on_cancel(log);
}

} // namespace wortlex
