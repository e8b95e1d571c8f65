#include "calculators/refractometer_tool.h"

#include <utility>

namespace wortlex {
namespace {

constexpr auto sg_look = "%0.5f", plato_look = "%0.3f", ri_look = "%0.5f";

// A scale of the instrument, of which each edit brings the other two along.
using ReadingOf = RefractometerReading (*)(float value, const Settings& settings);

class ReadingTable {
public:
    ReadingTable(Rows& rows, RefractometerTool& tool, const Settings& settings)
        : table_(rows.grid("reading_table", {"Brix", "Zeiss", "RI"})), tool_(tool), settings_(settings) {}

    void add_lines() {
        auto& entries = table_.line("&Reading");
        entry(entries, "brix", &RefractometerReading::brix, reading_of_brix).range(0.0F, 200.0F).step(0.05F);
        entry(entries, "zeiss", &RefractometerReading::zeiss, reading_of_zeiss)
            .range(0.0F, 1000.0F)
            .step(0.05F);
        entry(entries, "ri", &RefractometerReading::ri, reading_of_ri)
            .typed(1.0F, 200.0F)
            .spun(1.33301F, 200.0F, 0.0001F)
            .format(ri_look);
        shown("net", "Net Units",
              [&tool = tool_, &settings = settings_] { return net_reading(tool.reading, settings); });
        shown("water", "Current Water Calibration Values:", [&settings = settings_] {
            return RefractometerReading{settings.water_brix, settings.water_zeiss, settings.water_ri};
        });
    }

private:
    NumberRow& entry(Rows& line, const char* key, float RefractometerReading::*scale, ReadingOf all) const {
        return line.number(key, {[&tool = tool_, scale] { return tool.reading.*scale; },
                                 [&tool = tool_, &settings = settings_, all](float typed) {
                                     take_reading(tool, all(typed, settings), settings);
                                 }});
    }

    void shown(const std::string& key, const char* label,
               const std::function<RefractometerReading()>& values) {
        auto& line = table_.line(label);
        line.shown_number(
            key + "_brix", [values] { return values().brix; }, "%0.2f");
        line.shown_number(
            key + "_zeiss", [values] { return values().zeiss; }, "%0.2f");
        line.shown_number(
            key + "_ri", [values] { return values().ri; }, ri_look);
    }

    GridRow& table_;
    RefractometerTool& tool_;
    const Settings& settings_;
};

// Of the lines that show results.
class ResultLines {
public:
    ResultLines(Rows& rows, const RefractometerTool& tool, const Settings& settings)
        : lines_(rows, "results", settings), tool_(tool), settings_(settings) {}

    void gravity(const std::string& key, const char* label, TwinGravity RefractometerResults::*part) {
        const auto pair = [&tool = tool_, &settings = settings_, part] {
            return results_of(tool, settings).*part;
        };
        lines_.shown(label, {key + "_sg", [pair] { return pair().sg; }, sg_look}, "Plato",
                     {key + "_plato", [pair] { return pair().plato; }, plato_look});
    }

    template <class Read>
    TwinLines::Figure figure(const char* key, Read read, const char* name = "") const {
        return {.key = key,
                .value = [&tool = tool_, &settings = settings_,
                          read] { return read(results_of(tool, settings)); },
                .name = name};
    }

    void alcohol() {
        using Results = RefractometerResults;
        lines_.shown(
            "% Alcohol Weight", figure("by_weight", [](const Results& r) { return r.alcohol.by_weight; }),
            "Volume",
            figure(
                "by_volume", [](const Results& r) { return r.alcohol.by_volume; }, "% Alcohol Volume"));
        gravity("original", "Original Gravity SG", &Results::original);
        gravity("residual", "Residual Extract SG", &Results::residual);
        lines_.shown("Attenuation % ADF",
                     figure("adf", [](const Results& r) { return r.apparent_attenuation; }), "% RDF",
                     figure(
                         "rdf", [](const Results& r) { return r.real_attenuation; }, "Attenuation % RDF"));
    }

private:
    TwinLines lines_;
    const RefractometerTool& tool_;
    const Settings& settings_;
};

// What is known besides the reading.
void known_gravity_rows(Form& form, RefractometerTool& tool, const Settings& settings) {
    const bool is_original = tool.kind == RefractometerKind::fermentation;
    TwinLines lines(form.group(is_original ? "Original Gravity" : "Hydrometer Reading"), "known", settings);
    const auto rows = lines.gravity("known", is_original ? "&OG" : "&SG", tool.gravity);
    rows.sg.range(1.0F, 2.0F).step(0.005F).outside(Outside::clamp);
    rows.plato.range(0.0F, 200.0F).step(0.05F).outside(Outside::clamp);
}

void refractometer_results(Form& form, const RefractometerTool& tool, const Settings& settings) {
    auto& rows = form.group("Results");
    ResultLines lines(rows, tool, settings);
    if (tool.kind == RefractometerKind::alcohol) return lines.alcohol();
    lines.gravity("gravity", "Specific Gravity SG", &RefractometerResults::gravity);
    if (tool.kind != RefractometerKind::raw_wort) return;
    rows.shown_number(
            "factor", [&settings] { return settings.brix_correction; }, "%0.3f")
        .label("Current Brix Correction Factor:");
}

} // namespace

void refractometer_form(Form& form, RefractometerTool& tool, const Settings& settings, ToolActions actions) {
    ReadingTable(form.group("Refractometer Reading"), tool, settings).add_lines();
    if (tool.kind != RefractometerKind::raw_wort) known_gravity_rows(form, tool, settings);
    refractometer_results(form, tool, settings);
    tool_buttons(form.group(), std::move(actions));
}

} // namespace wortlex
