// write_recipe LINES FILE: writes a recipe of so many malts and hops.
#include "base/files.h"
#include "base/number.h"
#include "records/documents/document_files.h"
#include "sample_document.h"

int main(int count, char** arguments) {
    using namespace wortlex;
    const auto lines = count == 3 ? parse_whole(arguments[1]) : std::nullopt;
    if (!lines || *lines < 0) return 2;
    auto image = WriteDefaultSettings();
    const auto document = sample_document(static_cast<std::size_t>(*lines), settings_from(image));
    return save_atomically(arguments[2], recipe_bytes(document)) ? 0 : 1;
}
