// The Boil Off Calculator: what a boil leaves, by a rate that the lower half figures or as entered.
#pragma once

#include "base/bytes.h"
#include "base/ports/prompts.h"
#include "brewing/evaporation.h"
#include "calculators/dilution_calculator.h"

namespace wortlex {

enum class BoilOffMethod : std::uint8_t { volume_per_hour = 0, percent_per_hour = 1, free_entry = 2 };

struct BoilOffCalculator {
    TwinGallons wort = of_gallons(5);
    TwinGravity gravity = of_sg(1.05F);
    TwinGallons evaporated = of_gallons(1); ///< as entered, or as last worked out
    std::int32_t minutes = 60;
    TwinGallons rate_start = of_gallons(5);
    TwinGallons rate_final = of_gallons(4);
    std::int32_t rate_minutes = 60;
    BoilOffMethod method = BoilOffMethod::percent_per_hour;
};

/// Gallons.
EvaporationRate rate_of(const BoilOffCalculator& calculator);
/// No number where a rate by percent is asked of nothing.
TwinGallons evaporated_amount(const BoilOffCalculator& calculator);
TwinGallons volume_after_boil(const BoilOffCalculator& calculator);
/// 0 and 0 where it would be less than water.
TwinGravity gravity_after_boil(const BoilOffCalculator& calculator);

/// To be called after each edit: no more goes than there is, and what was worked out is where a free entry
/// begins.
void settle_boil_off(BoilOffCalculator& calculator);

/// Edits `calculator`, which must outlive the form.
void boil_off_form(Form& form, BoilOffCalculator& calculator, const Settings& settings,
                   StateActions actions = {});

PrintRequest boil_off_printout(const BoilOffCalculator& calculator, const Settings& settings);

/// The state file. What is no number makes it no state file at all: false, and `calculator` stands.
bool read_boil_off(ByteView file, BoilOffCalculator& calculator);
Bytes boil_off_bytes(const BoilOffCalculator& calculator);
void LoadBoilOff(const std::string& data_folder, BoilOffCalculator& calculator);
/// Tells of a file that cannot be written.
bool SaveBoilOff(const std::string& data_folder, const BoilOffCalculator& calculator, Prompts& prompts);

} // namespace wortlex
