#include "windows/documents/recipe_page.h"

#include "desktop/captions.h"
#include "desktop/list_keys.h"
#include "desktop/scrolled.h"
#include "program/program.h"
#include "windows/documents/document_keys.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>

namespace wortlex {
namespace {

QLayout* extras_head(const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    add_field(*grid, widgets, "title", 0, 0);
    add_field(*grid, widgets, "batch_size", 0, 2);
    grid->setColumnStretch(1, 1);
    return grid;
}

// The style's words, and its ranges behind them: the least above the most.
QLayout* extras_style(const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    int place = 0;
    for (const auto* const key : {"style_class", "style_name", "style_type", "style_book"}) {
        add_field(*grid, widgets, key, place / 2, place % 2 * 2);
        ++place;
    }
    int column = 4;
    for (const auto& [low, high] : {std::pair("min_sg", "max_sg"), std::pair("min_ibu", "max_ibu"),
                                    std::pair("min_colour", "max_colour")}) {
        add_field(*grid, widgets, low, 0, column);
        add_field(*grid, widgets, high, 1, column);
        column += 2;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return grid;
}

// What they do can be had by key from the list as well.
QLayout* extras_buttons(const FormWidgets& widgets) {
    auto* const buttons = new QHBoxLayout;
    for (const auto* const key :
         {"extra_new", "extra_del", "extra_edit", "amount_more", "amount_less", "time_more", "time_less"})
        buttons->addWidget(&widgets.field(key));
    buttons->addStretch();
    auto& list = widgets.field("extras");
    press_by_key(list, Qt::Key_Insert, widgets.field("extra_new"));
    press_by_key(list, QKeySequence::Delete, widgets.field("extra_del"));
    press_by_key(list, Qt::Key_Plus, widgets.field("amount_more"));
    press_by_key(list, Qt::Key_Minus, widgets.field("amount_less"));
    return buttons;
}

QLayout* extras_texts(const FormWidgets& widgets) {
    auto* const grid = new QGridLayout;
    int column = 0;
    for (const auto* const key : {"notes", "awards"}) {
        auto& text = widgets.field(key);
        text.setMinimumHeight(text.fontMetrics().lineSpacing() * 6);
        grid->addWidget(widgets.label(key), 0, column);
        grid->addWidget(&text, 1, column++);
    }
    return grid;
}

} // namespace

RecipePage::RecipePage(RecipeEditor& editor, RecipePageUse use, const WindowPorts& ports, QWidget* origin)
    : ToolWindow(window_info(use.template_name), 0, use.opener, origin, places(ports.program)),
      editor_(editor), use_(std::move(use)), form_(made_form()),
      widgets_(form_, places(ports.program), *this), ending_(*this, ports.prompts) {
    lay_out_rows();
    form_.begin();
}

Form RecipePage::made_form() {
    Form form;
    use_.fill(form, this);
    if (!form.has("help")) form.rows().button("help", "Help", nullptr); // its letter may be taken
    form.after_edit([this](Row&) { tell_change(editor_); });
    return form;
}

void RecipePage::lay_out_rows() {
    auto* const layout = new QVBoxLayout(this);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* const part = use_.arrange ? use_.arrange(widgets_) : lay_out(form_, widgets_, buttons);
    layout->addWidget(new Scrolled(part, this), 1);
    if (use_.arrange) lay_out_beside_ok(form_, widgets_, *buttons);
    auto* const bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(buttons);
    layout->addLayout(bottom);
    add_page_buttons(*this, *buttons, ending_);
    auto* const first = widgets_.first_field();
    (first != nullptr ? first : buttons->button(QDialogButtonBox::Ok))->setFocus();
}

void RecipePage::follow(Change change) {
    if (use_.follow && change == Change::document) use_.follow();
}

bool RecipePage::may_close() {
    const auto end = ending_.settle(form_.is_changed());
    if (end == PageEnd::stays || end == PageEnd::gone) return end == PageEnd::gone;
    if (end == PageEnd::ok) form_.accept();
    end_page(editor_, use_.step);
    if (end == PageEnd::cancel) { // noted first: who cancels by mistake can undo it
        form_.cancel();
        end_page(editor_, "Cancel " + use_.step);
    }
    return true;
}

void RecipePage::keyPressEvent(QKeyEvent* event) {
    event->matches(QKeySequence::Cancel) ? void(close()) : ToolWindow::keyPressEvent(event);
}

QLayout* arrange_extras(const FormWidgets& widgets) {
    auto* const page = new QVBoxLayout;
    page->addLayout(extras_head(widgets));
    page->addLayout(extras_style(widgets));
    page->addWidget(&widgets.field("extras"), 2);
    page->addLayout(extras_buttons(widgets));
    page->addLayout(extras_texts(widgets), 1);
    return page;
}

} // namespace wortlex
