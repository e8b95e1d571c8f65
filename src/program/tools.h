// The tool windows of the main window, each open at most once.
#pragma once

#include "base/ports/prompts.h"
#include "program/commands.h"

#include <array>
#include <memory>

namespace wortlex {

/// The window of a tool, as the frame sees it.
class OpenTool {
public:
    virtual ~OpenTool() = default;
    virtual void activate() = 0;
    /// False when the window stays open.
    virtual bool close() = 0;
    /// Shows a modal dialog that is open over the window; false if there is none.
    virtual bool show_modal_child() = 0;
};

struct Tool {
    std::string_view name;
    std::string_view window_class;
    std::string_view dialog_template;
    std::array<int, 2> commands;      ///< that open it; 0 stands for none, also below
    std::array<int, 2> notifications; ///< that it has closed
};

inline constexpr int date_calculator_closed = 6018;

// clang-format off
inline constexpr std::array<Tool, 18> all_tools = {{
    {"Recipe", "RECIPE2CLASS", "RECIPEDIALOG", {command::new_recipe, command::open_recipe}, {6000}},
    {"Brewing session", "BATCHDIALOGCLASS", "BATCH1DIALOG", {command::new_session, command::open_session}, {6001}},
    {"Water needed", "WATERNEEDSCLASS", "WATERNEEDSDIALOG", {command::water_needed}, {6002}},
    {"Water profile", "WATERWORKCLASS", "CHEMICALDIALOG", {command::water_profile}, {6003}},
    {"Units", "METRICCLASS", "METRICDIALOG", {command::units}, {6004}},
    {"Strike temperature", "STRIKETEMPCLASS", "WATERCALCDIALOG2", {command::strike_temperature}, {6006}},
    {"Mash designer", "STEPCLASS", "STEPMASHDETAIL", {command::mash_designer}, {6007}},
    {"Carbonation", "NATURALCARBCLASS", "NATURALCARBCALCULATE", {command::carbonation}, {6008}},
    {"Hydrometer", "HYDROMETERCLASS", "HYDROMETERDIALOG", {command::hydrometer}, {6011, 6012}},
    {"Alcohol", "ALCOHOLCLASS", "ALCOHOLDIALOG", {command::alcohol}, {6013, 6014}},
    {"Time line", "TIMESHEETCLASS", "TIMESHEETDIALOG", {command::time_line}, {6015}},
    {"Dilution", "DILUTIONCLASS", "DILUTIONDIALOG", {command::dilution}, {6016}},
    {"Boil off", "BOILCLASS", "BOILDIALOG", {command::boil_off}, {6017}},
    {"Date calculator", "DATECALC", "DATECALC", {command::date_calculator}, {date_calculator_closed}},
    {"Raw wort gravity", "REFRACTCLASS1", "REFRACTOMETERDIALOG1", {command::raw_wort_gravity}, {6021}},
    {"Gravity during fermentation", "REFRACTCLASS2", "REFRACTOMETERDIALOG2", {command::fermentation_gravity}, {6022}},
    {"Alcohol, OG and residual extract", "REFRACTCLASS3", "REFRACTOMETERDIALOG3", {command::residual_extract}, {6023}},
    {"Temporary refractometer calibration", "REFRACTCLASS0", "REFRACTOMETERDIALOG0", {command::temporary_calibration}, {6024}},
}};
// clang-format on

/// Which tools are open, and their windows. A window that is gone without a word does no harm.
struct ToolTable {
    std::array<bool, all_tools.size()> open{};
    std::array<std::weak_ptr<OpenTool>, all_tools.size()> windows;
    /// What re-activating either of the two later refractometer tools reaches: the one opened last.
    std::weak_ptr<OpenTool> last_refractometer;
    /// Flags of tools that were never made. Nothing sets them, yet they count as open tools.
    std::array<bool, 2> unmade{};
};

/// The tool that a command opens; null if it opens none.
const Tool* tool_of(int command);

bool is_open(const ToolTable& table, int command);
bool any_open(const ToolTable& table);

/// Brings an open tool forward and answers true; false if the tool is to be opened.
bool activate_if_open(const ToolTable& table, int command);

/// Takes note of a tool's window, and of its closing by the notification that it sends.
void opened(ToolTable& table, int command, const std::weak_ptr<OpenTool>& window);
void closed(ToolTable& table, int notification);

/// Asks a tool to close; true if it is not open, or no more.
bool close_tool(const ToolTable& table, int command);

/// Shows the modal dialog of the first open tool that has one; false if none has.
bool show_modal_child(const ToolTable& table);

/// Whether the system settings may be opened; tells if not.
bool may_edit_settings(const ToolTable& table, Prompts& prompts);

} // namespace wortlex
