#include "desktop/form_widgets.h"

#include "desktop/button_pictures.h"
#include "desktop/captions.h"
#include "desktop/colours.h"
#include "desktop/drawings.h"
#include "desktop/fields.h"
#include "desktop/help_keys.h"
#include "desktop/list_keys.h"
#include "desktop/list_view.h"
#include "desktop/qt_text.h"
#include "desktop/read_aloud.h"
#include "forms/glossary.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace wortlex {
namespace {

// Why a disabled row is so; empty where its form does not tell.
QString reason_of(const Row& row) {
    if (row.is_enabled()) return {};
    const auto* const button = dynamic_cast<const ButtonRow*>(&row);
    const auto reason = string_of(row.reason_text());
    return button != nullptr && !button->press && reason.isEmpty() ? string_of(not_yet) : reason;
}

// The form's own words, or those of the glossary.
QString meaning(const Row& row) {
    auto own = string_of(row.hint_text());
    if (!own.isEmpty() || dynamic_cast<const NoteRow*>(&row) != nullptr) return own;
    auto caption = row.label_text();
    caption.erase(std::remove(caption.begin(), caption.end(), '&'), caption.end());
    return string_of(meaning_of(caption));
}

QString lines_of(QStringList lines) {
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

// What may be typed, and why nothing may, stand below what it means.
QString tip_of(const Row& row) {
    const auto* const entry = dynamic_cast<const EntryRow*>(&row);
    return lines_of(
        {meaning(row), entry == nullptr ? QString() : string_of(entry->range_words()), reason_of(row)});
}

// What is drawn in a field, for those who do not see it.
QString drawn_in(const Row& row) {
    if (const auto* const swatch = dynamic_cast<const SwatchRow*>(&row))
        return string_of(words_of_colour(swatch->colour()));
    const auto* const list = dynamic_cast<const ListRow*>(&row);
    return list == nullptr || list->count() > 0 ? QString() : string_of(list->empty_words());
}

// What stands behind the field, but for what its name says already.
QString unit_to_say(const EntryRow& row, const QString& name) {
    auto unit = string_of(row.unit_text());
    if (unit.isEmpty()) return unit;
    if (unit.startsWith(QLatin1Char('(')) && unit.endsWith(QLatin1Char(')'))) unit = unit.mid(1).chopped(1);
    return name.split(QLatin1Char(' ')).contains(unit, Qt::CaseInsensitive) ? QString() : unit;
}

bool is_to_fill_in(const Row& row) {
    if (!row.is_enabled() || !row.is_visible()) return false;
    if (const auto* const entry = dynamic_cast<const EntryRow*>(&row)) return !entry->is_read_only();
    return dynamic_cast<const ChoiceRow*>(&row) != nullptr ||
           dynamic_cast<const CheckRow*>(&row) != nullptr || dynamic_cast<const ListRow*>(&row) != nullptr;
}

// A button's caption does not wrap by itself, so a sentence is broken at its blanks.
QString broken(QString caption) {
    constexpr qsizetype longest_line = 64;
    for (qsizetype start = 0; caption.size() - start > longest_line;) {
        const auto blank = caption.lastIndexOf(QLatin1Char(' '), start + longest_line);
        if (blank <= start) break;
        caption[blank] = QLatin1Char('\n');
        start = blank + 1;
    }
    return caption;
}

// A word chosen from, and what for: lists of the same words are told apart.
QString option_name(const QString& word, const QWidget& choice) {
    const auto what = choice.accessibleName();
    return what.isEmpty() ? spoken(word) : spoken(word) + QLatin1String(", ") + what;
}

void aim_at_width(QLineEdit& line, const EntryRow& row, int beside) {
    const int digit = line.fontMetrics().horizontalAdvance(QLatin1Char('0'));
    line.setMinimumWidth(std::min(digit * row.columns, 40 * digit));
    auto* const field = beside > 0 ? line.parentWidget() : &line;
    const int width = digit * (row.columns + 2) + beside;
    field->setMinimumWidth(width);
    if (row.is_number()) field->setMaximumWidth(width);
    if (row.is_number()) line.setAlignment(Qt::AlignRight);
}

// To be copied, not to be passed through.
void leave_to_copy(QWidget& figure) {
    figure.setFocusPolicy(Qt::ClickFocus);
    let_reader_reach(figure);
}

// Tells when the desktop has changed its colours.
class DesktopColours : public QObject {
public:
    DesktopColours(std::function<void()> changed, QObject& owner)
        : QObject(&owner), changed_(std::move(changed)) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) changed_();
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> changed_;
};

} // namespace

