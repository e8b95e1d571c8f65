// The amount, colour and yields of one malt line of a document.
#pragma once

#include "forms/form.h"
#include "records/documents/lines.h"

#include <string_view>

namespace wortlex {

/// Which figures of a line can be entered. What plays no part in its gravity is disabled.
struct MaltEntries {
    bool potential = true; ///< and the fine yield on dry basis
    bool moisture = true;  ///< and the yields as is
    bool coarse = true;    ///< the coarse yields and their difference from the fine ones
    std::string_view note; ///< why the others are disabled; empty if none is
};

MaltEntries malt_entries(const MaltRecord& malt, const Settings& settings);

/// Edits `line`, which must outlive the form. Each edit of a potential, yield or moisture stores all of them
/// as they then are; points are left to the recalculation.
void malt_amount_form(Form& form, MaltUse& line, const Settings& settings);

} // namespace wortlex
