// Where windows stand: at their remembered place or centred on their origin, and always on a screen.
#pragma once

#include "desktop/window_table.h"
#include "forms/places.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <optional>
#include <span>

namespace wortlex {

/// `wanted` moved, and where it is too large cut, to lie within the screen that it covers most; with no
/// screen at all it stays. A window that lies on none goes to the first.
Rectangle within_screens(const Rectangle& wanted, std::span<const Rectangle> screens);

/// A window of this size with its corner there, or as far that way as numbers go.
Rectangle rectangle_at(std::int32_t left, std::int32_t top, int width, int height);

/// A window of this size centred over `origin`.
Rectangle centred_over(const Rectangle& origin, int width, int height);

std::vector<Rectangle> screen_rectangles();
Rectangle rectangle_of(const QWidget& window);

/// Moves a window that is open to where it would come up without a remembered place.
void centre_over_owner(QWidget& window);

/// Puts a window to its place in `slot`, or centres it over `origin`, and remembers its place: a dialog's
/// when it is accepted, another window's whenever it moves.
class WindowPlace : public QObject {
public:
    /// The window owns it. `slot` may be `no_place`.
    WindowPlace(QWidget& window, QWidget* origin, int slot, const Places& places);
    /// To be called before the window is first shown; later calls do nothing. `first` is where it comes up
    /// as long as no place is remembered.
    void put(const std::optional<Rectangle>& first = {});
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool is_to_be_remembered(const QEvent& event) const;
    void remember();

    QWidget& window_;
    QPointer<QWidget> origin_;
    int slot_;
    Places places_;
    bool is_put_ = false;
};

} // namespace wortlex
