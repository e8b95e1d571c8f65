#include "program/inventory.h"

#include "documents/work/inventory_analysis.h"
#include "program/program.h"
#include "program/recovery.h"

namespace wortlex {
namespace {

constexpr std::string_view finalized_already =
    "This Brewing Session has already been finalized!\n\nYou may only finalize a brewing session 1 time...";
constexpr std::string_view really_finalize = "Do you really want to finalize inventory amounts at this "
                                             "time?\n\nThis will subtract the brewing session "
                                             "ingredient amounts from your current\ningredients database(s).";
constexpr std::string_view wait_for_more =
    "Some ingredients were not found or there is not enough in stock to complete the session.\n\nDo you want "
    "to wait until you have a chance to update inventories before finalizing this brewing session?";
constexpr std::string_view updated = "Database(s) successfully updated!";
constexpr std::string_view nothing_taken =
    "Nothing was subtracted: no ingredient of the session is in stock.";
constexpr std::string_view not_booked =
    "The inventory was not finalized: its files could not be written. Is the disk full, or a file or folder "
    "read-only?\n\nNothing has been changed.";
constexpr std::string_view booked_in_part = "The inventory is finalized, but not every file could be "
                                            "written. The rest is written when Wortlex starts "
                                            "again.\n\nPlease leave it before you change a database.";
constexpr std::string_view completed = "Wortlex ended while the inventory of a brewing session was being "
                                       "finalized. This has been completed now: "
                                       "the session is finalized, and its ingredients are taken from stock.";
constexpr std::string_view still_waiting =
    "Wortlex ended while the inventory of a brewing session was being finalized, and some of its files "
    "cannot "
    "be written. Is the disk full, or a file or folder read-only?\n\nThe next start tries again. Until then "
    "please change no database and do not finalize again.";

std::string journal_in(const std::string& data_folder) {
    return data_folder + std::string(booking_journal);
}

bool tell_faults(const std::vector<std::string>& faults, Prompts& prompts) {
    if (faults.empty()) return false;
    std::string text;
    for (const auto& fault : faults) text += fault + "\n";
    text += "\nThe inventory was not finalized: nothing has been changed.";
    prompts.tell({.text = text, .icon = Icon::error});
    return true;
}

// The stocks as they are now, booked; nothing if a database is not whole, which is told.
std::optional<std::pair<Stocks, Booking>> booked_stocks(const std::string& data_folder,
                                                        const BrewDocument& document, Prompts& prompts) {
    Stocks stocks;
    if (tell_faults(LoadStocks(data_folder, stocks), prompts)) return std::nullopt;
    const auto booking = book_stocks(stocks, document);
    return std::pair(std::move(stocks), booking);
}

// What of the session is taken in part only or not at all. A database that is not whole is told of later.
std::string shortages_now(const std::string& data_folder, const OpenDocument& open) {
    Stocks stocks;
    if (!LoadStocks(data_folder, stocks).empty()) return {};
    const auto words = shortages_in_words(analyze_inventory(open.document, stocks, open.settings));
    return words.empty() ? words : "Of these only what is there will be subtracted:\n" + words;
}

bool may_book(const std::string& data_folder, const OpenDocument& open, Prompts& prompts) {
    const auto shortages = shortages_now(data_folder, open);
    const Message really{.text = really_finalize, .icon = Icon::question, .details = shortages};
    if (prompts.ask_yes_no(really) != Answer::yes) return false;
    const auto booked = booked_stocks(data_folder, open.document, prompts);
    if (!booked || booked->second.is_complete) return booked.has_value();
    const Message wait{
        .text = wait_for_more, .icon = Icon::question, .safe = Answer::yes, .details = shortages};
    return prompts.ask_yes_no(wait) == Answer::no;
}

// One that was cut short or never saved is left to the user to name.
bool has_own_file(const DocumentFile& file) {
    return !file.path.empty() && !file.incomplete;
}

// With a file of its own nothing of the session is left unsaved, and without one the copy is all there is.
void add_session(std::vector<FileChange>& changes, const std::string& data_folder,
                 const DocumentSaving& saving) {
    const auto image = image_to_save(saving.editor);
    const bool is_saved = has_own_file(saving.file);
    if (is_saved) changes.push_back({saving.file.path, saved_bytes(image)});
    changes.push_back(
        {work_path(data_folder), is_saved ? std::nullopt : std::optional(kept_work(image, saving.file))});
}

struct Booked {
    JointSave save = JointSave::refused;
    bool has_taken = false; ///< anything from the stocks
};

bool has_taken(const Booking& booking) {
    return booking.malts || booking.hops || booking.extras || booking.yeasts;
}

// Reads the stocks again: while a question stood, the user may have worked on them.
Booked book(const std::string& data_folder, DocumentSaving& saving) {
    auto& open = saving.editor.open;
    const auto booked = booked_stocks(data_folder, open.document, saving.prompts);
    if (!booked) return {};
    auto changes = changed_files(data_folder, booked->first, booked->second);
    open.session->inventory_finalized = 1;
    add_session(changes, data_folder, saving);
    const auto result = save_jointly(journal_in(data_folder), changes);
    if (result == JointSave::refused) {
        open.session->inventory_finalized = 0;
        saving.prompts.tell({.text = not_booked, .icon = Icon::error});
    }
    return {result, has_taken(booked->second)};
}

void tell_booked(Program& program, DocumentSaving& saving, const Booked& booked) {
    program.notices.tell(Change::databases);
    tell_change(saving.editor);
    if (booked.save == JointSave::put_off)
        return saving.prompts.tell({.text = booked_in_part, .icon = Icon::warning});
    saving.prompts.tell({.text = updated,
                         .icon = Icon::information,
                         .details = booked.has_taken ? std::string_view() : nothing_taken});
}

} // namespace

bool finalize_inventory(Program& program, DocumentSaving& saving) {
    const auto& open = saving.editor.open;
    auto& prompts = saving.prompts;
    if (open.session->inventory_finalized != 0) {
        prompts.tell({.text = finalized_already, .icon = Icon::information});
        return false;
    }
    if (!may_book(program.data_folder, open, prompts)) return false;
    const bool is_saved = has_own_file(saving.file);
    if (is_saved && !may_overwrite(saving, saving.file.path)) return false;
    if (open.session->inventory_finalized != 0) return false; // by another press while a question stood
    const auto booked = book(program.data_folder, saving);
    if (booked.save == JointSave::refused) return false;
    if (is_saved) count_as_saved(saving, saving.file.path);
    tell_booked(program, saving, booked);
    return is_saved;
}

void finish_booking(const std::string& data_folder, Prompts& prompts) {
    const auto left = finish_joint_save(journal_in(data_folder));
    if (left == LeftChanges::made) prompts.tell({.text = completed, .icon = Icon::information});
    if (left == LeftChanges::wait) prompts.tell({.text = still_waiting, .icon = Icon::warning});
}

} // namespace wortlex
