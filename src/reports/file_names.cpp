#include "reports/file_names.h"

#include "base/files.h"

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
    return tame_file_name(std::move(name), " ?*");
}

} // namespace wortlex
