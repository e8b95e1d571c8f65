// What is in stock of a document's ingredients, and how a brew day takes it from there.
#pragma once

#include "base/joint_save.h"
#include "records/documents/brew_document.h"
#include "records/ingredients/database_file.h"

#include <string>
#include <vector>

namespace wortlex {

/// The four databases that keep a stock.
struct Stocks {
    Database<MaltRecord> malts;
    Database<HopRecord> hops;
    Database<ExtraRecord> extras;
    Database<YeastRecord> yeasts;
};

/// Reads the four fresh; what is missing is empty, what is damaged as far as it holds. Answers what is wrong,
/// a sentence a file; nothing if all are whole.
std::vector<std::string> LoadStocks(const std::string& data_folder, Stocks& stocks);

/// Whether an entry is what a line was made of. The colour is compared by whole degrees, and the potential
/// within the tolerance of `gravity_close`; alpha, type and medium may have changed where they do not count.
bool is_stock_of(const MaltRecord& entry, const MaltUse& line);
bool is_stock_of(const HopRecord& entry, const HopUse& line);
bool is_stock_of(const ExtraRecord& entry, const ExtraUse& line);
bool is_stock_of(const YeastRecord& entry, const YeastUse& line);

/// The first entry that a line is taken from; null for none.
template <class Record, class Line>
const Record* find_stock(const Database<Record>& database, const Line& line) {
    const auto entries = database.entries();
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const Record& entry) { return is_stock_of(entry, line); });
    return found == entries.end() ? nullptr : &*found;
}

/// What a line takes, in the unit of its stock: of a yeast one.
inline float amount_taken(const MaltUse& line) {
    return line.amount;
}
inline float amount_taken(const HopUse& line) {
    return line.amount;
}
inline float amount_taken(const ExtraUse& line) {
    return line.amount;
}
inline float amount_taken(const YeastUse&) {
    return 1.0F;
}

/// The one yeast of a document, as a list; empty where none was chosen.
std::span<const YeastUse> yeast_lines(const BrewDocument& document);

/// What a booking came to: which databases it changed, and whether everything was there.
struct Booking {
    bool malts = false, hops = false, extras = false, yeasts = false;
    /// Not so with a list of which nothing was found, or with an entry that had run out already.
    bool is_complete = true;
};

/// Takes every line of the document from its stock, none of which falls below 0.
Booking book_stocks(Stocks& stocks, const BrewDocument& document);

/// The files of the databases that were changed.
std::vector<FileChange> changed_files(const std::string& data_folder, const Stocks& stocks,
                                      const Booking& booking);

} // namespace wortlex
