#include "documents/forms/style_rows.h"

#include "base/windows1252.h"
#include "documents/work/recipe_view.h"
#include "measures/units.h"

namespace wortlex {
namespace {

constexpr int long_name = 18, short_name = 10; // digits

// What a style says, blank where none was chosen.
class StyleRows {
public:
    StyleRows(Rows& rows, const BrewDocument& document) : rows_(rows), document_(document) {}

    void words(std::string key, const std::string& label, int width,
               std::function<std::string(const StyleRecord&)> text) {
        rows_.shown(std::move(key), blank_without_style(std::move(text)))
            .label(label)
            .width(width)
            .colours(ColorArea::style_guidelines);
    }

    void number(std::string key, const std::string& label, std::string pattern,
                std::function<float(const StyleRecord&)> value) {
        auto text = [pattern = std::move(pattern), value = std::move(value)](const StyleRecord& style) {
            return formatted(pattern, value(style));
        };
        rows_.shown(std::move(key), blank_without_style(std::move(text)))
            .label(label)
            .figure()
            .width(6)
            .colours(ColorArea::style_guidelines);
    }

private:
    std::function<std::string()> blank_without_style(std::function<std::string(const StyleRecord&)> text) {
        return [&document = document_, text = std::move(text)] {
            return has_style(document) ? text(document.style) : std::string();
        };
    }

    Rows& rows_;
    const BrewDocument& document_;
};

} // namespace

void style_rows(Rows& rows, const OpenDocument& open) {
    StyleRows style(rows, open.document);
    style.words("style_class", "Style", long_name,
                [](const auto& s) { return utf8_from_windows1252(s.category.view()); });
    style.words("style_name", "Name", long_name,
                [](const auto& s) { return utf8_from_windows1252(s.name.view()); });
    style.words("style_type", "Type", short_name,
                [](const auto& s) { return std::string(beer_type_word(s.type)); });
    style.words("style_book", "Guidelines", short_name,
                [](const auto& s) { return std::string(style_book_word(s)); });
    style.number("min_sg", "Min SG", "%0.3f", [](const auto& s) { return s.min_og; });
    style.number("max_sg", "Max SG", "%0.3f", [](const auto& s) { return s.max_og; });
    style.number("min_ibu", "Min IBU", "%0.0f", [](const auto& s) { return s.min_ibu; });
    style.number("max_ibu", "Max IBU", "%0.0f", [](const auto& s) { return s.max_ibu; });
    style.number("min_colour", "Min CLR", "%0.0f", [&settings = open.settings](const auto& s) {
        return to_shown_colour(s.min_colour, settings);
    });
    style.number("max_colour", "Max CLR", "%0.0f", [&settings = open.settings](const auto& s) {
        return to_shown_colour(s.max_colour, settings);
    });
}

} // namespace wortlex
