#include "platform/Launch.h"

#include "platform/Automation.h"
#include "support/TempFolder.h"

#include <chrono>
#include <thread>

namespace glotta {
namespace {

#ifndef _WIN32

TEST(Launch, AProgramGetsItsParametersAsOneLineSplitsThem) {
    TempFolder folder;
    const auto script =
        folder.Put("my wizard.sh", "#!/bin/sh\nfor p in \"$@\"; do echo \"[$p]\"; done > \"$0.tmp\"\n"
                                   "mv \"$0.tmp\" \"$0.out\"\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    SystemLauncher()->Open(script.string(), "-p \"a b.dpr\" -s \"\" x\"y z\"");
    const auto out = folder / "my wizard.sh.out";
    for (int i = 0; i < 500 && !std::filesystem::exists(out); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(ReadFile(out), "[-p]\n[a b.dpr]\n[-s]\n[]\n[xy z]\n");
}

TEST(Launch, WhatCannotBeStartedIsAnError) {
    TempFolder folder;
    const auto program = folder.Put("broken", "#!/nowhere/sh\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    EXPECT_NE(MessageOf([&] { SystemLauncher()->Open(program.string(), ""); }), "no error");
}

TEST(Automation, ElsewhereSaysThatThereIsNone) {
    const auto automation = SystemAutomation();
    EXPECT_EQ(automation->ClassIdOf("dicmngr.TGlottaDicMngr"), "");
    EXPECT_EQ(MessageOf([&] { automation->CreateObject("dicmngr.TGlottaDicMngr"); }),
              "Unable to start dicmngr.TGlottaDicMngr: automation servers are available on Windows only.");
}

#endif

} // namespace
} // namespace glotta
