#include "reports/file_names.h"

#include <algorithm>

namespace wortlex {

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

std::string recipe_file_name(std::string_view title, ReportOutput output) {
    return std::string(name_prefix(output)).append(title);
}

std::string html_file_name(std::string name) {
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == ' ' || c == '?' || c == '*'; }, '_');
    return name;
}

} // namespace wortlex
