#include "documents/forms/yeast_rows.h"

#include "base/number.h"
#include "base/windows1252.h"
#include "databases/yeasts.h"
#include "measures/units.h"

#include <utility>

namespace wortlex {
namespace {

// What the document says of a yeast, blank as long as there is none.
ShownRow& yeast_row(Rows& rows, std::string key, const YeastRecord& yeast,
                    std::function<std::string(const YeastRecord&)> text) {
    return rows.shown(std::move(key),
                      [&yeast, text = std::move(text)] { return yeast.name.empty() ? "" : text(yeast); });
}

void yeast_text(Rows& rows, std::string key, const std::string& label, const YeastRecord& yeast,
                std::function<std::string(const YeastRecord&)> text) {
    yeast_row(rows, std::move(key), yeast, std::move(text)).label(label);
}

void yeast_figure(Rows& rows, std::string key, const YeastRecord& yeast,
                  std::function<std::string(const YeastRecord&)> text) {
    yeast_row(rows, std::move(key), yeast, std::move(text)).figure();
}

} // namespace

void yeast_rows(Rows& rows, const YeastRecord& yeast) {
    yeast_text(rows, "lab", "Lab", yeast, [](const auto& y) { return utf8_from_windows1252(y.lab.view()); });
    yeast_text(rows, "yeast_name", "Name", yeast,
               [](const auto& y) { return utf8_from_windows1252(y.name.view()); });
    yeast_text(rows, "catalog_number", "Catalog #", yeast,
               [](const auto& y) { return utf8_from_windows1252(y.catalog_number.view()); });
    yeast_text(rows, "yeast_kind", "Type", yeast,
               [](const auto& y) { return std::string(kind_word(y.yeast_kind)); });
    yeast_text(rows, "yeast_medium", "Medium", yeast,
               [](const auto& y) { return std::string(medium_word(y.yeast_medium)); });
    yeast_text(rows, "flocculation", "Flocculation", yeast,
               [](const auto& y) { return std::string(flocculation_word(y.flocculation)); });
    auto& attenuation = rows.grid("attenuation", {"Low", "High"}).line("Apparent Attenuation:");
    yeast_figure(attenuation, "low_attenuation", yeast,
                 [](const auto& y) { return formatted("%d", y.low_attenuation); });
    yeast_figure(attenuation, "high_attenuation", yeast,
                 [](const auto& y) { return formatted("%d", y.high_attenuation); });
    auto& temperature =
        rows.grid("temperature", {"Degrees F", "Degrees C"}).line("Optimum Fermentation Temp:");
    yeast_figure(temperature, "fahrenheit", yeast,
                 [](const auto& y) { return formatted("%0.1f", y.optimum_temperature); });
    yeast_figure(temperature, "celsius", yeast, [](const auto& y) {
        return formatted("%0.1f", celsius_from_fahrenheit(y.optimum_temperature));
    });
}

} // namespace wortlex
