#include "windows/documents/entry_line.h"

#include "desktop/fields.h"
#include "desktop/qt_text.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

constexpr std::size_t most_proposals = 10;

QString proposal_text(const IngredientList& list, std::size_t row, const std::vector<std::size_t>& columns) {
    QStringList parts;
    for (const auto column : columns) parts << string_of(list.cell(row, column)).trimmed();
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace

EntryLine::EntryLine(EntryLineUse use, const WindowPorts& ports, QWidget* parent)
    : QLineEdit(parent), use_(std::move(use)), other_names_(LoadOtherNames(ports.program.data_folder)) {
    setObjectName(string_of(use_.key));
    setAccessibleName(string_of(use_.name));
    setPlaceholderText(string_of(use_.placeholder()));
    setToolTip(string_of(use_.hint));
    setAccessibleDescription(string_of(use_.hint));
    select_on_focus(*this);
    keep_example_readable(*this);
    completer_.setModel(&proposals_);
    completer_.setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer_.setMaxVisibleItems(static_cast<int>(most_proposals));
    completer_.setWidget(this);
    completer_.popup()->setAccessibleName(QStringLiteral("Proposals"));
    connect(&completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& chosen) { take(static_cast<std::size_t>(chosen.row())); });
    connect(this, &QLineEdit::textEdited, this, [this] { propose(); });
    listening_ = ports.program.notices.listen([this](Change change) {
        if (change != Change::databases && change != Change::settings) return;
        list_.reset();
        found_.clear();
        setPlaceholderText(string_of(use_.placeholder()));
    });
}

IngredientList& EntryLine::list() {
    if (list_ == nullptr) list_ = use_.read();
    return *list_;
}

void EntryLine::propose() {
    written_ = use_.understand(text().toStdString());
    const auto query = make_query(written_.name, other_names_);
    found_ = written_.fault.empty() ? best_rows(list(), query, most_proposals) : std::vector<std::size_t>();
    show_proposals();
    tell(!written_.fault.empty()            ? string_of(written_.fault)
         : query.empty() || !found_.empty() ? QString()
                                            : QStringLiteral("Nothing found"));
}

// The best is chosen from the first: Enter takes it.
void EntryLine::show_proposals() {
    QStringList texts;
    for (const auto row : found_) texts << proposal_text(list(), row, use_.columns);
    // A shown list keeps its corner on some desktops: of another height it is placed anew.
    if (proposals_.rowCount() != texts.size()) completer_.popup()->hide();
    proposals_.setStringList(texts);
    if (found_.empty()) return;
    completer_.complete(proposal_place(texts));
    completer_.popup()->setCurrentIndex(completer_.completionModel()->index(0, 0));
}

// Below the line; as wide as it is, or as the longest of them.
QRect EntryLine::proposal_place(const QStringList& texts) const {
    int widest = 0;
    for (const auto& text : texts) widest = std::max(widest, fontMetrics().horizontalAdvance(text));
    auto place = rect();
    place.setWidth(std::max(width(), widest + 2 * style()->pixelMetric(QStyle::PM_ScrollBarExtent)));
    return place;
}

void EntryLine::take_chosen() {
    const auto* const popup = completer_.popup();
    const auto chosen = popup->isVisible() ? popup->currentIndex() : QModelIndex();
    if (!text().trimmed().isEmpty()) take(chosen.isValid() ? static_cast<std::size_t>(chosen.row()) : 0);
}

void EntryLine::take(std::size_t proposal) {
    if (found_.empty()) propose(); // the database may have changed since
    completer_.popup()->hide();
    if (proposal >= found_.size()) {
        if (written_.fault.empty() && written_.name.empty()) tell(QStringLiteral("Its name is missing"));
        return;
    }
    auto& from = list();
    from.selected = static_cast<std::int32_t>(found_[proposal]);
    use_.add(written_, from);
    forget();
}

void EntryLine::forget() {
    clear();
    found_.clear();
    tell({});
}

void EntryLine::tell(const QString& fault) {
    if (fault.isEmpty()) {
        if (!hint_.isNull()) hint_->hide();
        return;
    }
    if (hint_.isNull()) hint_ = new RangeHint(window());
    hint_->tell(*this, fault);
}

// Esc first closes the proposals, which is theirs to do, then clears the line.
void EntryLine::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return take_chosen();
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) return forget();
    QLineEdit::keyPressEvent(event);
}

} // namespace wortlex
