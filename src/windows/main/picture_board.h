// The picture with its buttons that fills the main window.
#pragma once

#include "base/ports/prompts.h"
#include "program/commands.h"
#include "program/main_screen.h"

#include <QAbstractButton>
#include <QImage>
#include <QMouseEvent>

#include <future>
#include <set>
#include <vector>

namespace wortlex {

/// The art files of one scheme as pictures, and what was wrong with those that could not be read. They are
/// images, which any thread may read.
struct ArtPictures {
    QImage background;
    std::vector<QImage> buttons;       ///< in the order of theirs
    std::set<std::string_view> faults; ///< each told once, however many files share it
    std::set<std::string_view> undrawable;
};

/// On a screen finer than the files, our own pictures are drawn anew from their vector sources; a picture
/// that the brewer put there himself is shown as it is.
ArtPictures load_art(const std::string& data_folder, const ArtScheme& scheme,
                     std::span<const MainScreenButton> buttons, double device_scale);

/// The picture of the about box, in the same way; a file that cannot be read is drawn from its source.
QImage about_picture(const std::string& data_folder, double device_scale);

/// A button that is a picture. It has a name for assistive tools; keyboards reach its command in the menu.
class PictureButton : public QAbstractButton {
public:
    PictureButton(const ButtonPicture& told, QWidget* parent);
    void set_picture(const QImage& picture);

protected:
    /// The board acts as the button goes down; there are no other states.
    void mousePressEvent(QMouseEvent* event) override { event->ignore(); }
    void mouseReleaseEvent(QMouseEvent*) override {}
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
};

class PictureBoard : public QWidget {
public:
    PictureBoard(const std::string& data_folder, const ArtScheme& scheme, std::vector<MainScreenButton> told,
                 CommandTable& commands, Prompts& prompts, QWidget* parent);
    QSize sizeHint() const override { return {main_screen_frame.width, main_screen_frame.height}; }
    /// Disables the buttons of commands that nobody carries out.
    void show_commands();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void show_pictures(ArtPictures pictures);
    void sharpen_later();
    void tell_faults() const;
    void draw_titles(QPainter& painter) const;

    const std::string& data_folder_;
    const ArtScheme& scheme_;
    std::vector<MainScreenButton> told_;
    CommandTable& commands_;
    Prompts& prompts_;
    ArtPictures pictures_;
    double loaded_scale_ = 1; ///< of the pictures, or of those on their way
    std::vector<PictureButton*> buttons_;
    std::future<ArtPictures>
        first_; ///< read while the rest of the window is made; last, as it reads the others
};

} // namespace wortlex
