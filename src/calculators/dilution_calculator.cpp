#include "calculators/dilution_calculator.h"

#include "base/files.h"
#include "base/number.h"
#include "brewing/dilution.h"
#include "calculators/state_file.h"

namespace wortlex {
namespace {

constexpr std::string_view dilution_file = "dilute.wxs";

constexpr auto dilution_layout =
    layout<DilutionCalculator, 28>(at(0, via(&DilutionCalculator::wort, &TwinGallons::gallons)),
                                   at(4, via(&DilutionCalculator::gravity, &TwinGravity::sg)),
                                   at(8, via(&DilutionCalculator::water, &TwinGallons::gallons)),
                                   at(12, via(&DilutionCalculator::first, &TwinGallons::gallons)),
                                   at(16, via(&DilutionCalculator::first_gravity, &TwinGravity::sg)),
                                   at(20, via(&DilutionCalculator::second, &TwinGallons::gallons)),
                                   at(24, via(&DilutionCalculator::second_gravity, &TwinGravity::sg)));

TwinGallons sum_of(const TwinGallons& a, const TwinGallons& b) {
    return {narrow(double{a.gallons} + b.gallons), narrow(double{a.litres} + b.litres)};
}

} // namespace

TwinGallons diluted_volume(const DilutionCalculator& calculator) {
    return sum_of(calculator.wort, calculator.water);
}

TwinGallons blended_volume(const DilutionCalculator& calculator) {
    return sum_of(calculator.first, calculator.second);
}

TwinGravity diluted_gravity(const DilutionCalculator& calculator) {
    return of_sg(diluted_gravity(calculator.gravity.sg, calculator.wort.gallons, calculator.water.gallons));
}

TwinGravity blended_gravity(const DilutionCalculator& calculator) {
    return of_sg(blended_gravity({calculator.first.gallons, calculator.first_gravity.sg},
                                 {calculator.second.gallons, calculator.second_gravity.sg}));
}

bool read_dilution(ByteView file, DilutionCalculator& calculator) {
    const auto numbers = [](const DilutionCalculator& read) {
        return std::array{read.wort.gallons,     read.gravity.sg,       read.water.gallons,
                          read.first.gallons,    read.first_gravity.sg, read.second.gallons,
                          read.second_gravity.sg};
    };
    if (!read_state(file, calculator, dilution_layout, numbers)) return false;
    for (auto* const volume : {&calculator.wort, &calculator.water, &calculator.first, &calculator.second})
        *volume = of_gallons(volume->gallons);
    for (auto* const gravity : {&calculator.gravity, &calculator.first_gravity, &calculator.second_gravity})
        *gravity = of_sg(gravity->sg);
    return true;
}

Bytes dilution_bytes(const DilutionCalculator& calculator) {
    return encoded(calculator, dilution_layout);
}

void LoadDilution(const std::string& data_folder, DilutionCalculator& calculator) {
    if (const auto file = read_file(find_data_file(data_folder, dilution_file)))
        read_dilution(*file, calculator);
}

bool SaveDilution(const std::string& data_folder, const DilutionCalculator& calculator, Prompts& prompts) {
    return save_or_tell(find_data_file(data_folder, dilution_file), dilution_bytes(calculator), prompts);
}

} // namespace wortlex
