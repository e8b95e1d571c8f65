#include "handbook/handbook_printout.h"

#include "handbook/markdown.h"

namespace wortlex {
namespace {

constexpr int page_units = 620, item_indent = 14; // logical units

void print_indented(PageContext& page, const std::string& text, int depth) {
    const int from = item_indent * (depth + 1);
    const auto lines = page.wrapped(text, from);
    for (std::size_t line = 0; line < lines.size(); ++line)
        page.TabbedLine({from}, (line == 0 ? "-\t" : "\t") + lines[line]);
}

void print_wrapped(PageContext& page, const std::string& text) {
    for (const auto& line : page.wrapped(text, 0)) page.Line(line);
}

void print_row(PageContext& page, const Block& row) {
    const auto cells = cells_of(row);
    std::vector<PageColumn> columns;
    for (std::size_t i = 0; i < cells.size(); ++i)
        columns.push_back({.tab = static_cast<int>(i) * page_units / static_cast<int>(cells.size())});
    page.TableLine(columns, cells);
}

void print_block(PageContext& page, const Block& block) {
    switch (block.kind) {
    case BlockKind::heading:
        page.KeepTogether(4);
        page.SelectFont(block.level < 3 ? PageFont::title : PageFont::title_italic);
        return page.Line(plain_text(block.source));
    case BlockKind::paragraph:
        return print_wrapped(page, plain_text(block.source));
    case BlockKind::item:
        return print_indented(page, plain_text(block.source), block.level);
    case BlockKind::table_row:
        return print_row(page, block);
    case BlockKind::fenced:
        return page.TabbedLine({item_indent}, '\t' + block.source);
    case BlockKind::picture:
        return;
    }
}

// What belongs together stands together.
bool parts(BlockKind above, BlockKind below) {
    return above != BlockKind::heading && (above != below || above == BlockKind::paragraph);
}

} // namespace

PrintRequest handbook_printout(const std::string& title, const std::string& markdown, float printer_scale) {
    return {title, printer_scale, [title, blocks = blocks_of(markdown)](PageContext& page) {
                page.SetHeader(0, "Wortlex Handbook, " + title);
                std::optional<BlockKind> above;
                for (const auto& block : blocks) {
                    if (above && parts(*above, block.kind)) page.NewLines(1);
                    print_block(page, block);
                    above = block.kind;
                }
            }};
}

} // namespace wortlex
