#include "reports/file_names.h"

#include "base/files.h"
#include "brewing/calendar.h"
#include "page/characters.h"

namespace wortlex {
namespace {

std::string_view name_prefix(ReportOutput output) {
    switch (output) {
    case ReportOutput::competition_form:
        return "Comp_";
    case ReportOutput::competition_labels:
        return "CompL_";
    default:
        return "";
    }
}

std::string first_bytes(std::string text, std::size_t most) {
    if (text.size() <= most) return text;
    while (most > 0 && !begins_character(text[most])) --most;
    text.resize(most);
    return text;
}

} // namespace

std::string recipe_file_name(std::string_view title, ReportOutput output) {
    return std::string(name_prefix(output)).append(title);
}

std::string session_file_name(std::string_view title, const SessionDocument& session, ReportOutput output,
                              const Settings& settings) {
    const auto day = brew_date(session);
    if (!is_day(day)) return title.empty() ? "" : recipe_file_name(title, output);
    auto date = short_date(day, settings.date_format);
    if (title.empty()) return date;
    const auto name = std::string(title);
    const bool name_first = settings.session_name_before_date != 0;
    return std::string(name_prefix(output)) + (name_first ? name + "_" + date : date + "_" + name);
}

std::string session_pages_name(const std::string& name, const SessionDocument& session) {
    const auto day = brew_date(session);
    return name + " - session" + (is_day(day) ? " " + short_date(day, DateFormat::year_month_day) : "");
}

std::string part_pages_name(const std::string& title, std::string_view part) {
    return title.empty() ? title : title + " - " + std::string(part);
}

std::string html_file_name(std::string name) {
    return tame_file_name(std::move(name), " ?*");
}

std::string proposed_file(std::string name, std::string_view extension) {
    constexpr std::size_t longest = 255; // bytes
    name = first_bytes(tame_file_name(std::move(name), "/\\\""), longest - extension.size() - 1);
    return name.empty() ? name : name.append(".").append(extension);
}

} // namespace wortlex
