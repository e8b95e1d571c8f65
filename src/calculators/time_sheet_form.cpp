#include "calculators/time_sheet.h"

#include "base/windows1252.h"

#include <utility>

namespace wortlex {

void time_sheet_form(Form& form, TimeSheet& sheet, TimeSheetActions actions) {
    auto& rows = form.group();
    rows.shown("face", [&sheet] { return sheet.face(); }).figure();
    auto& list = rows.list(
        "lines", {{"Clock Time", false, 8}, {"Running Time", false, 8}, {"Comment", false, 40, true}},
        [&sheet] { return sheet.line_count(); },
        [&sheet](std::size_t line, std::size_t column) { return sheet.cell(line, column); });
    list.named("Events").selection(sheet.selected).activated([&sheet] { sheet.comment(); }).changed([&sheet] {
        sheet.tick();
    });
    list.when_empty("Start Timeline begins with the first event");
    list.hint("Enter puts a comment on the selected line, Delete takes it away");
    auto& watch = form.group();
    watch.button("start", "Sta&rt Timeline", [&sheet] { sheet.start(); })
        .enabled([&sheet] { return sheet.may_start(); })
        .disabled_because("The clock is running, a time line was loaded, or the sheet is full");
    watch.button("stop", "St&op Timeline", [&sheet] { sheet.stop(); })
        .enabled([&sheet] { return sheet.is_running(); })
        .disabled_because("The clock is not running");
    watch.button("comment", "&Comment", [&sheet] { sheet.comment(); })
        .enabled([&sheet] { return sheet.selected >= 0; })
        .disabled_because("No event is selected");
    watch.button("erase", "&Delete", [&sheet] { sheet.erase(); })
        .enabled([&sheet] { return !sheet.is_running() && sheet.selected >= 0; })
        .disabled_because("The clock is running, or no event is selected");
    auto& others = form.group();
    const auto when_idle = [&](const char* key, const char* caption, std::function<void()> action) {
        others.button(key, caption, std::move(action))
            .enabled([&sheet] { return !sheet.is_running(); })
            .disabled_because("The clock is running");
    };
    when_idle("load", "&Load", [&sheet] { sheet.load(); });
    when_idle("save", "&Save", [&sheet] { sheet.save(); });
    when_idle("print", "&Print", std::move(actions.print));
    when_idle("help", "Help", std::move(actions.help));
    when_idle("ok", "OK", std::move(actions.close));
}

PrintRequest time_line_printout(const TimeLine& line, const Settings& settings) {
    return {"Wortlex Time Line Detail", settings.printer_scale, [line](PageContext& page) {
                page.SetHeader(0, "Wortlex Time Line Detail");
                page.SetHeader(1, "Actual\tStop");
                page.SetHeader(2, "Time\tWatch\tComment");
                for (const auto& entry : line.entries)
                    page.TabbedLine({70, 140}, clock_text(entry.moment) + "\t" +
                                                   running_text(line.entries.front().moment, entry.moment) +
                                                   "\t" + utf8_from_windows1252(entry.comment.view()));
            }};
}

} // namespace wortlex
