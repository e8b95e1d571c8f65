// Files of "key: value" lines. A line that starts with # is a comment; what a key may be told is for its
// reader to know, and a key that nobody asked for is a mistake.
#pragma once

#include "source_value.h"

#include <optional>

namespace wortlex {

class KeyedFile {
public:
    explicit KeyedFile(const std::string& path);

    /// The value of a key that stands at most once.
    std::optional<SourceValue> find(std::string_view key);
    SourceValue require(std::string_view key);
    /// Every value of a key, in order.
    std::vector<SourceValue> all(std::string_view key);
    /// Refuses the first line that was not asked for.
    void refuse_unread() const;

private:
    struct Entry {
        SourceValue value;
        bool is_read = false;
    };

    std::string path_;
    std::vector<Entry> entries_;
};

} // namespace wortlex
