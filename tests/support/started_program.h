// A program at work in a folder of its own, without windows.
#pragma once

#include "program/start.h"
#include "support/scripted_user.h"

namespace wortlex {

struct StartedProgram : ScriptedUser {
    Program program;

    StartedProgram() {
        SaveSystemFiles(folder.path(), {WriteDefaultSettings(), {}, true});
        EXPECT_TRUE(start_core(program, folder.path(), prompts));
    }
};

} // namespace wortlex
