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
    void SetCursorPos(EditPos position) override { cursor_ = Clamped(position); }
    EditPos BlockStart() const override { return blockStart_; }
    EditPos BlockAfter() const override { return blockAfter_; }
    void SetBlock(EditPos start, EditPos after) override;
    void Center(int line) override;
    int TopLine() const override { return topLine_; }

    // Called by a window: how many lines it shows, and to which one it was scrolled.
    void SetWindow(int topLine, int visibleLines);

private:
    friend class PlainSourceEditor;
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
    void Show() override { onShow_(); }
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
    void Apply(std::vector<TextEdits> groups);
    // The bytes for the disk; throws Error when the encoding cannot express the text.
    std::string Bytes() const { return EncodeUnit(buffer_.Unit(), fileName_); }
    void MarkSaved() { buffer_.MarkSaved(); }

private:
    friend class PlainEditWriter;
    IOTAModule& module_;
    std::string fileName_;
    UnitBuffer buffer_;
    PlainEditView view_;
    std::function<void()> onShow_;
    bool writing_ = false;
};

} // namespace glotta
