// The six ingredient records. The same layout stands in the database files, in transfer files and at the
// head of document lines. Reserved bytes are kept as found.
#pragma once

#include "base/layout.h"

namespace wortlex {

enum class HopUsage : std::uint8_t { none = 0, bittering = 1, aroma = 2, both = 3 };
enum class StorageClass : std::uint8_t { none = 0, good = 1, average = 2, poor = 3 };
enum class HopForm : std::uint8_t { whole = 0, plug = 1, pellet = 2 };

struct HopRecord {
    Text<55> name;
    float alpha = 0; ///< percent, as are the other acids and oils
    float beta = 0;
    std::uint8_t noble = 0;
    float cohumulone = 0;
    float myrcene = 0;
    float humulene = 0;
    float caryophyllene = 0;
    HopUsage usage{};
    std::uint8_t storage_and_form = 0; ///< low nibble `StorageClass`, high nibble `HopForm`
    float storage_factor = 0;          ///< percent of alpha lost in 6 months at 20 degrees C
    Text<155> tastes;
    Text<55> origin;
    Text<155> best_for;
    Text<155> substitutes;
    std::array<std::uint8_t, 4> reserved_606{};
    float stock = 0; ///< ounces

    bool operator==(const HopRecord&) const = default;
};

inline constexpr auto hop_layout = layout<HopRecord, 614>(
    at(0, &HopRecord::name), at(55, &HopRecord::alpha), at(59, &HopRecord::beta), at(63, &HopRecord::noble),
    at(64, &HopRecord::cohumulone), at(68, &HopRecord::myrcene), at(72, &HopRecord::humulene),
    at(76, &HopRecord::caryophyllene), at(80, &HopRecord::usage), at(81, &HopRecord::storage_and_form),
    at(82, &HopRecord::storage_factor), at(86, &HopRecord::tastes), at(241, &HopRecord::origin),
    at(296, &HopRecord::best_for), at(451, &HopRecord::substitutes), at(606, &HopRecord::reserved_606),
    at(610, &HopRecord::stock));

constexpr StorageClass storage_class(const HopRecord& hop) {
    return static_cast<StorageClass>(hop.storage_and_form & 0x0F);
}

constexpr HopForm form(const HopRecord& hop) {
    return static_cast<HopForm>(hop.storage_and_form >> 4);
}

constexpr void set_storage_class(HopRecord& hop, StorageClass storage) {
    hop.storage_and_form =
        static_cast<std::uint8_t>((hop.storage_and_form & 0xF0) | (static_cast<unsigned>(storage) & 0x0F));
}

constexpr void set_form(HopRecord& hop, HopForm form) {
    hop.storage_and_form =
        static_cast<std::uint8_t>((hop.storage_and_form & 0x0F) | (static_cast<unsigned>(form) & 0x0F) << 4);
}

/// As lists show it and sort by it.
constexpr std::string_view form_word(HopForm form) {
    if (form == HopForm::plug) return "Plug";
    return form == HopForm::pellet ? "Pellet" : "Whole";
}

enum class MaltType : std::uint8_t { none = 0, grain = 1, extract = 2, sugar = 3, other = 4 };

struct MaltRecord {
    Text<55> name;
    Text<55> supplier;
    Text<55> origin;
    MaltType malt_type{};
    std::uint8_t must_mash = 0; ///< of extracts: 1 liquid, 0 dry
    float potential = 0;        ///< SG of a pound in a gallon, dry basis fine grind
    float colour = 0;           ///< degrees Lovibond
    float moisture = 0;         ///< percent
    float max_in_batch = 0;     ///< percent
    float diastatic_power = 0;
    float protein = 0;          ///< percent; nitrogen of extracts and sugars
    float soluble_nitrogen = 0; ///< percent; hop rate of extracts, reducing sugar of sugars
    Text<155> use_for;
    Text<155> comments;
    std::array<std::uint8_t, 4> reserved_505{};
    float stock = 0;        ///< pounds
    float fine_yield = 0;   ///< percent, dry basis
    float coarse_yield = 0; ///< percent, dry basis

