#include "windows/databases/offer_window.h"

#include "desktop/captions.h"
#include "desktop/qt_text.h"
#include "desktop/tool_window.h"
#include "program/program.h"
#include "program/shipped_data.h"

#include <QGroupBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace wortlex {
namespace {

QGroupBox* offered_in(const Group& group, const FormWidgets& widgets) {
    auto* const box = new QGroupBox(string_of(group.heading()));
    auto* const layout = new QVBoxLayout(box);
    for (const auto& row : group.content.rows()) layout->addWidget(&widgets.field(*row));
    return box;
}

} // namespace

OfferWindow::OfferWindow(ShippedOffer& offer, const Places& places, QWidget* owner)
    : QDialog(owner), offer_(offer),
      place_(dress_window(*this, window_info("NEWENTRIESDIALOG"), 0, Opener::main, owner, places)) {
    setWindowModality(Qt::WindowModal);
    setSizeGripEnabled(true);
    fill_form();
    widgets_ = std::make_unique<FormWidgets>(form_, places, *this);
    lay_out_rows();
}

void OfferWindow::setVisible(bool visible) {
    if (visible) place_.put();
    QDialog::setVisible(visible);
}

void OfferWindow::fill_form() {
    offer_form(form_, offer_);
    auto& rows = form_.rows();
    rows.button("add", "&Add", [this] { accept(); })
        .hint("Add the checked entries to your databases")
        .enabled([this] { return wants_any(offer_); })
        .disabled_because("No entry is checked");
    rows.button("decline", "&Don't Add", [this] { decline(); }).hint("Add none, and ask no more");
    rows.button("later", "&Later", [this] { reject(); }).hint("Ask again at the next start");
    rows.button("help", "Help", nullptr);
}

void OfferWindow::decline() {
    want_all(offer_, false);
    accept();
}

void OfferWindow::lay_out_rows() {
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(&widgets_->field("told"));
    auto* const entries = new QWidget;
    auto* const groups = new QVBoxLayout(entries);
    for (const auto& group : form_.groups())
        if (!group->heading().empty()) groups->addWidget(offered_in(*group, *widgets_));
    auto* const area = new QScrollArea;
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(entries);
    area->setMinimumWidth(entries->sizeHint().width() + 2 * area->verticalScrollBar()->sizeHint().width());
    layout->addWidget(area, 1);
    layout->addLayout(button_line(*widgets_, {"toggle"}, {"add", "decline", "later", "help"}));
    auto& later = *qobject_cast<QPushButton*>(&widgets_->field("later"));
    add_key(later, Qt::Key_Escape);
    later.setDefault(true); // it comes up unasked, and a key that was meant for another window adds nothing
    widgets_->first_field()->setFocus();
}

void offer_new_entries(const WindowPorts& ports, const std::string& shipped_folder, QWidget* owner) {
    auto offer = find_offer(ports.program, shipped_folder);
    if (offer.groups.empty()) return;
    OfferWindow window(offer, places(ports.program), owner);
    if (window.exec() == QDialog::Accepted) take_answer(ports.program, offer, ports.prompts);
}

} // namespace wortlex
