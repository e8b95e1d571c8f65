// A strict reader of JSON that keeps the paths of what it found and the texts of what stood there.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>

namespace wortlex {

class JsonReader {
public:
    /// The leaves of one object or list by path ("mash.water", "hops.0.name"), values as written; nothing for
    /// text that is no JSON.
    static std::optional<std::map<std::string, std::string>> read(const std::string& text) {
        JsonReader reader(text);
        if (!reader.value("") || reader.at_ != text.size()) return std::nullopt;
        return reader.leaves_;
    }

private:
    explicit JsonReader(const std::string& text) : text_(text) {}

    bool take(char c) {
        const bool there = at_ < text_.size() && text_[at_] == c;
        if (there) ++at_;
        return there;
    }
    bool digits() {
        const auto start = at_;
        at_ = std::min(text_.find_first_not_of("0123456789", at_), text_.size());
        return at_ > start;
    }
    bool number() {
        take('-');
        if (!digits() || (take('.') && !digits())) return false;
        return !take('e') || ((take('-') || take('+')) && digits());
    }
    bool word(const std::string& word) {
        const bool there = text_.compare(at_, word.size(), word) == 0;
        if (there) at_ += word.size();
        return there;
    }
    bool quoted() {
        if (!take('"')) return false;
        for (; !take('"'); ++at_) {
            const bool is_escape = take('\\');
            const unsigned char c = at_ < text_.size() ? static_cast<unsigned char>(text_[at_]) : '\0';
            if (c < 0x20 || (is_escape && std::string("\"\\/bfnrtu").find(text_[at_]) == std::string::npos))
                return false;
        }
        return true;
    }
    bool value(const std::string& path) {
        if (take('{')) return members(path, true);
        if (take('[')) return members(path, false);
        const auto start = at_;
        const bool is_leaf = text_.substr(at_, 1) == "\""
                                 ? quoted()
                                 : word("true") || word("false") || word("null") || number();
        return is_leaf && leaves_.emplace(path, text_.substr(start, at_ - start)).second;
    }
    bool members(const std::string& path, bool is_object) {
        const char close = is_object ? '}' : ']';
        if (take(close)) return true;
        for (int index = 0;; ++index) {
            const auto start = at_;
            if (is_object && !quoted()) return false;
            const auto key = is_object ? text_.substr(start + 1, at_ - start - 2) : std::to_string(index);
            if (is_object && !take(':')) return false;
            if (!value(path.empty() ? key : path + "." + key)) return false;
            if (take(close)) return true;
            if (!take(',')) return false;
        }
    }

    const std::string& text_;
    std::size_t at_ = 0;
    std::map<std::string, std::string> leaves_;
};

} // namespace wortlex
