// The shelf of recipes: what File > Open shows before the dialog of files.
#pragma once

#include "desktop/find_line.h"
#include "desktop/form_widgets.h"
#include "desktop/placement.h"
#include "program/shelf/shelf.h"
#include "program/shelf/shelf_preview.h"
#include "program/shelf/shelf_reading.h"
#include "program/window_ports.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QTimer>

namespace wortlex {

class ShelfWindow : public QDialog {
public:
    ShelfWindow(const WindowPorts& ports, Opener opener, QWidget* owner);
    /// Hidden before its form goes.
    ~ShelfWindow() override { hide(); }

    /// The recipe that was picked, once the window is accepted.
    const std::string& path() const { return path_; }
    void setVisible(bool visible) override;
    /// Picks the selected recipe, if it can be opened.
    void accept() override;

protected:
    /// A recipe dropped on it is picked.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void fill_form();
    void list_row(Rows& rows);
    void make_find_line();
    void make_preview();
    void lay_out_parts();
    void add_keys();
    void take_what_was_read();
    std::string count_text() const;
    std::string empty_text() const;
    bool can_open() const;
    void show_selected();
    void browse();
    void pick(std::string path);

    WindowPorts ports_;
    std::string folder_;
    ShelfReading reading_;
    Shelf shelf_;
    std::string path_;
    bool is_read_ = false;
    Form form_;
    FindLine find_line_{this};
    QPlainTextEdit preview_{this};
    std::string previewed_; ///< the path of what it shows
    QTimer reader_;         ///< asks for what was read
    QTimer previewer_;      ///< shows what is selected, once the keys rest
    std::unique_ptr<FormWidgets> widgets_;
    WindowPlace& place_;
};

/// The recipe file that the user picks, from the shelf or in the dialog of files; nothing if he leaves it.
std::optional<std::string> choose_recipe(const WindowPorts& ports, Opener opener, QWidget* owner);

} // namespace wortlex
