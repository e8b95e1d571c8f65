#include "desktop/list_view.h"

#include "desktop/cell_editor.h"
#include "desktop/colours.h"
#include "desktop/glass.h"
#include "desktop/qt_text.h"
#include "desktop/read_aloud.h"
#include "forms/glossary.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>

#include <algorithm>
#include <utility>

namespace wortlex {

namespace {

// Air around the cells: without it a number touches the word in the next column.
class RoomyStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        const int usual = QProxyStyle::pixelMetric(metric, option, widget);
        if (metric == PM_FocusFrameHMargin) return usual + 4;
        if (metric == PM_HeaderMargin) return usual + 4; // captions in line with the cells
        return metric == PM_FocusFrameVMargin ? usual + 1 : usual;
    }
};

// Of the text in the ground of a marked row. Among dark tones the eye tells less apart.
int mark_percent(const QPalette& palette) {
    return palette.color(QPalette::Active, QPalette::Base).lightness() < 128 ? 36 : 27;
}

QString shown_caption(const ListRow& row, int column) {
    auto caption = string_of(row.columns[static_cast<std::size_t>(column)].caption());
    return row.has_stacked_captions ? caption.replace(QLatin1Char(' '), QLatin1Char('\n')) : caption;
}

} // namespace

int ListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_count_);
}

int ListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(row_.columns.size());
}

QVariant ListModel::alignment(int column) const {
    const bool is_number = row_.columns[static_cast<std::size_t>(column)].is_number;
    return {Qt::AlignVCenter | (is_number ? Qt::AlignRight : Qt::AlignLeft)};
}

QVariant ListModel::ground(std::size_t row) const {
    if (!row_.is_marked || !row_.is_marked(row)) return {};
    const auto& palette = view().palette();
    return toned_ground(palette, mark_percent(palette));
}

QVariant ListModel::font(std::size_t row) const {
    if (!row_.is_head || !row_.is_head(row)) return {};
    auto bold = view().font();
    bold.setBold(true);
    return bold;
}

QVariant ListModel::ink(std::size_t row) const {
    if (!row_.is_dimmed || !row_.is_dimmed(row)) return {};
    return view().palette().color(QPalette::Disabled, QPalette::Text);
}

// The ground tells it to the eye alone.
QVariant ListModel::mark(std::size_t row) const {
    return row_.is_marked && row_.is_marked(row) ? QStringLiteral("Marked") : QVariant();
}

// A number says what it is; the framed one also whose, for readers tell it alone.
QString ListModel::words(const QModelIndex& index) const {
    const auto text_at = [&](int column) {
        return index.siblingAtColumn(column).data().toString().trimmed();
    };
    auto text = text_at(index.column());
    if (index.column() == 0 || text.isEmpty()) return text;
    const auto caption =
        headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString().simplified(); // of one line
    const auto words = caption + QLatin1Char(' ') + text;
    return index == view().cell_to_type() ? text_at(0) + QLatin1String(", ") + words : words;
}

QVariant ListModel::glass(const QModelIndex& index) const {
    if (!row_.glass || index.column() != 0) return {};
    return glass_icon(row_.glass(static_cast<std::size_t>(index.row())), view());
}

const ListView& ListModel::view() const {
    return *dynamic_cast<const ListView*>(QObject::parent());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole) return alignment(index.column());
    const auto row = static_cast<std::size_t>(index.row());
    if (row >= row_.count()) return {};
    if (role == Qt::BackgroundRole) return ground(row);
    if (role == Qt::FontRole) return font(row);
    if (role == Qt::ForegroundRole) return ink(row);
    if (role == Qt::DecorationRole) return glass(index);
    if (role == Qt::AccessibleDescriptionRole) return mark(row);
    if (role == Qt::AccessibleTextRole) return words(index);
    if (role != Qt::DisplayRole) return {};
    return QString::fromStdString(row_.cell(row, static_cast<std::size_t>(index.column())));
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return alignment(section);
    const auto caption = row_.columns[static_cast<std::size_t>(section)].caption();
    if (role == Qt::ToolTipRole) {
        const auto hint = row_.columns[static_cast<std::size_t>(section)].hint();
        return hint.empty() ? string_of(meaning_of(caption)) : string_of(hint);
    }
    if (role == Qt::AccessibleTextRole) return string_of(caption);
    return role == Qt::DisplayRole ? shown_caption(row_, section) : QVariant();
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
    const auto usual = QAbstractTableModel::flags(index);
    return view().is_typed_into(index) ? usual | Qt::ItemIsEditable : usual;
}

