#include "calculators/refractometer_tool.h"

namespace wortlex {
namespace {

constexpr auto calibration_note =
    "The refractometer calibration value is the refractometer's reading of a sample of pure water at the "
    "ambient temperature during testing. See the help section for more information.";
constexpr auto factor_note =
    "The Brix Correction Factor ranges from about 1.02 to 1.08. It is typically specific to each brewery and "
    "so should only need to be set once. See the help section for instructions on how to determine your "
    "particular Brix Correction Factor.";
constexpr auto permanent_note = "NOTE: Permanent Settings are set within the System Settings.";

struct CalibrationField {
    const char* key = "";
    const char* label = "";
    float SystemSettings::*value = nullptr;
    Range range;
    float step = 0;
    const char* look = "";
    CalibrationChange change{};
};

constexpr std::array fields = {CalibrationField{"water_brix",
                                                "&Brix Refractometer",
                                                &SystemSettings::water_brix,
                                                {-200, 200},
                                                0.05F,
                                                "%0.2f",
                                                CalibrationChange::water_brix},
                               CalibrationField{"water_zeiss",
                                                "&Zeiss Refractometer",
                                                &SystemSettings::water_zeiss,
                                                {-1000, 1000},
                                                0.05F,
                                                "%0.2f",
                                                CalibrationChange::water_zeiss},
                               CalibrationField{"water_ri",
                                                "&RI Refractometer",
                                                &SystemSettings::water_ri,
                                                {-2, 2},
                                                0.0001F,
                                                "%0.5f",
                                                CalibrationChange::water_ri},
                               CalibrationField{"factor",
                                                "Brix Correction &Factor",
                                                &SystemSettings::brix_correction,
                                                {1, 2},
                                                0.005F,
                                                "%0.3f",
                                                CalibrationChange::factor}};

void calibration_row(Rows& rows, const CalibrationField& field, Settings& settings,
                     const std::function<void(CalibrationChange)>& tell) {
    rows.signed_number(field.key, settings.*field.value)
        .label(field.label)
        .range(field.range.low, field.range.high)
        .step(field.step)
        .format(field.look)
        .outside(Outside::clamp)
        .changed([tell, change = field.change] { tell(change); });
}

} // namespace

void refractometer_calibration_form(Form& form, Settings& settings,
                                    const std::function<void(CalibrationChange)>& tell) {
    auto& rows = form.group();
    for (const auto& field : fields) calibration_row(rows, field, settings, tell);
    rows.note("calibration_note", calibration_note);
    rows.note("factor_note", factor_note);
    rows.note("permanent_note", permanent_note);
    std::array<float, fields.size()> before{};
    for (std::size_t i = 0; i < fields.size(); ++i) before.at(i) = settings.*fields.at(i).value;
    form.on_cancel([before, &settings, tell] {
        for (std::size_t i = 0; i < fields.size(); ++i) settings.*fields.at(i).value = before.at(i);
        tell(CalibrationChange::factor);
    });
}

} // namespace wortlex
