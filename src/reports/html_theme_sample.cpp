#include "reports/html_theme_form.h"

#include <vector>

namespace wortlex {
namespace {

constexpr int page_margin = 12;
constexpr std::string_view face = "Verdana";

struct Cell {
    std::string_view text;
    int width = 0;
    std::uint32_t background = 0;
    std::uint32_t colour = 0;
    bool is_bold = false;
};

// Draws tables below each other.
class Sample {
public:
    Sample(Surface& surface, const HtmlTheme& theme)
        : surface_(surface), theme_(theme), letters_(theme.font_size == 2 ? 15 : 12) {}

    void fill() {
        surface_.set_pen({.colour = theme_.body_background});
        surface_.set_brush(theme_.body_background);
        surface_.rectangle({0, 0, surface_.size().width, surface_.size().height});
    }

    void row(const std::vector<Cell>& cells) {
        const int height = letters_ + 10;
        int x = page_margin;
        for (const auto& cell : cells) {
            draw(cell, {x, y_, x + cell.width, y_ + height});
            x += cell.width;
        }
        y_ += height;
    }

    void gap() { y_ += page_margin; }

    void credit() {
        surface_.set_font({.face = face, .cell_height = letters_, .weight = 700});
        surface_.set_text_colour(theme_.body_text);
        surface_.text({page_margin, y_}, "Generated with Wortlex");
    }

private:
    void draw(const Cell& cell, const Box& box) {
        surface_.set_pen({.colour = theme_.borders != 0 ? theme_.border : cell.background});
        surface_.set_brush(cell.background);
        surface_.rectangle({box.left, box.top, box.right + 1, box.bottom + 1});
        surface_.set_font({.face = face,
                           .cell_height = cell.is_bold ? letters_ + 2 : letters_,
                           .weight = cell.is_bold ? 700 : 400});
        surface_.set_text_colour(cell.colour);
        const int free = box.bottom - box.top - surface_.text_extent(cell.text).height;
        surface_.text({box.left + 5, box.top + free / 2}, cell.text);
    }

    Surface& surface_;
    const HtmlTheme& theme_;
    int letters_; // their height in pixels
    int y_ = page_margin;
};

} // namespace

void draw_theme_sample(Surface& surface, const HtmlTheme& theme) {
    const int width = surface.size().width - 2 * page_margin, half = width / 2, third = width / 3;
    const auto heading = [&](std::string_view text) {
        return Cell{text, width, theme.heading_background, theme.heading_text, true};
    };
    const auto column = [&](std::string_view text, int wide) {
        return Cell{text, wide, theme.column_heading_background, theme.column_heading_text, true};
    };
    const auto descriptor = [&](std::string_view text) {
        return Cell{text, half, theme.descriptor_background, theme.descriptor_text};
    };
    const auto field = [&](std::string_view text, int wide) {
        return Cell{text, wide, theme.field_background, theme.field_text};
    };
    Sample sample(surface, theme);
    sample.fill();
    sample.row({heading("Recipe Specifics")});
    sample.row({descriptor("Batch Size (Gal):"), field("5.00", width - half)});
    sample.row({descriptor("Anticipated OG:"), field("1.052", width - half)});
    sample.row({descriptor("Anticipated IBU:"), field("34.2", width - half)});
    sample.gap();
    sample.row({heading("Hops")});
    sample.row({column("Amount", third), column("Name", width - third)});
    sample.row({field("1.00 oz.", third), field("Northern Brewer", width - third)});
    sample.row({field("0.50 oz.", third), field("Hallertauer", width - third)});
    sample.gap();
    sample.credit();
}

} // namespace wortlex
