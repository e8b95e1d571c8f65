// A recipe file at one glance, as it stands on the shelf from which recipes are opened.
#pragma once

#include "records/documents/document_files.h"

#include <array>
#include <string>

namespace wortlex {

enum class ShelfFigure : std::uint8_t { og, ibu, colour, size };
inline constexpr std::size_t shelf_figures = 4;

struct ShelfEntry {
    std::string path;
    std::string name;  ///< the title of the recipe; where it has none, that of its file. UTF-8, as the next
    std::string style; ///< empty where none was chosen
    std::string_view fault; ///< of its file; empty for a whole one
    bool can_be_opened = true;
    /// As they are read: in the units of the settings, with no more decimals than are shown.
    std::array<double, shelf_figures> figures{};
    float srm = 0;             ///< of the beer in its glass
    std::int64_t modified = 0; ///< seconds since 1970, UTC
    std::string name_words;    ///< as `find_words` has them, with blanks between, by which names are sorted
    std::string style_words;
    std::string words; ///< these, the name of the file and of every ingredient

    double figure(ShelfFigure which) const { return figures.at(static_cast<std::size_t>(which)); }
};

/// How many decimals of a figure are shown.
int decimals_of(ShelfFigure figure, const Settings& settings);

/// What is wrong with a file, to follow its name; empty for a whole one.
std::string_view shelf_fault(LoadResult result);

/// Reads a recipe and works its beer out as a window does on opening it. The file is left as it is.
ShelfEntry read_shelf_entry(const std::string& path, const Settings& settings);

} // namespace wortlex