FormWidgets::FormWidgets(Form& form, const Places& places, QWidget& parent)
    : form_(form), colours_(places.settings), parent_(parent) {
    form.for_each([this](Row& row) { make(row); });
    form.show_again = [this](const Row* except) {
        is_edited_ = has_missed_ = false;
        refresh(except);
    };
    listening_ = places.notices.listen([this](Change) {
        if (is_edited_)
            has_missed_ = true;
        else
            refresh();
    });
    auto* const desktop = new DesktopColours(
        [this] {
            borne_.reset();
            recolour();
        },
        alive_);
    parent.installEventFilter(desktop);
    refresh();
}

// After an edit the form shows its rows again, but the one being typed in. That edit is told to everyone, and
// would come back here before.
bool FormWidgets::edit(const std::function<void()>& change) {
    const QPointer<QObject> still(&alive_);
    is_edited_ = true;
    change();
    if (still.isNull()) return false;
    is_edited_ = false;
    if (std::exchange(has_missed_, false)) refresh();
    return true;
}

QWidget& FormWidgets::field(const Row& row) const {
    return *shown_.at(&row).field;
}

QWidget& FormWidgets::field(std::string_view key) const {
    return field(form_.row(key));
}

QLabel* FormWidgets::label(const Row& row) const {
    return shown_.at(&row).label;
}

QLabel* FormWidgets::label(std::string_view key) const {
    return label(form_.row(key));
}

QLabel* FormWidgets::unit(const Row& row) const {
    return shown_.at(&row).unit;
}

QLabel* FormWidgets::unit(std::string_view key) const {
    return unit(form_.row(key));
}

QWidget* FormWidgets::first_field() const {
    QWidget* first = nullptr;
    form_.for_each([&](Row& row) {
        if (first == nullptr && is_to_fill_in(row)) first = &field(row);
    });
    return first;
}

void FormWidgets::make(Row& row) {
    row.accept(*this);
    const auto found = shown_.find(&row);
    if (found != shown_.end()) found->second.field->setObjectName(string_of(row.key));
}

FormWidgets::Shown& FormWidgets::keep(Row& row, QWidget& field, std::function<void()> refresh) {
    return shown_[&row] = {&field, nullptr, std::move(refresh), nullptr};
}

void FormWidgets::add_label(Shown& shown, const Row& row) {
    if (row.label_text().empty()) return;
    shown.label = new QLabel(&parent_);
    make_buddies(*shown.label, *shown.field);
}

void FormWidgets::add_unit(Shown& shown, const EntryRow& row) {
    if (row.unit_text().empty()) return;
    shown.unit = new QLabel(&parent_);
    shown.refresh = [this, show = std::move(shown.refresh), unit = shown.unit, field = shown.field, &row] {
        show();
        unit->setText(string_of(row.unit_text()));
        unit->setVisible(row.is_visible());
        auto* const buddy = unit_to_say(row, own_name(row)).isEmpty() ? nullptr : field;
        if (unit->buddy() != buddy) unit->setBuddy(buddy); // so it labels the field, too
    };
}

// A row without words of its own goes by the heading of its group; in a grid the layout names it.
QString FormWidgets::own_name(const Row& row) const {
    auto words = row.name_text().empty() ? row.label_text() : row.name_text();
    if (words.empty() && dynamic_cast<const SwatchRow*>(&row) != nullptr) words = row.hint_text();
    if (words.empty() && dynamic_cast<const EntryRow*>(&row) == nullptr) words = form_.heading_of(row);
    return spoken(string_of(words));
}

