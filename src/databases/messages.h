// What all lists say.
#pragma once

#include <string_view>

namespace wortlex {

inline constexpr std::string_view no_room = "There is not enough room in the database for a new "
                                            "entry!\n\nPlease delete entries that are no longer needed to "
                                            "free some space in the database.";
inline constexpr std::string_view nothing_to_clone = "There is no entry selected to clone!";
inline constexpr std::string_view data_imported = "Data Successfully Imported!";
inline constexpr std::string_view not_saved =
    "The database could not be saved. Is the disk full, or the folder "
    "read-only?";
inline constexpr std::string_view no_backup = "Nothing was imported, as the database could not be copied "
                                              "before. Is the disk full, or the folder read-only?";
inline constexpr std::string_view nameless = "An entry needs a name.";
inline constexpr std::string_view set_to_zero =
    "You are about to set the inventory amount for this item to Zero.\n\nDo you really want to do this?\n";

} // namespace wortlex
