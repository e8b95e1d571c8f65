// The two state files of calculators, both read from the same bytes: whatever they hold, no figure is shown
// that is no number.
#include "calculators/boil_off_calculator.h"
#include "fuzz_input.h"
#include "shown_figures.h"

using namespace wortlex;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto settings = default_program().settings;
    DilutionCalculator dilution;
    if (read_dilution(fuzz_bytes(data, size), dilution)) promise(dilution_bytes(dilution).size() == 28);
    Form dilution_rows;
    dilution_form(dilution_rows, dilution, settings);
    check_figures(dilution_rows);
    BoilOffCalculator boil_off;
    if (read_boil_off(fuzz_bytes(data, size), boil_off)) {
        promise(boil_off.rate_minutes >= 1 && boil_off.minutes >= 0);
        BoilOffCalculator again;
        promise(read_boil_off(boil_off_bytes(boil_off), again));
    }
    Form boil_rows;
    boil_off_form(boil_rows, boil_off, settings);
    check_figures(boil_rows);
    return 0;
}
