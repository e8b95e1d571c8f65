#include "desktop/button_pictures.h"

#include "desktop/qt_text.h"

#include <QFile>
#include <QIconEngine>
#include <QKeySequence>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

namespace wortlex {
namespace {

QString source_of(std::string_view key) {
    return QStringLiteral(":/artwork/buttons/") + string_of(key) + QStringLiteral(".svg");
}

struct KeyPicture {
    std::string_view key;
    std::string_view picture;
};

constexpr std::array subject_keys = {KeyPicture{"correct_gravity", "hydrometer"},
                                     KeyPicture{"measure_runnings", "refractometer"},
                                     KeyPicture{"mash", "mash"},
                                     KeyPicture{"mash_schedule", "mash"},
                                     KeyPicture{"graph", "mash"},
                                     KeyPicture{"water_needed", "water"},
                                     KeyPicture{"water_profile", "water"},
                                     KeyPicture{"show_graph", "water"}};

// Of the instrument, the mash or the water that a button leads to; empty for other buttons.
std::string_view subject_of(std::string_view key) {
    for (const std::string_view instrument : {"refractometer", "hydrometer"})
        if (key.ends_with(instrument)) return instrument;
    const auto* const found = std::find_if(subject_keys.begin(), subject_keys.end(),
                                           [key](const KeyPicture& subject) { return subject.key == key; });
    return found == subject_keys.end() ? std::string_view() : found->picture;
}

// Drawn anew for each size and screen.
class VectorPicture : public QIconEngine {
public:
    explicit VectorPicture(QString source) : source_(std::move(source)), renderer_(source_) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        constexpr double faint = 0.4;
        if (mode == QIcon::Disabled) painter->setOpacity(faint);
        renderer_.render(painter, place);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }
    QIconEngine* clone() const override { return new VectorPicture(source_); } // the icon owns it

private:
    QString source_;
    QSvgRenderer renderer_;
};

// An icon that is set, even to none anew, lays out its whole window.
void show_no_picture(QPushButton& button) {
    if (!button.icon().isNull()) button.setIcon({});
}

// Beside the words, as high as they are.
void show_subject(QPushButton& button, std::string_view subject, const SystemSettings& settings) {
    if (settings.use_tool_bitmaps == 0) return show_no_picture(button);
    if (!button.icon().isNull()) return;
    const auto source = source_of(subject);
    const QSizeF drawn = QSvgRenderer(source).defaultSize();
    const int height = button.fontMetrics().height();
    button.setIcon(QIcon(new VectorPicture(source)));
    button.setIconSize(drawn.scaled(QSizeF(10.0 * height, height), Qt::KeepAspectRatio).toSize());
}

} // namespace

bool has_picture(std::string_view key) {
    return (key == "print" || key == "help") && QFile::exists(source_of(key));
}

void show_caption(QPushButton& button, std::string_view key, const QString& caption,
                  const SystemSettings& settings) {
    if (const auto subject = subject_of(key); !subject.empty()) {
        button.setText(caption);
        return show_subject(button, subject, settings);
    }
    const bool is_picture = settings.hide_print_help_bitmaps == 0 && has_picture(key);
    if (!is_picture) {
        show_no_picture(button);
        button.setText(caption); // brings its mnemonic
        return;
    }
    if (button.icon().isNull()) button.setIcon(QIcon(new VectorPicture(source_of(key))));
    const int side = button.fontMetrics().height();
    button.setIconSize({side, side});
    button.setText({});
    const auto letter = QKeySequence::mnemonic(caption);
    if (button.shortcut() != letter) button.setShortcut(letter);
}

} // namespace wortlex
