#include "reports/competition_dialog.h"

namespace wortlex {

void competition_texts_form(Form& form, CompetitionTexts& texts, ReportOutput output) {
    constexpr std::size_t most_bytes = 252;
    constexpr int width = 40;
    const bool is_form = output == ReportOutput::competition_form;
    auto& rows = form.group();
    if (is_form)
        rows.text("competition", texts.name).label("&Name of Competition:").limit(most_bytes).width(width);
    rows.text("style", texts.style).label("Competition &Style # and/or Name:").limit(most_bytes).width(width);
    if (is_form) rows.note("guidelines", "( if different from AHA / BJCP style guidelines )");
    rows.note("blank", is_form ? "( Entries left blank will not be printed )"
                               : "( If left blank this entry will not be printed )");
    form.restore_on_cancel(texts);
}

} // namespace wortlex
