// The result strip of a recipe: six figures over their bands, and the beer in a glass.
#pragma once

#include "base/ports/notice_board.h"
#include "documents/forms/recipe_form.h"
#include "documents/forms/result_strip.h"

#include <QWidget>

namespace wortlex {

class StripCellView;

/// Follows every change that is told. The subject and the board must outlive it.
class ResultStripView : public QWidget {
public:
    ResultStripView(const RecipeSubject& subject, NoticeBoard& notices, QWidget* parent);

private:
    void refresh();

    const RecipeSubject& subject_;
    std::array<StripCellView*, std::tuple_size_v<ResultStrip>> cells_{};
    Listening listening_;
};

} // namespace wortlex
