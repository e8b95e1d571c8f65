#include "base/files.h"
#include "records/documents/document_files.h"
#include "records/documents/document_parts.h"

namespace wortlex {

bool is_sound(LoadResult result) {
    return result == LoadResult::loaded || result == LoadResult::incomplete || result == LoadResult::longer;
}

std::string_view load_fault(LoadResult result) {
    switch (result) {
    case LoadResult::not_found:
        return file_not_found;
    case LoadResult::damaged:
        return "is damaged or is no Wortlex document; it was not opened";
    case LoadResult::incomplete:
        return "ended early; what is missing was left empty";
    case LoadResult::longer:
        return "holds more than it should; what follows the document was left out";
    case LoadResult::misnamed:
        return "is a brewing session; give its file the ending .brw to open it";
    case LoadResult::loaded:
        break;
    }
    return {};
}

LoadResult load_recipe(const std::string& path, BrewDocument& document, const Settings& settings) {
    const auto file = read_file(path);
    return file ? read_recipe(*file, document, settings) : LoadResult::not_found;
}

bool save_recipe(const std::string& path, BrewDocument& document, Prompts& prompts) {
    return save_document(path, recipe_bytes(document), document, prompts);
}

LoadResult read_recipe(ByteView file, BrewDocument& document, const Settings& settings) {
    auto fresh = new_document(settings, static_cast<ScheduleKind>(document.mash_flags & 0x0F));
    ByteReader reader(file);
    if (!read_opening(reader, fresh)) return LoadResult::damaged;
    read_texts(reader, fresh);
    read_schedule(reader, fresh);
    // A session begins as its recipe does, and is longer by its own parts.
    if (reader.rest().size() == size_of_session_parts()) return LoadResult::misnamed;
    bring_up_to_date(fresh);
    document = std::move(fresh);
    return end_of(reader);
}

Bytes recipe_bytes(const BrewDocument& document) {
    Bytes file;
    append_opening(file, document);
    append_texts(file, document);
    append_schedule(file, document);
    return file;
}

} // namespace wortlex
