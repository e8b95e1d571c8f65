#include "windows/calculators/time_sheet_window.h"

#include "base/windows1252.h"
#include "desktop/captions.h"
#include "desktop/form_dialog.h"
#include "desktop/list_keys.h"
#include "program/program.h"

#include <QLineEdit>
#include <QVBoxLayout>

namespace wortlex {
namespace {

constexpr int face_size = 5; // times the height of the usual letters: to be read from the kettle

std::string title_of_open_document(const Program& program) {
    const bool is_any =
        is_open(program.tools, command::open_recipe) || is_open(program.tools, command::open_session);
    return is_any ? utf8_from_windows1252(program.document.recipe.title.view()) : std::string();
}

} // namespace

TimeSheetWindow::TimeSheetWindow(const WindowPorts& ports, const WindowInfo& info, QWidget* origin)
    : ToolWindow(info, 0, Opener::main, origin, places(ports.program)), ports_(ports),
      sheet_({ports.program.data_folder, ports.program.folders, ports.files, ports.prompts, clock_,
              [this](std::string_view comment) { return ask_comment(comment); },
              [&program = ports.program] { return title_of_open_document(program); }}),
      form_(made_form()), widgets_(form_, places(ports.program), *this) {
    lay_out_rows();
    press_by_key(widgets_.field("lines"), QKeySequence::Delete, widgets_.field("erase"));
    close_by_escape();
    connect(&ticks_, &QTimer::timeout, this, [this] {
        if (!sheet_.is_running()) return;
        sheet_.tick();
        widgets_.refresh();
    });
    ticks_.start(1000);
    widgets_.field("start").setFocus();
}

Form TimeSheetWindow::made_form() {
    Form form;
    const auto print = [this] {
        ports_.pages.show(time_line_printout(sheet_.line(), ports_.program.settings));
    };
    time_sheet_form(form, sheet_, {.print = print, .help = nullptr, .close = [this] { close(); }});
    return form;
}

// The clock's face above the list, as wide as it.
void TimeSheetWindow::lay_out_rows() {
    auto* const layout = new QVBoxLayout(this);
    auto* const face = qobject_cast<QLineEdit*>(&widgets_.field("face"));
    auto font = face->font();
    font.setPointSizeF(font.pointSizeF() * face_size);
    face->setFont(font);
    face->setMaximumWidth(QWIDGETSIZE_MAX);
    face->setAlignment(Qt::AlignCenter);
    face->setAccessibleName(tr("Running Time"));
    layout->addWidget(face);
    layout->addWidget(&widgets_.field("lines"), 1);
    auto* const buttons = new QHBoxLayout;
    for (const auto* const key : {"start", "stop", "comment", "erase"})
        buttons->addWidget(&widgets_.field(key));
    buttons->addStretch();
    for (const auto* const key : {"load", "save", "print", "help", "ok"})
        buttons->addWidget(&widgets_.field(key));
    layout->addLayout(buttons);
    add_key(*qobject_cast<QPushButton*>(&widgets_.field("ok")), QKeySequence::Cancel);
}

void TimeSheetWindow::tell_once_shown() {
    sheet_.offer_kept();
    widgets_.refresh();
}

std::optional<std::string> TimeSheetWindow::ask_comment(std::string_view comment) {
    std::string text(comment);
    Form form;
    form.rows()
        .text(
            "comment", [&text] { return std::string_view(text); },
            [&text](std::string_view typed) { text = typed; }, most_comment_bytes)
        .label("Co&mment:")
        .width(40);
    widgets_.refresh(); // the line stands still under the dialog
    const bool accepted =
        run_dialog(form, {.template_name = "TIMELINEENTRYDIALOG"}, places(ports_.program), this);
    return accepted ? std::optional(text) : std::nullopt;
}

} // namespace wortlex
