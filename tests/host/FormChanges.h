// A project of a few files, and what changes of its forms leave of them.
#pragma once
#include "host/PlainIde.h"
#include "platform/Files.h"
#include "support/DiffText.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <map>

namespace glotta {

// Files as they are before and after what a test does.
class FormChanges : public testing::Test {
protected:
    void Put(const std::string& name, std::string_view marked) {
        const DiffText text(marked);
        folder_.Put(name, text.before);
        before_[name] = text.before;
        after_[name] = text.after;
    }
    PlainFormEditor& Open(const char* project, const char* unit) {
        ide_.OpenProject(PathText(folder_ / project));
        return OpenForm(unit);
    }
    PlainFormEditor& OpenForm(const char* unit) {
        EXPECT_TRUE(ide_.OpenFile(PathText(folder_ / unit)));
        return *dynamic_cast<PlainModule&>(*ide_.FindModule(PathText(folder_ / unit))).Form();
    }
    static void Rename(PlainFormEditor& form, const char* from, const char* to) {
        TComponent* component = form.Tree().Root().FindComponent(from);
        if (!component) component = &form.Tree().Root();
        form.Step([&] { form.Designer().RenameComponent(*component, to); });
    }
    // What saving would leave on disk; undone again and saved, nothing is left to save.
    void ExpectStep(PlainFormEditor& form) {
        EXPECT_EQ(Now(), after_);
        while (form.CanUndo())
            form.Undo();
        EXPECT_EQ(Now(), before_);
        EXPECT_EQ(ide_.ModifiedFiles().size(), 0u);
        for (int i = 0; i < ide_.ModuleCount(); ++i)
            EXPECT_FALSE(ide_.GetModule(i)->Modified()) << ide_.GetModule(i)->FileName();
        while (form.CanRedo())
            form.Redo();
        EXPECT_EQ(Now(), after_);
    }
    std::map<std::string, std::string> Now() {
        std::map<std::string, std::string> texts = before_;
        for (const FileChange& change : ide_.ModifiedFiles())
            texts[PathText(change.file.filename())] = change.newBytes;
        return texts;
    }

    TempFolder folder_;
    PlainIde ide_;
    std::map<std::string, std::string> before_, after_;
};

} // namespace glotta
