#include "windows/documents/simple_mash_window.h"

#include "desktop/captions.h"
#include "desktop/scrolled.h"

#include <QDialogButtonBox>
#include <QShortcut>
#include <QVBoxLayout>

#include <utility>

namespace wortlex {
namespace {

// A form filled before its widgets are made.
Form made_form(SimpleMashWork& work, const Settings& settings, SimpleMashActions actions) {
    Form form;
    simple_mash_form(form, work, settings, MashSide::recipe, std::move(actions));
    return form;
}

} // namespace

SimpleMashWindow::SimpleMashWindow(const SimpleMashWork& work, const Settings& settings,
                                   SimpleMashCalls calls, const Places& places, QWidget* origin)
    : ToolWindow(window_info("MASHENTRYDIALOG"), 0, Opener::recipe, origin, places), calls_(std::move(calls)),
      work_(work),
      form_(
          made_form(work_, settings,
                    {.revert = revert_action(), .graph = nullptr, .print = print_action(), .help = nullptr})),
      widgets_(form_, places, *this) {
    auto* const layout = new QVBoxLayout(this);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    set_tips(*buttons, true);
    layout->addWidget(new Scrolled(lay_out(form_, widgets_, buttons), this), 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &SimpleMashWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QWidget::close);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(key, this), &QShortcut::activated, this, &SimpleMashWindow::accept);
    for (const auto& sequence : QKeySequence::keyBindings(QKeySequence::Save))
        connect(new QShortcut(sequence, this), &QShortcut::activated, this, &SimpleMashWindow::save);
    widgets_.field("saccharification_temperature").setFocus();
}

void SimpleMashWindow::follow(Change) {
    const float grain = calls_.mash_grain();
    if (grain != work_.grain) set_mash_grain(work_, grain);
}

std::function<void()> SimpleMashWindow::revert_action() {
    if (!calls_.revert_to_complex) return nullptr;
    return [this] {
        const auto revert = calls_.revert_to_complex; // a copy: closing may end this window
        accept();
        revert();
    };
}

std::function<void()> SimpleMashWindow::print_action() {
    if (!calls_.print) return nullptr;
    return [this] { calls_.print(work_); };
}

void SimpleMashWindow::save() const {
    calls_.accepted(work_.mash);
    calls_.save();
}

void SimpleMashWindow::accept() {
    calls_.accepted(work_.mash);
    close();
}

} // namespace wortlex
