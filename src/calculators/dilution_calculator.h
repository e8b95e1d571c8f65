// The Dilution Calculator: wort thinned with water, and wort blended with wort.
#pragma once

#include "base/bytes.h"
#include "base/ports/prompts.h"
#include "calculators/twin_rows.h"
#include "page/page.h"

namespace wortlex {

struct DilutionCalculator {
    TwinGallons wort = of_gallons(5);
    TwinGravity gravity = of_sg(1.05F);
    TwinGallons water = of_gallons(1);
    TwinGallons first = of_gallons(5);
    TwinGravity first_gravity = of_sg(1.05F);
    TwinGallons second = of_gallons(1);
    TwinGravity second_gravity = of_sg(1);
};

TwinGallons diluted_volume(const DilutionCalculator& calculator);
TwinGallons blended_volume(const DilutionCalculator& calculator);
TwinGravity diluted_gravity(const DilutionCalculator& calculator);
TwinGravity blended_gravity(const DilutionCalculator& calculator);

/// Edits `calculator`, which must outlive the form.
void dilution_form(Form& form, DilutionCalculator& calculator, const Settings& settings,
                   StateActions actions = {});

PrintRequest dilution_printout(const DilutionCalculator& calculator, const Settings& settings);

/// The state file. What is no number makes it no state file at all: false, and `calculator` stands.
bool read_dilution(ByteView file, DilutionCalculator& calculator);
Bytes dilution_bytes(const DilutionCalculator& calculator);
void LoadDilution(const std::string& data_folder, DilutionCalculator& calculator);
/// Tells of a file that cannot be written.
bool SaveDilution(const std::string& data_folder, const DilutionCalculator& calculator, Prompts& prompts);

} // namespace wortlex
