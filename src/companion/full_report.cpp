#include "companion/full_report.h"

#include "base/files.h"
#include "reports/catalogue.h"

namespace wortlex {

namespace {

// No picture can stand beside a page that goes to the terminal.
PrintSelection wanted_sections(const std::string& data_folder, DocumentKind kind) {
    auto wanted = LoadPrintSelection(data_folder, kind, 1);
    wanted[PrintSection::mash_graph] = wanted[PrintSection::water_graph] = 0;
    return wanted;
}

} // namespace

FullReports::FullReports(Program& program)
    : program_(program), recipe_sections_(wanted_sections(program.data_folder, DocumentKind::recipe)),
      session_sections_(wanted_sections(program.data_folder, DocumentKind::session)),
      theme_(LoadDefaultTheme(program.data_folder)) {
    if (!LoadColorTable(find_data_file(program.data_folder, color_table_file), color_table_))
        color_table_ = built_in_color_table();
    LoadStocks(program.data_folder, stocks_);
}

DocumentReport FullReports::report() const {
    const bool is_session = program_.document.kind == DocumentKind::session;
    const auto open = live_document(program_);
    const auto view = default_report_view(program_.settings);
    return document_report({open, view, color_table_, evaporation_rate(program_), &stocks_},
                           is_session ? session_sections_ : recipe_sections_);
}

TextSink FullReports::text() const {
    TextSink sink;
    write_text(report(), sink);
    return sink;
}

HtmlWriter FullReports::html() const {
    return write_html(report(), theme_);
}

} // namespace wortlex
