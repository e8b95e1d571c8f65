// Databases of a few entries.
#pragma once

#include "records/ingredients/database_file.h"

namespace wortlex {

template <class Record>
Database<Record> database_of(const std::vector<Record>& entries) {
    Database<Record> database;
    database.count = static_cast<std::int32_t>(entries.size());
    std::copy(entries.begin(), entries.end(), database.slots.begin());
    return database;
}

template <class Record>
Database<Record> database_of(const Record& entry) {
    return database_of(std::vector{entry});
}

} // namespace wortlex
