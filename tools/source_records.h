// The records, codes and layouts that stand in the sources, read as text: their names and comments are
// nowhere else.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace wortlex {

struct SourceMember {
    std::string name;
    std::string type; ///< as declared
    std::string comment;
};

struct SourceStruct {
    std::string comment;
    std::map<std::string, SourceMember> members;
};

struct SourceEnum {
    std::string type;
    std::string values; ///< "0 ale, 1 lager"
};

struct SourceField {
    std::size_t offset = 0;
    std::string record; ///< that the member belongs to
    std::string member;
    std::string path; ///< with the members that lead to it
    std::string sub_layout;
};

struct SourceLayout {
    std::string record;
    std::size_t size = 0;
    std::vector<SourceField> fields;
};

struct SourceRecords {
    std::map<std::string, SourceStruct> structs;
    std::map<std::string, SourceEnum> enums;
    std::map<std::string, SourceMember> aliases;
    std::map<std::string, SourceLayout> layouts;
};

/// What a map holds under `name`; throws with the name.
template <class Value>
const Value& found(const std::map<std::string, Value>& map, const std::string& name) {
    const auto place = map.find(name);
    if (place == map.end()) throw std::runtime_error(name + ": is not declared as it is expected");
    return place->second;
}

/// Reads all headers and sources below `folder`. Throws where a layout cannot be understood.
SourceRecords read_source_records(const std::string& folder);

/// The type of an array's elements, of any other type itself.
std::string innermost(const std::string& type);

/// How `bytes` of a field stand in the file: "f32", "char[55]", "50 x `mash_step_layout`".
std::string file_type(const SourceRecords& records, const std::string& type, const std::string& sub_layout,
                      std::size_t bytes);

} // namespace wortlex
