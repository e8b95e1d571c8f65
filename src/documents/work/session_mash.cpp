#include "documents/work/session_mash.h"

namespace wortlex {

MashLog mash_log(const SessionDocument& session) {
    return {session.infusions, session.wort_ph, session.runnings_sg, session.tail.runnings_reading};
}

void set_session_mash(RecipeEditor& editor, const SimpleMash& mash, const MashLog& log) {
    edit(editor, "Mash Schedule", [&] {
        auto& session = *editor.open.session;
        editor.open.document.simple_mash = mash;
        session.infusions = log.infusions;
        session.wort_ph = log.wort_ph;
        session.runnings_sg = log.runnings_sg;
        session.tail.runnings_reading = log.runnings_reading;
        mash_refresh(editor.open);
    });
}

void set_heat_type(RecipeEditor& editor, SimpleHeat heat) {
    edit(editor, "Heat Type", [&] {
        editor.open.session->infusions.heat_type = heat;
        mash_refresh(editor.open);
    });
}

void set_grain_temperature(RecipeEditor& editor, std::int32_t degrees) {
    edit(editor, "Grain Temperature", [&] {
        editor.open.document.mash.grain_temperature = degrees;
        mash_refresh(editor.open);
    });
}

} // namespace wortlex
