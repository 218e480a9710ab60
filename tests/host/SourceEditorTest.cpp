#include "host/SourceEditor.h"
#include "platform/Error.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace glotta;

namespace {

class NoModule : public IOTAModule {
public:
    std::string FileName() const override { return "Main.pas"; }
    std::string Name() const override { return "Main"; }
    int GetModuleFileCount() const override { return 0; }
    IOTAEditor* GetModuleFileEditor(int) override { return nullptr; }
    bool Modified() const override { return false; }
    bool Save(bool, bool) override { return false; }
    bool Close() override { return false; }
};

class SourceEditor : public testing::Test {
protected:
    PlainSourceEditor& Open(std::string_view bytes) {
        editor_ = std::make_unique<PlainSourceEditor>(module_, "Main.pas", DecodeUnit(bytes), [] {});
        return *editor_;
    }
    std::string Where() {
        const PlainEditView& view = editor_->View();
        std::string result;
        for (const EditPos pos : {view.CursorPos(), view.BlockStart(), view.BlockAfter()})
            result += std::to_string(pos.line) + ":" + std::to_string(pos.column) + " ";
        return result;
    }
    NoModule module_;
    std::unique_ptr<PlainSourceEditor> editor_;
};

} // namespace

TEST_F(SourceEditor, ReaderGivesPiecesOfCharacters) {
    for (const std::string text : {"one\r\ntwo\r\n", "\u00F6\u4E2De\r\n\U0001F600wo\r\n"}) {
        PlainSourceEditor& editor = Open("\xEF\xBB\xBF" + text);
        for (const std::size_t count : {1u, 3u, 4u, 1024u}) {
            auto reader = editor.CreateReader();
            std::string all, piece;
            std::size_t position = 0;
            do {
                piece = reader->GetText(position, count);
                all += piece;
                position += count;
            } while (!piece.empty());
            EXPECT_EQ(all, text) << count;
        }
        auto reader = editor.CreateReader();
        const std::string tail = reader->GetText(5, 99);
        EXPECT_EQ(reader->GetText(0, 5) + tail, text); // backwards too
        EXPECT_EQ(reader->GetText(99, 5), "");
    }
}

TEST_F(SourceEditor, WriterMakesOneUndoableStep) {
    PlainSourceEditor& editor = Open("\xEF\xBB\xBF"
                                     "a\u00E4b\nc\u4E2Dd\n");
    {
        auto writer = editor.CreateUndoableWriter();
        writer->CopyTo(1);
        writer->DeleteTo(2);
        writer->Insert("x\n");
        writer->Insert("y");
        writer->CopyTo(6);
        writer->DeleteTo(7);
        EXPECT_THROW(writer->CopyTo(6), Error); // never back
        EXPECT_EQ(editor.Buffer().Text(), "a\u00E4b\r\nc\u4E2Dd\r\n") << "takes effect at the end";
        EXPECT_THROW(editor.CreateUndoableWriter(), Error);
    }
    EXPECT_EQ(editor.Bytes(), "\xEF\xBB\xBF"
                              "ax\nyb\ncd\n");
    EXPECT_TRUE(editor.Modified());
    EXPECT_TRUE(editor.Undo());
    EXPECT_EQ(editor.Bytes(), "\xEF\xBB\xBF"
                              "a\u00E4b\nc\u4E2Dd\n");
    EXPECT_FALSE(editor.Modified());
    EXPECT_FALSE(editor.Undo());
    EXPECT_TRUE(editor.Redo());
    EXPECT_EQ(editor.Bytes(), "\xEF\xBB\xBF"
                              "ax\nyb\ncd\n");
    editor.MarkSaved();
    editor.Undo();
    EXPECT_TRUE(editor.Modified()) << "saved after the step that was undone";
    { editor.CreateUndoableWriter()->Insert("z"); }
    EXPECT_FALSE(editor.Redo());
    editor.Undo();
    EXPECT_TRUE(editor.Modified()) << "what was saved cannot be reached any more";
}

TEST_F(SourceEditor, WriterThatFailsChangesNothing) {
    PlainSourceEditor& editor = Open("abc");
    try {
        auto writer = editor.CreateUndoableWriter();
        writer->DeleteTo(2);
        throw std::runtime_error("elsewhere");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(editor.Buffer().Text(), "abc");
    EXPECT_TRUE(editor.CreateUndoableWriter() != nullptr);
}

TEST_F(SourceEditor, CursorAndBlockFollowTheText) {
    PlainSourceEditor& editor = Open("one\r\ntwo\r\nthree\r\n");
    editor.View().SetCursorPos({3, 9}); // behind the line's end
    editor.View().SetBlock({2, 4}, {2, 1});
    EXPECT_EQ(Where(), "3:9 2:1 2:4 ");
    editor.Apply({{{0, 0, "new\r\n"}}});
    EXPECT_EQ(Where(), "4:6 3:1 3:4 ");
    {
        auto writer =
            editor.CreateUndoableWriter(); // the block's text is replaced: the block holds the new one
        writer->CopyTo(editor.PosToOffset(editor.View().BlockStart()));
        writer->DeleteTo(editor.PosToOffset(editor.View().BlockAfter()));
        writer->Insert("a\r\nlonger text");
    }
    EXPECT_EQ(Where(), "5:6 3:1 4:12 ");
    editor.Undo();
    EXPECT_EQ(Where(), "4:6 3:1 3:4 ");
}
