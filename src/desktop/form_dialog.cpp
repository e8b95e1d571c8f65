#include "desktop/form_dialog.h"

#include "desktop/captions.h"
#include "desktop/scrolled.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace wortlex {
namespace {

constexpr int title_buttons = 100; // pixels that a title bar keeps for itself, roughly

} // namespace

FormDialog::FormDialog(Form& form, const DialogUse& use, const Places& places, QWidget* owner)
    : QDialog(owner), form_(form), widgets_(form, places, *this),
      place_(dress_window(*this, window_info(use.template_name), use.caption, use.opener, owner, places)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok, this)), enter_closes_(use.enter_closes) {
    setWindowModality(Qt::WindowModal);
    auto* const layout = new QVBoxLayout(this);
    auto title_font = font();
    title_font.setBold(true);
    layout->addStrut(QFontMetrics(title_font).horizontalAdvance(windowTitle()) + title_buttons);
    layout->addWidget(new Scrolled(lay_out(form, widgets_, buttons_), this), 1);
    if (use.has_cancel) buttons_->addButton(QDialogButtonBox::Cancel);
    set_tips(*buttons_, enter_closes_);
    layout->addWidget(buttons_);
    auto* const first = widgets_.first_field();
    (first != nullptr ? first : buttons_->button(QDialogButtonBox::Ok))->setFocus();
    connect(buttons_, &QDialogButtonBox::accepted, this, &FormDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &FormDialog::reject);
}

void FormDialog::keyPressEvent(QKeyEvent* event) {
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter_closes_ || !is_enter) QDialog::keyPressEvent(event); // else the field has done what there is
}

void FormDialog::setVisible(bool visible) {
    if (visible) place_.put();
    QDialog::setVisible(visible);
    if (!enter_closes_) buttons_->button(QDialogButtonBox::Ok)->setDefault(false);
}

void FormDialog::accept() {
    if (form_.accept()) QDialog::accept();
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
