// The line below a list that takes what a brewer would write down, with proposals from a database.
#pragma once

#include "databases/find.h"
#include "databases/ingredient_list.h"
#include "desktop/range_hint.h"
#include "documents/forms/line_entry.h"
#include "forms/binding.h"
#include "program/program.h"
#include "program/window_ports.h"

#include <QCompleter>
#include <QLineEdit>
#include <QPointer>
#include <QStringListModel>

namespace wortlex {

/// What an entry line adds, and from where.
struct EntryLineUse {
    std::string key;
    std::string name;                                      ///< to assistive tools
    Live<std::string> placeholder;                         ///< shows how it is written
    std::string hint;                                      ///< a tooltip
    std::function<std::shared_ptr<IngredientList>()> read; ///< the database
    std::vector<std::size_t> columns;                      ///< of a proposal
    std::function<WrittenLine(const std::string& text)> understand;
    std::function<void(const WrittenLine& written, const IngredientList& list)> add; ///< the selected entry
};

/// Enter adds what is found best, or the proposal that was chosen.
class EntryLine : public QLineEdit {
public:
    EntryLine(EntryLineUse use, const WindowPorts& ports, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    IngredientList& list();
    void propose();
    void show_proposals();
    QRect proposal_place(const QStringList& texts) const;
    void take_chosen();
    void take(std::size_t proposal);
    void forget();
    void tell(const QString& fault);

    EntryLineUse use_;
    OtherNames other_names_;
    std::shared_ptr<IngredientList> list_; ///< null: to be read when it is next needed
    WrittenLine written_;
    std::vector<std::size_t> found_; ///< the rows of the proposals
    QStringListModel proposals_;
    QCompleter completer_;
    QPointer<RangeHint> hint_;
    Listening listening_;
};

} // namespace wortlex
