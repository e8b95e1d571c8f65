// The file dialogs that a user chooses in.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wortlex {

/// What a file dialog offers. The filter is "caption|*.ext".
struct FileChoice {
    std::string_view filter;
    std::string folder;
    std::string suggested_name;
    std::string_view extension; ///< added to a typed name without one
};

class Files {
public:
    virtual ~Files() = default;
    virtual std::optional<std::string> choose_to_open(const FileChoice& choice) = 0;
    /// Asks before an existing file is chosen.
    virtual std::optional<std::string> choose_to_save(const FileChoice& choice) = 0;
};

} // namespace wortlex
