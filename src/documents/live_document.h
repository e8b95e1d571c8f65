// The document that is worked on, of which there is exactly one, and where it comes from.
#pragma once

#include "base/files.h"
#include "base/ports/clock.h"
#include "documents/document_recalculation.h"
#include "records/documents/document_traits.h"

namespace wortlex {

/// Where a document comes from and where a save goes.
struct DocumentFile {
    std::string path; ///< empty for a new one
    bool loaded_from_file = false;
    bool incomplete = false; ///< the file had ended early or held more: a save asks for a name first
    bool recovered = false;  ///< unsaved work of a run that broke off: to be saved, whatever it looks like
    std::optional<FileStamp> stamp = std::nullopt; ///< of the file as it was read or written last
};

/// What the brewer told of a competition. No file holds it: it lives as long as the document is open.
struct CompetitionTexts {
    Text<255> name;
    Text<255> style;

    bool operator==(const CompetitionTexts&) const = default;
};

struct LiveDocument {
    DocumentKind kind = DocumentKind::recipe;
    BrewDocument recipe;     ///< also under a session
    SessionDocument session; ///< of a session, as the water
    RecipeFigures figures;
    WaterBalance water;
    SaltUnit salt_unit = SaltUnit::ounces; ///< as the brewer reads his quantities; no file holds it
    float water_to_grain = 0;              ///< of the simple mash, quarts per pound; 0 for a loaded document
    DocumentFile file;
    CompetitionTexts competition;
};

/// The document ready to be worked on, by its kind.
OpenDocument view_of(LiveDocument& live, const Settings& settings);

/// Puts the schedule kind of the settings in force, as they are applied. No document is open then.
void take_usual_schedule(LiveDocument& live, const Settings& settings);

/// Makes it an empty one without a file. A recipe keeps the schedule kind in force. A session starts from the
/// brewer's usual water figures and, by the settings, from today or tomorrow.
void start_recipe(LiveDocument& live, const Settings& settings);
void start_session(LiveDocument& live, const WaterNeeds& usual, const Settings& settings,
                   const CalendarDate& today);

/// Reads a file's bytes into it. A damaged file leaves everything as it was.
LoadResult read_into(LiveDocument& live, DocumentKind kind, ByteView file, const Settings& settings);

} // namespace wortlex
