#include "windows/documents/set_to_dialog.h"

#include "desktop/captions.h"
#include "desktop/form_dialog.h"
#include "desktop/qt_text.h"
#include "documents/forms/set_to_form.h"

namespace wortlex {

void show_set_to(const RecipeSide& side) {
    auto work = begin_set_to(side.editor);
    Form form;
    set_to_form(form, work);
    FormDialog dialog(form, {.template_name = "SETTODIALOG", .opener = side.opener},
                      places(side.ports.program), side.owner);
    auto& lines = dialog.widgets().field("comparison");
    lines.setMinimumHeight(lines.fontMetrics().height() * 19);
    auto& ok = *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
    const auto show_whether = [&ok, &work] {
        const auto fault = set_to_fault(work);
        ok.setEnabled(fault.empty());
        set_tip(ok, {}, string_of(fault));
    };
    show_whether();
    form.after_edit([show_whether](Row&) { show_whether(); });
    dialog.widgets().field("og").setFocus();
    dialog.exec();
}

} // namespace wortlex
