// Gravities of one efficiency method under the settings of the other: what the brewer is told.
#pragma once

#include "records/documents/brew_document.h"
#include "settings/system_files.h"

#include <optional>
#include <string>

namespace wortlex {

/// Whether the recipe's own efficiency method and that of the settings differ.
bool has_other_method(const BrewDocument& document, const Settings& settings);

/// The warning over a document of the other method; nothing if the methods agree.
std::optional<std::string> method_check_on_load(const BrewDocument& document, const Settings& settings,
                                                DocumentKind kind);
/// The same over a recipe that was picked for a session.
std::optional<std::string> method_check_on_pick(const BrewDocument& document, const Settings& settings);

/// The question, yes or no, before a save. Yes sets the document's method to that of the settings.
std::optional<std::string> method_check_on_save(const BrewDocument& document, const Settings& settings,
                                                DocumentKind kind);

} // namespace wortlex
