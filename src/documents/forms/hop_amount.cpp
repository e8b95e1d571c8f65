#include "documents/forms/hop_amount.h"

#include "base/windows1252.h"
#include "brewing/hop_bitterness.h"
#include "documents/forms/amount_row.h"
#include "documents/work/recipe_lines.h"
#include "measures/units.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace wortlex {
namespace {

constexpr double ounces_per_pound = 16;
constexpr float most_large = 100000; // pounds or kilograms
constexpr std::int16_t dry_hop = -5;
constexpr std::int64_t arrows_beyond_boil = 5; // minutes

float grams(const HopUse& line) {
    return narrow(line.amount * grams_per_ounce);
}

void amount_rows(Rows& rows, HopUse& line, const Settings& settings) {
    const bool american = is_american(settings.hop_weight_units);
    const double small_per_ounce = american ? 1 : grams_per_ounce;
    const double large_per_ounce = american ? 1 / ounces_per_pound : grams_per_ounce / 1000;
    amount_row(rows, "amount", line.amount,
               {.label = american ? "&Oz:" : "&g:",
                .per_stored = small_per_ounce,
                .highest = most_hop_weight,
                .step = narrow(settings.hop_increment * small_per_ounce)});
    amount_row(rows, "large_amount", line.amount,
               {.label = american ? "&Lbs:" : "&kg:",
                .per_stored = large_per_ounce,
                .highest = most_large,
                .step = narrow(settings.hop_increment * large_per_ounce),
                .format = "%0.4f"});
}

// A boil as long as a damaged file may tell it does not fit the code.
std::int16_t time_code(std::int64_t minutes) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(minutes, Limits::min(), Limits::max()));
}

// A dry hop is one step below the start of the boil, whatever its negative number.
bool turn_boil_time(HopUse& line, Spin direction, std::int32_t boil_minutes) {
    const auto before = line.boil_time;
    if (direction == Spin::up && before < boil_minutes + arrows_beyond_boil)
        line.boil_time = time_code(std::max(before + 1, 0));
    if (direction == Spin::down && before > dry_hop)
        line.boil_time = before > 0 ? time_code(before - 1) : dry_hop;
    return line.boil_time != before;
}

void time_row(Rows& rows, HopUse& line, const BrewDocument& document) {
    const auto take = [&line, &document](const std::string& text) {
        const auto time = boil_time_of(text, document.boil_minutes);
        return time && std::exchange(line.boil_time, *time) != *time;
    };
    rows.parsed(
            "boil_time", [&line, &document] { return boil_time_text(line.boil_time, document.boil_minutes); },
            take)
        .label("&Boil Time:")
        .hint("Minutes before the end of the boil, or D for dry, F for first wort, M for mash")
        .arrows([&line, &document](Spin direction) {
            return turn_boil_time(line, direction, document.boil_minutes);
        });
}

void form_row(Rows& rows, HopUse& line) {
    rows.choice("form",
                {[&line] { return static_cast<std::int32_t>(form(line.record)); },
                 [&line](std::int32_t code) { set_form(line.record, static_cast<HopForm>(code)); }},
                {"&Whole", "&Plug", "P&ellet"})
        .label("Form:");
}

void bitterness_rows(Rows& rows, const HopUse& line, const Settings& settings) {
    const auto in_home_units = [&settings] { return settings.display_home_bittering != 0; };
    rows.shown_number(
            "ibu", [&line] { return line.ibu; }, "%0.1f")
        .label("IBU");
    rows.shown_number(
            "hbu", [&line] { return hbu(line.amount, line.alpha); }, "%0.1f")
        .label("HBU")
        .visible(in_home_units);
    rows.shown_number(
            "mbu", [&line] { return mbu(grams(line), line.alpha); }, "%0.1f")
        .label("MBU")
        .visible(in_home_units);
}

void revert_rows(Rows& rows, HopUse& line, const OpenDocument& open, Prompts& prompts) {
    rows.note("revert_note",
              "Revert to Original Alpha Value: (Prior to time degredation calculation or other "
              "modification)");
    const auto revert = [&line, &prompts, open] {
        constexpr Message question{.text = "This will undo any modification made to the hop's alpha value!\n"
                                           "Really revert to hop's original alpha value?",
                                   .icon = Icon::question};
        if (prompts.ask_yes_no(question) != Answer::yes) return;
        line.alpha = line.record.alpha;
        update_hop_line(open, line);
    };
    rows.button("revert", "&Revert", revert)
        .enabled([&line] { return line.alpha != line.record.alpha; })
        .disabled_because("The alpha acid is as the hop came");
}

} // namespace

std::string boil_time_text(std::int16_t boil_time, std::int32_t boil_minutes) {
    switch (hop_timing(boil_time, boil_minutes)) {
    case HopTiming::dry:
        return "Dry";
    case HopTiming::first_wort:
        return "FWH";
    case HopTiming::mash:
        return "MH";
    default:
        return formatted("%3d", boil_time);
    }
}

std::optional<std::int16_t> boil_time_of(std::string_view text, std::int32_t boil_minutes) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.empty()) return std::nullopt;
    switch (text.front()) {
    case 'D':
    case 'd':
        return dry_hop;
    case 'F':
    case 'f':
        return time_code(std::int64_t{boil_minutes} + 1);
    case 'M':
    case 'm':
        return time_code(std::int64_t{boil_minutes} + 2);
    default:
        break;
    }
    const bool is_number = text.find_first_not_of("-0123456789 ") == std::string_view::npos &&
                           text.find_first_of("0123456789") != std::string_view::npos;
    if (!is_number) return std::nullopt;
    const double minutes = leading_number(text);
    if (minutes < 0) return dry_hop;
    return time_code(truncate(std::min(minutes, boil_minutes + 1.0)));
}

void hop_amount_form(Form& form, HopUse& line, const OpenDocument& open, Prompts& prompts) {
    const auto& settings = open.settings;
    auto& rows = form.group();
    rows.shown("name", [&line] { return utf8_from_windows1252(line.record.name.view()); })
        .label("Name:")
        .width(30);
    amount_rows(rows, line, settings);
    rows.number("alpha", line.alpha)
        .label("&Alpha Acid%")
        .range(0.0F, 100.0F)
        .step(0.1F)
        .outside(Outside::clamp);
    time_row(rows, line, open.document);
    form_row(rows, line);
    bitterness_rows(form.group("Bitterness"), line, settings);
    revert_rows(form.group(), line, open, prompts);
    form.after_edit([&line, open](Row&) { update_hop_line(open, line); });
}

} // namespace wortlex