    bool operator==(const MaltRecord&) const = default;
};

inline constexpr auto malt_layout = layout<MaltRecord, 521>(
    at(0, &MaltRecord::name), at(55, &MaltRecord::supplier), at(110, &MaltRecord::origin),
    at(165, &MaltRecord::malt_type), at(166, &MaltRecord::must_mash), at(167, &MaltRecord::potential),
    at(171, &MaltRecord::colour), at(175, &MaltRecord::moisture), at(179, &MaltRecord::max_in_batch),
    at(183, &MaltRecord::diastatic_power), at(187, &MaltRecord::protein),
    at(191, &MaltRecord::soluble_nitrogen), at(195, &MaltRecord::use_for), at(350, &MaltRecord::comments),
    at(505, &MaltRecord::reserved_505), at(509, &MaltRecord::stock), at(513, &MaltRecord::fine_yield),
    at(517, &MaltRecord::coarse_yield));

/// Whether it goes through the mash: efficiency, moisture and grind touch nothing else.
constexpr bool is_mashed(const MaltRecord& malt) {
    return malt.malt_type == MaltType::grain || (malt.malt_type == MaltType::other && malt.must_mash != 0);
}

enum class YeastKind : std::uint8_t { ale = 0, lager = 1, wine = 2, champagne = 3 };
enum class YeastMedium : std::uint8_t { dry = 0, liquid = 1, agar_slant = 2 };
enum class Flocculation : std::uint8_t { high = 0, medium = 1, low = 2 };

struct YeastRecord {
    Text<55> name;
    Text<55> lab;
    Text<25> catalog_number;
    YeastKind yeast_kind{};
    YeastMedium yeast_medium{};
    Text<155> flavours;
    Text<155> comment;
    std::array<std::uint8_t, 4> reserved_447{};
    float stock = 0;                   ///< units
    std::int32_t low_attenuation = 0;  ///< percent, apparent
    std::int32_t high_attenuation = 0; ///< percent, apparent
    float optimum_temperature = 0;     ///< degrees F
    Flocculation flocculation{};

    bool operator==(const YeastRecord&) const = default;
};

inline constexpr auto yeast_layout = layout<YeastRecord, 468>(
    at(0, &YeastRecord::name), at(55, &YeastRecord::lab), at(110, &YeastRecord::catalog_number),
    at(135, &YeastRecord::yeast_kind), at(136, &YeastRecord::yeast_medium), at(137, &YeastRecord::flavours),
    at(292, &YeastRecord::comment), at(447, &YeastRecord::reserved_447), at(451, &YeastRecord::stock),
    at(455, &YeastRecord::low_attenuation), at(459, &YeastRecord::high_attenuation),
    at(463, &YeastRecord::optimum_temperature), at(467, &YeastRecord::flocculation));

struct WaterRecord {
    Text<27> name;
    float calcium = 0; ///< ppm, as are the other ions
    float magnesium = 0;
    float sodium = 0;
    float reserved_39 = 0; ///< a fourth ion that nothing shows, but sums count
    float sulfate = 0;
    float chloride = 0;
    float bicarbonate = 0;
    float ph = 0;
    Text<155> known_for;
    std::array<std::uint8_t, 8> reserved_214{};

