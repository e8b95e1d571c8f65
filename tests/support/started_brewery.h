// The program started in a brewery folder of its own.
#pragma once

#include "base/ports/quiet_prompts.h"
#include "program/start.h"
#include "support/recording_clipboard.h"
#include "support/recording_desk.h"
#include "support/recording_surface.h"
#include "support/scripted_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"
#include "windows/documents/recipe_window.h"
#include "windows/main/main_window.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>

#include <filesystem>

namespace wortlex {

struct Brewery {
    TemporaryFolder folder;
    ScriptedPrompts prompts;
    ScriptedFiles files;
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
        document.malts.resize(2);
        document.malts[0].record.name.assign("Maris Otter");
        document.malts[0].record.malt_type = MaltType::grain;
        document.malts[0].record.potential = 1.037F;
        document.malts[0].amount = 10;
        document.efficiency = 0.76F;
        auto path = folder.path() + name + ".rec";
        QuietPrompts quiet;
        EXPECT_TRUE(save_recipe(path, document, quiet));
        return path;
    }
};

inline RecipeWindow* open_recipe_window() {
    for (auto* const window : QApplication::topLevelWidgets())
        if (auto* const recipe = dynamic_cast<RecipeWindow*>(window);
            recipe != nullptr && recipe->isVisible())
            return recipe;
    return nullptr;
}

inline QString text_in(const RecipeWindow& window, const char* key) {
    return window.findChild<QLineEdit*>(QString::fromLatin1(key))->text();
}

} // namespace wortlex
