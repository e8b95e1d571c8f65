// What one ingredient database says of itself: its columns, sorts, filters, identity, limits and words. One
// store (store.h) and one window do the rest for all six.
#pragma once

#include "base/number.h"
#include "base/windows1252.h"
#include "databases/printouts.h"
#include "forms/form.h"
#include "records/ingredients/database_file.h"

#include <array>
#include <variant>

namespace wortlex {

/// Every database makes room for so many entries by import.
inline constexpr std::int32_t import_limit = 999;

template <class Record>
struct CatalogueColumn {
    std::string caption; ///< `\n` breaks it
    int width = 10;      ///< in digits
    bool is_number = false;
    bool stretches = false;
    /// As the list shows it, UTF-8.
    std::function<std::string(const Record&)> cell;
    /// What it is sorted by. Texts compare without regard to case; what is no number comes last either way.
    std::variant<std::function<std::string(const Record&)>, std::function<float(const Record&)>> key;

    CatalogueColumn stretched() const {
        auto column = *this;
        column.stretches = true;
        return column;
    }
};

/// The stock column's text: two decimals, or dashes for exactly none.
inline std::string stock_cell(float shown) {
    return shown == 0 ? "     --" : formatted("%7.2f", shown);
}

/// The usual kinds of column.
template <class Record>
struct CatalogueBuilder {
    using Column = CatalogueColumn<Record>;
    using ToText = std::function<std::string(const Record&)>;
    using ToNumber = std::function<float(const Record&)>;

    template <std::size_t N>
    static Column text(std::string caption, int width, Text<N> Record::*field) {
        return {
            std::move(caption),
            width,
            false,
            false,
            ToText([field](const Record& record) { return utf8_from_windows1252((record.*field).view()); }),
            ToText([field](const Record& record) { return std::string((record.*field).view()); })};
    }
    /// The words that stand in the list, which it is also sorted by.
    static Column words(std::string caption, int width, ToText word) {
        return {std::move(caption), width, false, false, word, word};
    }
    static Column number(std::string caption, int width, float Record::*field, std::string_view pattern) {
        return {std::move(caption),
                width,
                true,
                false,
                ToText([field, pattern](const Record& record) { return formatted(pattern, record.*field); }),
                ToNumber([field](const Record& record) { return record.*field; })};
    }
    /// An amount in stock, in the unit shown.
    static Column stock(std::string caption, float Record::*field, std::function<float(float)> to_shown) {
        return {std::move(caption),
                9,
                true,
                false,
                ToText([field, to_shown = std::move(to_shown)](const Record& record) {
                    return stock_cell(to_shown(record.*field));
                }),
                ToNumber([field](const Record& record) { return record.*field; })};
    }
};

/// Cuts a text from a file that is longer than its dialog takes.
template <std::size_t N>
void cut_to(Text<N>& text, std::size_t most) {
    if (text.view().size() > most) text.assign(std::string(text.view().substr(0, most)));
}

template <class Record>
struct CatalogueFilter {
    std::string label; ///< with its mnemonic
    std::string maintenance_caption;
    std::string pick_caption;
    std::function<bool(const Record&)> passes;
};

/// A text of a record, which must outlive it.
template <class Record>
using CatalogueText = std::function<std::string_view(const Record&)>;

template <class Record, std::size_t N>
CatalogueText<Record> stored_text(Text<N> Record::*field) {
    return [field](const Record& record) { return (record.*field).view(); };
}

/// The fixed words of a database; see the six modules.
struct CatalogueWords {
    std::string_view import_filter;
    std::string_view import_extension;
    std::array<std::string_view, 2> sort_files; ///< of maintenance and pick
    std::string_view data_file;
    std::string_view full; ///< at the import limit
    std::string_view clone_warning;
    std::string_view replace_warning;
    std::string_view closing_question;
    std::string_view maintenance_template;
    std::string_view entry_template;
    std::string_view inventory_template;
    std::string_view pick_template;
};

/// The stock of a record and how it is shown.
template <class Record>
struct CatalogueStock {
    float Record::*amount = nullptr; ///< null: the database keeps none
    std::function<float(float)> to_shown;
    std::function<float(float)> from_shown;
    std::function<std::string(const Record&)> unit;
    float most_typed = 10000;
    /// What the inventory dialog says of the record; empty: its name.
    std::function<std::string(const Record&)> title = nullptr;
};

/// What a database has to print.
template <class Record>
struct CataloguePages {
    std::vector<std::string> list_titles; ///< by filter
    std::vector<int> stops;               ///< as in `PrintedList`
    std::vector<std::string> heads;
    /// The cells of a row; empty: those of the list.
    std::function<std::vector<std::string>(const Record&)> row;
    std::string entry_title;
    std::function<EntryLines(const Record&)> entry;
};

template <class Record>
struct Catalogue {
    CatalogueWords words;
    std::vector<CatalogueColumn<Record>> columns;
    std::vector<std::vector<std::size_t>>
        chains;                        ///< by column: the columns whose keys sort one after the other
    std::vector<std::size_t> identity; ///< the columns that tell entries apart in the list
    std::vector<CatalogueFilter<Record>> filters; ///< the first passes all; empty: none to choose
    CatalogueStock<Record> stock;
    std::int32_t new_limit = 244; ///< of New and Clone; 0: there is no Clone

    std::function<Record(std::size_t filter)> new_record;
    std::function<void(Form&, Record&)> entry_form;
    std::size_t entry_caption = 0; ///< of those that the entry dialog has
    CataloguePages<Record> pages;

    /// The texts, as stored, by which an imported record is one that is there already.
    std::vector<CatalogueText<Record>> names;
    /// Which of several such is meant rather: the one with the same word; empty: the first.
    CatalogueText<Record> kind = nullptr;
    /// Carries what a replacement keeps into the imported record.
    std::function<void(Record& imported, const Record& existing)> keep;
    /// The two names of an entry in questions: on replacing, and on deleting.
    std::function<std::string(const Record&)> exists_text;
    std::function<std::string(const Record&)> delete_name;

    std::function<DatabaseState(Database<Record>&, Prompts&)> load;
    std::function<bool(const Database<Record>&)> save;
};

template <class Record>
bool has_same_names(const Catalogue<Record>& catalogue, const Record& a, const Record& b) {
    return std::all_of(catalogue.names.begin(), catalogue.names.end(),
                       [&](const auto& name) { return name(a) == name(b); });
}

template <class Record>
bool is_same_kind(const Catalogue<Record>& catalogue, const Record& a, const Record& b) {
    return !catalogue.kind || catalogue.kind(a) == catalogue.kind(b);
}

constexpr const auto& layout_of(const HopRecord&) {
    return hop_layout;
}
constexpr const auto& layout_of(const MaltRecord&) {
    return malt_layout;
}
constexpr const auto& layout_of(const YeastRecord&) {
    return yeast_layout;
}
constexpr const auto& layout_of(const WaterRecord&) {
    return water_layout;
}
constexpr const auto& layout_of(const StyleRecord&) {
    return style_layout;
}
constexpr const auto& layout_of(const ExtraRecord&) {
    return extra_layout;
}

} // namespace wortlex
