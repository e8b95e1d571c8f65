// Drawing: charts and pages are drawn on a `Surface`, be it a window, an image or a printed page.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace wortlex {

struct Point {
    int x = 0;
    int y = 0;
    bool operator==(const Point&) const = default;
};

struct Extent {
    int width = 0;
    int height = 0;
    bool operator==(const Extent&) const = default;
};

struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const Box&) const = default;
};

enum class PenStyle { solid, dash, dot, none };

/// Colours are 0x00BBGGRR.
struct Pen {
    std::uint32_t colour = 0;
    int width = 1;
    PenStyle style = PenStyle::solid;
};

struct Font {
    std::string_view face;
    int cell_height = 0;
    int cell_width = 0; ///< 0: as the face has it
    int weight = 400;
    bool italic = false;
};

/// Units are pixels of the surface; texts are UTF-8.
class Surface {
public:
    virtual ~Surface() = default;

    virtual void set_pen(const Pen& pen) = 0;
    /// Nothing: shapes are not filled.
    virtual void set_brush(std::optional<std::uint32_t> colour) = 0;
    virtual void set_font(const Font& font) = 0;
    virtual void set_text_colour(std::uint32_t colour) = 0;

    virtual void move_to(Point to) = 0;
    virtual void line_to(Point to) = 0;
    virtual void polyline(std::span<const Point> points) = 0;
    virtual void polygon(std::span<const Point> points) = 0;
    virtual void rectangle(const Box& box) = 0;
    virtual void ellipse(const Box& box) = 0;
    virtual void text(Point at, std::string_view text) = 0;
    /// Tabs go to the stops, counted from the left of the text.
    virtual void tabbed_text(Point at, std::string_view text, std::span<const int> stops) = 0;
    virtual Extent text_extent(std::string_view text) const = 0;
    virtual Extent size() const = 0;
};

class Printer {
public:
    virtual ~Printer() = default;
    /// False when the user or the device refuses.
    virtual bool begin(std::string_view document_name) = 0;
    /// The page begun by the last `begin` or `next_page`.
    virtual Surface& page() = 0;
    /// False when the device breaks off.
    virtual bool next_page() = 0;
    virtual void end() = 0;
};

/// Rows of red, green, blue, one byte each, from the top.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;
};

/// What became of a picture that was to be saved. Only the first leaves a new file.
enum class PictureSave { saved, not_encoded, not_written };

/// Picture files.
class Pictures {
public:
    virtual ~Pictures() = default;
    virtual std::optional<Pixels> load(const std::string& path) = 0;
    /// `quality` from 20 to 100.
    virtual PictureSave save(const std::string& path, const Pixels& pixels, int quality) = 0;
};

/// Where a drawing becomes a picture.
class Easel {
public:
    virtual ~Easel() = default;
    /// What `draw` puts on a white surface of that size.
    virtual Pixels drawn(Extent size, const std::function<void(Surface&)>& draw) = 0;
};

} // namespace wortlex
