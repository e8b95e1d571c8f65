#include "desktop/form_dialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace wortlex {
namespace {

constexpr int title_buttons = 80; // pixels that a title bar keeps for itself, roughly

} // namespace

FormDialog::FormDialog(Form& form, const DialogUse& use, const Places& places, QWidget* owner)
    : QDialog(owner), form_(form), widgets_(form, places, *this),
      place_(dress_window(*this, window_info(use.template_name), use.caption, use.opener, owner, places)) {
    setWindowModality(Qt::WindowModal);
    auto* const layout = new QVBoxLayout(this);
    layout->addStrut(fontMetrics().horizontalAdvance(windowTitle()) + title_buttons);
    layout->addLayout(lay_out(form, widgets_));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    if (use.has_cancel) buttons->addButton(QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    focus_first();
    connect(buttons, &QDialogButtonBox::accepted, this, &FormDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FormDialog::reject);
}

// The first field that can be written in.
void FormDialog::focus_first() {
    bool is_done = false;
    form_.for_each([&](Row& row) {
        const auto* const entry = dynamic_cast<EntryRow*>(&row);
        if (is_done || entry == nullptr || entry->is_read_only() || !row.is_enabled()) return;
        widgets_.field(row).setFocus();
        is_done = true;
    });
}

void FormDialog::setVisible(bool visible) {
    if (visible) place_.put();
    QDialog::setVisible(visible);
}

void FormDialog::accept() {
    form_.accept();
    QDialog::accept();
}

void FormDialog::reject() {
    form_.cancel();
    QDialog::reject();
}

bool run_dialog(Form& form, const DialogUse& use, const Places& places, QWidget* owner) {
    FormDialog dialog(form, use, places, owner);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    form.show_again = nullptr;
    return accepted;
}

} // namespace wortlex
