// The Markdown that the handbook is written in, block by block: headings, paragraphs, lists, tables, fenced
// lines and pictures. The window shows it by the toolkit; searching, printing and telling of a field read it
// here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wortlex {

enum class BlockKind { heading, paragraph, item, table_row, fenced, picture };

struct Block {
    BlockKind kind = BlockKind::paragraph;
    int level = 0;          ///< of a heading, from 1; of an item, how deep its list lies
    std::string source;     ///< without the mark that it begins with; cells of a table keep their bars
    std::string keywords{}; ///< by which brewers look for it; they stand in comments, and are never shown
};

/// As a page is shown: without its comments, and with what follows an arrow bound to it.
std::string shown_markdown(std::string_view markdown);

/// Lines that follow each other belong to one paragraph or item, but each fenced line is its own block. The
/// line below a table's head is left out.
std::vector<Block> blocks_of(std::string_view markdown);

/// Words between marks of emphasis; not empty.
struct EmphasisRun {
    std::string text;
    bool is_bold = false;
    bool is_italic = false;

    bool operator==(const EmphasisRun&) const = default;
};

/// Without the marks, and those of code; of a link or picture its words. In code nothing is a mark.
std::vector<EmphasisRun> runs_of(std::string_view source);
/// The same without emphasis.
std::string plain_text(std::string_view source);

/// The bold words that an item begins with, plain: of "**A**, **B** and **C** are" these three.
std::vector<std::string> leads_of(const Block& block);

/// Where the first link of a text leads; empty where it has none.
std::string_view first_link(std::string_view source);

/// The cells of a table's row, plain.
std::vector<std::string> cells_of(const Block& row);

} // namespace wortlex