bool ListModel::setData(const QModelIndex& index, const QVariant& text, int role) {
    if (role != Qt::EditRole || !view().is_typed_into(index) || !view().changed) return false;
    const auto row = static_cast<std::size_t>(index.row()), column = static_cast<std::size_t>(index.column());
    view().changed([&] { row_.typing.take(row, column, text.toString().toStdString()); });
    return true;
}

QModelIndexList ListModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                 Qt::MatchFlags flags) const {
    return QAbstractTableModel::match(start.siblingAtColumn(0), role, value, hits, flags);
}

void ListModel::reload() {
    if (row_.count() != shown_count_) {
        beginResetModel();
        shown_count_ = row_.count();
        endResetModel();
    } else if (shown_count_ > 0) {
        dataChanged(index(0, 0), index(static_cast<int>(shown_count_) - 1, columnCount() - 1));
    }
    headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

ListView::ListView(const ListRow& row, QWidget* parent)
    : QTreeView(parent), row_(row), model_(new ListModel(row, this)) {
    auto* const roomy = new RoomyStyle;
    roomy->setParent(this);
    setStyle(roomy);
    header()->setStyle(roomy);
    setModel(model_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    if (row.glass) setIconSize(glass_size(*this));
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setTabKeyNavigation(false);
    header()->setSectionsClickable(static_cast<bool>(row.click_header));
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setHighlightSections(false);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) {
        if (row_.click_header) act([this, column] { row_.click_header(static_cast<std::size_t>(column)); });
    });
    connect(this, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!is_typed_into(index)) act(row_.activate);
    });
    setItemDelegate(row.typing.columns.empty() ? itemDelegate() : new CellEditor(row, this));
    setEditTriggers(row.typing.columns.empty() ? NoEditTriggers : DoubleClicked);
    header()->setSortIndicatorShown(static_cast<bool>(row.sort_mark));
    tell_current_cell(*this);
    size_columns();
}

void ListView::keyboardSearch(const QString& text) {
    typed ? typed(text) : QTreeView::keyboardSearch(text);
}

void ListView::keyPressEvent(QKeyEvent* event) {
    if (state() == EditingState) return QTreeView::keyPressEvent(event); // what the cell's field left over
    if (take_cell_key(*event)) return;
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (is_enter && row_.activate && currentIndex().isValid())
        act(row_.activate);
    else
        QTreeView::keyPressEvent(event);
}

bool ListView::is_typed_into(const QModelIndex& index) const {
    const auto& columns = row_.typing.columns;
    return std::find(columns.begin(), columns.end(), static_cast<std::size_t>(index.column())) !=
           columns.end();
}

QModelIndex ListView::cell_to_type() const {
    const auto& columns = row_.typing.columns;
    if (columns.empty() || !currentIndex().isValid()) return {};
    return currentIndex().siblingAtColumn(current_column());
}

int ListView::current_column() const {
    const auto& columns = row_.typing.columns;
    return columns.empty() ? 0 : static_cast<int>(columns[cell_]);
}

// A digit does, and what the cell would take as it is: a D of a dry hop. Other letters find.
bool ListView::begins_typing(const QKeyEvent& event, const QModelIndex& cell) const {
    const auto text = event.text();
    if (text.isEmpty() || (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return false;
    if (text.front().isDigit() || QStringLiteral(".,").contains(text.front())) return true;
    return text.front().isLetter() && row_.typing
                                          .fault(static_cast<std::size_t>(cell.row()),
                                                 static_cast<std::size_t>(cell.column()), text.toStdString())
                                          .empty();
}

// Digits and F2 open the framed cell, Left and Right choose it.
bool ListView::take_cell_key(QKeyEvent& event) {
    const auto cell = cell_to_type();
    if (!cell.isValid()) return false;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        go_to_cell(event.key() == Qt::Key_Left ? -1 : 1);
        return true;
    case Qt::Key_F2:
        edit(cell);
        return true;
    default:
        if (!begins_typing(event, cell)) return false;
        setEditTriggers(DoubleClicked | AnyKeyPressed);
        edit(cell, AnyKeyPressed, &event); // which hands the digit on
        setEditTriggers(DoubleClicked);
        return true;
    }
}

// From left to right, as they are shown.
void ListView::go_to_cell(int steps) {
    auto columns = row_.typing.columns;
    const auto now = columns[cell_];
    std::sort(columns.begin(), columns.end());
    const auto place = std::find(columns.begin(), columns.end(), now) - columns.begin();
    const auto last = static_cast<std::ptrdiff_t>(columns.size()) - 1;
    const auto wanted = columns[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(place + steps, 0, last))];
    const auto& all = row_.typing.columns;
    cell_ = static_cast<std::size_t>(std::find(all.begin(), all.end(), wanted) - all.begin());
    setCurrentIndex(cell_to_type());
    viewport()->update();
}

