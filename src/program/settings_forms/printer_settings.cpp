#include "program/settings_forms/printer_settings.h"

#include "forms/print_scale.h"
#include "settings/setting_ranges.h"

namespace wortlex {
namespace {

constexpr std::string_view positions_not_written =
    "The window positions could not be written. Is the disk full, or the folder read-only?";

void name_rows(Rows& rows, SystemSettings& image) {
    rows.choice("date_format", image.date_format,
                {"&MM-DD-YYYY", "&YYYY-MM-DD", "&DD-MMM-YYYY (International Format)"})
        .look(ChoiceRow::Look::down)
        .label("Date Format:");
    rows.check("name_first", image.session_name_before_date).label("&Name Before Date");
}

void memory_rows(Rows& rows, SystemSettings& image, const PrinterSettingsButtons& buttons) {
    rows.check("save_positions", image.save_window_positions)
        .label("Save and &Use Window Positions On \"OK\"");
    rows.button("reset_positions", "Reset All &Window Positions to Default", buttons.reset_positions);
    rows.button("show_reminders", "Show All &Reminder Messages", buttons.show_all_reminders);
}

} // namespace

bool reset_window_positions(ToolPositions& positions, const std::string& data_folder, Prompts& prompts) {
    if (prompts.ask_yes_no({.text = "Really Reset All Window Positions?", .icon = Icon::question}) !=
        Answer::yes)
        return false;
    positions = {};
    if (!SaveToolPositions(data_folder, positions))
        prompts.tell({.text = positions_not_written, .icon = Icon::error});
    return true;
}

void printer_settings_form(Form& form, SystemSettings& image, const PrinterSettingsButtons& buttons) {
    print_scale_row(form.group("Default Printer Scaling Ratio:"), "scale", image.printer_scale);
    name_rows(form.group("Dates and Names"), image);
    memory_rows(form.group("Windows and Messages"), image, buttons);
    auto& other = form.group("Other");
    other.integer("jpg_quality", image.jpg_quality)
        .label("&JPG Image Quality:")
        .range(static_cast<std::int32_t>(setting_range::jpg_quality.low),
               static_cast<std::int32_t>(setting_range::jpg_quality.high))
        .step(1)
        .outside(Outside::clamp);
    other.number("dme_scalar", image.dme_scalar)
        .label("DME &Scalar:")
        .range(setting_range::dme_scalar.low, setting_range::dme_scalar.high)
        .step(0.05F)
        .outside(Outside::clamp);
    form.group().button("help", "&Help", buttons.help);
    form.restore_on_cancel(image);
}

} // namespace wortlex
