#include "base/take_while.h"
#include "base/windows1252.h"
#include "reports/sections.h"

#include <algorithm>
#include <array>

namespace wortlex {

ReportText::ReportText(std::string_view typed) {
    const auto in_line = [](char byte) { return byte != '\r' && byte != '\n'; };
    while (!typed.empty()) {
        text_ += take_while(typed, in_line);
        if (typed.empty()) break;
        text_ += "\r\n";
        typed.remove_prefix(typed.starts_with("\r\n") ? 2 : 1);
    }
}

namespace {

ReportSection text_section(std::string heading, std::string_view stored) {
    return section_of(std::move(heading), ReportText{utf8_from_windows1252(stored)});
}

// Under a session's heading of print, where the recipe's texts stand before those of the session.
ReportSection recipe_text_section(const std::string& heading, std::string_view stored,
                                  const ReportSource& source) {
    auto section = text_section(heading, stored);
    if (source.open.session != nullptr) section.print_heading = "Recipe " + heading;
    return section;
}

constexpr std::array session_headings = {"Mash Notes", "Fermentation Notes", "Tasting Notes",
                                         "Problem Notes"};

} // namespace

ReportSection notes_section(const ReportSource& source) {
    return recipe_text_section("Notes", source.open.document.notes.view(), source);
}

ReportSection awards_section(const ReportSource& source) {
    return recipe_text_section("Awards", source.open.document.awards.view(), source);
}

bool has_session_note(const SessionDocument& session, SessionNote note) {
    return !session.session_notes.at(static_cast<std::size_t>(note)).empty();
}

bool has_session_notes(const SessionDocument& session) {
    using enum SessionNote;
    constexpr std::array notes = {mash, fermentation, tasting, problems};
    return std::any_of(notes.begin(), notes.end(),
                       [&](SessionNote note) { return has_session_note(session, note); });
}

ReportSection session_note_section(const ReportSource& source, SessionNote note) {
    const auto index = static_cast<std::size_t>(note);
    auto section =
        text_section(session_headings.at(index), source.open.session->session_notes.at(index).view());
    section.print_order = 1;
    return section;
}

} // namespace wortlex
