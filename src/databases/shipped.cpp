#include "databases/shipped.h"

#include "base/joint_save.h"
#include "databases/sorting.h"

namespace wortlex {
namespace {

constexpr std::string_view first_line = "Wortlex shipped entries 1\n", last_line = "end\n";
constexpr std::size_t largest_note = std::size_t{1} << 20;

std::optional<ShippedNames> load_names(const std::string& folder) {
    const auto file = read_file(find_data_file(folder, shipped_names_file), largest_note);
    return file ? read_shipped_names(*file) : std::nullopt;
}

FileChange noted(const std::string& folder, const ShippedNames& names) {
    return {find_data_file(folder, shipped_names_file), shipped_names_bytes(names)};
}

bool save_names(const std::string& folder, const ShippedNames& names) {
    const auto note = noted(folder, names);
    return save_atomically(note.path, *note.content);
}

template <class Action>
void each_catalogue(const Settings& settings, const std::string& folder, Action action) {
    action("Malts, Extracts, Sugars", malt_catalogue(settings, folder));
    action("Hops", hop_catalogue(settings, folder));
    action("Yeasts", yeast_catalogue(settings, folder));
    action("Waters", water_catalogue(settings, folder, {}));
    action("Extra Ingredients", extra_catalogue(settings, folder));
    action("AHA Styles", style_catalogue(settings, folder, StyleBook::aha));
    action("BJCP Styles", style_catalogue(settings, folder, StyleBook::bjcp));
}

// A database as it came, and the brewer's.
template <class Record>
struct BothDatabases {
    Database<Record> shipped, own;
};

template <class Record>
bool load_whole(const Catalogue<Record>& catalogue, const std::string& folder, Database<Record>& database) {
    return read_database_file(folder, catalogue.words.data_file, layout_of(Record()), database) ==
           DatabaseState::loaded;
}

template <class Record>
std::optional<BothDatabases<Record>> load_both(const Catalogue<Record>& catalogue,
                                               const ShippedOffer& offer) {
    BothDatabases<Record> both;
    const bool is_whole = load_whole(catalogue, offer.shipped_folder, both.shipped) &&
                          load_whole(catalogue, offer.data_folder, both.own);
    return is_whole ? std::optional(std::move(both)) : std::nullopt;
}

template <class Record>
bool is_there(const Catalogue<Record>& catalogue, const Database<Record>& own, const Record& record) {
    const auto entries = own.entries();
    return std::any_of(entries.begin(), entries.end(), [&](const Record& entry) {
        return has_same_names(catalogue, entry, record) && is_same_kind(catalogue, entry, record);
    });
}

template <class Record>
void find_new(const Catalogue<Record>& catalogue, std::string_view heading, ShippedOffer& offer) {
    const auto both = load_both(catalogue, offer);
    if (!both) return;
    ShippedGroup group{heading, {}};
    const auto room = static_cast<std::size_t>(std::max(import_limit - both->own.count, 0));
    for (const auto& record : both->shipped.entries()) {
        auto name = shipped_name(catalogue, record);
        if (offer.known.contains(name)) continue;
        if (is_there(catalogue, both->own, record))
            offer.known.insert(std::move(name));
        else if (group.entries.size() < room)
            group.entries.push_back({std::move(name)});
    }
    if (!group.entries.empty()) offer.groups.push_back(std::move(group));
}

ShippedNames names_in(const ShippedOffer& offer, bool only_wanted) {
    ShippedNames names;
    for (const auto& group : offer.groups)
        for (const auto& entry : group.entries)
            if (entry.is_wanted || !only_wanted) names.insert(entry.name);
    return names;
}

// What was added meanwhile, or leaves no room, stays out.
template <class Record>
void add_wanted(const Catalogue<Record>& catalogue, const ShippedNames& wanted, BothDatabases<Record>& both) {
    auto& own = both.own;
    for (const auto& record : both.shipped.entries()) {
        if (!wanted.contains(shipped_name(catalogue, record)) || is_there(catalogue, own, record)) continue;
        if (own.count >= import_limit) break;
        own.slots[static_cast<std::size_t>(own.count++)] = record;
    }
    sort_canonically<Record>(std::span(own.slots).first(static_cast<std::size_t>(own.count)), catalogue);
}

bool are_of(const ShippedNames& wanted, std::string_view file) {
    return std::any_of(wanted.begin(), wanted.end(), [start = std::string(file) + '\t'](const auto& name) {
        return name.starts_with(start);
    });
}

// Only a database to which something is added is read and written.
template <class Record>
bool change_database(const Catalogue<Record>& catalogue, const ShippedNames& wanted,
                     const ShippedOffer& offer, std::vector<FileChange>& changes) {
    const auto file = catalogue.words.data_file;
    if (!are_of(wanted, file)) return true;
    auto both = load_both(catalogue, offer);
    if (!both) return false;
    add_wanted(catalogue, wanted, *both);
    changes.push_back(
        {find_data_file(offer.data_folder, file), database_bytes(both->own, layout_of(Record()))});
    return true;
}

} // namespace

std::optional<ShippedNames> read_shipped_names(ByteView file) {
    const auto whole = characters_of(file);
    if (!whole.starts_with(first_line) || !whole.ends_with('\n' + std::string(last_line)))
        return std::nullopt;
    std::string_view text = whole;
    text = text.substr(first_line.size(), text.size() - first_line.size() - last_line.size());
    ShippedNames names;
    for (auto end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        names.emplace(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return names;
}

Bytes shipped_names_bytes(const ShippedNames& names) {
    std::string text(first_line);
    for (const auto& name : names) text += name + '\n';
    text += last_line;
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

ShippedOffer find_offer(const std::string& shipped_folder, const std::string& data_folder,
                        const Settings& settings) {
    const auto shipped = load_names(shipped_folder);
    if (!shipped) return {};
    auto known = load_names(data_folder);
    if (!known) save_names(data_folder, *shipped);
    if (!known || std::includes(known->begin(), known->end(), shipped->begin(), shipped->end())) return {};
    ShippedOffer offer{shipped_folder, data_folder, *std::move(known), {}};
    each_catalogue(settings, data_folder, [&offer](std::string_view heading, const auto& catalogue) {
        find_new(catalogue, heading, offer);
    });
    return save_names(data_folder, offer.known) ? offer : ShippedOffer();
}

bool wants_any(const ShippedOffer& offer) {
    return !names_in(offer, true).empty();
}

void want_all(ShippedOffer& offer, bool are_wanted) {
    for (auto& group : offer.groups)
        for (auto& entry : group.entries) entry.is_wanted = are_wanted;
}

bool answer_offer(const ShippedOffer& offer, const Settings& settings) {
    const auto wanted = names_in(offer, true);
    std::vector<FileChange> changes;
    bool is_whole = true;
    each_catalogue(settings, offer.data_folder, [&](std::string_view, const auto& catalogue) {
        is_whole = is_whole && change_database(catalogue, wanted, offer, changes);
    });
    auto known = names_in(offer, false);
    known.insert(offer.known.begin(), offer.known.end());
    changes.push_back(noted(offer.data_folder, known));
    const auto journal = offer.data_folder + std::string(shipped_journal);
    return is_whole && save_jointly(journal, changes) != JointSave::refused;
}

} // namespace wortlex
