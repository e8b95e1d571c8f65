// Just enough JSON to write a line of figures.
#pragma once

#include <string>
#include <string_view>

namespace wortlex {

/// Writes one object or list into a text. Figures have nine significant digits; what is not finite is null.
/// Texts are UTF-8; a byte that is none becomes the replacement character.
class JsonWriter {
public:
    const std::string& text() const { return text_; }

    JsonWriter& begin_object(std::string_view key = {}) { return begin(key, '{'); }
    JsonWriter& end_object() { return end('}'); }
    JsonWriter& begin_list(std::string_view key = {}) { return begin(key, '['); }
    JsonWriter& end_list() { return end(']'); }

    JsonWriter& number(std::string_view key, double value);
    JsonWriter& string(std::string_view key, std::string_view value);
    JsonWriter& truth(std::string_view key, bool value);

private:
    JsonWriter& begin(std::string_view key, char bracket);
    JsonWriter& end(char bracket);
    void name(std::string_view key);
    void quote(std::string_view value);
    std::size_t escape_first(std::string_view value);

    std::string text_;
    bool needs_comma_ = false;
};

} // namespace wortlex
