// A document under work.
#pragma once

#include "documents/brewing.h"
#include "documents/work/recipe_editor.h"

namespace wortlex {

struct UnderWork {
    Settings settings = brewing_settings();
    BrewDocument document = empty_recipe();
    RecipeFigures figures;
    SessionDocument session;
    WaterBalance water;
    RecipeEditor editor;

    explicit UnderWork(DocumentKind kind = DocumentKind::recipe) : editor{open(kind), {}, {}} {}

private:
    OpenDocument open(DocumentKind kind) {
        if (kind == DocumentKind::recipe) return {document, figures, settings};
        return {document, figures, settings, &session, &water};
    }
};

} // namespace wortlex
