// A page of the handbook on paper.
#pragma once

#include "page/page.h"

namespace wortlex {

/// Words only: its pictures are left out.
PrintRequest handbook_printout(const std::string& title, const std::string& markdown, float printer_scale);

} // namespace wortlex
