// What competition printouts tell of the brewer.
#pragma once

#include "frame/settings/system_files.h"
#include "measures/fields/form.h"

namespace wortlex {

void competition_form(Form& form, CompetitionInfo& info, std::function<void()> help = nullptr);

} // namespace wortlex
