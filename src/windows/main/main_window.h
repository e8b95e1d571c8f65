// The main window: its menu, its picture, and where commands become windows.
#pragma once

#include "program/program.h"
#include "program/window_ports.h"
#include "windows/help/help.h"
#include "windows/main/picture_board.h"
#include "windows/main/recent_strip.h"
#include "windows/main/tools.h"

#include <QMainWindow>

namespace wortlex {

class MainWindow : public QMainWindow {
public:
    /// The program has started.
    explicit MainWindow(const WindowPorts& ports);

    CommandTable& commands() { return commands_; }
    /// Opens the unsaved work of a run that broke off, if there is any and it is wanted.
    void offer_unsaved_work();
    /// Offers what a new version has brought along for the databases, in the folder of shipped data.
    void offer_new_entries(const std::string& shipped_folder);
    /// Opens a document file as if it were dropped on the window.
    void open_file(const std::string& path);
    /// Comes forward for a second start in its folder, and opens its file; an empty path names none.
    void take_over(const std::string& path);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

private:
    void carry_out_commands();
    void add_menu();
    void fill_recent(QMenu& menu);
    /// The documents of one kind, the first by that digit or letter.
    void add_recent(QMenu& menu, DocumentKind kind, char letter);
    void put();
    void start(const Tool& tool);
    /// Shows the tool's new window and keeps the books of it until it closes.
    void show_window(const Tool& tool);
    void strip_later();
    /// On a document that has been opened.
    void show_document(DocumentKind kind);

    WindowPorts ports_;
    Program& program_;
    Prompts& prompts_;
    CommandTable commands_;
    PictureBoard* board_;
    RecentStrip* strip_;
    Help help_;
};

} // namespace wortlex