void ListView::type_into_next_cell() {
    const auto before = cell_;
    go_to_cell(1);
    if (cell_ != before) edit(cell_to_type());
}

void ListView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (hint == QAbstractItemDelegate::SubmitModelCache && indexBelow(currentIndex()).isValid())
        setCurrentIndex(indexBelow(currentIndex()));
    if (hint == QAbstractItemDelegate::EditNextItem) type_into_next_cell();
}

void ListView::mousePressEvent(QMouseEvent* event) {
    const auto met = indexAt(event->pos());
    if (is_typed_into(met)) {
        const auto& columns = row_.typing.columns;
        const auto column = static_cast<std::size_t>(met.column());
        cell_ = static_cast<std::size_t>(std::find(columns.begin(), columns.end(), column) - columns.begin());
    }
    QTreeView::mousePressEvent(event);
}

void ListView::frame_cell() {
    const auto cell = cell_to_type();
    if (!hasFocus() || !cell.isValid()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawRect(visualRect(cell).adjusted(1, 1, -2, -2));
}

// The list ends with a whole row: what of the next one there is room for stays blank.
void ListView::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    if (option.rect.top() == 0 || option.rect.bottom() <= viewport()->rect().bottom())
        QTreeView::drawRow(painter, option, index);
}

// An empty list tells how it is filled.
void ListView::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    frame_cell();
    const auto words = model_->rowCount() == 0 ? string_of(row_.empty_words()) : QString();
    if (words.isEmpty()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(isEnabled() ? QPalette::Normal : QPalette::Disabled, QPalette::Text));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, words);
}

void ListView::act(const std::function<void()>& action) {
    if (!action) return;
    const QPointer<ListView> still(this); // what is done may close the window
    action();
    if (!still.isNull() && acted) acted();
}

// Columns keep the width that the user gave them until their captions change.
void ListView::size_columns() {
    QStringList captions;
    for (const auto& column : row_.columns) captions << string_of(column.caption());
    if (std::exchange(captions_, captions) == captions) return;
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    for (int column = 0; column < model_->columnCount(); ++column) {
        const auto& told = row_.columns[static_cast<std::size_t>(column)];
        const int caption = fontMetrics().size(0, shown_caption(row_, column)).width() + 2 * digit;
        header()->resizeSection(column, std::max(digit * (told.width + 2), caption));
        header()->setSectionResizeMode(column,
                                       told.stretches ? QHeaderView::Stretch : QHeaderView::Interactive);
    }
    keep_stretched_readable();
}

// A column that takes what the others leave is no narrower than three fifths of its wish: a list that has
// less room is scrolled.
void ListView::keep_stretched_readable() {
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    for (int column = 0; column < model_->columnCount(); ++column) {
        const auto& told = row_.columns[static_cast<std::size_t>(column)];
        if (!told.stretches) continue;
        const int least = digit * (told.width * 3 / 5 + 2);
        const int left = viewport()->width() - header()->length() + header()->sectionSize(column);
        header()->setSectionResizeMode(column,
                                       left < least ? QHeaderView::Interactive : QHeaderView::Stretch);
        if (left < least) header()->resizeSection(column, least);
    }
}

void ListView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    keep_stretched_readable();
}

QSize ListView::sizeHint() const {
    int digits = 0;
    for (const auto& column : row_.columns) digits += column.width + 2;
    const int digit = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    return {digit * digits + 3 * digit, fontMetrics().height() * 10};
}

void ListView::refresh() {
    is_refreshing_ = true;
    model_->reload();
    size_columns();
    const int row = row_.selected == nullptr ? -1 : std::min(*row_.selected, model_->rowCount() - 1);
    // In its column: to leave the cell that is typed into would close its field before the list has taken it.
    const int column = currentIndex().isValid() ? currentIndex().column() : current_column();
    setCurrentIndex(model_->index(row, column));
    if (row >= 0 && row_.is_marked && row_.is_marked(static_cast<std::size_t>(row)))
        scrollTo(currentIndex(), PositionAtCenter);
    show_sort_mark();
    is_refreshing_ = false;
}

void ListView::show_sort_mark() {
    if (!row_.sort_mark) return;
    const auto mark = row_.sort_mark();
    header()->setSortIndicator(static_cast<int>(mark.column),
                               mark.is_descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (!is_refreshing_ && selected) selected(current.row());
}

} // namespace wortlex
