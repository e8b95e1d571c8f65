#include "windows/calculators/formula_type_window.h"

#include "calculators/ibu_calculator.h"
#include "desktop/form_dialog.h"

#include <QBoxLayout>
#include <QStyle>

namespace wortlex {
namespace {

// Each credit goes below the button of its formula, in line with the button's words.
void place_credits(FormDialog& dialog) {
    auto& buttons = dialog.widgets().field("formula");
    auto* const column = qobject_cast<QBoxLayout*>(buttons.layout());
    const int indent = dialog.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                       dialog.style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
    int place = 0;
    for (const auto* const credit : {"credit_0", "credit_1", "credit_2", "credit_3"}) {
        auto* const note = qobject_cast<QLabel*>(&dialog.widgets().field(credit));
        note->setIndent(indent);
        note->setWordWrap(false);
        column->insertWidget(++place, note);
        column->insertSpacing(++place, dialog.fontMetrics().height() / 2);
        ++place;
    }
}

} // namespace

bool choose_formula(Program& program, QWidget* owner, Settings& settings) {
    Form form;
    formula_type_form(form, settings);
    FormDialog dialog(form, {.template_name = "HOPFORMULATYPEDIALOG"}, places(program), owner);
    place_credits(dialog);
    return dialog.exec() == QDialog::Accepted;
}

} // namespace wortlex
