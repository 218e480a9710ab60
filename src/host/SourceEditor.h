// The editor of a unit's text: reader, undoable writer and view over one buffer.
#pragma once
#include "host/UnitBuffer.h"
#include "ide/ToolsApi.h"

#include <functional>
#include <memory>
#include <string>

namespace glotta {

// Cursor, block and scrolling of the editor; they follow the text when it changes.
class PlainEditView : public IOTAEditView {
public:
    explicit PlainEditView(UnitBuffer& buffer) : buffer_(buffer) {}

    EditPos CursorPos() const override { return cursor_; }
    void SetCursorPos(EditPos position) override;
    EditPos BlockStart() const override { return blockStart_; }
    EditPos BlockAfter() const override { return blockAfter_; }
    void SetBlock(EditPos start, EditPos after) override;
    void Center(int line) override;
    int TopLine() const override { return topLine_; }

    // Called by a window: how many lines it shows, and to which one it was scrolled.
    void SetWindow(int topLine, int visibleLines);
    // Called by a window: the person moved the cursor or selected.
    void SetPlaces(EditPos cursor, EditPos blockStart, EditPos blockAfter);

    // The window's: cursor or block were moved; the view is to be scrolled.
    std::function<void()> OnMoved, OnScroll;

private:
    friend class PlainSourceEditor;
    void Moved() const {
        if (OnMoved) OnMoved();
    }
    // The places as bytes, taken before a change and put back moved behind it.
    struct Places {
        bool untouched;
        std::size_t cursor, blockStart, blockAfter;
    };
    Places Take() const;
    void Follow(const Places& places);
    static EditPos Clamped(EditPos position) {
        return {std::max(position.line, 1), std::max(position.column, 1)};
    }

    UnitBuffer& buffer_;
    EditPos cursor_, blockStart_, blockAfter_;
    int topLine_ = 1;
    int visibleLines_ = 40;
};

class PlainSourceEditor : public IOTASourceEditor {
public:
    // `onShow` brings the editor to front in its host.
    PlainSourceEditor(IOTAModule& module, std::string fileName, UnitText text, std::function<void()> onShow);

    std::string FileName() const override { return fileName_; }
    bool Modified() const override { return buffer_.Modified(); }
    void Show() override {
        onShow_();
        if (OnShow) OnShow();
    }
    IOTAModule& Module() override { return module_; }

    std::unique_ptr<IOTAEditReader> CreateReader() override;
    // Throws Error while another writer of this editor is at work.
    std::unique_ptr<IOTAEditWriter> CreateUndoableWriter() override;
    PlainEditView& View() override { return view_; }
    std::size_t PosToOffset(EditPos position) const override {
        return buffer_.ByteToChar(buffer_.PosToByte(position));
    }
    EditPos OffsetToPos(std::size_t offset) const override {
        return buffer_.ByteToPos(buffer_.CharToByte(offset));
    }
    bool Undo() override;
    bool Redo() override;

    const UnitBuffer& Buffer() const { return buffer_; }
    // One undoable step, as UnitBuffer::Apply.
    void Apply(std::vector<TextEdits> groups) { Change(std::move(groups), false); }
    // The person typed; joined, it belongs to the step before.
    void Type(TextEdits edits, bool joined) { Change({std::move(edits)}, joined); }
    // The bytes for the disk; throws Error when the encoding cannot express the text.
    std::string Bytes() const { return EncodeUnit(buffer_.Unit(), fileName_); }
    void MarkSaved() { buffer_.MarkSaved(); }
    void MarkUnsaved() { buffer_.MarkUnsaved(); }

    std::function<void()> OnView; // the window's: the text changed, by Buffer().LastStep()
    std::function<void()> OnShow; // the window's: this editor of the module is wanted

private:
    friend class PlainEditWriter;
    void Change(std::vector<TextEdits> groups, bool joined);
    void TextChanged(const PlainEditView::Places& places);
    IOTAModule& module_;
    std::string fileName_;
    UnitBuffer buffer_;
    PlainEditView view_;
    std::function<void()> onShow_;
    bool writing_ = false;
};

} // namespace glotta
