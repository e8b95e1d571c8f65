// The log of one brew day: what a session holds beside the live recipe.
#pragma once

#include "base/ports/clock.h"
#include "records/documents/brew_document.h"
#include "records/ingredients/ingredients.h"
#include "records/water/water_needs.h"

namespace wortlex {

enum class PitchedFrom : std::uint8_t {
    starter = 0,
    liquid_pack = 1,
    pitchable_flask = 2,
    dry_pack = 3,
    slurry = 4
};
enum class PitchUnit : std::uint8_t {
    millilitres = 0,
    litres = 1,
    grams = 2,
    ounces = 3,
    pounds = 4,
    quarts = 5
};
/// Of the box beside a temperature of the fermentation page.
enum class DegreeBox : std::uint8_t { fahrenheit = 0, celsius = 1 };
enum class Vessel : std::uint8_t { glass = 0, stainless_steel = 1, plastic = 2, wood = 3, other = 4 };

struct FermentationLog {
    PitchedFrom pitched_from{};
    float lag_hours = 0;
    std::int32_t amount_pitched = 0;
    PitchUnit amount_unit{};
    Vessel primary_vessel{};
    Vessel secondary_vessel{};
    std::uint8_t primary_open = 0;
    std::uint8_t secondary_open = 0;
    std::int32_t primary_days = 0;
    std::int32_t secondary_days = 0;
    std::int32_t primary_temperature = 68; ///< degrees F
    std::int32_t secondary_temperature = 0;
    DegreeBox primary_temperature_unit{};
    DegreeBox secondary_temperature_unit{};

    bool operator==(const FermentationLog&) const = default;
};

enum class PrimingMedium : std::uint8_t { corn_sugar = 0, dme = 1, other = 2 };

/// Arrays are bottles, kegs, serving tanks.
struct BottlingLog {
    std::int32_t bottling_day = 0;
    std::int32_t bottling_month = 0;
    std::int32_t bottling_year = 0;
    std::uint8_t reserved_12 = 0;
    float co2_volumes = 0;
    std::int32_t ferment_temperature = 0; ///< degrees F
    std::array<std::uint8_t, 3> used{};
    std::array<float, 3> amount{};                     ///< gallons
    std::array<std::uint8_t, 3> natural_carbonation{}; ///< 1 natural, 0 forced
    std::array<PrimingMedium, 3> priming_medium{};
    std::array<float, 3> priming_amount{};                 ///< ounces
    std::array<float, 3> liquid_added{};                   ///< gallons
    std::array<std::int32_t, 3> carbonation_temperature{}; ///< degrees F
    std::array<float, 3> pressure{};                       ///< psi
    std::array<std::int32_t, 3> days_conditioned{};
    std::array<std::uint8_t, 27> reserved_102{};

    bool operator==(const BottlingLog&) const = default;
};

/// Mash, fermentation, tasting, problems, and one that nothing shows.
using SessionNotes = std::array<Text<4096>, 5>;

/// The last entries of a refractometer pair.
struct RefractometerPair {
    float plato = 0;
    float net_zeiss = 0;

    bool operator==(const RefractometerPair&) const = default;
};

/// The entries of the alcohol refractometer.
struct AlcoholReading {
    float net_zeiss = 0;
    float original_extract = 0; ///< Plato
    float fg_plato = 0;

    bool is_entered() const { return net_zeiss != 0 && original_extract != 0 && fg_plato != 0; }
    bool operator==(const AlcoholReading&) const = default;
};

/// The last block of the file, most of it unused and carried along.
struct SessionTail {
    std::array<std::uint8_t, 5371> reserved_0{};
    std::uint8_t measured_in_fermenter = 0;
    std::uint8_t fg_by_refractometer = 0;
    std::array<std::uint8_t, 63> reserved_5373{};
    float recorded_volume = 0; ///< gallons
    float recorded_og = 0;     ///< SG
    float calculated_ph = 0;   ///< of the salt totals
    RefractometerPair runnings_reading;
    RefractometerPair recorded_og_reading;
    RefractometerPair actual_og_reading;
    RefractometerPair actual_fg_reading;
    AlcoholReading alcohol_reading;
    std::array<std::uint8_t, 4> reserved_5492{};

    bool operator==(const SessionTail&) const = default;
};

/// The final gravity (SG) of a session in which none was measured yet.
inline constexpr float fg_not_measured = 1.012F;

struct SessionDocument {
    FermentationLog fermentation;
    Text<255> head_brewer;
    Text<255> assistant_brewer;
    std::int16_t brew_day = 0;
    std::int16_t brew_month = 0; ///< 1 to 12
    std::int16_t brew_year = 0;
    float actual_og = 1.01F; ///< gravities are SG
    float actual_fg = fg_not_measured;
    float runnings_sg = 1.01F;
    BottlingLog bottling;
    SessionNotes session_notes;
    std::uint8_t inventory_finalized = 0;
    InfusionExtras infusions;
    float wort_ph = 5.5F;
    WaterNeeds water_needs;
    /// What a gram per gallon adds: Gypsum, Epsom Salt, Canning Salt, Baking Soda, Calcium Chloride, Chalk.
    std::array<WaterRecord, 6> salt_effects;
    WaterRecord source_water;
    /// Grams per gallon; as above, with an unused one before Calcium Chloride.
    std::array<float, 7> salt_grams{};
    float sparge_quarts = 0;
    float dilution_rate = 0;
    SessionTail tail;

    // Not stored:
    float sparge_gallons = 0;    ///< the twin of `sparge_quarts`
    std::uint8_t has_recipe = 0; ///< one was picked, or came with the file

    bool operator==(const SessionDocument&) const = default;
};

/// The day as the record holds it, which may be none of the calendar.
inline CalendarDate brew_date(const SessionDocument& session) {
    return {session.brew_day, session.brew_month, session.brew_year};
}
/// A day of the years that the record can hold.
inline void set_brew_date(SessionDocument& session, const CalendarDate& date) {
    session.brew_day = static_cast<std::int16_t>(date.day);
    session.brew_month = static_cast<std::int16_t>(date.month);
    session.brew_year = static_cast<std::int16_t>(date.year);
}

/// The log of a new session on `document`, which `new_session_recipe` made.
SessionDocument new_session(const BrewDocument& document);

/// The recipe of a new session: as a new document, but 5 gallons and a simple schedule whatever the settings
/// say.
BrewDocument new_session_recipe(const Settings& settings);

} // namespace wortlex
