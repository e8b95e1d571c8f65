// The main window: its menu, its picture, and where commands become windows.
#pragma once

#include "desktop/system_ports.h"
#include "desktop/tool_window.h"
#include "jpeg/jpeg_pictures.h"
#include "program/program.h"
#include "program/window_ports.h"
#include "windows/main/picture_board.h"

#include <QMainWindow>

namespace wortlex {

class MainWindow : public QMainWindow {
public:
    /// The program has started.
    explicit MainWindow(const WindowPorts& ports);

    CommandTable& commands() { return commands_; }
    /// Opens the unsaved work of a run that broke off, if there is any and it is wanted.
    void offer_unsaved_work();
    /// Opens a document file as if it were dropped on the window.
    void open_file(const std::string& path);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void carry_out_commands();
    void carry_out_databases();
    void carry_out_settings();
    void add_menu();
    void fill_recent(QMenu& menu);
    void put();
    bool wants(DocumentKind kind);
    void show_recipe();
    void show_strike_calculator();
    /// Shows a new tool window and keeps the books of it until it closes.
    void show_tool(ToolWindow& window, int command, int closing_notification);

    WindowPorts ports_;
    Program& program_;
    Prompts& prompts_;
    Files& files_;
    JpegPictures pictures_;
    SystemClock clock_;
    CommandTable commands_;
    PictureBoard* board_;
};

} // namespace wortlex
