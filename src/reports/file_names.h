// The names that the file dialogs of reports propose.
#pragma once

#include "records/documents/session_document.h"
#include "settings/settings.h"

#include <string>
#include <string_view>

namespace wortlex {

/// What the pages of a mash schedule are called in the name of their file.
inline constexpr std::string_view mash_pages_name = "Mash Schedule";

enum class ReportOutput { report, competition_form, competition_labels };

/// The name of a recipe's text file, without an ending: "Comp_" stands before that of a form, "CompL_" before
/// that of labels. `title` is UTF-8.
std::string recipe_file_name(std::string_view title, ReportOutput output);

/// That of a session, with the date of its brew day, or without a title that date alone. A date that no
/// calendar has is left out.
std::string session_file_name(std::string_view title, const SessionDocument& session, ReportOutput output,
                              const Settings& settings);

/// That of the pages of a session's report, which a recipe of that `name` has not: "Ale - session
/// 2026-11-22".
std::string session_pages_name(const std::string& name, const SessionDocument& session);

/// That of the pages of one part of a document: "Ale - Notes". Empty without a title.
std::string part_pages_name(const std::string& title, std::string_view part);

/// The same for a page of HTML: what an address had better not hold becomes "_".
std::string html_file_name(std::string name);

/// A name with its ending, that every file system and its dialog take: no folder in it, no quotes, and no
/// longer than it may be.
std::string proposed_file(std::string name, std::string_view extension);

} // namespace wortlex
