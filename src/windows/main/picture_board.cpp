#include "windows/main/picture_board.h"

#include "desktop/qt_text.h"
#include "forms/row.h"

#include <QPainter>
#include <QTimer>

namespace wortlex {
namespace {

constexpr int caption_pixels = 11;
constexpr int words_height = 15; // the gap below a button
constexpr int title_width = 80;  // from one button to the next
constexpr double asleep = 0.35;  // of a button whose command is not to be had

} // namespace

PictureButton::PictureButton(const ButtonPicture& told, QWidget* parent) : QAbstractButton(parent) {
    setObjectName(string_of(told.bitmap));
    setAccessibleName(string_of(told.name));
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(button_side, button_side);
}

void PictureButton::set_picture(const QImage& picture) {
    picture_ = picture;
    update();
}

void PictureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(asleep);
    painter.drawImage(0, 0, picture_);
}

PictureBoard::PictureBoard(const std::string& data_folder, const ArtScheme& scheme,
                           std::vector<MainScreenButton> told, CommandTable& commands, Prompts& prompts,
                           QWidget* parent)
    : QWidget(parent), data_folder_(data_folder), scheme_(scheme), told_(std::move(told)),
      commands_(commands), prompts_(prompts),
      first_(std::async(std::launch::async, [this] { return load_art(data_folder_, scheme_, told_, 1); })) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (const auto& button : told_) {
        buttons_.push_back(new PictureButton(button.picture, this));
        connect(buttons_.back(), &QAbstractButton::clicked, this,
                [this, command = button.command] { commands_.start(command); });
    }
}

void PictureBoard::show_commands() {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const bool is_built = commands_.is_built(told_[i].command);
        buttons_[i]->setEnabled(is_built);
        const auto name = string_of(told_[i].picture.name);
        buttons_[i]->setToolTip(is_built ? name : name + QLatin1Char('\n') + string_of(not_yet));
    }
}

void PictureBoard::show_pictures(ArtPictures pictures) {
    pictures_ = std::move(pictures);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        buttons_[i]->set_picture(pictures_.buttons[i]);
        buttons_[i]->setVisible(!pictures_.buttons[i].isNull());
    }
    update();
}

void PictureBoard::tell_faults() const {
    for (const auto fault : pictures_.faults)
        prompts_.tell({.text = fault, .caption = bitmap_fault_caption, .icon = Icon::error});
    for (const auto fault : pictures_.undrawable)
        prompts_.tell({.text = fault, .caption = undrawable_bitmap_caption, .icon = Icon::error});
}

// Once a showing; the boxes wait until the window stands.
void PictureBoard::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        show_pictures(first_.valid() ? first_.get() : load_art(data_folder_, scheme_, told_, loaded_scale_));
        QTimer::singleShot(0, this, [this] { tell_faults(); });
    }
    QWidget::showEvent(event);
}

void PictureBoard::resizeEvent(QResizeEvent*) {
    const auto origin = main_screen_origin(width(), height());
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i]->move(origin.x + told_[i].picture.at.x, origin.y + told_[i].picture.at.y);
}

void PictureBoard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), Qt::black);
    if (!pictures_.background.isNull()) painter.drawImage(rect(), pictures_.background);
    draw_titles(painter);
    sharpen_later();
}

// On a fine screen drawing takes longer than all else at the start: the files as they are come first.
void PictureBoard::sharpen_later() {
    if (devicePixelRatioF() <= loaded_scale_) return;
    loaded_scale_ = devicePixelRatioF();
    QTimer::singleShot(0, this,
                       [this] { show_pictures(load_art(data_folder_, scheme_, told_, loaded_scale_)); });
}

void PictureBoard::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const auto* const told = button_at(told_, {event->pos().x(), event->pos().y()}, width(), height());
    if (told != nullptr) commands_.start(told->command);
}

// White over a dark shadow reads on copper and on steel.
void PictureBoard::draw_titles(QPainter& painter) const {
    auto font = painter.font();
    font.setPixelSize(caption_pixels);
    painter.setFont(font);
    const auto origin = main_screen_origin(width(), height());
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const auto& told = told_[i].picture;
        const QRect place(origin.x + told.at.x + (button_side - title_width) / 2,
                          origin.y + told.at.y + button_side, title_width, words_height);
        const auto text = string_of(told.title);
        painter.setOpacity(buttons_[i]->isEnabled() ? 1 : 0.6);
        painter.setPen(Qt::black);
        painter.drawText(place.translated(1, 1), Qt::AlignCenter, text);
        painter.setPen(Qt::white);
        painter.drawText(place, Qt::AlignCenter, text);
    }
}

} // namespace wortlex
