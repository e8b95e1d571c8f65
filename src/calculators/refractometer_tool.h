// The three refractometer tools: one tool with a kind. Each links the scales of the instrument and works out
// what the reading tells together with what else is known of the wort.
#pragma once

#include "brewing/refractometer.h"
#include "calculators/twin_rows.h"
#include "page/page.h"
#include "records/documents/session_document.h"

namespace wortlex {

enum class RefractometerKind {
    raw_wort,     ///< nothing else: unfermented wort
    fermentation, ///< the original gravity gives the present one
    alcohol       ///< a hydrometer's reading gives alcohol, original gravity and residual extract
};

struct RefractometerTool {
    RefractometerKind kind = RefractometerKind::raw_wort;
    RefractometerReading reading;
    /// The other gravity: of raw wort what the reading gave, else what is entered.
    TwinGravity gravity;
};

/// As they are when the program starts. A reading is completed as the tool opens.
std::array<RefractometerTool, 3> new_refractometer_tools();

/// To be called at each opening: raw wort begins with its gravity, the others with their Brix reading.
void open_refractometer(RefractometerTool& tool, const Settings& settings);

/// Tools for a session's fields, ready to be shown. The first begins with a gravity (SG).
RefractometerTool raw_wort_tool(float sg, const Settings& settings);
/// The second with the stored reading, if it belongs to that gravity, or the one that would fit; both Plato.
RefractometerTool finishing_tool(float og_plato, float fg_plato, const RefractometerPair& stored,
                                 const Settings& settings);
/// The third with the stored entries, if all are there, or with the reading that would fit.
RefractometerTool alcohol_tool(float og_plato, float fg_plato, const AlcoholReading& stored,
                               const Settings& settings);

/// Percent but for the gravities. What the tool's kind does not tell is 0.
struct RefractometerResults {
    TwinGravity gravity;
    AlcoholFigures alcohol;
    TwinGravity original;
    TwinGravity residual;
    float apparent_attenuation = 0;
    float real_attenuation = 0;
};
RefractometerResults results_of(const RefractometerTool& tool, const Settings& settings);

/// Takes a reading on all scales; with raw wort its gravity follows.
void take_reading(RefractometerTool& tool, const RefractometerReading& reading, const Settings& settings);

/// What the session's fields keep of a tool.
RefractometerPair pair_of(const RefractometerTool& tool, const Settings& settings);
AlcoholReading alcohol_reading_of(const RefractometerTool& tool, const Settings& settings);

/// Which value of the temporary calibration has changed.
enum class CalibrationChange { factor, water_brix, water_zeiss, water_ri };

/// Brings an open tool's reading in step. Every change shows other results.
void take_calibration(RefractometerTool& tool, CalibrationChange change, const Settings& settings);

/// Edits `tool`, which must outlive the form.
void refractometer_form(Form& form, RefractometerTool& tool, const Settings& settings,
                        ToolActions actions = {});

/// Edits the four values, of which each change is told at once. Cancel restores them and tells of the factor.
void refractometer_calibration_form(Form& form, Settings& settings,
                                    const std::function<void(CalibrationChange)>& tell);

/// What a refractometer is used for: each has a title of its own on paper.
enum class RefractometerUse {
    raw_wort,
    runnings,
    recorded_efficiency,
    recorded_original,
    fermentation,
    recorded_finishing,
    alcohol
};

/// The session that is printed above the figures; UTF-8.
struct PrintedSession {
    std::string name;
    std::string date;
};

PrintRequest refractometer_printout(const RefractometerTool& tool, RefractometerUse use,
                                    const std::optional<PrintedSession>& session, const Settings& settings);

} // namespace wortlex
