#include "windows/calculators/color_utility_window.h"

#include "desktop/form_dialog.h"
#include "desktop/menus.h"

#include <QLayout>

namespace wortlex {
namespace {

constexpr int list_lines = 30;

class ColorUtilityDialog : public FormDialog {
public:
    ColorUtilityDialog(Form& form, ColorUtility& utility, const Places& places, QWidget* owner)
        : FormDialog(form, {.template_name = "COLORUTILITYDIALOG"}, places, owner), utility_(utility) {
        setSizeGripEnabled(true);
        auto& list = widgets().field("rows");
        list.setMinimumSize(list.sizeHint().width(), fontMetrics().height() * list_lines);
        list.setFocus();
        add_menu();
        layout()->setSizeConstraint(QLayout::SetMinimumSize); // also where that is most of a small screen
    }

    void accept() override {
        if (utility_.accept()) FormDialog::accept();
    }
    void reject() override {
        if (utility_.cancel()) FormDialog::reject();
    }

private:
    void add_menu() {
        auto* const bar = new QMenuBar(this);
        auto& menu = wortlex::add_menu(*bar, "&File");
        int number = 0;
        for (const auto& [caption, action] : color_utility_menu)
            add_action(menu, caption, number++, {.action = [this, does = action] { run(does); }, .key = {}});
        layout()->setMenuBar(bar);
    }

    void run(void (ColorUtility::*action)()) {
        (utility_.*action)();
        widgets().refresh();
    }

    ColorUtility& utility_;
};

} // namespace

void run_color_utility(Program& program, SystemSettings& image, const ColorUtilityPorts& ports,
                       QWidget* owner) {
    ColorUtility utility({program.color_table, image, program.data_folder, ports.files, ports.prompts,
                          ports.pictures, ports.clock});
    Form form;
    color_utility_form(form, utility);
    ColorUtilityDialog dialog(form, utility, places(program), owner);
    dialog.exec();
}

} // namespace wortlex
