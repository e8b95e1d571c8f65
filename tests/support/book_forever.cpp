// Finalizes one session after another in a brewery folder, until it is killed. Each takes one of everything,
// so what is left in stock tells how many were booked, and the session's title and mark how many should be.
// Every start compares them first.
#include "base/number.h"
#include "base/ports/quiet_prompts.h"
#include "documents/work/stocks.h"
#include "program/inventory.h"
#include "program/program.h"

#include <cstdio>

namespace wortlex {
namespace {

constexpr float start_stock = 100000;

struct Willing : QuietPrompts {
    Answer ask_yes_no(const Message&) override { return Answer::yes; }
};

struct NoFiles : Files {
    std::optional<std::string> choose_to_open(const FileChoice&) override { return std::nullopt; }
    std::optional<std::string> choose_to_save(const FileChoice&) override { return std::nullopt; }
};

template <class Record>
void fill(Database<Record>& database) {
    database.count = 1000;
    for (int i = 0; i < database.count; ++i) {
        auto& entry = database.slots[static_cast<std::size_t>(i)];
        entry.name.assign("Entry " + std::to_string(i));
        entry.stock = start_stock;
    }
}

bool make_brewery(const std::string& folder) {
    Stocks stocks;
    fill(stocks.malts);
    fill(stocks.hops);
    fill(stocks.extras);
    fill(stocks.yeasts);
    return SaveMalts(folder, stocks.malts) && SaveHops(folder, stocks.hops) &&
           SaveExtras(folder, stocks.extras) && SaveYeasts(folder, stocks.yeasts);
}

template <class Line>
void ask_for_one(std::vector<Line>& lines) {
    lines.assign(1, {});
    lines[0].record.name.assign("Entry 999");
    lines[0].amount = 1;
}

void ask_for_one_of_each(BrewDocument& recipe) {
    ask_for_one(recipe.malts);
    ask_for_one(recipe.hops);
    ask_for_one(recipe.extras);
    recipe.yeast.record.name.assign("Entry 999");
}

bool is_booked(const std::string& folder, int count) {
    Stocks stocks;
    if (!LoadStocks(folder, stocks).empty()) return false;
    const float left = start_stock - static_cast<float>(count);
    const auto stands = [left](const auto& database) { return database.slots[999].stock == left; };
    return stands(stocks.malts) && stands(stocks.hops) && stands(stocks.extras) && stands(stocks.yeasts);
}

// A brew day whose title is the number of those before it.
struct BrewDay {
    Program program;
    Willing prompts;
    NoFiles files;
    DocumentImage saved;
    std::string path;

    explicit BrewDay(const std::string& folder) : path(folder + "day.brw") {
        program.data_folder = folder;
        auto image = WriteDefaultSettings();
        program.settings = settings_from(image);
        new_session(program, {6, 12, 2026});
    }
    int number() const { return parse_whole(program.document.recipe.title.view()).value_or(0); }
    bool load() {
        return load_session(path, program.document.recipe, program.document.session, program.settings) ==
               LoadResult::loaded;
    }
    bool begin(int number) {
        new_session(program, {6, 12, 2026});
        program.document.recipe.title.assign(std::to_string(number));
        ask_for_one_of_each(program.document.recipe);
        program.document.file = {.path = path, .loaded_from_file = true};
        return save_session(path, program.document.recipe, program.document.session, prompts);
    }
    bool finalize() {
        RecipeEditor editor{live_document(program), {}, {}};
        DocumentSaving saving{editor, program.document.file, saved, files, prompts, ""};
        return finalize_inventory(program, saving);
    }
};

int run(const std::string& folder) {
    BrewDay day(folder);
    finish_booking(folder, day.prompts);
    int number = 0;
    if (day.load())
        number = day.number() + day.program.document.session.inventory_finalized;
    else if (!make_brewery(folder))
        return 2;
    if (!is_booked(folder, number)) {
        std::fprintf(stderr, "%d sessions are finalized, and as many are not booked\n", number);
        return 1;
    }
    std::puts("ready");
    std::fflush(stdout);
    while (day.begin(number) && day.finalize()) ++number;
    return 2;
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) {
    return count == 2 ? wortlex::run(arguments[1]) : 2;
}
