// The strip over the picture's buttons: the recipes opened last, or a welcome where there is none yet.
#pragma once

#include "program/program.h"
#include "program/recent_recipes.h"

#include <QWidget>

#include <functional>

namespace wortlex {

class StripLink;

class RecentStrip : public QWidget {
public:
    struct Calls {
        std::function<void(const std::string& path)> open;
        std::function<void()> new_recipe;
    };

    RecentStrip(const Program& program, Calls calls, QWidget* board);
    /// The list, or a file in it, may have changed.
    void refresh();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void show_recent(const std::vector<OfferedRecipe>& recipes);
    void welcome();
    /// By Alt and its number; the places count line by line.
    StripLink& add_link(std::size_t place, const OfferedRecipe& recipe);

    const Program& program_;
    Calls calls_;
    QString heading_;
    std::vector<StripLink*> links_;
};

} // namespace wortlex
