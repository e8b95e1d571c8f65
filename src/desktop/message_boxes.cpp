#include "desktop/message_boxes.h"

#include "desktop/colours.h"
#include "desktop/qt_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace wortlex {
namespace {

QMessageBox::Icon icon_of(Icon icon) {
    switch (icon) {
    case Icon::information:
        return QMessageBox::Information;
    case Icon::question:
        return QMessageBox::Question;
    case Icon::warning:
        return QMessageBox::Warning;
    case Icon::error:
        return QMessageBox::Critical;
    default:
        return QMessageBox::NoIcon;
    }
}

// The toolkit would break the lines of a text anew, and leave single words.
void keep_lines_whole(const QMessageBox& box) {
    constexpr int widest = 640;
    auto* const words = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (words == nullptr) return;
    const int width = words->sizeHint().width();
    if (width <= widest) words->setMinimumWidth(width);
}

void tell_details(QMessageBox& box, const QString& details) {
    box.setInformativeText(details);
    if (auto* const words = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        words->setTextFormat(Qt::PlainText);
}

void prepare(QMessageBox& box, const Message& message, QMessageBox::StandardButtons buttons) {
    box.setWindowModality(Qt::WindowModal);
    box.setWindowTitle(string_of(message.caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(string_of(message.text));
    if (!message.details.empty()) tell_details(box, string_of(message.details));
    box.setIcon(icon_of(message.icon));
    box.setStandardButtons(buttons);
    const auto safe = message.safe == Answer::yes ? QMessageBox::Yes : QMessageBox::No;
    box.setDefaultButton(safe);
    if (buttons == (QMessageBox::Yes | QMessageBox::No)) box.setEscapeButton(safe);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    keep_lines_whole(box);
}

int show(const Message& message, QMessageBox::StandardButtons buttons) {
    QMessageBox box(window_in_use());
    prepare(box, message, buttons);
    return box.exec();
}

Answer answer_of(int button) {
    if (button == QMessageBox::Yes) return Answer::yes;
    return button == QMessageBox::No ? Answer::no : Answer::cancel;
}

} // namespace

QWidget* window_in_use() {
    if (auto* const modal = QApplication::activeModalWidget()) return modal;
    // A dialog may have closed just now, and its owner is active only when the desktop has said so.
    const QDeadlineTimer patience(std::chrono::milliseconds(200));
    while (QApplication::activeWindow() == nullptr && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    if (auto* const active = QApplication::activeWindow()) return active;
    for (auto* const window : QApplication::topLevelWidgets())
        if (window->isVisible()) return window;
    return nullptr;
}

void MessageBoxes::tell(const Message& message) {
    show(message, QMessageBox::Ok);
}

// Closing a yes/no box without a word is the safe answer.
Answer MessageBoxes::ask_yes_no(const Message& question) {
    return show(question, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes ? Answer::yes : Answer::no;
}

// Esc and the box's own close button press Cancel, so there is one, and it is not to be seen.
Answer MessageBoxes::ask_yes_no_or_stay(const Message& question) {
    QMessageBox box(window_in_use());
    prepare(box, question, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.button(QMessageBox::Cancel)->hide();
    return answer_of(box.exec());
}

Answer MessageBoxes::ask_yes_no_cancel(const Message& question) {
    return answer_of(show(question, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel));
}

ReplaceAnswer MessageBoxes::ask_replace(std::string_view existing, std::string_view consequence) {
    const auto text =
        std::string(existing)
            .append("\n\nThe particular item may have been modified by Tunvale to correct bad data or "
                    "spelling errors.\n\n")
            .append(consequence.substr(std::min(consequence.find_first_not_of('\n'), consequence.size())));
    const int button =
        show({.text = text, .caption = "Confirm Database Item Replacement", .icon = Icon::question},
             QMessageBox::Yes | QMessageBox::YesToAll | QMessageBox::No | QMessageBox::Cancel);
    if (button == QMessageBox::YesToAll) return ReplaceAnswer::yes_to_all;
    const auto answer = answer_of(button);
    if (answer == Answer::yes) return ReplaceAnswer::yes;
    return answer == Answer::no ? ReplaceAnswer::no : ReplaceAnswer::cancel;
}

std::optional<std::uint32_t> MessageBoxes::choose_colour(std::uint32_t start) {
    const auto chosen = QColorDialog::getColor(colour_of(start), window_in_use());
    if (!chosen.isValid()) return std::nullopt;
    return static_cast<std::uint32_t>(chosen.red() | chosen.green() << 8 | chosen.blue() << 16);
}

std::optional<std::string> MessageBoxes::choose_folder(std::string_view title, const std::string& start) {
    const auto chosen = QFileDialog::getExistingDirectory(
        window_in_use(), string_of(title), QFile::decodeName(QByteArray::fromStdString(start)));
    if (chosen.isEmpty()) return std::nullopt;
    auto path = QFile::encodeName(chosen).toStdString();
    if (path.back() != '/') path += '/';
    return path;
}

bool MessageBoxes::remind(const Message& message) {
    QMessageBox box(window_in_use());
    prepare(box, message, QMessageBox::Ok);
    auto* const check = new QCheckBox(QStringLiteral("Do not show me this message again."), &box);
    box.setCheckBox(check);
    box.exec();
    return !check->isChecked();
}

} // namespace wortlex
