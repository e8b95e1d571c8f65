// A user with folders of his own, who answers and chooses files as he was told.
#pragma once

#include "settings/system_files.h"
#include "support/scripted_files.h"
#include "support/scripted_prompts.h"
#include "support/temporary_folder.h"

namespace wortlex {

struct ScriptedUser {
    TemporaryFolder folder;
    FolderSet folders;
    ScriptedPrompts prompts;
    ScriptedFiles files;
};

} // namespace wortlex