    bool operator==(const WaterRecord&) const = default;
};

/// Within what a water's ions and its pH are held.
inline constexpr float most_ppm = 2000, most_ph = 20;

inline constexpr auto water_layout = layout<WaterRecord, 222>(
    at(0, &WaterRecord::name), at(27, &WaterRecord::calcium), at(31, &WaterRecord::magnesium),
    at(35, &WaterRecord::sodium), at(39, &WaterRecord::reserved_39), at(43, &WaterRecord::sulfate),
    at(47, &WaterRecord::chloride), at(51, &WaterRecord::bicarbonate), at(55, &WaterRecord::ph),
    at(59, &WaterRecord::known_for), at(214, &WaterRecord::reserved_214));

/// An ion as waters tell it.
struct Ion {
    const char* key;
    const char* symbol;
    float WaterRecord::*ppm;
    double equivalent_weight; ///< milligrams a milliequivalent
};

inline constexpr std::array ions = {Ion{"calcium", "Ca", &WaterRecord::calcium, 20.04},
                                    Ion{"magnesium", "Mg", &WaterRecord::magnesium, 12.15},
                                    Ion{"sodium", "Na", &WaterRecord::sodium, 22.99},
                                    Ion{"sulfate", "SO4", &WaterRecord::sulfate, 48.03},
                                    Ion{"chloride", "Cl", &WaterRecord::chloride, 35.45},
                                    Ion{"bicarbonate", "HCO3", &WaterRecord::bicarbonate, 61.02}};
inline constexpr std::size_t cation_count = 3; ///< they come first

enum class BeerType : std::uint8_t { ale = 0, lager = 1, cider = 2, mead = 3, sake = 4, mixed = 5 };

struct StyleRecord {
    Text<55> category; ///< the style class
    Text<55> name;     ///< the sub-category
    BeerType type{};
    float min_og = 0; ///< gravities are SG
    float max_og = 0;
    float min_fg = 0;
    float max_fg = 0;
    float min_alcohol = 0; ///< percent
    float max_alcohol = 0;
    float min_ibu = 0;
    float max_ibu = 0;
    float min_colour = 0; ///< SRM
    float max_colour = 0;
    Text<155> colour_note;
    Text<155> malt_note;
    Text<155> hop_note;
    Text<155> yeast_note;
    Text<255> examples;
    std::int16_t number = 0;
    char letter = '\0';
    std::uint8_t letter_end = 0;
    std::uint8_t book = 0; ///< 0 AHA, other BJCP; set when a document takes the style

    bool operator==(const StyleRecord&) const = default;
};

inline constexpr auto style_layout = layout<StyleRecord, 1031>(
    at(0, &StyleRecord::category), at(55, &StyleRecord::name), at(110, &StyleRecord::type),
    at(111, &StyleRecord::min_og), at(115, &StyleRecord::max_og), at(119, &StyleRecord::min_fg),
    at(123, &StyleRecord::max_fg), at(127, &StyleRecord::min_alcohol), at(131, &StyleRecord::max_alcohol),
    at(135, &StyleRecord::min_ibu), at(139, &StyleRecord::max_ibu), at(143, &StyleRecord::min_colour),
    at(147, &StyleRecord::max_colour), at(151, &StyleRecord::colour_note), at(306, &StyleRecord::malt_note),
    at(461, &StyleRecord::hop_note), at(616, &StyleRecord::yeast_note), at(771, &StyleRecord::examples),
    at(1026, &StyleRecord::number), at(1028, &StyleRecord::letter), at(1029, &StyleRecord::letter_end),
    at(1030, &StyleRecord::book));

enum class ExtraType : std::uint8_t { spice = 0, fruit = 1, coffee = 2, other = 3, fining = 4, herb = 5 };
enum class TimePlace : std::uint8_t { boil = 0, fermenter = 1, mash = 2 };
enum class TimeUnit : std::uint8_t { days = 0, minutes = 1 };
enum class AmountUnit : std::uint8_t {
    ounces = 0,
    grams = 1,
    pounds = 2,
    teaspoon = 3,
    tablespoon = 4,
    cup = 5,
    unit = 6
};

struct ExtraRecord {
    Text<55> name;
    ExtraType extra_type{};
    std::int32_t time = 0; ///< in `time_unit`
    TimePlace time_place{};
    TimeUnit time_unit{};
    AmountUnit amount_unit{};
    float stock = 0; ///< in `amount_unit`
    Text<255> use;
    Text<255> comment;

    bool operator==(const ExtraRecord&) const = default;
};

inline constexpr auto extra_layout = layout<ExtraRecord, 577>(
    at(0, &ExtraRecord::name), at(55, &ExtraRecord::extra_type), at(56, &ExtraRecord::time),
    at(60, &ExtraRecord::time_place), at(61, &ExtraRecord::time_unit), at(62, &ExtraRecord::amount_unit),
    at(63, &ExtraRecord::stock), at(67, &ExtraRecord::use), at(322, &ExtraRecord::comment));

} // namespace wortlex
