#include "documents/recipe_gravity.h"
#include "page/text_sink.h"
#include "reports/catalogue.h"
#include "reports/competition.h"
#include "reports/row_parts.h"
#include "reports/sections.h"

#include <algorithm>

namespace wortlex {
namespace {

constexpr std::size_t size_column = 18;
constexpr std::string_view form_title = "Wortlex Competition Form Printout";

void add_lines(std::vector<ReportRow>& rows, std::string_view stored) {
    while (!stored.empty()) {
        const auto line = stored.substr(0, stored.find('\n'));
        stored.remove_prefix(std::min(line.size() + 1, stored.size()));
        rows.push_back({"%s\n", {line_text(line.substr(0, line.find_last_not_of('\r') + 1))}});
    }
}

std::string text_head(const std::string& competition) {
    std::string head = competition.empty() ? "" : competition + " - Entry Form\n\n";
    return head.append(form_title).append("\n").append(dashes_below(form_title)).append("\n\n");
}

ReportSection submitted_by(const CompetitionEntry& entry) {
    std::vector<ReportRow> rows{{"%s\n", {submitters(entry)}}};
    const auto contact = contact_rows(entry);
    rows.insert(rows.end(), contact.begin(), contact.end());
    auto section = section_of("Submitted By:", ReportLines{{120}, std::move(rows)});
    section.text_heading = "Submitted By:\n-------------\n";
    return section;
}

// Either name is underlined as one of its time was.
ReportSection entered_style(const StyleRecord& style) {
    auto section =
        section_of(style.book == 0 ? "AHA Style" : "BJCP Style", ReportLines{{90}, {style_row(style)}});
    section.text_heading = section.heading + "\n--------------\n";
    return section;
}

ReportRow gravity_row(std::string_view label, float sg, const Settings& settings) {
    return gravity_line({.label = label, .plato = "Plato: |", .plato_width = 5}, sg, settings);
}

ReportSection entered_beer(const ReportSource& source) {
    const auto* const session = source.open.session;
    const auto& settings = source.open.settings;
    ReportLines lines{{120, 180, 225}, {{"Recipe Name:  |%s\n", {line_text(source.open.document.title)}}}};
    if (session != nullptr)
        lines.rows.push_back({"Brewing Date:\t|%s\n", {date_words(brew_date(*session), settings)}});
    lines.rows.push_back({unit_label("Batch Size", recipe_figure::batch_size, source, size_column) +
                              figure_place(recipe_figure::batch_size, 8, source) + "\n",
                          {figure_value(recipe_figure::batch_size, source)}});
    lines.rows.push_back({"Est. IBU:  |%0.1f\n", {figure_value(recipe_figure::total_ibu, source)}});
    if (session != nullptr) {
        lines.rows.push_back(gravity_row("Actual OG:   |", session->actual_og, settings));
        lines.rows.push_back(gravity_row("Actual FG:   |", session->actual_fg, settings));
        lines.rows.back().format += "\n\n";
    }
    return section_of("Recipe Specifics", std::move(lines));
}

} // namespace

std::string submitters(const CompetitionEntry& entry) {
    const auto head = line_text(entry.session.head_brewer),
               assistant = line_text(entry.session.assistant_brewer);
    return head + (head.empty() || assistant.empty() ? "" : " and ") + assistant;
}

std::vector<ReportRow> contact_rows(const CompetitionEntry& entry, ContactRows how) {
    const auto& contact = entry.contact;
    std::vector<ReportRow> rows;
    const auto add = [&](const char* format, std::string_view stored) {
        if (how.keeps_empty || !stored.empty()) rows.push_back({format, {line_text(stored)}});
    };
    add("Brew Club: |%s\n", contact.brew_club.view());
    const auto address = contact.address.view();
    add_lines(rows, address);
    if (address.empty()) add("%s\n", "");
    if (how.parts_address && !address.empty()) rows.back().format += "\n";
    add("Daytime Phone: |%s\n", contact.daytime_phone.view());
    add("Evening Phone: |%s\n", contact.evening_phone.view());
    add("Email:         |%s\n", contact.email_address.view());
    return rows;
}

DocumentReport competition_report(const ReportSource& source, const CompetitionEntry& entry,
                                  const PrintSelection& wanted) {
    const auto competition = line_text(entry.texts.name), style = line_text(entry.texts.style);
    const auto beer = line_text(source.open.document.title);
    const auto entry_line = competition.empty() ? "" : competition + " - Entry Form";
    auto form_source = source;
    form_source.is_competition_form = true;
    const std::string title(form_title);
    DocumentReport report{text_head(competition), competition.empty() ? title : entry_line,
                          competition.empty() ? "" : title,
                          "A Wortlex Competition Form" + (beer.empty() ? "" : " - " + beer)};
    report.html_subtitle = entry_line;
    auto& sections = report.sections;
    if (!style.empty())
        sections.push_back(section_of("", ReportLines{{120}, {{"Competition Style: |%s\n\n", {style}}}}));
    sections.push_back(submitted_by(entry));
    sections.push_back(entered_style(source.open.document.style));
    sections.push_back(entered_beer(form_source));
    auto shared = competition_sections(form_source, wanted);
    std::move(shared.begin(), shared.end(), std::back_inserter(sections));
    if (!competition.empty())
        sections.push_back(
            section_of("", ReportLines{{}, {{"\nA Wortlex Generated Competition Form.\n", {}}}}));
    return report;
}

} // namespace wortlex
