// A recipe of any size, for measuring.
#pragma once

#include "records/documents/brew_document.h"

namespace wortlex {

/// `lines` malts of all kinds, as many hops, and a complex schedule of 20 steps.
BrewDocument sample_document(std::size_t lines, const Settings& settings);

} // namespace wortlex
