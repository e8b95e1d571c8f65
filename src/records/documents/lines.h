// The ingredient lines of a document: a database record, byte for byte, with the line's own fields behind
// it. So a document keeps working when the database has changed since.
#pragma once

#include "records/ingredients/ingredients.h"

namespace wortlex {

enum class StorageKind : std::uint8_t { none = 0, no_seal = 1, airtight = 2, inert_gas = 3 };

struct HopUse {
    HopRecord record;
    std::int16_t age_months = 0;
    float storage_temperature = 0; ///< degrees C
    float alpha = 0;               ///< percent, in use; the record keeps the original
    StorageKind storage_kind{};
    float amount = 0;           ///< ounces
    std::int16_t boil_time = 0; ///< minutes, and a code: see `hop_timing`
    float ibu = 0;              ///< of this line in the batch

    bool operator==(const HopUse&) const = default;
};

inline constexpr auto hop_use_layout = layout<HopUse, 635>(
    at(0, &HopUse::record, hop_layout), at(614, &HopUse::age_months), at(616, &HopUse::storage_temperature),
    at(620, &HopUse::alpha), at(624, &HopUse::storage_kind), at(625, &HopUse::amount),
    at(629, &HopUse::boil_time), at(631, &HopUse::ibu));

/// What the boil time of a hop line stands for.
enum class HopTiming { dry, boil, first_wort, mash, beyond };

/// Reads the code against the document's boil as it is now: negative is a dry hop, one minute above the boil
/// a first wort hop, two a mash hop. Nothing adjusts the code when the boil time changes, so a line may
/// change its meaning.
constexpr HopTiming hop_timing(int boil_time, int boil_minutes) {
    if (boil_time < 0) return HopTiming::dry;
    if (boil_time <= boil_minutes) return HopTiming::boil;
    const auto above = std::int64_t{boil_time} - boil_minutes;
    if (above == 1) return HopTiming::first_wort;
    return above == 2 ? HopTiming::mash : HopTiming::beyond;
}

struct MaltUse {
    MaltRecord record;
    float amount = 0; ///< pounds
    float points = 0; ///< of this line at batch size, calculated

    bool operator==(const MaltUse&) const = default;
};

inline constexpr auto malt_use_layout = layout<MaltUse, 529>(
    at(0, &MaltUse::record, malt_layout), at(521, &MaltUse::amount), at(525, &MaltUse::points));

struct ExtraUse {
    ExtraRecord record;
    float amount = 0; ///< in the record's unit
    std::array<std::uint8_t, 8> reserved_581{};

    bool operator==(const ExtraUse&) const = default;
};

inline constexpr auto extra_use_layout = layout<ExtraUse, 589>(
    at(0, &ExtraUse::record, extra_layout), at(577, &ExtraUse::amount), at(581, &ExtraUse::reserved_581));

struct YeastUse {
    YeastRecord record;
    std::array<std::uint8_t, 5> reserved_468{};

    bool operator==(const YeastUse&) const = default;
};

inline constexpr auto yeast_use_layout =
    layout<YeastUse, 473>(at(0, &YeastUse::record, yeast_layout), at(468, &YeastUse::reserved_468));

/// A line just added from the database, with the usual increment of the settings as its amount.
HopUse new_hop_line(const HopRecord& hop, std::int32_t boil_minutes, float increment);
MaltUse new_malt_line(const MaltRecord& malt, float increment);

} // namespace wortlex
