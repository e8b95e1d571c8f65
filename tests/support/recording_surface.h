// A surface that writes down what is drawn, one line of text a call.
#pragma once

#include "base/ports/surface.h"

#include <cstdio>

namespace wortlex {

class RecordingSurface : public Surface {
public:
    explicit RecordingSurface(Extent size = {800, 600}) : size_(size) {}

    std::vector<std::string> lines;
    Extent character{8, 16}; ///< what every character takes

    void set_pen(const Pen& pen) override {
        constexpr std::string_view styles[] = {"solid", "dash", "dot", "none"};
        note("pen " + colour(pen.colour) + " " + std::to_string(pen.width) + " " +
             std::string(styles[static_cast<int>(pen.style)]));
    }
    void set_brush(std::optional<std::uint32_t> fill) override {
        note("brush " + (fill ? colour(*fill) : std::string("none")));
    }
    void set_font(const Font& font) override {
        note("font " + std::string(font.face) + " " + numbers({font.cell_height, font.cell_width}) + " " +
             std::to_string(font.weight) + (font.italic ? " italic" : ""));
    }
    void set_text_colour(std::uint32_t text_colour) override { note("text colour " + colour(text_colour)); }

    void move_to(Point to) override { note("move " + numbers({to.x, to.y})); }
    void line_to(Point to) override { note("line " + numbers({to.x, to.y})); }
    void polyline(std::span<const Point> points) override { note("polyline" + all(points)); }
    void polygon(std::span<const Point> points) override { note("polygon" + all(points)); }
    void rectangle(const Box& box) override { note("rectangle " + corners(box)); }
    void ellipse(const Box& box) override { note("ellipse " + corners(box)); }
    void text(Point at, std::string_view text) override {
        note("text " + numbers({at.x, at.y}) + " " + std::string(text));
    }
    void tabbed_text(Point at, std::string_view text, std::span<const int> stops) override {
        std::string places;
        for (const int stop : stops) places += " " + std::to_string(stop);
        note("tabbed " + numbers({at.x, at.y}) + " [" + places + " ] " + std::string(text));
    }
    Extent text_extent(std::string_view text) const override {
        return {static_cast<int>(text.size()) * character.width, character.height};
    }
    Extent size() const override { return size_; }

private:
    void note(std::string line) { lines.push_back(std::move(line)); }

    static std::string numbers(std::initializer_list<int> values) {
        std::string list;
        for (const int value : values) list += (list.empty() ? "" : ",") + std::to_string(value);
        return list;
    }
    static std::string corners(const Box& box) { return numbers({box.left, box.top, box.right, box.bottom}); }
    static std::string all(std::span<const Point> points) {
        std::string list;
        for (const auto& point : points) list += " " + numbers({point.x, point.y});
        return list;
    }
    static std::string colour(std::uint32_t value) {
        std::array<char, 9> hex;
        std::snprintf(hex.data(), hex.size(), "%06X", static_cast<unsigned>(value & 0xFFFFFF));
        return hex.data();
    }

    Extent size_;
};

} // namespace wortlex
