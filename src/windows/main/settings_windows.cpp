#include "windows/main/settings_windows.h"

#include "desktop/form_dialog.h"
#include "program/main_screen.h"
#include "program/settings_forms/colour_settings.h"
#include "program/settings_forms/competition_settings.h"
#include "program/settings_forms/efficiency_settings.h"
#include "program/settings_forms/folder_settings.h"
#include "program/settings_forms/gauge_settings.h"
#include "program/settings_forms/hop_settings.h"
#include "program/settings_forms/mash_settings.h"
#include "program/settings_forms/measure_settings.h"
#include "program/settings_forms/printer_settings.h"
#include "program/settings_forms/screen_settings.h"
#include "program/settings_forms/settings_session.h"
#include "settings/reminders.h"

#include "base/files.h"

#include <QApplication>

namespace wortlex {
namespace {

// The dialogs below the first one, each on the image that the first one will accept or put back.
class SettingsDialogs {
public:
    explicit SettingsDialogs(const SettingsPorts& ports)
        : ports_(ports), program_(ports.program),
          session_({program_.system, program_.settings, program_.folders, program_.data_folder,
                    program_.notices}) {}

    void run(QWidget* owner) {
        open(
            "SYSTEMDEFAULTDIALOG", [this](Form& form) { system_settings_form(form, session_, buttons()); },
            owner);
    }

private:
    SystemSettings& image() { return session_.image(); }

    void open(std::string_view dialog_template, const std::function<void(Form&)>& fill) const {
        open(dialog_template, fill, QApplication::activeModalWidget());
    }

    void open(std::string_view dialog_template, const std::function<void(Form&)>& fill,
              QWidget* owner) const {
        Form form;
        fill(form);
        tell_changes(form);
        run_dialog(form, {.template_name = dialog_template}, places(program_), owner);
    }

    // What a dialog changes shows at once in those that it was opened from.
    void tell_changes(Form& form) const {
        const auto tell = [&notices = program_.notices] { notices.tell(Change::settings); };
        form.after_edit([tell](Row&) { tell(); });
        form.for_each([&tell](Row& row) {
            auto* const button = dynamic_cast<ButtonRow*>(&row);
            if (button == nullptr || !button->press) return;
            button->press = [tell, press = button->press] {
                press();
                tell();
            };
        });
    }

    SettingsButtons buttons() {
        SettingsButtons buttons;
        buttons.measures = [this] {
            open("SYSTEMMEASUREDIALOG", [this](Form& form) { measure_settings_form(form, image()); });
        };
        buttons.mash = [this] {
            open("SYSTEMMASHDIALOG", [this](Form& form) { mash_settings_form(form, image()); });
        };
        buttons.efficiency = [this] {
            open("SYSTEMEFFICIENTDIALOG", [this](Form& form) { efficiency(form); });
        };
        buttons.hops = [this] { open("SYSTEMHOPDIALOG", [this](Form& form) { hops(form); }); };
        buttons.colour = [this] { open("SYSTEMBEERCOLOR", [this](Form& form) { colour(form); }); };
        buttons.gauges = [this] {
            open("SYSTEMGAUGEDIALOG",
                 [this](Form& form) { gauge_settings_form(form, image(), ports_.prompts); });
        };
        buttons.competition = [this] {
            open("SYSTEMCOMPDIALOG",
                 [this](Form& form) { competition_form(form, program_.system.competition); });
        };
        buttons.screen = [this] { open("SYSTEMCOLORDEFAULTDIALOG", [this](Form& form) { screen(form); }); };
        buttons.printer = [this] { open("SYSTEMPREPRINTDIALOG", [this](Form& form) { printer(form); }); };
        buttons.folders = [this] { open("SYSTEMFILEDIRS", [this](Form& form) { folders(form); }); };
        buttons.save_as_default = [this] { session_.save_as_default(ports_.prompts); };
        buttons.load = [this] { session_.load(ports_.files, ports_.prompts); };
        buttons.save = [this] { session_.save(ports_.files, ports_.prompts); };
        return buttons;
    }

    void efficiency(Form& form) {
        efficiency_settings_form(form, image(),
                                 {.advanced =
                                      [this] {
                                          open("SYSTEMEFFICIENTDIALOG_ADV", [this](Form& below) {
                                              advanced_efficiency_form(below, image());
                                          });
                                      },
                                  .help = {}});
    }

    void hops(Form& form) {
        hop_settings_form(form, image(),
                          {.adjust_tinseth =
                               [this] {
                                   open("SYSTEMTINSETHDIALOG",
                                        [this](Form& below) { tinseth_form(below, image()); });
                               },
                           .help = {}});
    }

    void colour(Form& form) {
        colour_settings_form(form, image(), [this] {
            open("SYSTEMCOLORCALIBRATE", [this](Form& below) { calibration(below); });
        });
    }

    void calibration(Form& form) {
        std::function<void()> edit_table;
        if (ports_.edit_colours)
            edit_table = [this] { ports_.edit_colours(QApplication::activeModalWidget()); };
        colour_calibration_form(form, image(),
                                {program_.color_table, edit_table, [this] { restore_colours(); }});
    }

    void restore_colours() {
        if (!LoadColorTable(find_data_file(program_.data_folder, color_table_file), program_.color_table))
            program_.color_table = built_in_color_table();
    }

    void screen(Form& form) {
        std::vector<std::string> names;
        names.reserve(art_schemes.size());
        for (const auto& scheme : art_schemes) names.emplace_back(scheme.label);
        screen_settings_form(form, image(), program_.settings,
                             {ports_.prompts, program_.art_scheme, std::move(names), {}, {}});
    }

    void printer(Form& form) {
        const auto reminders = [this] {
            show_all_reminders(program_.reminders, program_.data_folder, ports_.prompts);
        };
        const auto positions = [this] {
            auto* const dialog = QApplication::activeModalWidget();
            if (reset_window_positions(program_.tool_positions, program_.data_folder, ports_.prompts))
                centre_over_owner(*dialog);
        };
        printer_settings_form(form, image(), {reminders, positions, {}});
    }

    void folders(Form& form) {
        folder_settings_form(form,
                             {program_.folders, program_.reminders, program_.data_folder, ports_.prompts});
    }

    const SettingsPorts& ports_;
    Program& program_;
    SettingsSession session_;
};

} // namespace

void edit_system_settings(const SettingsPorts& ports, QWidget* owner) {
    SettingsDialogs(ports).run(owner);
    take_usual_schedule(ports.program.document, ports.program.settings);
}

} // namespace wortlex
