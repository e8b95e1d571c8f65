#include "windows/calculators/color_swatch_window.h"

#include <QGridLayout>

namespace wortlex {
namespace {

constexpr int patch_lines = 14; // the least side of the patch, in lines of text

// A form filled before its widgets are made.
Form made_form(ColorSwatch& swatch) {
    Form form;
    color_swatch_form(form, swatch);
    return form;
}

} // namespace

ColorSwatchWindow::ColorSwatchWindow(Program& program, Opener opener, QWidget* origin)
    : ToolWindow(window_info("COLORSWATCHDIALOG"), 0, opener, origin, places(program)),
      srm_(program.document.figures.colour.srm), swatch_{program.color_table, program.settings},
      form_(made_form(swatch_)), widgets_(form_, places(program), *this) {
    setParent(origin, Qt::Dialog); // stays above its document, where desktops stack by kind too
    lay_out_rows();
    set_swatch(swatch_, srm_);
    widgets_.refresh();
    close_by_escape();
}

void ColorSwatchWindow::follow(Change change) {
    if (change == Change::document) set_swatch(swatch_, srm_);
}

// The patch takes what room there is, the figures beside it what they need.
void ColorSwatchWindow::lay_out_rows() {
    auto* const grid = new QGridLayout(this);
    auto& patch = widgets_.field("swatch");
    const int side = fontMetrics().height() * patch_lines;
    patch.setMinimumSize(side, side);
    patch.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    int line = 0;
    form_.for_each([&](Row& row) {
        auto* const label = widgets_.label(row);
        if (label == nullptr) return;
        grid->addWidget(label, line, 1);
        grid->addWidget(&widgets_.field(row), line++, 2, Qt::AlignLeft);
    });
    grid->addWidget(&patch, 0, 0, line + 1, 1);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(line, 1);
}

} // namespace wortlex
