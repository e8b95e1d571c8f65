#include "desktop/placement.h"

#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <limits>
#include <utility>

namespace wortlex {
namespace {

std::int64_t shared_area(const Rectangle& a, const Rectangle& b) {
    const std::int64_t width = std::int64_t{std::min(a.right, b.right)} - std::max(a.left, b.left);
    const std::int64_t height = std::int64_t{std::min(a.bottom, b.bottom)} - std::max(a.top, b.top);
    return width > 0 && height > 0 ? width * height : 0;
}

// The start of a stretch of `length` moved into low to high.
std::int32_t moved_in(std::int32_t start, std::int32_t length, std::int32_t low, std::int32_t high) {
    return std::clamp(start, low, std::max(low, high - length));
}

// A window's own height is without its title bar.
int title_height(const QWidget& window) {
    return window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

// As large as it wants to be, up to the whole screen; the toolkit would stop at two thirds.
QSize fitting_size(const QWidget& window) {
    auto size = window.sizeHint();
    const auto* const layout = window.layout();
    if (layout != nullptr && layout->hasHeightForWidth())
        size.setHeight(layout->totalHeightForWidth(size.width()));
    const auto room = window.screen()->availableSize() - QSize(0, title_height(window));
    if (size.height() > room.height())
        size += QSize(window.style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
    return size.boundedTo(room);
}

} // namespace

Rectangle within_screens(const Rectangle& wanted, std::span<const Rectangle> screens) {
    if (screens.empty()) return wanted;
    const auto& screen =
        *std::max_element(screens.begin(), screens.end(), [&](const Rectangle& a, const Rectangle& b) {
            return shared_area(wanted, a) < shared_area(wanted, b);
        });
    // A damaged file may hold any numbers, so the differences are formed wide.
    const auto extent = [](std::int64_t low, std::int64_t high, std::int64_t most) {
        return static_cast<std::int32_t>(std::clamp(high - low, std::int64_t{1}, most));
    };
    const auto width = extent(wanted.left, wanted.right, std::int64_t{screen.right} - screen.left);
    const auto height = extent(wanted.top, wanted.bottom, std::int64_t{screen.bottom} - screen.top);
    const auto left = moved_in(wanted.left, width, screen.left, screen.right);
    const auto top = moved_in(wanted.top, height, screen.top, screen.bottom);
    return {left, top, left + width, top + height};
}

Rectangle rectangle_at(std::int32_t left, std::int32_t top, int width, int height) {
    constexpr auto end = std::numeric_limits<std::int32_t>::max();
    left = std::min(left, end - width);
    top = std::min(top, end - height);
    return {left, top, left + width, top + height};
}

Rectangle centred_over(const Rectangle& origin, int width, int height) {
    const int left = origin.left + (origin.right - origin.left - width) / 2;
    const int top = origin.top + (origin.bottom - origin.top - height) / 2;
    return {left, top, left + width, top + height};
}

std::vector<Rectangle> screen_rectangles() {
    std::vector<Rectangle> screens;
    for (const auto* const screen : QGuiApplication::screens()) {
        const auto area = screen->availableGeometry();
        screens.push_back({area.left(), area.top(), area.left() + area.width(), area.top() + area.height()});
    }
    return screens;
}

Rectangle rectangle_of(const QWidget& window) {
    const auto corner = window.pos();
    return {corner.x(), corner.y(), corner.x() + window.width(), corner.y() + window.height()};
}

void centre_over_owner(QWidget& window) {
    const auto* const owner = window.parentWidget();
    if (owner == nullptr) return;
    const auto place = within_screens(
        centred_over(rectangle_of(*owner->window()), window.width(), window.height()), screen_rectangles());
    window.move(place.left, place.top);
}

WindowPlace::WindowPlace(QWidget& window, QWidget* origin, int slot, const Places& places)
    : QObject(&window), window_(window), origin_(origin), slot_(slot), places_(places) {
    window.installEventFilter(this);
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event) {
    if (is_to_be_remembered(*event)) remember();
    return QObject::eventFilter(watched, event);
}

// A dialog that was left keeps the place it had. What stays open may still be so at the program's end, so its
// place is known at any time.
bool WindowPlace::is_to_be_remembered(const QEvent& event) const {
    const bool has_gone = event.type() == QEvent::Hide && !event.spontaneous();
    if (const auto* const dialog = qobject_cast<const QDialog*>(&window_))
        return has_gone && dialog->result() == QDialog::Accepted;
    const bool has_moved = event.type() == QEvent::Move || event.type() == QEvent::Resize;
    return has_gone || (has_moved && window_.isVisible());
}

void WindowPlace::put(const std::optional<Rectangle>& first) {
    if (std::exchange(is_put_, true)) return;
    if (!window_.testAttribute(Qt::WA_Resized)) window_.resize(fitting_size(window_));
    auto screens = screen_rectangles();
    for (auto& screen : screens) screen.bottom -= title_height(window_);
    auto place = Rectangle{};
    if (slot_ != no_place && places_.settings.save_window_positions != 0)
        place = places_.positions.slots[static_cast<std::size_t>(slot_)];
    if (place.left == 0) {
        const auto origin = origin_ != nullptr ? rectangle_of(*origin_->window())
                            : !screens.empty() ? screens.front()
                                               : Rectangle{0, 0, 640, 480};
        place = first.value_or(centred_over(origin, window_.width(), window_.height()));
    }
    place = within_screens(place, screens);
    // What was smaller than the window can be would grow beyond the edge.
    const auto size =
        QSize(place.right - place.left, place.bottom - place.top).expandedTo(window_.minimumSizeHint());
    place = within_screens(rectangle_at(place.left, place.top, size.width(), size.height()), screens);
    window_.resize(place.right - place.left, place.bottom - place.top);
    window_.move(place.left, place.top);
}

void WindowPlace::remember() {
    if (slot_ == no_place || places_.settings.save_window_positions == 0 || window_.isMinimized()) return;
    auto place = rectangle_of(window_);
    // A left of zero would read as no place at all.
    if (place.left == 0) place = {1, place.top, place.right + 1, place.bottom};
    places_.positions.slots[static_cast<std::size_t>(slot_)] = place;
}

} // namespace wortlex
