#include "desktop/system_ports.h"

#include "desktop/message_boxes.h"
#include "desktop/qt_text.h"

#include <QClipboard>
#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>

namespace wortlex {
namespace {

// "Recipe File (*.rec)|*.rec" as the toolkit has it: the pattern in the last brackets counts. A caption may
// name another one.
QString filter_of(std::string_view filter) {
    const auto bar = filter.find('|');
    if (bar == std::string_view::npos) return string_of(filter);
    const auto caption = string_of(filter.substr(0, bar));
    const auto pattern = QLatin1Char('(') + string_of(filter.substr(bar + 1)) + QLatin1Char(')');
    return caption.endsWith(pattern) ? caption : caption + QLatin1Char(' ') + pattern;
}

std::optional<std::string> run(const FileChoice& choice, QFileDialog::AcceptMode mode) {
    const auto folder = QFile::decodeName(QByteArray::fromStdString(choice.folder));
    QFileDialog dialog(window_in_use(), {}, folder, filter_of(choice.filter));
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialog.setDefaultSuffix(string_of(choice.extension));
    // In the dialog's field quotes would stand around names, of which it takes the first.
    if (!choice.suggested_name.empty())
        dialog.selectFile(
            QString::fromStdString(choice.suggested_name).replace(QLatin1Char('"'), QLatin1Char('\'')));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return QFile::encodeName(dialog.selectedFiles().front()).toStdString();
}

} // namespace

std::optional<std::string> FileDialogs::choose_to_open(const FileChoice& choice) {
    return run(choice, QFileDialog::AcceptOpen);
}

// The toolkit takes "Porter 1.2" for a name with an ending, so the ending is our business. The dialog asks
// before it lets a file be replaced, therefore it is shown again where the whole name is that of another one.
std::optional<std::string> FileDialogs::choose_to_save(const FileChoice& choice) {
    auto chosen = run(choice, QFileDialog::AcceptSave);
    if (!chosen || choice.extension.empty()) return chosen;
    const QFileInfo file(QFile::decodeName(QByteArray::fromStdString(*chosen)));
    if (file.suffix().compare(string_of(choice.extension), Qt::CaseInsensitive) == 0) return chosen;
    const auto whole = chosen->append(".").append(choice.extension);
    if (!QFileInfo::exists(QFile::decodeName(QByteArray::fromStdString(whole)))) return whole;
    auto again = choice;
    again.folder = file.path().toStdString();
    again.suggested_name = file.fileName().toStdString() + "." + std::string(choice.extension);
    return choose_to_save(again);
}

std::int64_t SystemClock::now() const {
    return QDateTime::currentSecsSinceEpoch();
}

CalendarDate SystemClock::today() const {
    const auto date = QDate::currentDate();
    return {date.day(), date.month(), date.year()};
}

void SystemClipboard::put_text(std::string_view utf8) {
    QGuiApplication::clipboard()->setText(string_of(utf8));
}

} // namespace wortlex
