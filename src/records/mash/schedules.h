// The two kinds of mash schedule. Temperatures are whole degrees F, water is US quarts.
#pragma once

#include "base/layout.h"
#include "settings/settings.h"

namespace wortlex {

enum class MashKind : std::uint8_t {
    none = 0,
    partial_mash = 1,
    single_step = 2,
    multi_step = 3,
    decoction = 4
};

/// A rest of the simple schedule; it takes part only with both figures non-zero.
struct Rest {
    std::int32_t temperature = 0; ///< degrees F
    std::int32_t minutes = 0;

    constexpr bool is_present() const { return temperature != 0 && minutes != 0; }
    bool operator==(const Rest&) const = default;
};

inline constexpr auto rest_layout = layout<Rest, 8>(at(0, &Rest::temperature), at(4, &Rest::minutes));

/// The fixed ladder of rests.
struct SimpleMash {
    MashKind mash_kind{};
    Rest dough_in;
    Rest acid;
    Rest protein;
    Rest intermediate;
    Rest saccharification;
    Rest mash_out;
    Rest sparge;
    float dough_in_water = 0; ///< quarts
    std::uint8_t reserved_61 = 0;

    bool operator==(const SimpleMash&) const = default;
};

inline constexpr auto simple_mash_layout = layout<SimpleMash, 62>(
    at(0, &SimpleMash::mash_kind), at(1, &SimpleMash::dough_in, rest_layout),
    at(9, &SimpleMash::acid, rest_layout), at(17, &SimpleMash::protein, rest_layout),
    at(25, &SimpleMash::intermediate, rest_layout), at(33, &SimpleMash::saccharification, rest_layout),
    at(41, &SimpleMash::mash_out, rest_layout), at(49, &SimpleMash::sparge, rest_layout),
    at(57, &SimpleMash::dough_in_water), at(61, &SimpleMash::reserved_61));

enum class SimpleHeat : std::uint8_t { direct = 0, infusion = 1 };

/// Water added to reach one rest of the simple schedule.
struct Infusion {
    std::int32_t temperature = 0; ///< of the water, degrees F
    float amount = 0;             ///< quarts, calculated

    bool operator==(const Infusion&) const = default;
};

/// What a session adds to its `SimpleMash`. (The wort's pH belongs to it too and stands in the session.)
struct InfusionExtras {
    SimpleHeat heat_type{};
    std::array<std::uint8_t, 4> reserved_bytes{};
    Infusion protein;
    Infusion intermediate;
    Infusion saccharification;
    Infusion mash_out;
    std::uint32_t reserved_word = 0;

    bool operator==(const InfusionExtras&) const = default;
};

inline constexpr auto infusion_extras_layout = layout<InfusionExtras, 41>(
    at(0, &InfusionExtras::heat_type), at(1, &InfusionExtras::reserved_bytes),
    at(5, via(&InfusionExtras::protein, &Infusion::temperature)),
    at(9, via(&InfusionExtras::intermediate, &Infusion::temperature)),
    at(13, via(&InfusionExtras::saccharification, &Infusion::temperature)),
    at(17, via(&InfusionExtras::mash_out, &Infusion::temperature)), at(21, &InfusionExtras::reserved_word),
    at(25, via(&InfusionExtras::protein, &Infusion::amount)),
    at(29, via(&InfusionExtras::intermediate, &Infusion::amount)),
    at(33, via(&InfusionExtras::saccharification, &Infusion::amount)),
    at(37, via(&InfusionExtras::mash_out, &Infusion::amount)));

enum class StepHeat : std::uint8_t { infuse = 0, direct = 1, decoction = 2 };

struct MashStep {
    Text<255> name;
    StepHeat heat_type{};
    std::int32_t start_temperature = 0;
    std::int32_t stop_temperature = 0;
    std::int32_t infuse_temperature = 0; ///< of the water, or of the pulled mash when it returns
    std::int32_t rest_minutes = 0;
    std::int32_t step_minutes = 0; ///< to reach the start; of a decoction, how long ago it was pulled
    float ratio = 0;  ///< water to grain in the shown unit; of a decoction its thickness in quarts per pound
    float amount = 0; ///< quarts added or pulled
    std::uint32_t step_colour = 255;   ///< 0x00BBGGRR, of the heating in charts
    std::uint32_t rest_colour = 65535; ///< likewise of the rest

    bool operator==(const MashStep&) const = default;
};

inline constexpr auto mash_step_layout = layout<MashStep, 292>(
    at(0, &MashStep::name), at(255, &MashStep::heat_type), at(256, &MashStep::start_temperature),
    at(260, &MashStep::stop_temperature), at(264, &MashStep::infuse_temperature),
    at(268, &MashStep::rest_minutes), at(272, &MashStep::step_minutes), at(276, &MashStep::ratio),
    at(280, &MashStep::amount), at(284, &MashStep::step_colour), at(288, &MashStep::rest_colour));

inline constexpr std::size_t mash_step_slots = 50;

/// The free list of steps.
struct ComplexMash {
    std::int32_t step_count = 0;
    std::int32_t grain_temperature = 0; ///< degrees F
    float tun_thermal_mass = 0;
    std::array<MashStep, mash_step_slots> steps;
    Text<255> mash_name;

    /// The steps in use; a damaged count is brought into the range of the slots.
    std::span<MashStep> used_steps();
    std::span<const MashStep> used_steps() const;
    bool operator==(const ComplexMash&) const = default;
};

/// As it stands in a document's file, without the flag byte behind it.
inline constexpr auto complex_mash_layout = layout<ComplexMash, 14867>(
    at(0, &ComplexMash::step_count), at(4, &ComplexMash::grain_temperature),
    at(8, &ComplexMash::tun_thermal_mass), at(12, &ComplexMash::steps, mash_step_layout),
    at(14612, &ComplexMash::mash_name));

/// A schedule with grain and water of its own: the Mash Designer's, and what a schedule file holds.
struct MashDesign {
    ComplexMash mash;
    float grain_weight = 10;   ///< pounds
    float dough_in_water = 10; ///< quarts
    bool operator==(const MashDesign&) const = default;
};

/// An empty schedule with the grain temperature of the settings and thermal mass 0. (A document takes the
/// setting's thermal mass besides.)
ComplexMash ResetComplexMash(const Settings& settings);

/// The Mash Designer's schedule at its first opening, sized by the system mode.
MashDesign new_mash_design(const Settings& settings);

} // namespace wortlex
