// The sample recipes and sessions, from sources that a brewer can read; data/samples/README.md tells their
// keys.
#pragma once

#include "database_sources.h"
#include "keyed_file.h"
#include "records/documents/session_document.h"
#include "settings/system_files.h"

namespace wortlex {

struct Sample {
    DocumentKind kind{};
    BrewDocument document;
    SessionDocument session; ///< of a session only

    /// Its title as UTF-8, with the ending of its kind.
    std::string file_name() const;
};

/// Reads a source and works it out; throws a `SourceFault` for what it or the databases do not have.
Sample read_sample(const std::string& path, const Databases& databases, const Settings& settings);

/// The two halves of that: onto a new document, and onto a new session of the document that was read.
void read_recipe_keys(KeyedFile& source, const Databases& databases, BrewDocument& document);
void read_session_keys(KeyedFile& source, const BrewDocument& document, SessionDocument& session);

/// The values of a repeated key as the lines of one stored text.
template <std::size_t N>
Text<N> stored_lines(KeyedFile& source, std::string_view key, std::size_t limit) {
    std::string text;
    for (const auto& line : source.all(key)) {
        if (!text.empty()) text += "\r\n";
        text += line.windows1252(limit);
        if (text.size() > limit)
            refuse(line.place, std::string(key) + " is longer than " + std::to_string(limit) + " in all");
    }
    return Text<N>(text);
}

} // namespace wortlex
