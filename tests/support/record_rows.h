// The tables of the record formats, written out a second time: offset and type of every field.
#pragma once

#include "documents/records/session_document.h"
#include "support/byte_probe.h"

namespace wortlex {

inline FieldRows<HopRecord> hop_rows() {
    using R = HopRecord;
    return rows<R>(text(0, &R::name), f32(55, &R::alpha), f32(59, &R::beta), u8(63, &R::noble),
                   f32(64, &R::cohumulone), f32(68, &R::myrcene), f32(72, &R::humulene),
                   f32(76, &R::caryophyllene), u8(80, &R::usage), u8(81, &R::storage_and_form),
                   f32(82, &R::storage_factor), text(86, &R::tastes), text(241, &R::origin),
                   text(296, &R::best_for), text(451, &R::substitutes), u8(606, &R::reserved_606),
                   f32(610, &R::stock));
}

inline FieldRows<MaltRecord> malt_rows() {
    using R = MaltRecord;
    return rows<R>(text(0, &R::name), text(55, &R::supplier), text(110, &R::origin), u8(165, &R::malt_type),
                   u8(166, &R::must_mash), f32(167, &R::potential), f32(171, &R::colour),
                   f32(175, &R::moisture), f32(179, &R::max_in_batch), f32(183, &R::diastatic_power),
                   f32(187, &R::protein), f32(191, &R::soluble_nitrogen), text(195, &R::use_for),
                   text(350, &R::comments), u8(505, &R::reserved_505), f32(509, &R::stock),
                   f32(513, &R::fine_yield), f32(517, &R::coarse_yield));
}

inline FieldRows<YeastRecord> yeast_rows() {
    using R = YeastRecord;
    return rows<R>(text(0, &R::name), text(55, &R::lab), text(110, &R::catalog_number),
                   u8(135, &R::yeast_kind), u8(136, &R::yeast_medium), text(137, &R::flavours),
                   text(292, &R::comment), u8(447, &R::reserved_447), f32(451, &R::stock),
                   i32(455, &R::low_attenuation), i32(459, &R::high_attenuation),
                   f32(463, &R::optimum_temperature), u8(467, &R::flocculation));
}

inline FieldRows<WaterRecord> water_rows() {
    using R = WaterRecord;
    return rows<R>(text(0, &R::name), f32(27, &R::calcium), f32(31, &R::magnesium), f32(35, &R::sodium),
                   f32(39, &R::reserved_39), f32(43, &R::sulfate), f32(47, &R::chloride),
                   f32(51, &R::bicarbonate), f32(55, &R::ph), text(59, &R::known_for),
                   u8(214, &R::reserved_214));
}

inline FieldRows<StyleRecord> style_rows() {
    using R = StyleRecord;
    return rows<R>(text(0, &R::category), text(55, &R::name), u8(110, &R::type), f32(111, &R::min_og),
                   f32(115, &R::max_og), f32(119, &R::min_fg), f32(123, &R::max_fg),
                   f32(127, &R::min_alcohol), f32(131, &R::max_alcohol), f32(135, &R::min_ibu),
                   f32(139, &R::max_ibu), f32(143, &R::min_colour), f32(147, &R::max_colour),
                   text(151, &R::colour_note), text(306, &R::malt_note), text(461, &R::hop_note),
                   text(616, &R::yeast_note), text(771, &R::examples), i16(1026, &R::number),
                   field<char>(1028, &R::letter), u8(1029, &R::letter_end), u8(1030, &R::book));
}

inline FieldRows<ExtraRecord> extra_rows() {
    using R = ExtraRecord;
    return rows<R>(text(0, &R::name), u8(55, &R::extra_type), i32(56, &R::time), u8(60, &R::time_place),
                   u8(61, &R::time_unit), u8(62, &R::amount_unit), f32(63, &R::stock), text(67, &R::use),
                   text(322, &R::comment));
}

inline FieldRows<HopUse> hop_use_rows() {
    using R = HopUse;
    return rows<R>(Inside{0, hop_rows(), &R::record}, i16(614, &R::age_months),
                   f32(616, &R::storage_temperature), f32(620, &R::alpha), u8(624, &R::storage_kind),
                   f32(625, &R::amount), i16(629, &R::boil_time), f32(631, &R::ibu));
}

inline FieldRows<MaltUse> malt_use_rows() {
    using R = MaltUse;
    return rows<R>(Inside{0, malt_rows(), &R::record}, f32(521, &R::amount), f32(525, &R::points));
}

inline FieldRows<ExtraUse> extra_use_rows() {
    using R = ExtraUse;
    return rows<R>(Inside{0, extra_rows(), &R::record}, f32(577, &R::amount), u8(581, &R::reserved_581));
}

inline FieldRows<YeastUse> yeast_use_rows() {
    using R = YeastUse;
    return rows<R>(Inside{0, yeast_rows(), &R::record}, u8(468, &R::reserved_468));
}

inline FieldRows<SimpleMash> simple_mash_rows() {
    using R = SimpleMash;
    const auto rest = rows<Rest>(i32(0, &Rest::temperature), i32(4, &Rest::minutes));
    return rows<R>(u8(0, &R::mash_kind), Inside{1, rest, &R::dough_in}, Inside{9, rest, &R::acid},
                   Inside{17, rest, &R::protein}, Inside{25, rest, &R::intermediate},
                   Inside{33, rest, &R::saccharification}, Inside{41, rest, &R::mash_out},
                   Inside{49, rest, &R::sparge}, f32(57, &R::dough_in_water), u8(61, &R::reserved_61));
}

inline FieldRows<MashStep> mash_step_rows() {
    using R = MashStep;
    return rows<R>(text(0, &R::name), u8(255, &R::heat_type), i32(256, &R::start_temperature),
                   i32(260, &R::stop_temperature), i32(264, &R::infuse_temperature),
                   i32(268, &R::rest_minutes), i32(272, &R::step_minutes), f32(276, &R::ratio),
                   f32(280, &R::amount), u32(284, &R::step_colour), u32(288, &R::rest_colour));
}

inline FieldRows<WaterNeeds> water_needs_rows() {
    using R = WaterNeeds;
    return rows<R>(f32(0, &R::sparge), f32(4, &R::sparge_deadspace), f32(8, &R::total_into_mash),
                   f32(12, &R::grain), f32(16, &R::mash_water), f32(20, &R::quarts_per_pound),
                   f32(24, &R::grain_absorption), f32(28, &R::top_up), f32(32, &R::lauter_loss),
                   f32(36, &R::boil_minutes), f32(40, &R::evaporation_rate), f32(44, &R::kettle_deadspace),
                   f32(48, &R::hopback), f32(52, &R::chiller), f32(56, &R::other));
}

inline FieldRows<FermentationLog> fermentation_rows() {
    using R = FermentationLog;
    return rows<R>(u8(0, &R::pitched_from), f32(1, &R::lag_hours), i32(5, &R::amount_pitched),
                   u8(9, &R::amount_unit), u8(10, &R::primary_vessel), u8(11, &R::secondary_vessel),
                   u8(12, &R::primary_open), u8(13, &R::secondary_open), i32(14, &R::primary_days),
                   i32(18, &R::secondary_days), i32(22, &R::primary_temperature),
                   i32(26, &R::secondary_temperature), u8(30, &R::primary_temperature_unit),
                   u8(31, &R::secondary_temperature_unit));
}

inline FieldRows<BottlingLog> bottling_rows() {
    using R = BottlingLog;
    return rows<R>(i32(0, &R::bottling_day), i32(4, &R::bottling_month), i32(8, &R::bottling_year),
                   u8(12, &R::reserved_12), f32(13, &R::co2_volumes), i32(17, &R::ferment_temperature),
                   u8(21, &R::used), f32(24, &R::amount), u8(36, &R::natural_carbonation),
                   u8(39, &R::priming_medium), f32(42, &R::priming_amount), f32(54, &R::liquid_added),
                   i32(66, &R::carbonation_temperature), f32(78, &R::pressure), i32(90, &R::days_conditioned),
                   u8(102, &R::reserved_102));
}

inline FieldRows<SessionTail> tail_rows() {
    using R = SessionTail;
    using A = AlcoholReading;
    const auto pair =
        rows<RefractometerPair>(f32(0, &RefractometerPair::plato), f32(4, &RefractometerPair::net_zeiss));
    const auto alcohol = rows<A>(f32(0, &A::net_zeiss), f32(4, &A::original_extract), f32(8, &A::fg_plato));
    return rows<R>(u8(0, &R::reserved_0), u8(5371, &R::measured_in_fermenter),
                   u8(5372, &R::fg_by_refractometer), u8(5373, &R::reserved_5373),
                   f32(5436, &R::recorded_volume), f32(5440, &R::recorded_og), f32(5444, &R::calculated_ph),
                   Inside{5448, pair, &R::runnings_reading}, Inside{5456, pair, &R::recorded_og_reading},
                   Inside{5464, pair, &R::actual_og_reading}, Inside{5472, pair, &R::actual_fg_reading},
                   Inside{5480, alcohol, &R::alcohol_reading}, u8(5492, &R::reserved_5492));
}

} // namespace wortlex
