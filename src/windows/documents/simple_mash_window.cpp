#include "windows/documents/simple_mash_window.h"

#include "desktop/captions.h"
#include "desktop/scrolled.h"
#include "windows/documents/document_keys.h"

#include <QDialogButtonBox>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace wortlex {
namespace {

// A form filled before its widgets are made.
Form made_form(SimpleMashWork& work, const Settings& settings, MashSide side, SimpleMashActions actions) {
    Form form;
    if (side == MashSide::session) work_out_infusions(work);
    simple_mash_form(form, work, settings, side, std::move(actions));
    return form;
}

const WindowInfo& info_of(MashSide side) {
    return window_info(side == MashSide::session ? "MASHENTRYDIALOG1" : "MASHENTRYDIALOG");
}

} // namespace

SimpleMashWindow::SimpleMashWindow(const SimpleMashWork& work, const Settings& settings, MashSide side,
                                   SimpleMashCalls calls, Prompts& prompts, const Places& places,
                                   QWidget* origin)
    : ToolWindow(info_of(side), 0, side == MashSide::session ? Opener::session : Opener::recipe, origin,
                 places),
      notices_(places.notices), calls_(std::move(calls)), work_(work),
      form_(made_form(work_, settings, side, actions())), widgets_(form_, places, *this), in_document_(work_),
      ending_(*this, prompts) {
    auto* const layout = new QVBoxLayout(this);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addWidget(new Scrolled(lay_out(form_, widgets_, buttons), this), 1);
    layout->addWidget(buttons);
    add_page_buttons(*this, *buttons, ending_);
    close_by_escape();
    for (const auto& sequence : QKeySequence::keyBindings(QKeySequence::Save))
        connect(new QShortcut(sequence, this), &QShortcut::activated, this, &SimpleMashWindow::save);
    form_.after_edit([this](const Row& row) { edited(row); });
    widgets_.field("saccharification_temperature").setFocus();
}

void SimpleMashWindow::follow(Change) {
    const float grain = calls_.mash_grain();
    if (grain == work_.grain) return;
    for (auto* const work : {&work_, &in_document_}) {
        set_mash_grain(*work, grain);
        work_out_infusions(*work);
    }
}

void SimpleMashWindow::edited(const Row& row) {
    if (row.key == "heat_type" && calls_.heat_chosen) {
        const auto heat = work_.session.infusions.heat_type;
        in_document_.session.infusions.heat_type = heat;
        work_out_infusions(in_document_);
        calls_.heat_chosen(heat);
    }
    tell_chart();
}

SimpleMashActions SimpleMashWindow::actions() {
    return {.revert = revert_action(),
            .graph = graph_action(),
            .print = print_action(),
            .help = nullptr,
            .calculate_strike = work_action(calls_.calculate_strike),
            .correct_gravity = work_action(calls_.correct_gravity),
            .measure_runnings = work_action(calls_.measure_runnings)};
}

std::function<void()> SimpleMashWindow::revert_action() {
    if (!calls_.revert_to_complex) return nullptr;
    return [this] {
        const auto revert = calls_.revert_to_complex; // a copy: closing may end this window
        ending_.close_by(PageEnd::ok);
        revert();
    };
}

std::function<void()> SimpleMashWindow::graph_action() {
    if (!calls_.graph) return nullptr;
    return [this] { calls_.graph(work_, this); };
}

std::function<void()> SimpleMashWindow::print_action() {
    if (!calls_.print) return nullptr;
    return [this] { calls_.print(work_); };
}

std::function<void()> SimpleMashWindow::work_action(const SimpleMashCalls::Work& change) {
    if (!change) return nullptr;
    return [this, change] {
        change(work_, this);
        work_out_infusions(work_);
        tell_chart();
    };
}

void SimpleMashWindow::save() {
    calls_.accepted(work_);
    in_document_ = work_;
    calls_.save();
}

bool SimpleMashWindow::may_close() {
    const auto end = ending_.settle(holds_changes());
    if (end == PageEnd::ok) calls_.accepted(work_);
    return end != PageEnd::stays;
}

} // namespace wortlex
