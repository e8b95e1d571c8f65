#include "windows/documents/session_mash_window.h"

#include "brewing/mash_water.h"
#include "documents/work/session_mash.h"
#include "program/program.h"
#include "windows/calculators/gravity_dialogs.h"
#include "windows/mash/mash_chart_window.h"
#include "windows/mash/strike_water_dialog.h"

#include <memory>
#include <utility>

namespace wortlex {
namespace {

SessionMash session_mash(const MashLog& log) {
    return {log.infusions, log.wort_ph, of_sg(log.runnings_sg)};
}

MashLog log_of(const SimpleMashWork& work, const RefractometerPair& reading) {
    return {work.session.infusions, work.session.wort_ph, work.session.runnings.sg, reading};
}

// The wanted temperature starts as that of the first rest.
void calculate_strike(const WindowPorts& ports, RecipeEditor& editor, SimpleMashWork& work, QWidget* owner) {
    const auto water =
        calculate_strike_water(ports, owner,
                               {.grain = work.grain,
                                .quarts = work.mash.dough_in_water,
                                .wanted = default_first_rest(work.mash),
                                .grain_temperature = editor.open.document.mash.grain_temperature,
                                .thermal_mass = editor.open.settings.tun_thermal_mass});
    if (!water) return;
    if (water->grain_temperature != editor.open.document.mash.grain_temperature)
        set_grain_temperature(editor, water->grain_temperature);
    if (const auto strike = strike_temperature(*water); strike != 0) work.mash.dough_in.temperature = strike;
}

void take_gravity(SimpleMashWork& work, const std::optional<float>& sg) {
    if (sg) work.session.runnings = of_sg(*sg);
}

} // namespace

SimpleMashWindow* make_session_mash_window(const WindowPorts& ports, RecipeEditor& editor,
                                           const SessionMashLinks& links, QWidget* origin) {
    auto& live = ports.program.document;
    const auto& open = editor.open;
    const auto log = mash_log(*open.session);
    const auto reading = std::make_shared<RefractometerPair>(log.runnings_reading);
    auto work = open_simple_mash(open.document.simple_mash, live.water_to_grain, open.figures.mash_grain,
                                 open.settings);
    work.session = session_mash(log);
    live.water_to_grain = 0; // from now on the water itself tells it
    return new SimpleMashWindow(
        work, open.settings, MashSide::session,
        {.mash_grain = [&editor] { return editor.open.figures.mash_grain; },
         .accepted =
             [&editor, reading](const SimpleMashWork& planned) {
                 set_session_mash(editor, planned.mash, log_of(planned, *reading));
             },
         .save = links.save,
         .revert_to_complex = links.revert_to_complex,
         .graph =
             [ports](const SimpleMashWork& planned, QWidget* owner) {
                 open_mash_chart(
                     ports, "MASHGRAPHDIALOG",
                     [&planned] { return charted(planned.mash, &planned.session.infusions); }, owner);
             },
         .print = links.print,
         .calculate_strike = [ports,
                              &editor](SimpleMashWork& planned,
                                       QWidget* owner) { calculate_strike(ports, editor, planned, owner); },
         .correct_gravity =
             [ports](SimpleMashWork& planned, QWidget* owner) {
                 take_gravity(planned, correct_gravity(ports, owner, planned.session.runnings.sg,
                                                       HydrometerUse::mash));
             },
         .measure_runnings =
             [ports, reading, printed = links.printed](SimpleMashWork& planned, QWidget* owner) {
                 take_gravity(planned, measure_raw_wort(ports, owner, RefractometerUse::runnings,
                                                        planned.session.runnings.sg, *reading, printed()));
             },
         .heat_chosen = [&editor](SimpleHeat heat) { set_heat_type(editor, heat); }},
        ports.prompts, places(ports.program), origin);
}

} // namespace wortlex
