// The one renderer of forms: a widget for each row, kept up to date.
#pragma once

#include "desktop/range_hint.h"
#include "forms/form.h"
#include "forms/places.h"
#include "settings/screen_colours.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include <unordered_map>

namespace wortlex {

class ArrowField;
class LineField;

/// Owns no widget: all belong to `parent`. The form and the settings must outlive it.
class FormWidgets : private RowVisitor {
public:
    FormWidgets(Form& form, const Places& places, QWidget& parent);

    const Form& form() const { return form_; }
    /// The field, button or list of a row.
    QWidget& field(std::string_view key) const;
    QWidget& field(const Row& row) const;
    /// What stands before a field; none where the row has no label, or bears it itself.
    QLabel* label(std::string_view key) const;
    QLabel* label(const Row& row) const;
    /// What stands behind a field; none where the row has no unit.
    QLabel* unit(std::string_view key) const;
    QLabel* unit(const Row& row) const;

    /// The one to begin with: the first to be filled in; none where there is nothing but figures and buttons.
    QWidget* first_field() const;

    /// Shows every row as it is now, but the one being typed in. Follows every edit and every button, every
    /// change that is told, and takes up colours that have changed.
    void refresh(const Row* except = nullptr);

private:
    struct Shown {
        QWidget* field = nullptr;
        QLabel* label = nullptr;
        std::function<void()> refresh;
        QLabel* unit = nullptr;
    };

    /// A field of one line, with arrows or without.
    struct Line {
        ArrowField* arrows; ///< may be null
        QLineEdit* edit;
        QWidget* widget; ///< the whole field
        std::shared_ptr<LineField> text;
    };

    void visit(EntryRow& row) override;
    void visit(ChoiceRow& row) override;
    void visit(CheckRow& row) override;
    void visit(NoteRow& row) override;
    void visit(SwatchRow& row) override;
    void visit(CanvasRow& row) override;
    void visit(ListRow& row) override;
    void visit(ButtonRow& row) override;
    void visit(GridRow& row) override;

    void make(Row& row);
    /// False: the change has ended these widgets.
    bool edit(const std::function<void()>& change);
    void recolour();
    Shown& keep(Row& row, QWidget& field, std::function<void()> refresh);
    void add_label(Shown& shown, const Row& row);
    void add_unit(Shown& shown, const EntryRow& row);
    QString own_name(const Row& row) const;
    QString plain_name(const Row& row) const; ///< with its unit
    void name(const Row& row, QWidget& field) const;
    void count_names();
    void show_value(const Shown& shown);
    void show_state(const Row& row, const Shown& shown) const;
    void make_page(EntryRow& row);
    void make_line(EntryRow& row);
    Line made_line(const EntryRow& row);
    void follow_typing(EntryRow& row, const Line& line);
    void follow_leaving(EntryRow& row, const Line& line);
    void judge(const EntryRow& row, QWidget& field, const std::string& text);
    void make_drop_down(ChoiceRow& row);
    void make_buttons(ChoiceRow& row);

    Form& form_;
    const SystemSettings& colours_;
    QWidget& parent_;
    std::unordered_map<const Row*, Shown> shown_;
    std::unordered_map<QString, int> names_; ///< how many visible rows go by each
    std::optional<ScreenColours> borne_;     ///< none yet before the first refresh
    bool is_edited_ = false;                 ///< what is told meanwhile waits until the rows are shown again
    bool has_missed_ = false;
    QPointer<RangeHint> hint_;
    Listening listening_;
    QObject alive_; ///< its end cuts every connection, before the fields that it served go
};

/// A row's field in a grid, over `columns` of them, behind its label, if it has one.
void add_field(QGridLayout& grid, const FormWidgets& widgets, std::string_view key, int row, int column,
               int columns = 1);

/// A form's groups laid out in their columns, labels before fields. The buttons for print, picture and help
/// join those of `beside_ok`, where there is one.
QLayout* lay_out(const Form& form, const FormWidgets& widgets, QDialogButtonBox* beside_ok = nullptr);

/// Buttons at both ends of a line; those that the form has not are left out.
QHBoxLayout* button_line(const FormWidgets& widgets, std::initializer_list<const char*> left,
                         std::initializer_list<const char*> right);

/// These buttons alone, of a form that is laid out by hand.
void lay_out_beside_ok(const Form& form, const FormWidgets& widgets, QDialogButtonBox& beside_ok);

} // namespace wortlex
