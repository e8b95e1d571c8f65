// describe-files: fills the page of the file formats with tables made from the record layouts in the sources.
//
//     describe-files SOURCE TEMPLATE PAGE [check]
//
// A line "@hop_layout" of TEMPLATE becomes the table of that layout; a layout that has no line is a fault.
// With "check" PAGE is not written but compared.
#include "source_records.h"

#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>

namespace wortlex {
namespace {

std::string whole_file(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error(path + ": cannot be read");
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// The comment of a field, and what its codes stand for: those of its type, and of types that the comment
// names.
std::string meaning(const SourceRecords& records, const SourceMember& member) {
    std::string text = member.comment;
    if (const auto alias = records.aliases.find(member.type); text.empty() && alias != records.aliases.end())
        text = alias->second.comment;
    if (text.empty() && member.name.starts_with("reserved")) text = "kept as found";
    if (text.ends_with('.')) text.pop_back();
    for (const auto& [name, code] : records.enums) {
        const auto gap = text.empty() ? "" : "; ";
        if (name == innermost(member.type)) text += gap + code.values;
        if (member.comment.find('`' + name + '`') != std::string::npos)
            text += gap + ('`' + name + "` is " + code.values);
    }
    return text;
}

std::string cell_of(const SourceRecords& records, const SourceField& field, std::size_t bytes) {
    const auto& member = found(found(records.structs, field.record).members, field.member);
    return "| " + std::to_string(field.offset) + " | " + std::to_string(bytes) + " | " +
           file_type(records, member.type, field.sub_layout, bytes) + " | `" + field.path + "` | " +
           meaning(records, member) + " |\n";
}

std::string table(const SourceRecords& records, const SourceLayout& layout) {
    const auto& comment = found(records.structs, layout.record).comment;
    auto text = "`" + layout.record + "`, " + std::to_string(layout.size) + " bytes." +
                (comment.empty() ? "" : " " + comment) +
                "\n\n| Offset | Bytes | Type | Field | Meaning |\n|--:|--:|---|---|---|\n";
    for (std::size_t i = 0; i < layout.fields.size(); ++i) {
        const auto end = i + 1 < layout.fields.size() ? layout.fields[i + 1].offset : layout.size;
        text += cell_of(records, layout.fields[i], end - layout.fields[i].offset);
    }
    return text;
}

std::string page(const SourceRecords& records, const std::string& page_template) {
    auto left = records.layouts;
    std::string text;
    std::istringstream lines(page_template);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with('@')) {
            text += line + '\n';
            continue;
        }
        const auto layout = left.extract(line.substr(1));
        if (layout.empty()) throw std::runtime_error(line + ": no such layout, or told twice");
        text += table(records, layout.mapped());
    }
    if (!left.empty()) throw std::runtime_error(left.begin()->first + ": has no place on the page");
    return text;
}

int describe(const std::vector<std::string>& arguments) {
    if (arguments.size() < 3) throw std::runtime_error("usage: describe-files SOURCE TEMPLATE PAGE [check]");
    const auto text = page(read_source_records(arguments[0]), whole_file(arguments[1]));
    if (arguments.size() > 3) {
        if (text == whole_file(arguments[2])) return 0;
        throw std::runtime_error(arguments[2] + ": is out of date; the target files-page makes it anew");
    }
    return (std::ofstream(arguments[2], std::ios::binary) << text).flush() ? 0 : 1;
}

} // namespace
} // namespace wortlex

int main(int count, char** arguments) try {
    return wortlex::describe({arguments + 1, arguments + count});
} catch (const std::exception& fault) {
    std::cerr << fault.what() << '\n';
    return 1;
}
