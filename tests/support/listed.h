// A database list over a file of its own.
#pragma once

#include "databases/ingredient_list.h"
#include "support/database_of.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace wortlex {

/// The cells of a column, with a bar behind each.
inline std::string column_of(const IngredientList& list, std::size_t which) {
    std::string cells;
    for (std::size_t row = 0; row < list.shown_count(); ++row) cells += list.cell(row, which) + '|';
    return cells;
}

template <class Record>
struct Listed {
    using Save = bool (*)(const std::string&, const Database<Record>&);

    TemporaryFolder folder;
    Settings settings;
    ScriptedPrompts prompts;
    Database<Record> database;
    std::unique_ptr<RecordList<Record>> list;

    Listed(Save save, ListMaker<Record> make, const std::vector<Record>& entries,
           const Settings& options = {})
        : settings(options) {
        EXPECT_TRUE(save(folder.path(), database_of(entries)));
        list = make({ListSide::maintenance, settings, folder.path()}, database);
        list->open(prompts);
    }
    RecordList<Record>* operator->() const { return list.get(); }

    std::string column(std::size_t which) const { return column_of(*list, which); }
    /// The cells of a row, with a bar behind each.
    std::string row(std::size_t which) const {
        std::string cells;
        for (std::size_t i = 0; i < list->heads().size(); ++i) cells += list->cell(which, i) + '|';
        return cells;
    }
    /// A transfer file; `cut` bytes of its end are missing.
    template <class RecordLayout>
    std::string transfer(const std::vector<Record>& records, const RecordLayout& layout,
                         std::size_t cut = 0) const {
        Bytes bytes;
        for (const auto& record : records) append(bytes, record, layout);
        bytes.resize(bytes.size() - cut);
        save_atomically(folder / "transfer", bytes);
        return folder / "transfer";
    }
    /// The same, taken over; where `exists` is said of an entry, it is replaced.
    template <class RecordLayout>
    void import(const Record& record, const RecordLayout& layout, const std::string& exists,
                const std::string& consequence) {
        if (!exists.empty()) prompts.expect("replace", exists, ReplaceAnswer::yes, {}, consequence);
        prompts.expect_tell("Data Successfully Imported!", Icon::information);
        list->import_file(transfer({record}, layout), prompts);
    }
};

} // namespace wortlex
