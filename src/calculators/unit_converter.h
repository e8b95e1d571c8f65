// Measurements And Conversions: families of units, each kept in step with the field that was typed.
#pragma once

#include "brewing/unit_families.h"
#include "calculators/twin_rows.h"
#include "page/page.h"

namespace wortlex {

struct UnitConverter {
    UnitConverter() { reset(); }
    /// Nothing of every measure, 60 F, water, 1 psi.
    void reset();

    std::array<float, 9> us_fluid{};
    std::array<float, 9> imperial_fluid{};
    std::array<float, 5> weight{};
    std::array<float, 5> temperature{};
    std::array<float, 2> gravity{};
    std::array<float, 2> pressure{};
};

/// Edits `converter`, which must outlive the form.
void unit_converter_form(Form& form, UnitConverter& converter, const Settings& settings,
                         ToolActions actions = {});

PrintRequest unit_converter_printout(const UnitConverter& converter, const Settings& settings);

} // namespace wortlex