QString FormWidgets::plain_name(const Row& row) const {
    const auto words = own_name(row);
    const auto* const entry = dynamic_cast<const EntryRow*>(&row);
    const auto unit = entry == nullptr ? QString() : unit_to_say(*entry, words);
    return words.isEmpty() || unit.isEmpty() ? words : words + QLatin1String(", ") + unit;
}

// Fields of one label in two groups are told apart by the headings.
void FormWidgets::name(const Row& row, QWidget& field) const {
    auto words = plain_name(row);
    if (words.isEmpty()) return;
    if (const auto met = names_.find(words); met != names_.end() && met->second > 1) {
        const auto heading = spoken(string_of(form_.heading_of(row)));
        if (!heading.isEmpty() && heading != words) words += QLatin1String(", ") + heading;
    }
    tell_name(field, words);
}

void FormWidgets::count_names() {
    names_.clear();
    for (const auto& [row, shown] : shown_)
        if (row->is_visible()) ++names_[plain_name(*row)];
}

void FormWidgets::show_state(const Row& row, const Shown& shown) const {
    const auto text = string_of(row.label_text());
    if (shown.label != nullptr) shown.label->setText(text);
    name(row, *shown.field);
    const auto tip = tip_of(row);
    if (auto* const button = qobject_cast<QPushButton*>(shown.field))
        set_tip(*button, meaning(row), reason_of(row));
    else
        shown.field->setToolTip(tip);
    if (shown.label != nullptr) shown.label->setToolTip(tip);
    tell_description(*shown.field, lines_of({tip, drawn_in(row)}));
    shown.field->setEnabled(row.is_enabled());
    const bool visible = row.is_visible();
    if (shown.field->isVisibleTo(&parent_) != visible) shown.field->setVisible(visible);
    if (shown.label != nullptr) shown.label->setVisible(visible);
}

// The user may be changing the very colours that the fields bear.
void FormWidgets::recolour() {
    const auto wanted = colours_of(colours_);
    if (borne_ == wanted) return;
    borne_ = wanted;
    for (const auto& [row, shown] : shown_)
        if (row->area) apply_colours(*shown.field, *row->area, colours_);
}

// What was typed out of its range is gone, and what was said about it.
void FormWidgets::show_value(const Shown& shown) {
    if (shown.refresh) shown.refresh();
    if (!hint_.isNull()) hint_->forget(*shown.field);
}

void FormWidgets::refresh(const Row* except) {
    recolour();
    count_names();
    for (const auto& [row, shown] : shown_) {
        if (row != except) show_value(shown);
        show_state(*row, shown);
    }
}

void FormWidgets::visit(EntryRow& row) {
    if (row.is_multi_line()) return make_page(row);
    make_line(row);
}

void FormWidgets::make_page(EntryRow& row) {
    auto* const page = new Page(&parent_);
    page->setReadOnly(row.is_read_only());
    if (row.is_read_only()) leave_to_copy(*page);
    const auto field = std::make_shared<PageField>(*page);
    // The toolkit tells its own writes too; only those of the user reach the form.
    const auto writes = std::make_shared<bool>(false);
    auto show = [&row, field, writes] {
        *writes = true;
        row.show(*field);
        *writes = false;
    };
    QObject::connect(page, &QPlainTextEdit::textChanged, &alive_, [this, &row, field, writes] {
        if (!*writes) edit([&] { form_.type(row, *field); });
    });
    add_label(keep(row, *page, std::move(show)), row);
}

void FormWidgets::make_line(EntryRow& row) {
    const auto line = made_line(row);
    auto& shown = keep(row, *line.widget, [&row, text = line.text] {
        if (!row.text_when_disabled.empty() && !row.is_enabled())
            return text->set_text(row.text_when_disabled);
        row.show(*text);
    });
    add_label(shown, row);
    add_unit(shown, row);
    if (line.arrows != nullptr)
        shown.refresh = [show = std::move(shown.refresh), arrows = line.arrows, &row] {
            show();
            if (const auto range = row.arrow_range()) arrows->tell_range(*range);
        };
    follow_typing(row, line);
    follow_leaving(row, line);
}

