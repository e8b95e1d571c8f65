#include "documents/live_document.h"

#include "documents/opening.h"

#include <utility>

namespace wortlex {
namespace {

// Of the schedule kind in force, which is that of the document before.
BrewDocument empty_recipe(const LiveDocument& live, const Settings& settings) {
    return new_document(settings,
                        has_complex_schedule(live.recipe) ? ScheduleKind::complex : ScheduleKind::simple);
}

} // namespace

OpenDocument view_of(LiveDocument& live, const Settings& settings) {
    if (live.kind == DocumentKind::recipe) return {live.recipe, live.figures, settings};
    return {live.recipe, live.figures, settings, &live.session, &live.water, &live.salt_unit};
}

void take_usual_schedule(LiveDocument& live, const Settings& settings) {
    live.recipe.mash_flags = static_cast<std::uint8_t>(settings.default_schedule);
}

void start_recipe(LiveDocument& live, const Settings& settings) {
    live.kind = DocumentKind::recipe;
    live.recipe = empty_recipe(live, settings);
    live.figures = {};
    live.water_to_grain = settings.quarts_per_pound;
    live.file = {};
    live.competition = {};
}

void start_session(LiveDocument& live, const WaterNeeds& usual, const Settings& settings,
                   const CalendarDate& today) {
    live.kind = DocumentKind::session;
    live.salt_unit = SaltUnit::ounces;
    start_session(view_of(live, settings), usual, today);
    live.water_to_grain = settings.quarts_per_pound;
    live.file = {};
    live.competition = {};
}

LoadResult read_into(LiveDocument& live, DocumentKind kind, ByteView file, const Settings& settings) {
    DocumentImage image{.recipe = empty_recipe(live, settings)};
    const auto result = read_document(kind, file, image, settings);
    if (!is_sound(result)) return result;
    live.kind = kind;
    live.salt_unit = SaltUnit::ounces;
    live.recipe = std::move(image.recipe);
    if (image.session) live.session = *image.session;
    live.water_to_grain = 0;
    live.competition = {};
    return result;
}

} // namespace wortlex
