#include "companion/full_report.h"

#include "base/files.h"
#include "reports/catalogue.h"

namespace wortlex {

FullReports::FullReports(Program& program)
    : program_(program), recipe_sections_(LoadPrintSelection(program.data_folder, DocumentKind::recipe, 1)),
      session_sections_(LoadPrintSelection(program.data_folder, DocumentKind::session, 1)),
      theme_(LoadDefaultTheme(program.data_folder)) {
    if (!LoadColorTable(find_data_file(program.data_folder, color_table_file), color_table_))
        color_table_ = built_in_color_table();
}

DocumentReport FullReports::report(DocumentKind kind) const {
    const bool is_session = kind == DocumentKind::session;
    const auto open = is_session ? open_session(program_) : open_recipe(program_);
    const auto view = default_report_view(program_.settings);
    const float rate =
        is_session ? program_.session.water_needs.evaporation_rate : evaporation_rate(program_);
    return document_report({open, view, color_table_, rate},
                           is_session ? session_sections_ : recipe_sections_);
}

TextSink FullReports::text(DocumentKind kind) const {
    TextSink sink;
    write_text(report(kind), sink);
    return sink;
}

HtmlWriter FullReports::html(DocumentKind kind) const {
    return write_html(report(kind), theme_);
}

} // namespace wortlex
