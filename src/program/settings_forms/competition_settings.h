// What competition printouts tell of the brewer.
#pragma once

#include "forms/form.h"
#include "settings/system_files.h"

namespace wortlex {

void competition_form(Form& form, CompetitionInfo& info, std::function<void()> help = nullptr);

} // namespace wortlex
