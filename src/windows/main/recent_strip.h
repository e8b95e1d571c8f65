// The strip over the picture's buttons: the recipes opened last, or a welcome where there is none yet.
#pragma once

#include "program/program.h"
#include "program/recent_recipes.h"

#include <QWidget>

#include <array>
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
    /// A sample, if there is one, and the way to a new recipe, which has no path.
    std::vector<OfferedRecipe> welcome();
    void open(const std::string& path) const { path.empty() ? calls_.new_recipe() : calls_.open(path); }

    const Program& program_;
    Calls calls_;
    QString heading_;
    std::array<StripLink*, most_offered> links_{}; ///< those in use are shown
};

} // namespace wortlex
