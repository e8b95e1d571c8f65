#include "program/shelf/shelf_entry.h"

#include "base/files.h"
#include "base/number.h"
#include "base/windows1252.h"
#include "databases/find.h"
#include "documents/live_document.h"
#include "documents/opening.h"
#include "documents/work/recipe_view.h"
#include "measures/precision.h"
#include "measures/rounding.h"
#include "measures/units.h"

#include <chrono>
#include <cmath>
#include <filesystem>

namespace wortlex {
namespace {

constexpr double no_figure = std::numeric_limits<double>::quiet_NaN(); // of a batch of nothing

std::string joined_words(std::string_view utf8) {
    std::string joined;
    for (const auto& word : find_words(utf8)) joined += (joined.empty() ? "" : " ") + word;
    return joined;
}

std::int64_t seconds_of(const FileStamp& stamp) {
    using namespace std::chrono;
    const file_clock::time_point time{file_clock::duration(stamp.modified)};
    return duration_cast<seconds>(file_clock::to_sys(time).time_since_epoch()).count();
}

// One after the other; a name that many lines share is enough once.
std::string ingredient_words(const BrewDocument& recipe) {
    std::string all, last;
    const auto add = [&](std::string_view windows1252) {
        auto words = joined_words(utf8_from_windows1252(windows1252));
        if (words == last) return;
        all += ' ' + words;
        last = std::move(words);
    };
    for (const auto& line : recipe.malts) add(line.record.name.view());
    for (const auto& line : recipe.hops) add(line.record.name.view());
    for (const auto& line : recipe.extras) add(line.record.name.view());
    add(recipe.yeast.record.name.view());
    return all;
}

void take_figures(ShelfEntry& entry, const BrewDocument& recipe, const RecipeFigures& worked_out,
                  const Settings& settings) {
    const auto shown = [&](ShelfFigure figure, double value) {
        entry.figures.at(static_cast<std::size_t>(figure)) =
            std::isfinite(value) ? leading_number(fixed(value, decimals_of(figure, settings))) : no_figure;
    };
    shown(ShelfFigure::og, trunc_to_precision(hop_gravity(recipe), 5));
    shown(ShelfFigure::ibu, recipe.total_ibu);
    shown(ShelfFigure::colour, to_shown_colour(worked_out.colour.srm, settings));
    shown(ShelfFigure::size, to_shown_volume(recipe.batch_size, settings));
    entry.srm = worked_out.colour.srm;
}

void take_recipe(ShelfEntry& entry, BrewDocument& recipe, const Settings& settings) {
    RecipeFigures worked_out;
    recalculate_beer({recipe, worked_out, settings});
    take_figures(entry, recipe, worked_out, settings);
    if (!recipe.title.empty()) entry.name = utf8_from_windows1252(recipe.title.view());
    if (has_style(recipe)) entry.style = utf8_from_windows1252(recipe.style.name.view());
}

} // namespace

int decimals_of(ShelfFigure figure, const Settings& settings) {
    return figure == ShelfFigure::og ? sg_decimals(settings) : 1;
}

std::string_view shelf_fault(LoadResult result) {
    return result == LoadResult::not_found ? "cannot be read" : load_fault(result);
}

ShelfEntry read_shelf_entry(const std::string& path, const Settings& settings) {
    ShelfEntry entry;
    entry.path = path;
    entry.name = std::filesystem::path(path).stem().string();
    const auto file_words = joined_words(entry.name);
    if (const auto stamp = stamp_of(path)) entry.modified = seconds_of(*stamp);
    auto recipe = new_document(settings, ScheduleKind::simple);
    const auto result = load_recipe(path, recipe, settings);
    entry.fault = shelf_fault(result);
    entry.can_be_opened = is_sound(result);
    if (entry.can_be_opened) take_recipe(entry, recipe, settings);
    entry.name_words = joined_words(entry.name);
    entry.style_words = joined_words(entry.style);
    entry.words = entry.name_words + ' ' + entry.style_words;
    if (file_words != entry.name_words) entry.words += ' ' + file_words;
    if (entry.can_be_opened) entry.words += ingredient_words(recipe);
    return entry;
}

} // namespace wortlex
