// The one list behind all six databases: what a catalogue describes, kept, sorted, filtered, edited and
// imported.
#pragma once

#include "base/ports/quiet_prompts.h"
#include "databases/backup.h"
#include "databases/import.h"
#include "databases/ingredient_list.h"
#include "databases/inventory.h"
#include "databases/sorting.h"

#include <cmath>

namespace wortlex {

/// A figure that is no number equals itself.
template <class Record>
bool is_identical(const Record& a, const Record& b) {
    return a == b || encoded(a, layout_of(a)) == encoded(b, layout_of(b));
}

/// Whether two databases have the same entries and leftovers. Entries that sort alike may have changed
/// places.
template <class Record>
bool holds_the_same(const Database<Record>& a, const Database<Record>& b) {
    if (a.count != b.count) return false;
    const auto end = a.slots.begin() + a.count;
    return std::is_permutation(a.slots.begin(), end, b.slots.begin(), is_identical<Record>) &&
           std::equal(end, a.slots.end(), b.slots.begin() + b.count, is_identical<Record>);
}

template <class Record>
class Store : public RecordList<Record> {
public:
    using RecordList<Record>::filter;
    using RecordList<Record>::only_in_stock;
    using RecordList<Record>::selected;
    using RecordList<Record>::print;

    Store(Catalogue<Record> catalogue, ListSource source, Database<Record>& database)
        : catalogue_(std::move(catalogue)), database_(database), source_(std::move(source)) {}

    void open(Prompts& prompts) override;

    std::vector<ListColumn> heads() const override;
    std::vector<std::string> filter_labels() const override;
    bool has_stock() const override { return catalogue_.stock.amount != nullptr; }
    bool can_clone() const override { return !catalogue_.words.clone_warning.empty(); }
    std::string_view import_extension() const override { return catalogue_.words.import_extension; }
    std::string caption() const override;
    std::string_view dialog_template() const override;
    SortMark sort_mark() const override {
        return {sort_.column, sort_.descending[sort_.column] == 0}; // the flag is that of the next click
    }
    std::size_t shown_count() const override { return shown_.size(); }
    std::string cell(std::size_t row, std::size_t column) const override {
        return catalogue_.columns[column].cell(database_.slots[shown_[row]]);
    }

    void choose_filter(std::int32_t chosen, Prompts& prompts) override;
    void show_only_in_stock(bool only) override;
    void click(std::size_t column) override;

    std::unique_ptr<EntryForm> new_entry(Prompts& prompts) override;
    std::unique_ptr<EntryForm> edit_entry(Prompts& prompts) override;
    std::unique_ptr<EntryForm> inventory(Prompts& prompts) override;
    void clone_entry(Prompts& prompts) override;
    void delete_entry(Prompts& prompts) override;
    void import(Files& files, Prompts& prompts) override;
    void import_file(const std::string& path, Prompts& prompts) override;
    void save(Prompts& prompts) override;
    std::size_t unsaved_count() override;
    void follow_stocks() override;
    bool close(Prompts& prompts) override;
    PrintRequest printout() const override;

    /// The same from the bytes of a transfer file; messages tell the last part of its `path`.
    void import_bytes(ByteView file, const std::string& path, Prompts& prompts);

    std::optional<Record> selected_record() const override;

protected:
    std::span<Record> entries() {
        return std::span(database_.slots).first(static_cast<std::size_t>(database_.count));
    }
    /// Both sort the array as the files have it; `write` tells where it fails.
    bool is_changed();
    bool write(Prompts& prompts);
    /// Reads the file, dropping what was changed.
    void reload(Prompts& prompts);
    /// The list as it was before the array was sorted for the file.
    void show_again();
    ListSide side() const { return source_.side; }
    const ListSource& source() const { return source_; }

    Catalogue<Record> catalogue_;
    Database<Record>& database_;

private:
    bool has_selection() const { return selected >= 0 && static_cast<std::size_t>(selected) < shown_.size(); }
    std::optional<std::size_t> selected_entry() const;
    std::size_t first_like(std::size_t entry) const;
    bool passes(const Record& record) const;
    void fill();
    /// Puts the array into the order of the files; the rows stay as they are shown.
    void sort_for_file();
    /// The entry in the selected row, to be found again once the array has been sorted.
    std::optional<Record> entry_in_row() const;
    void select(const std::optional<Record>& entry);
    void append(const Record& record);
    void put_entry(std::size_t place, Record record);
    bool has_room(Prompts& prompts) const;
    std::unique_ptr<EntryForm> form_on(std::shared_ptr<Record> copy, Prompts& prompts,
                                       std::function<void(const Record&)> store) const;
    std::vector<std::string> printed_row(const Record& record) const;
    std::function<void()> print_action(const std::shared_ptr<Record>& copy) const;
    std::string sort_path() const {
        const auto place = static_cast<std::size_t>(side());
        return source_.data_folder + std::string(catalogue_.words.sort_files.at(place));
    }
    std::string data_path() const { return find_data_file(source_.data_folder, catalogue_.words.data_file); }

