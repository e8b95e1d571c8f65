#include "page/html_writer.h"

#include "base/files.h"
#include "base/take_while.h"

#include <algorithm>
#include <span>

namespace wortlex {
namespace {

constexpr std::size_t indent_width = 2;
constexpr int largest_font = 7;
constexpr std::string_view hex_digits = "0123456789abcdef";
constexpr std::string_view faces = "verdana,helvetica,arial";
constexpr std::string_view keywords =
    "beer, brewing, homebrew, homebrewing, beer recipe, malt, hops, yeast, mash, wort, Wortlex";
constexpr std::string_view top_of_page = "#"; // the product has no site yet
constexpr std::string_view tab_blanks = "    ";

std::string two_digits(std::uint32_t byte, std::string_view digits) {
    return {digits[byte >> 4 & 0xF], digits[byte & 0xF]};
}

std::string colour_text(std::uint32_t colour) {
    return '#' + two_digits(colour, hex_digits) + two_digits(colour >> 8, hex_digits) +
           two_digits(colour >> 16, hex_digits);
}

std::string attribute(std::string_view name, std::string_view value) {
    return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

std::string attribute(std::string_view name, int value) {
    return attribute(name, std::to_string(value));
}

std::string_view alignment(HtmlAlign align) {
    switch (align) {
    case HtmlAlign::left:
        return " ALIGN=\"LEFT\"";
    case HtmlAlign::centre:
        return " ALIGN=\"CENTER\"";
    case HtmlAlign::right:
        return " ALIGN=\"RIGHT\"";
    default:
        return {};
    }
}

std::string font(int size, std::string_view colour) {
    return "<FONT" + attribute("SIZE", size) + attribute("FACE", faces) + attribute("COLOR", colour) + '>';
}

std::string ground(std::uint32_t colour) {
    return attribute("BGCOLOR", colour_text(colour)) + '>';
}

struct Escape {
    std::string_view character, markup;
};

constexpr Escape break_escape = {"\r", "<BR>"};
constexpr std::array<Escape, 5> escapes = {
    {{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}, {"\"", "&quot;"}, {html_blank, "&nbsp;"}}};

enum class Breaks { kept, as_markup };

// Of what such text begins with: nothing where it stands for itself.
const Escape* escape_of(std::string_view text, Breaks breaks) {
    if (breaks == Breaks::as_markup && text.starts_with(break_escape.character)) return &break_escape;
    const auto* const found = std::find_if(escapes.begin(), escapes.end(), [&](const Escape& candidate) {
        return text.starts_with(candidate.character);
    });
    return found == escapes.end() ? nullptr : found;
}

bool may_be_escaped(char byte) {
    return byte == '&' || byte == '<' || byte == '>' || byte == '"' || byte == '\r' ||
           byte == html_blank.front();
}

// Most of a text needs no escape and is copied in long runs.
std::string escaped(std::string_view text, Breaks breaks = Breaks::kept) {
    std::string markup;
    markup.reserve(text.size());
    while (!text.empty()) {
        const auto* const escape = escape_of(text, breaks);
        if (escape != nullptr) {
            markup += escape->markup;
            text.remove_prefix(escape->character.size());
            continue;
        }
        markup += text.front();
        text.remove_prefix(1);
        markup += take_while(text, [](char byte) { return !may_be_escaped(byte); });
    }
    return markup;
}

bool is_in_word(char byte) {
    return byte != ' ' && byte != '\t' && byte != '\r' && byte != '\n';
}

// A browser draws one blank for several, and none at the start of a line.
std::string with_kept_blanks(std::string_view text) {
    std::string kept;
    bool is_kept = true;
    while (!text.empty()) {
        const auto word = take_while(text, is_in_word);
        kept += word;
        is_kept = is_kept && word.empty();
        const auto blank = text.substr(0, 1);
        for (const char c : blank == "\t" ? tab_blanks : blank) {
            kept += c == ' ' && is_kept ? html_blank : std::string_view(&c, 1);
            is_kept = c != ' ' || !is_kept;
        }
        text.remove_prefix(blank.size());
    }
    return kept;
}

bool stands_in_address(char byte) {
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           byte == '-' || byte == '_' || byte == '.' || byte == '~';
}

} // namespace

HtmlWriter::AreaMarkup::AreaMarkup(std::uint32_t background, std::uint32_t text, int font_size)
    : ground(wortlex::ground(background)), font(wortlex::font(font_size, colour_text(text))),
      heading_font(wortlex::font(std::min(font_size, largest_font - 1) + 1, colour_text(text)) + "<B>") {}

HtmlWriter::HtmlWriter(const HtmlTheme& theme)
    : areas_{{{theme.body_background, theme.body_text, theme.font_size},
              {theme.heading_background, theme.heading_text, theme.font_size},
              {theme.column_heading_background, theme.column_heading_text, theme.font_size},
              {theme.descriptor_background, theme.descriptor_text, theme.font_size},
              {theme.field_background, theme.field_text, theme.font_size}}},
      theme_(theme) {}

const HtmlWriter::AreaMarkup& HtmlWriter::markup_of(HtmlArea area) const {
    return areas_.at(static_cast<std::size_t>(area));
}

void HtmlWriter::line_of(std::initializer_list<std::string_view> parts) {
    page_.append(static_cast<std::size_t>(depth_) * indent_width, ' ');
    for (const auto part : parts) page_ += part;
    page_ += '\n';
}

void HtmlWriter::page_start(std::string_view title) {
    line("<!DOCTYPE HTML PUBLIC 'Generated by Wortlex'>");
    line("<HTML>");
    line("<HEAD>");
    line("<META" + attribute("HTTP-EQUIV", "Content-Type") +
         attribute("CONTENT", "text/html; charset=UTF-8") + '>');
    line("<TITLE>" + escaped(title) + "</TITLE>");
    line("<META" + attribute("HTTP-EQUIV", "Keywords") + attribute("CONTENT", keywords) + '>');
    line("</HEAD>");
    line_of({"<BODY", attribute("BGCOLOR", colour_text(theme_.body_background)),
             attribute("TEXT", colour_text(theme_.body_text)), ">"});
    line("<TABLE" + attribute("BORDER", 0) + attribute("CELLSPACING", 0) + attribute("CELLPADDING", 0) +
         attribute("WIDTH", 550) + "><TR><TD>");
    line(markup_of(HtmlArea::body).font);
}

void HtmlWriter::page_end() {
    line("<BR>");
    line("<B>Generated with <A" + attribute("HREF", top_of_page) + ">Wortlex</A></B>");
    line("</FONT>");
    line("</TD></TR></TABLE>");
    line("</BODY>");
    line("</HTML>");
}

void HtmlWriter::table_start() {
    const auto border = colour_text(theme_.border);
    page_ += '\n';
    line_of({"<TABLE", attribute("BORDER", theme_.borders == 0 ? 0 : 1),
             attribute("CELLSPACING", theme_.cell_spacing), attribute("CELLPADDING", theme_.cell_padding),
             attribute("BORDERCOLOR", border), attribute("BORDERCOLORLIGHT", border),
             attribute("BORDERCOLORDARK", border), ">"});
    ++depth_;
    row_start();
}

void HtmlWriter::table_end() {
    row_end();
    bare_table_end();
}

void HtmlWriter::bare_table_end() {
    --depth_;
    line("</TABLE>");
}

void HtmlWriter::row_start() {
    line("<TR>");
    ++depth_;
}

void HtmlWriter::row_end() {
    --depth_;
    line("</TR>");
}

void HtmlWriter::open_cell(std::string_view width, HtmlAlign align, std::string_view ground,
                           std::string_view font) {
    line_of({"<TD", width, " VALIGN=\"TOP\"", alignment(align), ground});
    ++depth_;
    line(font);
}

// A theme may hold any figures.
int HtmlWriter::cell_frame() const {
    const auto sensible = [](int pixels) { return std::clamp(pixels, 0, 100); };
    return 2 * sensible(theme_.cell_padding) + sensible(theme_.cell_spacing) + (theme_.borders == 0 ? 0 : 2);
}

void HtmlWriter::cell_start(int width, HtmlAlign align, HtmlArea area) {
    open_cell(attribute("WIDTH", width), align, markup_of(area).ground, markup_of(area).font);
}

void HtmlWriter::right_cell_start(int width, HtmlAlign align, HtmlArea area) {
    const bool is_forced = theme_.borders == 0 && align != HtmlAlign::none;
    cell_start(width, is_forced ? HtmlAlign::right : align, area);
}

void HtmlWriter::left_cell_start(int width, HtmlAlign align, HtmlArea area) {
    const bool is_forced = theme_.borders == 0 && align != HtmlAlign::none;
    cell_start(width, is_forced ? HtmlAlign::left : align, area);
}

void HtmlWriter::heading_cell_start(HtmlAlign align, HtmlArea area) {
    open_cell({}, align, markup_of(area).ground, markup_of(area).heading_font);
}

void HtmlWriter::colour_cell_start(int width, HtmlAlign align, std::uint32_t colour) {
    open_cell(attribute("WIDTH", width), align, ground(colour), markup_of(HtmlArea::body).font);
}

void HtmlWriter::close_cell(std::string_view markup, std::string_view end) {
    line_of({markup, end});
    --depth_;
    line("</TD>");
}

void HtmlWriter::cell_end(std::string_view text) {
    close_cell(escaped(text), "</FONT>");
}

void HtmlWriter::bold_cell_end(std::string_view text) {
    close_cell(escaped(text, Breaks::as_markup), "</B></FONT>");
}

void HtmlWriter::italic_cell_end(std::string_view text) {
    if (text.empty()) return close_cell({}, "</FONT>");
    close_cell("<I>" + escaped(text), "</I></FONT>");
}

void HtmlWriter::multi_line_cell_end(std::string_view text) {
    close_cell(escaped(with_kept_blanks(text), Breaks::as_markup), "</FONT>");
}

void HtmlWriter::rule() {
    line("<HR" + attribute("WIDTH", 650) + attribute("ALIGN", "LEFT") + attribute("SIZE", 1) +
         attribute("NOSHADE", "NOSHADE") + '>');
}

void HtmlWriter::line_break() {
    line("<BR>");
}

void HtmlWriter::image(std::string_view file, std::string_view alternative) {
    line("<IMG" + attribute("SRC", percent_encoded(file)) + attribute("ALT", escaped(alternative)) +
         attribute("BORDER", 0) + '>');
}

std::string percent_encoded(std::string_view text) {
    std::string encoded;
    for (const char byte : text) {
        if (stands_in_address(byte)) {
            encoded += byte;
        } else {
            encoded += '%' + two_digits(static_cast<unsigned char>(byte), "0123456789ABCDEF");
        }
    }
    return encoded;
}

bool save_html(const std::string& path, const HtmlWriter& writer, Prompts& prompts) {
    return save_or_tell(path, std::as_bytes(std::span(writer.page())), prompts);
}

} // namespace wortlex
