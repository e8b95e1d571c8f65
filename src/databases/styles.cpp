#include "databases/styles.h"

#include "databases/catalogues.h"

namespace wortlex {
namespace {

constexpr CatalogueWords aha_words = {
    .import_filter = "AHA Style Import File (*.asim)|*.asim",
    .import_extension = "asim",
    .sort_files = {"ssort1.srt", "ssort2.srt"},
    .data_file = aha_style_file,
    .full = "The Style Database is Full!",
    .clone_warning = "",
    .replace_warning = "\n\nDo you wish to replace this item?",
    .closing_question =
        "You have made changes to the Style Guidlines Database!\nExiting now will not save the changes "
        "made.\nThese guidlines adhere to AHA guidlines and changing them may affect validity.\nDo you want "
        "to save the changes?",
    .maintenance_template = "STYLETYPEDIALOG",
    .entry_template = "STYLEENTRYDIALOG",
    .inventory_template = "",
    .pick_template = "STYLEPICKDIALOG"};

CatalogueWords words_of(StyleBook book) {
    auto words = aha_words;
    if (book == StyleBook::aha) return words;
    words.import_filter = "BJCP Style Import File (*.bsim)|*.bsim";
    words.import_extension = "bsim";
    words.data_file = bjcp_style_file;
    words.closing_question =
        "You have made changes to the Style Guidlines Database!\nExiting now will not save the changes "
        "made.\nThese guidlines adhere to BJCP guidlines and changing them may affect validity.\nDo you want "
        "to save the changes?";
    return words;
}

CatalogueFilter<StyleRecord> set_of(StyleBook book, std::string label) {
    const auto styles = style_book_name(book) + " Styles";
    return {std::move(label), "Style Database Maintenance - " + styles, "Style Pick - " + styles, nullptr};
}

StyleRecord new_style(std::size_t /*filter*/) {
    StyleRecord style;
    style.number = 1;
    style.min_og = 1.020F;
    style.max_og = 1.030F;
    style.min_fg = 1.010F;
    style.max_fg = 1.015F;
    return style;
}

std::string type_text(const StyleRecord& style) {
    return std::string(style_type_word(style));
}

} // namespace

std::string style_book_name(StyleBook book) {
    return book == StyleBook::aha ? "AHA" : "BJCP";
}

std::string style_number(const StyleRecord& style) {
    const std::string letter = style.letter == '\0' ? "?" : std::string(1, style.letter);
    return formatted("%02d", style.number) + "-" + utf8_from_windows1252(letter);
}

std::string_view style_type_word(const StyleRecord& style) {
    constexpr std::array<std::string_view, 6> words = {"Ale", "Lager", "Cider", "Mead", "Sake", "Ale/Lager"};
    const auto code = static_cast<std::size_t>(style.type);
    return code < words.size() ? words.at(code) : "N/A";
}

Catalogue<StyleRecord> style_catalogue(const Settings& settings, const std::string& data_folder,
                                       StyleBook book) {
    using Style = CatalogueBuilder<StyleRecord>;
    const bool bjcp = book == StyleBook::bjcp;
    Catalogue<StyleRecord> styles;
    styles.words = words_of(book);
    styles.columns = {Style::words(style_book_name(book) + "\n#", 8, style_number),
                      Style::text("Category", 26, &StyleRecord::category),
                      Style::text("Sub-Category", 30, &StyleRecord::name).stretched(),
                      Style::words("Type", 10, type_text)};
    styles.chains = {{0}, {1, 0}, {2, 0}, {3, 0}};
    styles.identity = {1, 2, 3};
    styles.filters = {set_of(StyleBook::aha, "&AHA"), set_of(StyleBook::bjcp, "&BJCP")};
    styles.new_limit = 194;
    styles.new_record = new_style;
    styles.entry_form = [&settings](Form& form, StyleRecord& style) {
        style_entry_form(form, style, settings);
    };
    styles.entry_caption = bjcp ? 1 : 0;
    styles.pages = style_pages(settings, book);
    styles.names = {stored_text(&StyleRecord::name), stored_text(&StyleRecord::category), style_type_word};
    styles.keep = [](StyleRecord&, const StyleRecord&) {};
    styles.exists_text = [](const StyleRecord& style) {
        return utf8_from_windows1252(style.name.view()) + " " + utf8_from_windows1252(style.category.view()) +
               "\nThis Style already exists in the database!";
    };
    styles.delete_name = [](const StyleRecord& style) {
        return utf8_from_windows1252(style.category.view()) + "\n" + utf8_from_windows1252(style.name.view());
    };
    styles.load = [data_folder, bjcp](Database<StyleRecord>& into, Prompts& prompts) {
        return LoadStyles(data_folder, bjcp, into, prompts);
    };
    styles.save = [data_folder, bjcp](const Database<StyleRecord>& from) {
        return SaveStyles(data_folder, bjcp, from);
    };
    return styles;
}

} // namespace wortlex
