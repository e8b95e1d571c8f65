#include "handbook/handbook_printout.h"

#include "handbook/markdown.h"

namespace wortlex {
namespace {

constexpr int column_units = 620, item_indent = 14; // logical units

std::vector<PageRun> page_runs(const std::string& source) {
    std::vector<PageRun> runs;
    for (auto& run : runs_of(source)) {
        const auto slope = run.is_italic ? PageFont::body_italic : PageFont::body;
        runs.push_back({std::move(run.text), run.is_bold ? PageFont::body_bold : slope});
    }
    return runs;
}

void print_row(PageContext& page, const Block& row) {
    const auto cells = cells_of(row);
    std::vector<PageColumn> columns;
    for (std::size_t i = 0; i < cells.size(); ++i)
        columns.push_back({.tab = static_cast<int>(i) * column_units / static_cast<int>(cells.size())});
    page.TableLine(columns, cells);
}

void print_block(PageContext& page, const Block& block, bool is_first) {
    switch (block.kind) {
    case BlockKind::heading:
        page.KeepTogether(4);
        page.SelectFont(block.level < 3 ? PageFont::title : PageFont::title_italic);
        return page.Line(plain_text(block.source));
    case BlockKind::paragraph:
        return page.RunLines(page_runs(block.source), 0);
    case BlockKind::item:
        return page.RunLines(page_runs(block.source), item_indent * (block.level + 1), "-", item_indent);
    case BlockKind::table_row:
        if (is_first) page.SelectFont(PageFont::body_bold); // the head
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
    return {title, printer_scale, [title, blocks = blocks_of(shown_markdown(markdown))](PageContext& page) {
                page.SetHeader(0, "Wortlex Handbook, " + title);
                std::optional<BlockKind> above;
                for (const auto& block : blocks) {
                    if (above && parts(*above, block.kind)) page.NewLines(1);
                    print_block(page, block, above != block.kind);
                    above = block.kind;
                }
            }};
}

} // namespace wortlex