    struct Merge {
        int changed = 0;
        int left_out = 0; ///< for want of room
        bool all = false; ///< every question is answered
        bool cancelled = false;
    };
    typename std::span<Record>::iterator find_existing(const Record& record);
    Record* find_unbooked(const Record& before);
    void merge(Record record, Merge& merge, Prompts& prompts);
    void finish_import(const Merge& merge, Prompts& prompts);

    ListSource source_;
    Database<Record> saved_;
    SortState sort_{std::vector<std::uint8_t>(catalogue_.columns.size(), 1), 0}; ///< until a file is read
    std::vector<std::size_t> shown_;    ///< the entries in the list, row by row
    std::optional<std::size_t> cloned_; ///< the copy made last: it is meant itself as long as the rows stand
};

template <class Record>
void Store<Record>::open(Prompts& prompts) {
    reload(prompts);
    sort_ = LoadSort(sort_path(), catalogue_.columns.size());
    click(sort_.column);
}

template <class Record>
void Store<Record>::reload(Prompts& prompts) {
    catalogue_.load(database_, prompts);
    if (side() == ListSide::maintenance) sort_canonically<Record>(entries(), catalogue_);
    saved_ = database_;
}

template <class Record>
std::vector<ListColumn> Store<Record>::heads() const {
    std::vector<ListColumn> heads;
    for (const auto& column : catalogue_.columns)
        heads.push_back(
            {.caption = [this, place = heads.size()] { return catalogue_.columns[place].caption; },
             .is_number = column.is_number,
             .width = column.width,
             .stretches = column.stretches});
    return heads;
}

template <class Record>
std::vector<std::string> Store<Record>::filter_labels() const {
    std::vector<std::string> labels;
    for (const auto& choice : catalogue_.filters) labels.push_back(choice.label);
    return labels;
}

template <class Record>
std::string Store<Record>::caption() const {
    const auto& chosen = catalogue_.filters[static_cast<std::size_t>(filter)];
    return side() == ListSide::pick ? chosen.pick_caption : chosen.maintenance_caption;
}

template <class Record>
std::string_view Store<Record>::dialog_template() const {
    return side() == ListSide::pick ? catalogue_.words.pick_template : catalogue_.words.maintenance_template;
}

template <class Record>
bool Store<Record>::passes(const Record& record) const {
    if (only_in_stock && has_stock() && record.*catalogue_.stock.amount == 0) return false;
    const auto& test = catalogue_.filters[static_cast<std::size_t>(filter)].passes;
    return !test || test(record);
}

template <class Record>
void Store<Record>::fill() {
    shown_.clear();
    for (std::size_t i = 0; i < entries().size(); ++i)
        if (passes(database_.slots[i])) shown_.push_back(i);
    selected = shown_.empty() ? -1 : 0;
    cloned_.reset();
}

template <class Record>
void Store<Record>::choose_filter(std::int32_t chosen, Prompts& /*prompts*/) {
    filter = chosen;
    fill();
}

template <class Record>
void Store<Record>::show_only_in_stock(bool only) {
    only_in_stock = only;
    fill();
}

template <class Record>
void Store<Record>::click(std::size_t column) {
    for (std::size_t other = 0; other < sort_.descending.size(); ++other)
        if (other != column) sort_.descending[other] = 0;
    sort_by<Record>(entries(), catalogue_, column, sort_.descending);
    fill();
    sort_.descending[column] ^= 1;
    sort_.column = column;
}

template <class Record>
void Store<Record>::show_again() {
    sort_.descending[sort_.column] ^= 1;
    click(sort_.column);
}

template <class Record>
std::optional<Record> Store<Record>::entry_in_row() const {
    if (!has_selection()) return std::nullopt;
    return database_.slots[shown_[static_cast<std::size_t>(selected)]];
}

// Leaves the selection as it is if the entry is not in the list any more.
template <class Record>
void Store<Record>::select(const std::optional<Record>& entry) {
    const auto found = std::find_if(shown_.begin(), shown_.end(), [&](std::size_t place) {
        return entry && is_identical(database_.slots[place], *entry);
    });
    if (found != shown_.end()) selected = static_cast<std::int32_t>(found - shown_.begin());
}

template <class Record>
std::optional<std::size_t> Store<Record>::selected_entry() const {
    if (!has_selection()) return std::nullopt;
    const auto entry = shown_[static_cast<std::size_t>(selected)];
    return entry == cloned_ ? entry : first_like(entry);
}

template <class Record>
std::size_t Store<Record>::first_like(std::size_t entry) const {
    const auto& wanted = database_.slots[entry];
    const auto reads_the_same = [&](const Record& record) {
        return std::all_of(catalogue_.identity.begin(), catalogue_.identity.end(), [&](std::size_t column) {
            const auto& cell = catalogue_.columns[column].cell;
            return cell(record) == cell(wanted);
        });
    };
    const auto all = database_.entries();
    const auto found = std::find_if(all.begin(), all.end(), reads_the_same);
    return static_cast<std::size_t>(found - all.begin());
}

template <class Record>
std::optional<Record> Store<Record>::selected_record() const {
    const auto index = selected_entry();
    if (!index) return std::nullopt;
    return database_.slots[*index];
}

template <class Record>
std::unique_ptr<EntryForm> Store<Record>::form_on(std::shared_ptr<Record> copy, Prompts& prompts,
                                                  std::function<void(const Record&)> store) const {
    auto entry = std::make_unique<EntryForm>();
    entry->dialog_template = catalogue_.words.entry_template;
    entry->caption = catalogue_.entry_caption;
    catalogue_.entry_form(entry->form, *copy);
    auto& buttons = entry->form.group();
    buttons.button("print", "Print", print_action(copy));
    buttons.button("help", "Help", nullptr);
    entry->form.accept_if([copy, &prompts] {
        const bool has_name = copy->name.view().find_first_not_of(' ') != std::string_view::npos;
        if (!has_name) prompts.tell({.text = nameless, .icon = Icon::warning, .is_advice = true});
        return has_name;
    });
    entry->form.on_accept([copy, store = std::move(store)] { store(*copy); });
    return entry;
}

template <class Record>
std::function<void()> Store<Record>::print_action(const std::shared_ptr<Record>& copy) const {
    if (!print) return nullptr;
    return [this, copy] {
        const auto& title = catalogue_.pages.entry_title;
        print({title, 1, [title, entry = catalogue_.pages.entry(*copy)](PageContext& page) {
                   print_entry(page, title, entry);
               }});
    };
}

template <class Record>
std::vector<std::string> Store<Record>::printed_row(const Record& record) const {
    if (catalogue_.pages.row) return catalogue_.pages.row(record);
    std::vector<std::string> cells;
    for (const auto& column : catalogue_.columns) cells.push_back(column.cell(record));
    return cells;
}

template <class Record>
PrintRequest Store<Record>::printout() const {
    const auto& pages = catalogue_.pages;
    PrintedList list{pages.list_titles.at(static_cast<std::size_t>(filter)), pages.stops, pages.heads, {}};
    for (const auto place : shown_) list.rows.push_back(printed_row(database_.slots[place]));
    auto title = list.title;
    return {std::move(title), 1, [list = std::move(list)](PageContext& page) { print_list(page, list); }};
}

template <class Record>
bool Store<Record>::has_room(Prompts& prompts) const {
    if (database_.count < catalogue_.new_limit) return true;
    prompts.tell({.text = no_room, .icon = Icon::warning, .is_advice = true});
    return false;
}

template <class Record>
void Store<Record>::append(const Record& record) {
    const auto place = static_cast<std::size_t>(database_.count);
    database_.slots[place] = record;
    ++database_.count;
    shown_.push_back(place);
    selected = static_cast<std::int32_t>(shown_.size()) - 1;
}

template <class Record>
std::unique_ptr<EntryForm> Store<Record>::new_entry(Prompts& prompts) {
    if (!has_room(prompts)) return nullptr;
    return form_on(std::make_shared<Record>(catalogue_.new_record(static_cast<std::size_t>(filter))), prompts,
                   [this](const Record& record) { append(record); });
}

template <class Record>
std::unique_ptr<EntryForm> Store<Record>::edit_entry(Prompts& prompts) {
    const auto index = selected_entry();
    if (!index) return nullptr;
    return form_on(std::make_shared<Record>(database_.slots[*index]), prompts,
                   [this, place = *index](const Record& record) { put_entry(place, record); });
}

// A session may have been booked while the entry was open, whose form has no stock.
template <class Record>
void Store<Record>::put_entry(std::size_t place, Record record) {
    auto& entry = database_.slots[place];
    if (has_stock()) record.*catalogue_.stock.amount = entry.*catalogue_.stock.amount;
    entry = std::move(record);
}

template <class Record>
std::unique_ptr<EntryForm> Store<Record>::inventory(Prompts& prompts) {
    const auto index = selected_entry();
    if (!index || !has_stock()) return nullptr;
    const auto& stock = catalogue_.stock;
    auto& record = database_.slots[*index];
    auto entry = std::make_unique<EntryForm>();
    entry->dialog_template = catalogue_.words.inventory_template;
    inventory_form(entry->form,
                   {.name = stock.title ? stock.title(record) : catalogue_.delete_name(record),
                    .unit = stock.unit(record),
                    .stock = record.*stock.amount,
                    .to_shown = stock.to_shown,
                    .from_shown = stock.from_shown,
                    .most_typed = stock.most_typed},
                   prompts);
    return entry;
}

template <class Record>
void Store<Record>::clone_entry(Prompts& prompts) {
    const auto index = selected_entry();
    if (!index) return prompts.tell({.text = nothing_to_clone, .icon = Icon::information});
    if (!has_room(prompts)) return;
    if (prompts.ask_yes_no({.text = catalogue_.words.clone_warning, .icon = Icon::warning}) != Answer::yes)
        return;
    append(Record(database_.slots[*index]));
    cloned_ = shown_.back();
}

template <class Record>
void Store<Record>::delete_entry(Prompts& prompts) {
    const auto index = selected_entry();
    if (!index) return;
    const auto question = "Do you really want to delete the\n\n" +
                          catalogue_.delete_name(database_.slots[*index]) + "\n\nentry?";
    if (prompts.ask_yes_no({.text = question, .icon = Icon::question}) != Answer::yes) return;
    const auto all = entries();
    std::move(all.begin() + static_cast<std::ptrdiff_t>(*index) + 1, all.end(),
              all.begin() + static_cast<std::ptrdiff_t>(*index));
    // The last entry stays behind in the slot that has become free; the one behind that is cleared.
    if (all.size() < database_.slots.size()) database_.slots[all.size()] = {};
    --database_.count;
    cloned_.reset();
    std::erase(shown_, *index);
    for (auto& row : shown_)
        if (row > *index) --row;
    selected = shown_.empty() ? -1 : std::max(selected - 1, 0);
}

template <class Record>
void Store<Record>::import(Files& files, Prompts& prompts) {
    const auto& words = catalogue_.words;
    const auto path =
        files.choose_to_open({words.import_filter, source_.data_folder, {}, words.import_extension});
    if (path) import_file(*path, prompts);
}

template <class Record>
void Store<Record>::import_file(const std::string& path, Prompts& prompts) {
    const auto file = read_file(path);
    if (!file) return prompts.tell({.text = file_not_found, .icon = Icon::error, .own = path});
    import_bytes(*file, path, prompts);
}

template <class Record>
void Store<Record>::import_bytes(ByteView file, const std::string& path, Prompts& prompts) {
    auto records = transferred<Record>(file);
    const auto unreadable =
        std::erase_if(records, [](const Record& record) { return !looks_like_a_record(record); });
    if (records.empty()) {
        const auto name = file_name(path);
        return prompts.tell({.text = nothing_to_import(name), .icon = Icon::error, .own = name});
    }
    sort_for_file();
    const auto before = database_;
    Merge merge;
    for (auto& record : records) {
        this->merge(std::move(record), merge, prompts);
        if (merge.cancelled) return show_again();
    }
    if (merge.changed > 0 && !keep_backup(data_path())) {
        database_ = before;
        prompts.tell({.text = no_backup, .icon = Icon::error});
        return show_again();
    }
    if (unreadable > 0) prompts.tell({.text = left_out_unreadable(unreadable), .icon = Icon::warning});
    finish_import(merge, prompts);
}

// The entry that an imported record replaces; of several the closest.
template <class Record>
typename std::span<Record>::iterator Store<Record>::find_existing(const Record& record) {
    const auto all = entries();
    const auto is_same = [&](const Record& there) { return has_same_names(catalogue_, there, record); };
    const auto first = std::find_if(all.begin(), all.end(), is_same);
    const auto closest = std::find_if(first, all.end(), [&](const Record& there) {
        return is_same(there) && is_same_kind(catalogue_, there, record);
    });
    return closest == all.end() ? first : closest;
}

template <class Record>
void Store<Record>::merge(Record record, Merge& merge, Prompts& prompts) {
    const auto all = entries();
    const auto found = find_existing(record);
    if (found == all.end()) {
        if (database_.count >= import_limit) {
            ++merge.left_out;
            return;
        }
        if (has_stock()) record.*catalogue_.stock.amount = 0;
        database_.slots[all.size()] = std::move(record);
        ++database_.count;
        ++merge.changed;
        return;
    }
    if (!merge.all) {
        const auto answer =
            prompts.ask_replace(catalogue_.exists_text(record), catalogue_.words.replace_warning);
        merge.cancelled = answer == ReplaceAnswer::cancel;
        merge.all = answer == ReplaceAnswer::yes_to_all;
        if (merge.cancelled || answer == ReplaceAnswer::no) return;
    }
    catalogue_.keep(record, *found);
    *found = std::move(record);
    ++merge.changed;
}

template <class Record>
void Store<Record>::finish_import(const Merge& merge, Prompts& prompts) {
    if (merge.left_out > 0) {
        const auto text = database_full(catalogue_.words.full, merge.left_out);
        prompts.tell({.text = text, .icon = Icon::warning, .is_advice = true});
    }
    if (merge.changed > 0 && write(prompts)) prompts.tell({.text = data_imported, .icon = Icon::information});
    show_again();
}

template <class Record>
void Store<Record>::sort_for_file() {
    const auto order = sort_canonically<Record>(entries(), catalogue_);
    std::vector<std::size_t> place_of(order.size());
    for (std::size_t place = 0; place < order.size(); ++place) place_of[order[place]] = place;
    for (auto& entry : shown_) entry = place_of[entry];
    if (cloned_) cloned_ = place_of[*cloned_];
}

template <class Record>
bool Store<Record>::is_changed() {
    sort_for_file();
    return !holds_the_same(database_, saved_);
}

template <class Record>
std::size_t Store<Record>::unsaved_count() {
    if (side() != ListSide::maintenance) return 0;
    const auto missing = [](const Database<Record>& from, const Database<Record>& in) {
        return std::count_if(from.slots.begin(), from.slots.begin() + from.count, [&](const Record& entry) {
            return std::none_of(in.slots.begin(), in.slots.begin() + in.count,
                                [&](const Record& other) { return is_identical(entry, other); });
        });
    };
    return static_cast<std::size_t>(std::max(missing(database_, saved_), missing(saved_, database_)));
}

template <class Record>
bool Store<Record>::write(Prompts& prompts) {
    sort_for_file();
    if (!catalogue_.save(database_)) {
        prompts.tell({.text = not_saved, .icon = Icon::error});
        return false;
    }
    saved_ = database_;
    return true;
}

template <class Record>
void Store<Record>::save(Prompts& prompts) {
    const auto entry = entry_in_row();
    write(prompts);
    show_again();
    select(entry);
}

// The entry that was such in the file: as it is but for its stock, or else what an import would replace.
template <class Record>
Record* Store<Record>::find_unbooked(const Record& before) {
    const auto all = entries();
    const auto stock = catalogue_.stock.amount;
    const auto is_unchanged = [&](Record entry) {
        entry.*stock = before.*stock;
        return is_identical(entry, before);
    };
    auto found = std::find_if(all.begin(), all.end(), is_unchanged);
    if (found == all.end()) found = find_existing(before);
    return found == all.end() ? nullptr : &*found;
}

template <class Record>
void Store<Record>::follow_stocks() {
    const auto stock = catalogue_.stock.amount;
    Database<Record> now;
    QuietPrompts quiet;
    if (stock == nullptr || catalogue_.load(now, quiet) != DatabaseState::loaded || now.count != saved_.count)
        return;
    const auto written = std::span(now.slots).first(static_cast<std::size_t>(now.count));
    if (side() == ListSide::maintenance) sort_canonically<Record>(written, catalogue_);
    for (std::size_t i = 0; i < written.size(); ++i) {
        auto& before = saved_.slots[i];
        const double change = double{written[i].*stock} - before.*stock;
        if (change == 0 || std::isnan(change)) continue;
        if (auto* const entry = find_unbooked(before))
            entry->*stock = narrow(std::max(entry->*stock + change, 0.0));
        before.*stock = written[i].*stock;
    }
}

template <class Record>
bool Store<Record>::close(Prompts& prompts) {
    if (side() == ListSide::maintenance && is_changed()) {
        const auto answer = prompts.ask_yes_no_or_stay(
            {.text = catalogue_.words.closing_question, .icon = Icon::warning, .safe = Answer::yes});
        if (answer == Answer::cancel || (answer == Answer::yes && !write(prompts))) return false;
        if (answer == Answer::no) reload(prompts);
    }
    auto sort = sort_;
    sort.descending[sort.column] ^= 1; // the click that opens the list next time repeats the order last seen
    SaveSort(sort_path(), sort);
    return true;
}

} // namespace wortlex
