#include "windows/mash/mash_chart_window.h"

#include "base/windows1252.h"
#include "desktop/captions.h"
#include "desktop/form_widgets.h"
#include "desktop/qt_text.h"
#include "desktop/tool_window.h"
#include "program/picture_desk.h"
#include "program/program.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QVBoxLayout>

#include <utility>

namespace wortlex {
namespace {

std::string name_of(const ChartedMash& mash) {
    return mash.complex == nullptr ? "" : utf8_from_windows1252(mash.complex->mash_name.view());
}

Opener opener_of(const LiveDocument& document) {
    return document.kind == DocumentKind::session ? Opener::session : Opener::recipe;
}

class MashChartWindow : public ToolWindow {
public:
    MashChartWindow(const WindowPorts& ports, const WindowInfo& info, MashAsked mash, QWidget* origin)
        : ToolWindow(info, 0, opener_of(ports.program.document), origin, places(ports.program)),
          ports_(ports), mash_(std::move(mash)), form_(made_form()),
          widgets_(form_, places(ports.program), *this) {
        setParent(origin, Qt::Dialog); // stays above it, where desktops stack by kind too
        auto* const layout = new QVBoxLayout(this);
        layout->setSizeConstraint(QLayout::SetFixedSize); // the chart has one size
        auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
        set_tips(*buttons, false);
        lay_out_beside_ok(form_, widgets_, *buttons);
        layout->addWidget(&widgets_.field("chart"), 0, Qt::AlignHCenter);
        layout->addLayout(options_part());
        layout->addWidget(buttons);
        connect(buttons, &QDialogButtonBox::accepted, this, &QWidget::close);
        close_by_escape();
        widgets_.field("minute_grid").setFocus();
    }

protected:
    void follow(Change change) override {
        if (change == Change::settings) follow_units(choice(), ports_.program.settings.temperature_units);
    }

private:
    MashChartChoice& choice() { return ports_.program.mash_charts; }

    Form made_form() {
        follow_units(choice(), ports_.program.settings.temperature_units);
        Form form;
        mash_chart_form(form, mash_, choice().options, ports_.program.settings,
                        {.print = [this] { print(); }, .jpg = [this] { save_picture(); }, .help = nullptr});
        form.after_edit([this](const Row&) { ports_.program.notices.tell(Change::mash); });
        return form;
    }

    QLayout* options_part() {
        auto* const grid = new QGridLayout;
        grid->addWidget(widgets_.label("minute_grid"), 0, 0);
        grid->addWidget(&widgets_.field("minute_grid"), 0, 1);
        grid->addWidget(&widgets_.field("temperature_units"), 1, 0, 1, 2);
        grid->addWidget(&widgets_.field("solid_fill"), 2, 0, 1, 2);
        int line = 0;
        for (const auto* const key : {"fine_lines", "decoction_spikes", "infusion_spikes"})
            grid->addWidget(&widgets_.field(key), line++, 2);
        grid->setColumnStretch(2, 1);
        return grid;
    }

    void print() {
        ports_.pages.show(mash_chart_printout(mash_(), choice().options, ports_.program.settings));
    }

    void save_picture() {
        const auto mash = mash_();
        const auto chart = mash_chart_drawing(mash, choice().options, spike_pen(ports_.program.settings));
        choose_and_save_chart(chart, name_of(mash), picture_desk(ports_));
    }

    WindowPorts ports_;
    MashAsked mash_;
    Form form_;
    FormWidgets widgets_;
};

} // namespace

void open_mash_chart(const WindowPorts& ports, std::string_view name, const MashAsked& mash,
                     QWidget* origin) {
    auto* window = origin->findChild<QWidget*>(string_of(name), Qt::FindDirectChildrenOnly);
    if (window == nullptr) window = new MashChartWindow(ports, window_info(name), mash, origin);
    bring_forward(*window);
}

} // namespace wortlex
