// A surface that writes down what is drawn, one line of text a call.
#pragma once

#include "base/ports/surface.h"

#include <deque>
#include <map>
#include <sstream>

namespace wortlex {

class RecordingSurface : public Surface {
public:
    std::vector<std::string> lines;
    Extent extent{800, 600};
    Extent character{8, 16}; ///< what every character takes

    void set_pen(const Pen& pen) override {
        constexpr const char* styles[] = {"solid", "dash", "dot", "none"};
        note("pen", hex(pen.colour), pen.width, styles[static_cast<int>(pen.style)]);
    }
    void set_brush(std::optional<std::uint32_t> fill) override { note("brush", fill ? hex(*fill) : "none"); }
    void set_font(const Font& font) override {
        note("font", font.face, font.cell_height, font.cell_width, font.weight, font.italic ? "italic" : "");
    }
    void set_text_colour(std::uint32_t colour) override { note("text colour", hex(colour)); }

    void move_to(Point to) override { note("move", list({to.x, to.y})); }
    void line_to(Point to) override { note("line", list({to.x, to.y})); }
    void polyline(std::span<const Point> points) override { note("polyline", all(points)); }
    void polygon(std::span<const Point> points) override { note("polygon", all(points)); }
    void rectangle(const Box& b) override { note("rectangle", list({b.left, b.top, b.right, b.bottom})); }
    void ellipse(const Box& b) override { note("ellipse", list({b.left, b.top, b.right, b.bottom})); }
    void text(Point at, std::string_view text) override { note("text", list({at.x, at.y}), text); }
    void tabbed_text(Point at, std::string_view text, std::span<const int> stops) override {
        note("tabbed", list({at.x, at.y}), "[" + list(stops) + "]", text);
    }
    Extent text_extent(std::string_view text) const override {
        return {static_cast<int>(text.size()) * character.width, character.height};
    }
    Extent size() const override { return extent; }

private:
    void note(const char* what, const auto&... parts) {
        std::ostringstream line;
        line << what;
        (void(line << ' ' << parts), ...);
        lines.push_back(line.str());
    }
    static std::string list(std::span<const int> values) {
        std::string all;
        for (const int value : values) all += (all.empty() ? "" : ",") + std::to_string(value);
        return all;
    }
    static std::string list(std::initializer_list<int> values) { return list(std::span(values)); }
    static std::string all(std::span<const Point> points) {
        std::string all;
        for (const auto& point : points) all += (all.empty() ? "" : " ") + list({point.x, point.y});
        return all;
    }
    static std::string hex(std::uint32_t colour) {
        std::ostringstream digits;
        digits << std::hex << std::uppercase << (0x1000000 | (colour & 0xFFFFFF));
        return digits.str().substr(1);
    }
};

/// Every page is a surface of its own; `pages` outlives the document.
struct RecordingPrinter : Printer {
    std::string document;
    std::deque<RecordingSurface> pages;
    bool refuses = false;
    std::size_t room = 1000; ///< pages until it breaks off
    bool ended = false;

    bool begin(std::string_view document_name) override {
        document = document_name;
        if (!refuses) next_page();
        return !refuses;
    }
    Surface& page() override { return pages.back(); }
    bool next_page() override {
        if (pages.size() == room) return false;
        pages.emplace_back();
        return true;
    }
    void end() override { ended = true; }
};

/// Pictures by path, in memory.
struct FakePictures : Pictures {
    std::map<std::string, Pixels> files;
    PictureSave result = PictureSave::saved; ///< of every save

    std::optional<Pixels> load(const std::string& path) override {
        const auto found = files.find(path);
        return found == files.end() ? std::nullopt : std::optional(found->second);
    }
    PictureSave save(const std::string& path, const Pixels& pixels, int) override {
        if (result == PictureSave::saved) files[path] = pixels;
        return result;
    }
};

/// Keeps what was drawn instead of a picture; its pixels are blank.
struct RecordingEasel : Easel {
    RecordingSurface surface;

    Pixels drawn(Extent size, const std::function<void(Surface&)>& draw) override {
        surface = {};
        draw(surface);
        return {size.width, size.height,
                std::vector<std::uint8_t>(3 * static_cast<std::size_t>(size.width * size.height))};
    }
};

} // namespace wortlex
