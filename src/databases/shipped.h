// The entries that come with the program: what a new version brings along is offered by name, once, and never
// takes the place of a brewer's own.
#pragma once

#include "databases/catalogues.h"

#include <set>

namespace wortlex {

/// Entries by name, a line each: the file of the database, the names and the kind, with tabs between. UTF-8.
using ShippedNames = std::set<std::string>;

/// Beside the databases that come with the program, the names of all that is in them; in a brewery of all
/// that it was made with or has been offered.
inline constexpr std::string_view shipped_names_file = "WlxShipped.txt";
/// There only while entries are added to a brewery.
inline constexpr std::string_view shipped_journal = "WlxShipped.jnl";

template <class Record>
std::string shipped_name(const Catalogue<Record>& catalogue, const Record& record) {
    std::string line(catalogue.words.data_file);
    for (const auto& name : catalogue.names) line += '\t' + utf8_from_windows1252(name(record));
    return catalogue.kind ? line + '\t' + std::string(catalogue.kind(record)) : line;
}

template <class Record>
void add_names(ShippedNames& names, const Catalogue<Record>& catalogue, const Database<Record>& database) {
    for (const auto& record : database.entries()) names.insert(shipped_name(catalogue, record));
}

/// The names in the bytes of their file; nothing if these are not a whole one.
std::optional<ShippedNames> read_shipped_names(ByteView file);
Bytes shipped_names_bytes(const ShippedNames& names);

struct ShippedEntry {
    std::string name; ///< as it is noted
    bool is_wanted = true;
};

/// What is new in one database.
struct ShippedGroup {
    std::string_view heading;
    std::vector<ShippedEntry> entries;
};

/// Both folders end in a slash.
struct ShippedOffer {
    std::string shipped_folder; ///< of the databases that came with the program
    std::string data_folder;
    ShippedNames known; ///< to the brewery, before the offer
    std::vector<ShippedGroup> groups;
};

/// Looks for what is new. A name that the brewer has given an entry already is noted and not offered. Where
/// the brewery has no whole note, all names are noted: a brewer may have deleted entries, and would not want
/// them offered again. A database that is missing or damaged waits, and so does what it has no room for.
/// Nothing is offered where the answer could not be noted.
ShippedOffer find_offer(const std::string& shipped_folder, const std::string& data_folder,
                        const Settings& settings);

/// Adds the entries that are wanted as New does, and notes that all were offered, in one joint save. False:
/// nothing has changed.
bool answer_offer(const ShippedOffer& offer, const Settings& settings);

bool wants_any(const ShippedOffer& offer);
void want_all(ShippedOffer& offer, bool are_wanted);

/// The window of the offer: a note, a check an entry, and `toggle`, which checks all or none.
void offer_form(Form& form, ShippedOffer& offer);

} // namespace wortlex
