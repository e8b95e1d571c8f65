#include "calculators/hop_degradation.h"

#include "base/windows1252.h"
#include "brewing/hop_bitterness.h"
#include "calculators/degradation_chart.h"
#include "measures/units.h"

#include <algorithm>
#include <cmath>

namespace wortlex {
namespace {

constexpr float most_alpha = 100;
constexpr float coldest_fahrenheit = -21, warmest_fahrenheit = 95;
constexpr float coldest_celsius = -30, warmest_celsius = 35;

// Freezing point is no store yet where the age is not told either.
bool has_store(const HopUse& hop) {
    return std::isfinite(hop.storage_temperature) && (hop.storage_temperature != 0 || hop.age_months > 0);
}

// The settings tell degrees F, a line holds degrees C.
void fill_in_storage(HopUse& hop, const Settings& settings) {
    if (!has_store(hop)) hop.storage_temperature = celsius_from_fahrenheit(settings.hop_storage_temperature);
    if (hop.age_months < 1) hop.age_months = 6;
    if (hop.storage_kind == StorageKind::none) hop.storage_kind = StorageKind::airtight;
}

// A step of the arrows may end outside the range, hence the clamps in these three.
void change_alpha(HopDegradation& hop) {
    hop.start_alpha = std::clamp(hop.start_alpha, 0.0F, most_alpha);
}

void change_fahrenheit(HopDegradation& hop) {
    hop.fahrenheit = std::clamp(hop.fahrenheit, coldest_fahrenheit, warmest_fahrenheit);
    hop.celsius = celsius_from_fahrenheit(hop.fahrenheit);
}

void change_celsius(HopDegradation& hop) {
    hop.celsius = std::clamp(hop.celsius, coldest_celsius, warmest_celsius);
    hop.fahrenheit = fahrenheit_from_celsius(hop.celsius);
}

void store_rows(Rows& rows, HopDegradation& hop) {
    rows.shown("name", [&hop] { return hop.name; }).label("Hop Name");
    rows.number("start_alpha", hop.start_alpha)
        .label("&Start Alpha %")
        .range(0, most_alpha)
        .step(0.25F)
        .outside(Outside::clamp)
        .changed([&hop] { change_alpha(hop); });
    rows.signed_number("fahrenheit", hop.fahrenheit)
        .label("&Temp Stored At (F)")
        .range(coldest_fahrenheit, warmest_fahrenheit)
        .step(1.0F)
        .outside(Outside::clamp)
        .changed([&hop] { change_fahrenheit(hop); });
    rows.signed_number("celsius", hop.celsius)
        .label("T&emp Stored At (C)")
        .range(coldest_celsius, warmest_celsius)
        .step(1.0F)
        .outside(Outside::clamp)
        .changed([&hop] { change_celsius(hop); });
    rows.integer("months", hop.months).label("Age In &Months").range(0, 60).step(1).outside(Outside::clamp);
    rows.shown_number(
            "adjusted_alpha", [&hop] { return hop.adjusted_alpha; }, "%0.2f")
        .label("Adjusted Alpha %");
}

void storage_rows(Rows& rows, HopDegradation& hop) {
    rows.choice(
            "storage", hop.storage,
            {"&No Seal/Poly Bag", "Barrier Packaging/Airtight &Jars", "Barrier Packaging/&Vacuum/Inert Gas"})
        .codes({1, 2, 3})
        .look(ChoiceRow::Look::down);
}

} // namespace

HopUse picked_hop(const HopRecord& hop, const HopMemory& memory, const Settings& settings) {
    HopUse work{.record = hop,
                .age_months = memory.age_months,
                .storage_temperature = memory.storage_temperature,
                .alpha = hop.alpha,
                .storage_kind = memory.storage_kind};
    fill_in_storage(work, settings);
    return work;
}

HopDegradation start_degradation(const HopUse& hop, const Settings& settings) {
    HopUse stored = hop;
    fill_in_storage(stored, settings);
    HopDegradation degradation{.name = utf8_from_windows1252(hop.record.name.view()),
                               .start_alpha = hop.alpha,
                               .lost_percent = hop.record.storage_factor,
                               .fahrenheit = fahrenheit_from_celsius(stored.storage_temperature),
                               .celsius = stored.storage_temperature,
                               .months = stored.age_months,
                               .storage = stored.storage_kind};
    degradation.adjusted_alpha = alpha_after(degradation, degradation.months);
    return degradation;
}

void keep_storage(const HopDegradation& degradation, HopUse& hop) {
    hop.alpha = degradation.start_alpha;
    hop.age_months = degradation.months;
    hop.storage_temperature = degradation.celsius;
    hop.storage_kind = degradation.storage;
}

void remember_storage(const HopUse& hop, HopMemory& memory) {
    memory.age_months = hop.age_months;
    memory.storage_temperature = hop.storage_temperature;
    memory.storage_kind = hop.storage_kind;
}

float alpha_after(const HopDegradation& degradation, int months) {
    return alpha_after_storage(degradation.start_alpha, static_cast<std::int16_t>(months),
                               degradation.lost_percent, degradation.celsius,
                               storage_share(degradation.storage));
}

std::string_view storage_words(StorageKind kind) {
    switch (kind) {
    case StorageKind::no_seal:
        return "No Seal/Poly Bag";
    case StorageKind::airtight:
        return "Barrier Packaging/Airtight Jars";
    case StorageKind::inert_gas:
        return "Barrier Packaging/Vacuum/Inert Gas";
    default:
        return "";
    }
}

void hop_degradation_form(Form& form, HopDegradation& degradation, DegradationActions actions) {
    store_rows(form.group(), degradation);
    storage_rows(form.group("Stored In:"), degradation);
    auto& buttons = form.group();
    buttons.button("jpg", "JP&G", std::move(actions.save_jpg));
    buttons.button("print", "&Print", std::move(actions.print));
    buttons.button("help", "&Help", std::move(actions.help));
    form.next_column();
    form.group()
        .canvas("chart", degradation_chart_size(false),
                [&degradation](Surface& surface) { draw_degradation_chart(surface, degradation, false); })
        .named([&degradation] { return words_of_degradation_chart(degradation); });
    form.after_edit(
        [&degradation](Row&) { degradation.adjusted_alpha = alpha_after(degradation, degradation.months); });
}

} // namespace wortlex
