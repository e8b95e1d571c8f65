// The window of every ingredient list: to keep a database, or to pick an entry from it.
#pragma once

#include "databases/find.h"
#include "databases/ingredient_list.h"
#include "desktop/find_line.h"
#include "desktop/form_widgets.h"
#include "desktop/placement.h"

#include <QDialog>
#include <QMimeData>

namespace wortlex {

struct ListPorts {
    Places places;
    Files& files;
    Prompts& prompts;
    OtherNames other_names = {}; ///< that the find line knows
};

class ListWindow : public QDialog {
public:
    /// On an opened list, which knows whether it can be printed. `picked` is what Pick does with the selected
    /// entry, and answers whether the window is done; without it the window is one that keeps the database.
    /// With `stays_open` more than one can be picked: by Shift and Enter, or as long as it is set, which the
    /// user does in the window.
    ListWindow(IngredientList& list, const ListPorts& ports, Opener opener, std::function<bool()> picked,
               QWidget* owner, bool* stays_open = nullptr);

    /// Hidden before its form goes, which the list still reads.
    ~ListWindow() override { hide(); }

    void setVisible(bool visible) override;
    void accept() override { leave(QDialog::Accepted); }
    void reject() override { leave(QDialog::Rejected); }

protected:
    /// Transfer files dropped on the list are imported.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void fill_form();
    void choice_rows(Rows& rows);
    void list_row(Rows& rows);
    void pick_rows(Rows& rows);
    void edit_buttons(Rows& rows);
    void print_button(Rows& rows);
    void make_find_line();
    void step_in_list(const QKeyEvent& event);
    std::string found_text() const;
    void show_found();
    std::string empty_text() const;
    /// Selects what is found best; nothing where nothing is found.
    void seek();
    void go_on(bool backwards);
    void lay_out_rows();
    void add_keys();
    /// Runs what may change the list and shows it anew.
    void change(const std::function<void()>& action);
    void run(std::unique_ptr<EntryForm> entry);
    void act();
    /// Whether an entry was picked and the window is done.
    bool pick();
    void pick_and_close();
    void pick_and_stay();
    void leave(int result);
    bool can_import(const QMimeData& dragged) const;

    IngredientList& list_;
    ListPorts ports_;
    Opener opener_;
    std::function<bool()> picked_;
    bool* stays_open_;      ///< null: one entry is picked
    std::size_t added_ = 0; ///< picked while it stayed open
    Form form_;
    FindQuery query_;
    FindLine find_line_{this};
    Listening listening_; ///< before the rows, which show what was heard
    std::unique_ptr<FormWidgets> widgets_;
    WindowPlace& place_;
};

} // namespace wortlex
