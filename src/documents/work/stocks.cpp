#include "documents/work/stocks.h"

#include "measures/rounding.h"

#include <cmath>

namespace wortlex {
namespace {

template <class Record, class RecordLayout>
void load_stock(const std::string& folder, std::string_view name, const RecordLayout& format,
                Database<Record>& database, std::vector<std::string>& faults) {
    const auto state = read_database_file(folder, name, format, database);
    if (state == DatabaseState::loaded) return;
    const auto* const what =
        state == DatabaseState::missing ? " was not found." : " is damaged or too short.";
    faults.push_back("The file " + std::string(name) + what);
}

// What is no number is not booked.
float left_of(float stock, float amount) {
    const double left = double{stock} - amount;
    return std::isnan(left) ? stock : narrow(std::max(left, 0.0));
}

// Whether the database has changed.
template <class Record, class Lines>
bool book_lines(Database<Record>& database, const Lines& lines, bool& is_complete) {
    bool has_changed = false, has_found = false;
    for (const auto& line : lines) {
        const auto* const entry = find_stock(database, line);
        if (entry == nullptr) continue;
        has_found = true;
        auto& stock = database.slots[static_cast<std::size_t>(entry - database.slots.data())].stock;
        if (!(stock > 0)) is_complete = false;
        const float left = left_of(stock, amount_taken(line));
        has_changed = has_changed || left != stock;
        stock = left;
    }
    is_complete = is_complete && (lines.empty() || has_found);
    return has_changed;
}

} // namespace

std::vector<std::string> LoadStocks(const std::string& data_folder, Stocks& stocks) {
    std::vector<std::string> faults;
    load_stock(data_folder, malt_file, malt_layout, stocks.malts, faults);
    load_stock(data_folder, hop_file, hop_layout, stocks.hops, faults);
    load_stock(data_folder, extra_file, extra_layout, stocks.extras, faults);
    load_stock(data_folder, yeast_file, yeast_layout, stocks.yeasts, faults);
    return faults;
}

bool is_stock_of(const MaltRecord& entry, const MaltUse& line) {
    const auto& malt = line.record;
    return entry.name == malt.name && entry.origin == malt.origin &&
           gravity_close(entry.potential, malt.potential) && truncate(entry.colour) == truncate(malt.colour);
}

bool is_stock_of(const HopRecord& entry, const HopUse& line) {
    const auto& hop = line.record;
    return entry.name == hop.name && entry.origin == hop.origin && form(entry) == form(hop);
}

bool is_stock_of(const ExtraRecord& entry, const ExtraUse& line) {
    return entry.name == line.record.name && entry.extra_type == line.record.extra_type;
}

bool is_stock_of(const YeastRecord& entry, const YeastUse& line) {
    const auto& yeast = line.record;
    return entry.name == yeast.name && entry.lab == yeast.lab &&
           entry.catalog_number == yeast.catalog_number && entry.yeast_kind == yeast.yeast_kind &&
           entry.yeast_medium == yeast.yeast_medium;
}

std::span<const YeastUse> yeast_lines(const BrewDocument& document) {
    return {&document.yeast, document.yeast.record.name.empty() ? 0U : 1U};
}

Booking book_stocks(Stocks& stocks, const BrewDocument& document) {
    Booking booking;
    booking.malts = book_lines(stocks.malts, document.malts, booking.is_complete);
    booking.hops = book_lines(stocks.hops, document.hops, booking.is_complete);
    booking.extras = book_lines(stocks.extras, document.extras, booking.is_complete);
    booking.yeasts = book_lines(stocks.yeasts, yeast_lines(document), booking.is_complete);
    return booking;
}

std::vector<FileChange> changed_files(const std::string& data_folder, const Stocks& stocks,
                                      const Booking& booking) {
    std::vector<FileChange> changes;
    const auto add = [&](bool has_changed, std::string_view name, const auto& database, const auto& format) {
        if (has_changed)
            changes.push_back({find_data_file(data_folder, name), database_bytes(database, format)});
    };
    add(booking.malts, malt_file, stocks.malts, malt_layout);
    add(booking.hops, hop_file, stocks.hops, hop_layout);
    add(booking.extras, extra_file, stocks.extras, extra_layout);
    add(booking.yeasts, yeast_file, stocks.yeasts, yeast_layout);
    return changes;
}

} // namespace wortlex
