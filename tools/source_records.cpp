#include "source_records.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

namespace wortlex {
namespace {

namespace fs = std::filesystem;

// Reads a source line by line; what is declared over several lines is put together first.
class SourceReader {
public:
    explicit SourceReader(SourceRecords& records) : records_(records) {}

    void read(std::istream& source) {
        for (std::string line; std::getline(source, line);) {
            if (is_open(line))
                declaration_ += ' ' + line;
            else
                take(line);
        }
    }

private:
    bool is_open(const std::string& line) {
        static const std::regex begins(R"((enum class \w+ : .*\{|(inline )?constexpr auto \w+_layout =).*)");
        if (declaration_.empty() && !std::regex_match(line, begins)) return false;
        if (line.find(';') == std::string::npos) return true;
        const auto whole = declaration_ + ' ' + line;
        declaration_.clear();
        whole.find("enum class") != std::string::npos ? take_enum(whole) : take_layout(whole);
        comment_.clear();
        return false;
    }
    void take(const std::string& line);
    void take_member(const std::smatch& parts);
    void take_enum(const std::string& whole) const;
    void take_layout(const std::string& whole) const;

    SourceRecords& records_;
    std::string declaration_;
    std::string comment_; ///< of what comes next
    std::string struct_;  ///< whose members come
};

void SourceReader::take(const std::string& line) {
    static const std::regex comment(R"( *///(?!<) (.*))"), opening(R"(struct (\w+) \{)"),
        alias(R"(using (\w+) = (.*);)"),
        member(R"( {4}([\w:]+(?:<[^;]*>)?) (\w+)(?: = [^;]*|\{[^;]*\})?;(?: *///< (.*))?)");
    std::smatch parts;
    if (std::regex_match(line, parts, comment)) {
        comment_ += (comment_.empty() ? "" : " ") + parts.str(1);
        return;
    }
    if (std::regex_match(line, parts, opening)) {
        struct_ = parts.str(1);
        records_.structs[struct_].comment = comment_;
    } else if (line == "};") {
        struct_.clear();
    } else if (std::regex_match(line, parts, alias)) {
        records_.aliases[parts.str(1)] = {parts.str(1), parts.str(2), comment_};
    } else if (!struct_.empty() && std::regex_match(line, parts, member)) {
        take_member(parts);
    }
    comment_.clear();
}

void SourceReader::take_member(const std::smatch& parts) {
    const auto comment = parts[3].matched ? parts.str(3) : comment_;
    records_.structs[struct_].members[parts.str(2)] = {parts.str(2), parts.str(1), comment};
}

void SourceReader::take_enum(const std::string& whole) const {
    static const std::regex head(R"(enum class (\w+) : (?:std::)?(\w+) \{(.*)\};)"),
        value(R"((\w+) = (\d+))");
    std::smatch parts;
    if (!std::regex_search(whole, parts, head)) return;
    auto& code = records_.enums[parts.str(1)] = {parts.str(2), ""};
    const auto values = parts.str(3);
    for (std::sregex_iterator i(values.begin(), values.end(), value), end; i != end; ++i) {
        auto word = i->str(1);
        std::replace(word.begin(), word.end(), '_', ' ');
        code.values += (code.values.empty() ? "" : ", ") + i->str(2) + ' ' + word;
    }
}

void SourceReader::take_layout(const std::string& whole) const {
    static const std::regex head(R"(auto (\w+) =\s*layout<(\w+), (\d+)>)"),
        field(R"(at\((\d+), (?:via\(&\w+::(\w+), )?&(\w+)::(\w+)\)?(?:,\s+(\w+))?\))");
    std::smatch parts;
    if (!std::regex_search(whole, parts, head)) return;
    auto& layout = records_.layouts[parts.str(1)] = {parts.str(2), std::stoul(parts.str(3)), {}};
    for (std::sregex_iterator i(whole.begin(), whole.end(), field), end; i != end; ++i) {
        const auto outer = i->str(2);
        layout.fields.push_back({std::stoul(i->str(1)), i->str(3), i->str(4),
                                 (outer.empty() ? "" : outer + '.') + i->str(4), i->str(5)});
    }
    static const std::regex any_field(R"(\bat\()");
    const auto fields = std::distance(std::sregex_iterator(whole.begin(), whole.end(), any_field), {});
    if (static_cast<std::size_t>(fields) != layout.fields.size())
        throw std::runtime_error(parts.str(1) + ": has a field that is written in another way");
}

std::string plain_type(const SourceRecords& records, const std::string& type) {
    static const std::map<std::string, std::string> words = {
        {"float", "f32"},   {"char", "char"},   {"byte", "byte"},   {"uint8_t", "u8"},
        {"int16_t", "i16"}, {"int32_t", "i32"}, {"uint32_t", "u32"}};
    static const std::regex text(R"(Text<(\d+)>)");
    std::smatch parts;
    if (std::regex_match(type, parts, text)) return "char[" + parts.str(1) + "]";
    if (const auto code = records.enums.find(type); code != records.enums.end())
        return found(words, code->second.type);
    return found(words, type.starts_with("std::") ? type.substr(5) : type);
}

std::size_t plain_size(const std::string& word) {
    if (const auto open = word.find('['); open != std::string::npos) return std::stoul(word.substr(open + 1));
    if (word.ends_with("32")) return 4;
    return word.ends_with("16") ? 2 : 1;
}

} // namespace

SourceRecords read_source_records(const std::string& folder) {
    SourceRecords records;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
        std::ifstream source(entry.path());
        SourceReader(records).read(source);
    }
    return records;
}

std::string innermost(const std::string& type) {
    static const std::regex array(R"(std::array<(.*), [^,]*>)");
    std::smatch parts;
    return std::regex_match(type, parts, array) ? parts.str(1) : type;
}

std::string file_type(const SourceRecords& records, const std::string& type, const std::string& sub_layout,
                      std::size_t bytes) {
    const auto alias = records.aliases.find(type);
    const auto element = innermost(alias == records.aliases.end() ? type : alias->second.type);
    const auto word = sub_layout.empty() ? plain_type(records, element) : '`' + element + '`';
    const auto size = sub_layout.empty() ? plain_size(word) : found(records.layouts, sub_layout).size;
    return bytes == size ? word : std::to_string(bytes / size) + " x " + word;
}

} // namespace wortlex
