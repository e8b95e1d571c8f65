#include "windows/help/help.h"

#include "windows/help/handbook_window.h"

#include "desktop/qt_text.h"

#include <QFile>

namespace wortlex {
namespace {

std::string shipped_page(std::string_view page) {
    QFile file(QStringLiteral(":/help/%1.md").arg(string_of(page)));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

} // namespace

Handbook shipped_handbook() {
    return Handbook(shipped_page);
}

Help::Help(QWidget& main, const Places& places, PageDesk& pages)
    : main_(main), places_(places), pages_(pages), handbook_(shipped_handbook()),
      keys_({[this](std::string_view page) { open(page); },
             [this](std::string_view page, std::string_view caption) {
                 return handbook_.words_on(page, caption);
             }}) {}

Help::~Help() {
    delete window_.data();
}

void Help::open(std::string_view page) {
    if (window_.isNull()) window_ = new HandbookWindow(handbook_, places_, pages_, &main_);
    window_->open(page);
    bring_forward(*window_);
}

} // namespace wortlex
