// What is looked for on the shelf: words, as in every list, and conditions such as "og>1.055".
#pragma once

#include "databases/find.h"
#include "program/shelf/shelf_entry.h"

namespace wortlex {

enum class Comparison : std::uint8_t { below, at_most, equal, at_least, above };

struct ShelfCondition {
    ShelfFigure figure{};
    Comparison comparison{};
    double value = 0;
    double tolerance = 0; ///< of `equal`: half of the last digit that was typed
};

struct ShelfQuery {
    FindQuery words; ///< without other names the first alone; empty: any
    std::vector<ShelfCondition> conditions;

    bool is_empty() const { return words.empty() && conditions.empty(); }
};

/// Words, and behind "og", "ibu", "srm", "ebc", "color" or "size" a comparison (< <= = >= >) with a number in
/// the unit that is shown; a gravity may be Plato, or 1055 for 1.055. A condition that is not yet typed to
/// its end asks for nothing.
ShelfQuery make_shelf_query(std::string_view typed, const OtherNames& names);

/// Whether an entry has all the words, as parts of its own, and meets all conditions. What cannot be opened
/// meets none.
bool is_found(const ShelfEntry& entry, const ShelfQuery& query);

} // namespace wortlex
