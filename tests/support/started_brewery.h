// The program started in a brewery folder of its own.
#pragma once

#include "base/ports/quiet_prompts.h"
#include "documents/brewing.h"
#include "program/start.h"
#include "support/qt_keys.h"
#include "support/recording_clipboard.h"
#include "support/recording_desk.h"
#include "support/recording_surface.h"
#include "support/scripted_user.h"
#include "windows/documents/recipe_window.h"
#include "windows/main/main_window.h"
#include "windows/main/tools.h"

#include <QImage>

namespace wortlex {

struct Brewery : ScriptedUser {
    RecordingPageDesk pages;
    RecordingClipboard clipboard;
    RecordingEasel easel;
    FakePictures pictures;
    Program program;

    WindowPorts ports() { return {program, prompts, files, pages, clipboard, easel, pictures}; }

    Brewery() {
        SaveSystemFiles(folder.path(), {WriteDefaultSettings(), {}, true});
        SaveWater(folder.path(), {});
        auto colours = built_in_color_table();
        SaveColorTable(folder.path() + std::string(color_table_file), colours, 1);
        draw_art();
        EXPECT_TRUE(start(program, folder.path(), prompts));
    }

    // What a page asks that is left with changes by Esc or its closing button.
    void answer_page(Answer answer) {
        prompts.expect("yes/no/cancel",
                       "What you have changed on this page is not in your work yet.\nDo you want to take it "
                       "over, as with OK?",
                       answer, Icon::question);
    }

    void draw_art() const {
        const QImage picture(65, 65, QImage::Format_RGB888);
        std::filesystem::create_directory(folder.path() + "art");
        for (const auto& button : main_screen_buttons())
            picture.save(
                QString::fromStdString(button_bitmap(folder.path(), art_schemes[0], button.picture)));
        picture.save(QString::fromStdString(background_bitmap(folder.path(), art_schemes[0])));
    }

    std::string save_sample(const char* name) {
        auto document = new_document(program.settings, ScheduleKind::simple);
        document.title.assign(name);
        document.malts = {malt(MaltType::grain, 1.037F, 10), {}};
        document.malts[0].record.name.assign("Maris Otter");
        document.efficiency = 0.76F;
        auto path = folder.path() + name + ".rec";
        QuietPrompts quiet;
        EXPECT_TRUE(save_recipe(path, document, quiet));
        return path;
    }
};

/// A brewery at its main window, and the tools that it opens.
struct OpenBrewery : Brewery {
    MainWindow main{ports()};

    OpenBrewery() { main.show(); }
    /// The tool of a command, active.
    QWidget& tool(int command) {
        main.commands().start(command);
        const auto name = QString::fromStdString(std::string(tool_of(command).window.template_name));
        for (auto* const window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->objectName() == name) return at_work(*window);
        throw std::logic_error("the tool did not open");
    }
    static QWidget& at_work(QWidget& window) {
        bring_forward(window);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        return window;
    }
};

inline RecipeWindow* open_recipe_window() {
    return seen_window<RecipeWindow>();
}

} // namespace wortlex
