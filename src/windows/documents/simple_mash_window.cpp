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
                                   SimpleMashCalls calls, const Places& places, QWidget* origin)
    : ToolWindow(info_of(side), 0, side == MashSide::session ? Opener::session : Opener::recipe, origin,
                 places),
      notices_(places.notices), calls_(std::move(calls)), work_(work),
      form_(made_form(work_, settings, side, actions())), widgets_(form_, places, *this) {
    auto* const layout = new QVBoxLayout(this);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    set_tips(*buttons, true);
    layout->addWidget(new Scrolled(lay_out(form_, widgets_, buttons), this), 1);
    layout->addWidget(buttons);
    add_ok_keys(*this, *buttons->button(QDialogButtonBox::Ok));
    connect(buttons, &QDialogButtonBox::accepted, this, &SimpleMashWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &SimpleMashWindow::accept);
    for (const auto& sequence : QKeySequence::keyBindings(QKeySequence::Save))
        connect(new QShortcut(sequence, this), &QShortcut::activated, this, &SimpleMashWindow::save);
    form_.after_edit([this](const Row& row) {
        if (row.key == "heat_type" && calls_.heat_chosen)
            calls_.heat_chosen(work_.session.infusions.heat_type);
        changed();
    });
    widgets_.field("saccharification_temperature").setFocus();
}

void SimpleMashWindow::follow(Change) {
    const float grain = calls_.mash_grain();
    if (grain == work_.grain) return;
    set_mash_grain(work_, grain);
    work_out_infusions(work_);
}

// Its chart follows.
void SimpleMashWindow::changed() {
    is_changed_ = true;
    notices_.tell(Change::mash);
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
        accept();
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
        changed();
    };
}

void SimpleMashWindow::save() {
    calls_.accepted(work_);
    is_changed_ = false;
    calls_.save();
}

void SimpleMashWindow::accept() {
    calls_.accepted(work_);
    close();
}

} // namespace wortlex
