#include "windows/documents/inventory_window.h"

#include "desktop/captions.h"
#include "desktop/list_view.h"
#include "program/program.h"
#include "reports/file_names.h"
#include "reports/row_parts.h"
#include "windows/documents/document_keys.h"

#include <QDialogButtonBox>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace wortlex {

InventoryWindow::InventoryWindow(const WindowPorts& ports, QWidget* origin)
    : ToolWindow(window_info("BATCHINVENTORY"), 0, Opener::session, origin, places(ports.program)),
      ports_(ports), view_(fresh_view()), form_(made_form()), widgets_(form_, places(ports.program), *this) {
    auto& list = dynamic_cast<ListView&>(widgets_.field("stock"));
    list.setHeaderHidden(true); // each part of the list has heads of its own
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    set_tips(*buttons, true);
    for (const auto* const key : {"copy", "print", "help"})
        buttons->addButton(qobject_cast<QPushButton*>(&widgets_.field(key)), QDialogButtonBox::HelpRole);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(&widgets_.field("summary"));
    layout->addWidget(&list, 1);
    layout->addWidget(buttons);
    add_ok_keys(*this, *buttons->button(QDialogButtonBox::Ok));
    connect(buttons, &QDialogButtonBox::accepted, this, &QWidget::close);
    for (const auto& keys : {QKeySequence(QKeySequence::Cancel), QKeySequence(Qt::Key_Return)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);
    fit_list(list);
    list.setFocus();
}

// As high as it takes to see all of it, where the screen is.
void InventoryWindow::fit_list(const ListView& list) {
    const int rows = list.sizeHintForRow(0) * static_cast<int>(view_.rows.size() + 1);
    const int more = std::max(rows - list.sizeHint().height(), 0);
    resize(sizeHint().grownBy({0, 0, 0, more}).boundedTo(screen()->availableSize()));
}

InventoryView InventoryWindow::fresh_view() {
    faults_ = LoadStocks(ports_.program.data_folder, stocks_);
    return current_view();
}

InventoryView InventoryWindow::current_view() const {
    const auto& document = ports_.program.document;
    return inventory_view(document.recipe, document.session.inventory_finalized != 0, stocks_, faults_,
                          ports_.program.settings);
}

Form InventoryWindow::made_form() {
    Form form;
    analysis_form(form, view_,
                  {.copy = [this] { ports_.clipboard.put_text(inventory_text(view_)); },
                   .print = [this] { print(); },
                   .help = nullptr});
    return form;
}

void InventoryWindow::print() const {
    auto request = inventory_printout(view_, ports_.program.settings.printer_scale);
    request.file_name = part_pages_name(line_text(ports_.program.document.recipe.title), "Inventory");
    ports_.pages.show(request);
}

void InventoryWindow::follow(Change change) {
    view_ = change == Change::databases ? fresh_view() : current_view();
}

} // namespace wortlex
