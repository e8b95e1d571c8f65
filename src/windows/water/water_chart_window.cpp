#include "windows/water/water_chart_window.h"

#include "base/windows1252.h"
#include "desktop/captions.h"
#include "program/picture_desk.h"
#include "program/program.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace wortlex {

WaterChartWindow::WaterChartWindow(const WindowPorts& ports, const WaterAnalysis& analysis, Opener opener,
                                   QWidget* origin)
    : ToolWindow(window_info("WATERGRAPHDIALOG"), 0, opener, origin, places(ports.program)), ports_(ports),
      analysis_(analysis), form_(made_form()), widgets_(form_, places(ports.program), *this) {
    setParent(origin, Qt::Dialog); // stays above its calculator, where desktops stack by kind too
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, layout->contentsMargins().bottom());
    layout->setSizeConstraint(QLayout::SetFixedSize); // the chart has one size
    layout->addWidget(&widgets_.field("chart"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->setContentsMargins(layout->spacing(), 0, layout->spacing(), 0);
    for (const auto* const key : {"print", "jpg"})
        buttons->addButton(qobject_cast<QPushButton*>(&widgets_.field(key)), QDialogButtonBox::HelpRole);
    layout->addWidget(buttons);
    set_tips(*buttons, false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QWidget::close);
    close_by_escape();
    buttons->button(QDialogButtonBox::Ok)->setFocus();
}

Form WaterChartWindow::made_form() {
    Form form;
    const auto shown = water_chart_drawing(analysis_, water_chart_shown);
    form.rows().canvas("chart", shown.size, shown.draw).named([this] {
        return words_of_water_chart(analysis_);
    });
    form.rows().button("print", "&Print", [this] {
        ports_.pages.show(water_chart_printout(analysis_, ports_.program.settings.printer_scale));
    });
    form.rows().button("jpg", "&JPG", [this] {
        choose_and_save_chart(water_chart_drawing(analysis_),
                              utf8_from_windows1252(analysis_.target.name.view()), picture_desk(ports_));
    });
    return form;
}

} // namespace wortlex
