// The databases on paper: their lists, and single entries.
#pragma once

#include "base/text.h"
#include "base/windows1252.h"
#include "page/page.h"

#include <string>
#include <vector>

namespace wortlex {

/// A list with its columns. All texts are UTF-8.
struct PrintedList {
    std::string title;
    std::vector<int> stops;         ///< where the columns behind the first begin
    std::vector<std::string> heads; ///< the lines above the columns on every page, tabs between these
    std::vector<std::vector<std::string>> rows;
};

/// A cell that would reach into the next column is cut.
void print_list(PageContext& page, const PrintedList& list);

/// What is told of one entry: lines of a label and, behind a tab, what it stands for.
class EntryLines {
public:
    /// As it is.
    void add(std::string line) { lines_.push_back(std::move(line)); }
    void blank() { lines_.emplace_back(); }
    /// A word of a fixed list. What has none, as in a damaged record, is left out.
    void word(std::string_view label, std::string_view word);
    template <std::size_t N>
    void text(std::string_view label, const Text<N>& field) {
        free_text(std::string(label) + ":\t", field.view());
    }
    /// The same behind a label with a tab of its own.
    void free_text(const std::string& label, std::string_view windows1252);

    const std::vector<std::string>& lines() const { return lines_; }

private:
    std::vector<std::string> lines_;
};

/// Long texts go on below, beside their label.
void print_entry(PageContext& page, const std::string& title, const EntryLines& entry);

} // namespace wortlex
