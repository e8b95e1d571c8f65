#include "keyed_file.h"

namespace wortlex {

KeyedFile::KeyedFile(const std::string& path) : path_(path) {
    const auto lines = read_lines(path);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto line = trimmed(lines[i]);
        if (line.empty() || line.starts_with('#')) continue;
        const Place place{path, i + 1};
        const auto colon = line.find(':');
        if (colon == std::string_view::npos) refuse(place, "is no line of the form \"key: value\"");
        entries_.push_back({{place, std::string(trimmed(line.substr(0, colon))),
                             std::string(trimmed(line.substr(colon + 1)))}});
    }
}

std::optional<SourceValue> KeyedFile::find(std::string_view key) {
    const auto values = all(key);
    if (values.empty()) return std::nullopt;
    if (values.size() > 1) refuse(values[1].place, values[1].name + " stands here for the second time");
    return values.front();
}

SourceValue KeyedFile::require(std::string_view key) {
    const auto value = find(key);
    if (!value) throw SourceFault(path_ + ": has no line \"" + std::string(key) + "\"");
    return *value;
}

std::vector<SourceValue> KeyedFile::all(std::string_view key) {
    std::vector<SourceValue> values;
    for (auto& entry : entries_) {
        if (entry.value.name != key) continue;
        entry.is_read = true;
        values.push_back(entry.value);
    }
    return values;
}

void KeyedFile::refuse_unread() const {
    for (const auto& entry : entries_) {
        if (!entry.is_read)
            refuse(entry.value.place, "\"" + entry.value.name + "\" is not a key of such a document");
    }
}

} // namespace wortlex
