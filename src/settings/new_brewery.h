// What a newly made brewery folder begins with.
#pragma once

#include "settings/system_settings.h"

#include <string>

namespace wortlex {

/// The built-in settings in the colours of the desktop, and the efficiency that most kitchens reach.
SystemSettings new_brewery_settings();

/// A file that stands in a brewery folder until its first start.
inline constexpr std::string_view new_brewery_file = "WlxNew.txt";

/// Before the first start in a new brewery folder: gives its settings the units of the brewer's country.
/// Settings that are not those of a new folder stay as they are, whatever was put beside them.
void take_units_of_country(const std::string& data_folder, bool is_metric);

} // namespace wortlex
