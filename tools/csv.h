// Comma-separated tables: a line of column names, then a row a line. A cell with a comma or a quote in it
// stands in quotes, where a quote is doubled; it does not run over a line's end.
#pragma once

#include "source_value.h"

namespace wortlex {

struct CsvRow {
    Place place;
    std::vector<SourceValue> cells; ///< one a column, and named like it

    /// Refuses a table that has no such column.
    const SourceValue& operator[](std::string_view column) const;
};

/// The rows of a table; empty lines do not count.
std::vector<CsvRow> read_csv(const std::string& path);

} // namespace wortlex