FormWidgets::Line FormWidgets::made_line(const EntryRow& row) {
    auto* const arrows = row.has_arrows() ? new ArrowField(&parent_) : nullptr;
    auto* const edit = arrows != nullptr ? &arrows->line() : new QLineEdit(&parent_);
    auto* const widget = arrows != nullptr ? static_cast<QWidget*>(arrows) : edit;
    edit->setReadOnly(row.is_read_only());
    if (row.is_read_only()) leave_to_copy(*widget);
    aim_at_width(*edit, row,
                 arrows == nullptr ? 0 : 2 * widget->style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    select_on_focus(*edit);
    return {arrows, edit, widget, std::make_shared<LineField>(*edit)};
}

void FormWidgets::follow_typing(EntryRow& row, const Line& line) {
    QObject::connect(line.edit, &QLineEdit::textEdited, &alive_, [this, &row, line] {
        const auto typed = line.text->text(); // which the row may correct at once
        if (edit([&] { form_.type(row, *line.text); })) judge(row, *line.widget, typed);
    });
    if (line.arrows == nullptr) return;
    line.arrows->stepped = [this, &row, line](Spin direction) {
        if (edit([&] { form_.spin(row, *line.text, direction); })) judge(row, *line.widget, "");
    };
}

void FormWidgets::follow_leaving(EntryRow& row, const Line& line) {
    const auto leave = [this, &row, line] {
        const auto& shown = shown_.at(&row);
        if (shown.refresh) shown.refresh();
        show_state(row, shown); // it may have been told out of range
        if (!hint_.isNull()) hint_->leave(*shown.field);
        const QPointer<QObject> still(&alive_);
        form_.leave();
        if (!still.isNull() && line.widget->hasFocus())
            line.text->select_all(); // after Enter: what is typed next is another number
    };
    // Enter in a field with arrows is told by the field alone.
    if (line.arrows != nullptr)
        QObject::connect(line.arrows, &QAbstractSpinBox::editingFinished, &alive_, leave);
    else
        QObject::connect(line.edit, &QLineEdit::editingFinished, &alive_, leave);
}

// Says it at once where a typed number is out of range.
void FormWidgets::judge(const EntryRow& row, QWidget& field, const std::string& text) {
    if (row.is_outside(text)) {
        if (hint_.isNull()) hint_ = new RangeHint(field.window());
        hint_->tell(field, string_of(row.range_words()));
    } else if (!hint_.isNull()) {
        hint_->hide();
    }
}

void FormWidgets::visit(ChoiceRow& row) {
    if (row.shape == ChoiceRow::Look::drop_down) return make_drop_down(row);
    make_buttons(row);
}

void FormWidgets::make_drop_down(ChoiceRow& row) {
    auto* const box = new QComboBox(&parent_);
    auto show = [&row, box] {
        for (std::size_t i = 0; i < row.words.size(); ++i) {
            if (box->count() == static_cast<int>(i)) box->addItem({});
            box->setItemText(static_cast<int>(i), string_of(row.words[i]()));
        }
        while (box->count() > static_cast<int>(row.words.size())) box->removeItem(box->count() - 1);
        const auto chosen = row.chosen();
        box->setCurrentIndex(chosen ? static_cast<int>(*chosen) : -1);
    };
    QObject::connect(box, &QComboBox::activated, &alive_, [this, &row](int option) {
        edit([&] { form_.choose(row, static_cast<std::size_t>(option)); });
    });
    add_label(keep(row, *box, std::move(show)), row);
}

void FormWidgets::make_buttons(ChoiceRow& row) {
    auto* const frame = new QWidget(&parent_);
    auto* const layout = new QBoxLayout(
        row.shape == ChoiceRow::Look::across ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, frame);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const buttons = new QButtonGroup(frame);
    for (std::size_t option = 0; option < row.words.size(); ++option) {
        auto* const button = new QRadioButton(frame);
        button->setObjectName(string_of(row.key + '_' + std::to_string(option)));
        choose_at_once(*button);
        buttons->addButton(button, static_cast<int>(option));
        layout->addWidget(button);
    }
    if (row.shape == ChoiceRow::Look::across) layout->addStretch();
    frame->setFocusPolicy(Qt::StrongFocus); // the label's mnemonic goes to the chosen button
    auto show = [this, &row, buttons, frame] {
        name(row, *frame);
        const auto chosen = row.chosen();
        buttons->setExclusive(chosen.has_value()); // none is marked where the value is none of them
        for (auto* const button : buttons->buttons()) {
            const auto option = static_cast<std::size_t>(buttons->id(button));
            const auto word = string_of(row.words[option]());
            button->setText(broken(word));
            tell_name(*button, option_name(word, *frame));
            button->setToolTip(string_of(meaning_of(spoken(word).toStdString())));
            button->setEnabled(!row.option_when || row.option_when(option));
            button->setChecked(chosen == option);
            if (chosen == option) frame->setFocusProxy(button);
        }
        buttons->setExclusive(true);
    };
    QObject::connect(buttons, &QButtonGroup::idClicked, &alive_, [this, &row](int option) {
        edit([&] { form_.choose(row, static_cast<std::size_t>(option)); });
    });
    add_label(keep(row, *frame, std::move(show)), row);
}

void FormWidgets::visit(CheckRow& row) {
    auto* const box = new QCheckBox(&parent_);
    choose_at_once(*box);
    keep(row, *box, [&row, box] {
        box->setText(string_of(row.label_text()));
        box->setChecked(row.checked.get());
    });
    QObject::connect(box, &QCheckBox::clicked, &alive_,
                     [this, &row](bool checked) { edit([&] { form_.check(row, checked); }); });
}

void FormWidgets::visit(NoteRow& row) {
    auto* const words = new QLabel(&parent_);
    words->setWordWrap(true);
    words->setTextFormat(Qt::PlainText);
    keep(row, *words, [&row, words] { words->setText(string_of(row.label_text())); });
}

void FormWidgets::visit(SwatchRow& row) {
    auto* const patch = new SwatchButton(row.colour, row.press, &parent_);
    add_label(keep(row, *patch, [patch] { patch->update(); }), row);
}

void FormWidgets::visit(CanvasRow& row) {
    auto* const canvas = new Canvas(row.draw, &parent_);
    keep(row, *canvas, [&row, canvas] { canvas->show_again(row.size()); });
}

void FormWidgets::visit(ListRow& row) {
    auto* const list = new ListView(row, &parent_);
    list->selected = [this, &row](std::int32_t index) { form_.select(row, index); };
    list->acted = [this] { refresh(); };
    list->changed = [this](const std::function<void()>& change) {
        if (edit(change)) refresh();
    };
    keep(row, *list, [list] { list->refresh(); });
}

void FormWidgets::visit(ButtonRow& row) {
    auto* const button = new QPushButton(&parent_);
    keep(row, *button,
         [this, &row, button] { show_caption(*button, row.key, string_of(row.label_text()), colours_); });
    if (has_picture(row.key) && row.hint_text().empty())
        row.hint(spoken(string_of(row.label_text())).toStdString());
    if (row.key == "help") {
        row.press = [this] { ask_for_help(parent_); };
        add_key(*button, QKeySequence::HelpContents);
    }
    // Heard by the button itself, so in whatever window it stands, and only while it can be pressed.
    if (row.key == "print") press_in_window(*button, QKeySequence::Print, *button);
    if (!row.press) row.enabled(false);
    QObject::connect(button, &QPushButton::clicked, &alive_, [this, &row] {
        const QPointer<QObject> still(&alive_); // what a button does may close the window
        row.press();
        if (!still.isNull()) refresh();
    });
}

// Its cells are rows of their own; only the layout knows of lines and columns.
void FormWidgets::visit(GridRow&) {}

} // namespace wortlex
