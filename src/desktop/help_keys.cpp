#include "desktop/help_keys.h"

#include "desktop/captions.h"
#include "desktop/qt_text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWhatsThis>

#include <utility>

namespace wortlex {
namespace {

constexpr auto page_property = "help_page";

// Dialogs of the platform tell by their owner.
std::string page_of_window(const QWidget* widget) {
    for (; widget != nullptr; widget = widget->parentWidget())
        if (const auto page = widget->property(page_property); page.isValid())
            return page.toString().toStdString();
    return {};
}

// A field has its name from its form, and parts of it, as the line between arrows, have none.
const QWidget* named_field(const QWidget* widget) {
    while (widget != nullptr && widget->accessibleName().isEmpty()) widget = widget->parentWidget();
    return widget;
}

} // namespace

void set_help_page(QWidget& window, std::string_view page) {
    window.setProperty(page_property, string_of(page));
}

void ask_for_help(QWidget& window) {
    QKeyEvent f1(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(&window, &f1);
}

HelpKeys::HelpKeys(HelpDesk desk) : desk_(std::move(desk)) {
    QApplication::instance()->installEventFilter(this);
}

bool HelpKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    auto* const widget =
        qobject_cast<QWidget*>(watched); // the platform tells its window first, which is none
    const auto* const key = dynamic_cast<QKeyEvent*>(event);
    if (widget == nullptr || key->key() != Qt::Key_F1) return false;
    const auto page = page_of_window(widget);
    if (key->modifiers() == Qt::ShiftModifier)
        tell_of_field(*widget, page);
    else
        desk_.open_page(page);
    return true;
}

void HelpKeys::tell_of_field(QWidget& field, const std::string& page) const {
    const auto* const named = named_field(&field);
    if (named == nullptr) return;
    // A field that shares its caption is told apart by what stands behind a comma.
    const auto caption = named->accessibleName();
    auto words = desk_.words_on(page, caption.toStdString());
    if (words.empty()) words = desk_.words_on(page, caption.section(QLatin1String(", "), 0, 0).toStdString());
    const auto text = words.empty() ? named->toolTip() : string_of(words);
    if (!text.isEmpty()) QWhatsThis::showText(field.mapToGlobal(field.rect().bottomLeft()), text, &field);
}

} // namespace wortlex
