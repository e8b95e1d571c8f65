#include "desktop/cell_editor.h"

#include "desktop/qt_text.h"

#include <QLineEdit>
#include <QValidator>

#include <algorithm>

namespace wortlex {
namespace {

// What is wrong may still become right, so nothing is kept from being typed.
class CellValidator : public QValidator {
public:
    CellValidator(std::function<QString(const QString&)> fault, QObject* parent)
        : QValidator(parent), fault_(std::move(fault)) {}
    State validate(QString& text, int& /*caret*/) const override {
        return fault_(text).isEmpty() ? Acceptable : Intermediate;
    }

private:
    std::function<QString(const QString&)> fault_;
};

QString text_to_begin_with(const ListRow& row, const QModelIndex& index) {
    return string_of(
        row.typing.text(static_cast<std::size_t>(index.row()), static_cast<std::size_t>(index.column())));
}

// What it is, and whose.
QString name_of(const ListRow& row, const QModelIndex& index) {
    return string_of(row.columns[static_cast<std::size_t>(index.column())].caption() + ", " +
                     row.cell(static_cast<std::size_t>(index.row()), 0));
}

} // namespace

QWidget* CellEditor::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                  const QModelIndex& index) const {
    auto* const edit = new QLineEdit(parent);
    edit->setFrame(false);
    edit->setAlignment(Qt::AlignRight);
    edit->setAccessibleName(name_of(row_, index));
    edit->setText(text_to_begin_with(row_, index));
    const auto fault = [this, begun = edit->text(), row = static_cast<std::size_t>(index.row()),
                        column = static_cast<std::size_t>(index.column())](const QString& text) {
        return text == begun ? QString() : string_of(row_.typing.fault(row, column, text.toStdString()));
    };
    edit->setValidator(new CellValidator(fault, edit));
    connect(edit, &QLineEdit::textChanged, this,
            [this, edit, fault](const QString& text) { judge(*edit, fault(text)); });
    return edit;
}

void CellEditor::judge(QWidget& editor, const QString& fault) const {
    if (fault.isEmpty()) {
        if (!hint_.isNull()) hint_->hide();
        return;
    }
    if (hint_.isNull()) hint_ = new RangeHint(editor.window());
    hint_->tell(editor, fault);
}

// It began with the text of the cell; a list that is shown anew meanwhile must not undo what is typed.
void CellEditor::setEditorData(QWidget* /*editor*/, const QModelIndex& /*index*/) const {}

// A text that stayed as it was changes nothing.
void CellEditor::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    const auto text = qobject_cast<QLineEdit*>(editor)->text();
    if (text != text_to_begin_with(row_, index)) model->setData(index, text, Qt::EditRole);
}

// A narrow column still shows some digits.
void CellEditor::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                      const QModelIndex& /*index*/) const {
    const int least = editor->fontMetrics().averageCharWidth() * 9;
    auto place = option.rect;
    if (place.width() < least) place.setLeft(place.right() - least + 1);
    const int tall = std::max(place.height(), editor->fontMetrics().height() + 2);
    place.setTop(place.center().y() - tall / 2);
    place.setHeight(tall);
    editor->setGeometry(place);
}

} // namespace wortlex
