#include "documents/live_document.h"

#include "documents/opening.h"

#include <utility>

namespace wortlex {

OpenDocument view_of(LiveDocument& live, const Settings& settings) {
    if (live.kind == DocumentKind::recipe) return {live.recipe, live.figures, settings};
    return {live.recipe, live.figures, settings, &live.session, &live.water};
}

void start_recipe(LiveDocument& live, const Settings& settings) {
    live.kind = DocumentKind::recipe;
    live.recipe = new_document(settings, settings.default_schedule);
    live.figures = {};
    live.water_to_grain = settings.quarts_per_pound;
    live.file = {};
}

void start_session(LiveDocument& live, const WaterNeeds& usual, const Settings& settings) {
    live.kind = DocumentKind::session;
    start_session(view_of(live, settings), usual);
    live.water_to_grain = settings.quarts_per_pound;
    live.file = {};
}

LoadResult read_into(LiveDocument& live, DocumentKind kind, ByteView file, const Settings& settings) {
    DocumentImage image{.recipe = new_document(settings, settings.default_schedule)};
    const auto result = read_document(kind, file, image, settings);
    if (!is_sound(result)) return result;
    live.kind = kind;
    live.recipe = std::move(image.recipe);
    if (image.session) live.session = *image.session;
    live.water_to_grain = 0;
    return result;
}

bool is_sound(LoadResult result) {
    return result == LoadResult::loaded || result == LoadResult::incomplete;
}

} // namespace wortlex
