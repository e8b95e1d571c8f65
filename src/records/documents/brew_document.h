// The recipe, of which exactly one is live: recipe window and session window both work on it.
#pragma once

#include "records/documents/lines.h"
#include "records/mash/schedules.h"

namespace wortlex {

enum class RecipeKind : std::uint8_t { all_grain = 0, partial_mash = 1, extract = 2 };

struct BrewDocument {
    Text<85> title;
    float wort_size = 0;  ///< gallons boiled; bitterness works on it
    float batch_size = 0; ///< gallons finished
    float og_points = 0;  ///< anticipated, (SG - 1) x 1000
    float total_ibu = 0;
    float efficiency = 0.85F; ///< brewhouse efficiency as a fraction
    std::int32_t boil_minutes = 60;
    std::int32_t target_ibu = 35;
    RecipeKind recipe_kind{};
    StyleRecord style; ///< all zero if none was chosen
    std::vector<HopUse> hops;
    std::vector<MaltUse> malts;
    std::vector<ExtraUse> extras;
    YeastUse yeast;
    WaterRecord water;
    SimpleMash simple_mash;
    Text<4028> notes;
    Text<4028> awards;
    Text<255> reserved_text;
    ComplexMash mash;
    /// The `ScheduleKind` in the low nibble. In a file the high nibble is an `EfficiencyMode`; a save leaves
    /// it there in memory too, and `has_complex_schedule` then sees the whole byte.
    std::uint8_t mash_flags = 0;

    std::uint8_t file_efficiency_mode = 0; ///< the `EfficiencyMode` that the recipe carries

    bool operator==(const BrewDocument&) const = default;
};

/// Whether the complex schedule is in force. Reads the flag byte as it stands: a document that was saved
/// under Method #2 counts as complex until it is loaded again.
inline bool has_complex_schedule(const BrewDocument& document) {
    return document.mash_flags != 0;
}

/// The schedule that the brewer has chosen, whatever a save has left beside it.
inline ScheduleKind chosen_schedule(const BrewDocument& document) {
    return (document.mash_flags & 0x0F) != 0 ? ScheduleKind::complex : ScheduleKind::simple;
}

/// An empty recipe: sizes, thermal mass and grain temperature from the settings, the schedule kind as it is
/// in force.
BrewDocument new_document(const Settings& settings, ScheduleKind schedule_in_force);

} // namespace wortlex
