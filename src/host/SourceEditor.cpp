#include "host/SourceEditor.h"

#include "platform/Error.h"
#include "platform/Text.h"

#include <exception>

namespace glotta {
namespace {

class PlainEditReader : public IOTAEditReader {
public:
    explicit PlainEditReader(const UnitBuffer& buffer) : buffer_(buffer) {}

    std::string GetText(std::size_t position, std::size_t count) override {
        const std::string_view text = buffer_.Text();
        const bool readsOn = version_ == buffer_.Version() && position == nextChar_;
        const std::size_t begin = readsOn ? nextByte_ : buffer_.CharToByte(position);
        const std::string_view piece = CharPrefix(text.substr(begin), count);
        version_ = buffer_.Version();
        nextByte_ = begin + piece.size();
        nextChar_ = piece.empty() ? position : position + CharCount(piece);
        return std::string(piece);
    }

private:
    const UnitBuffer& buffer_;
    std::size_t version_ = 0, nextChar_ = 0, nextByte_ = 0;
};

} // namespace

class PlainEditWriter : public IOTAEditWriter {
public:
    explicit PlainEditWriter(PlainSourceEditor& editor) : editor_(editor) {
        if (editor.writing_) throw Error(editor.fileName_ + ": the text is being changed already");
        editor.writing_ = true;
    }
    // A writer that goes because of an exception takes its half-done change with it.
    ~PlainEditWriter() override {
        editor_.writing_ = false;
        if (std::uncaught_exceptions() == exceptions_) editor_.Apply({std::move(edits_)});
    }
    PlainEditWriter(const PlainEditWriter&) = delete;
    PlainEditWriter& operator=(const PlainEditWriter&) = delete;

    void CopyTo(std::size_t position) override { done_ = Forward(position); }
    void DeleteTo(std::size_t position) override {
        const std::size_t end = Forward(position);
        if (end != done_) edits_.push_back({done_, end, {}});
        done_ = end;
    }
    void Insert(std::string_view text) override {
        const bool joins = !edits_.empty() && edits_.back().end == done_;
        if (joins)
            edits_.back().text += text;
        else
            edits_.push_back({done_, done_, std::string(text)});
    }

private:
    std::size_t Forward(std::size_t position) const {
        const std::size_t byte = editor_.buffer_.CharToByte(position);
        if (byte < done_)
            throw Error(editor_.fileName_ + ": a change of the text went back to character " +
                        std::to_string(position));
        return byte;
    }

    PlainSourceEditor& editor_;
    TextEdits edits_;
    std::size_t done_ = 0; // byte of the text before the change
    int exceptions_ = std::uncaught_exceptions();
};

// --- view ---

void PlainEditView::SetCursorPos(EditPos position) {
    cursor_ = Clamped(position);
    Moved();
}

void PlainEditView::SetBlock(EditPos start, EditPos after) {
    blockStart_ = Clamped(std::min(start, after));
    blockAfter_ = Clamped(std::max(start, after));
    Moved();
}

void PlainEditView::SetPlaces(EditPos cursor, EditPos blockStart, EditPos blockAfter) {
    cursor_ = cursor;
    blockStart_ = blockStart;
    blockAfter_ = blockAfter;
}

void PlainEditView::Center(int line) {
    topLine_ = std::max(1, line - visibleLines_ / 2);
    if (OnScroll) OnScroll();
}

void PlainEditView::SetWindow(int topLine, int visibleLines) {
    topLine_ = std::max(1, topLine);
    visibleLines_ = std::max(1, visibleLines);
}

PlainEditView::Places PlainEditView::Take() const {
    const EditPos start;
    if (cursor_ == start && blockStart_ == start && blockAfter_ == start) return {true, 0, 0, 0};
    return {false, buffer_.PosToByte(cursor_), buffer_.PosToByte(blockStart_),
            buffer_.PosToByte(blockAfter_)};
}

void PlainEditView::Follow(const Places& places) {
    if (places.untouched) return;
    const auto follow = [&](EditPos& position, std::size_t byte) {
        const std::size_t moved = buffer_.Moved(byte);
        const EditPos now = buffer_.ByteToPos(moved);
        // A column behind the line's end stays where no text changed before it.
        if (moved != byte || now.line != position.line || now.column > position.column) position = now;
    };
    follow(cursor_, places.cursor);
    follow(blockStart_, places.blockStart);
    follow(blockAfter_, places.blockAfter);
}

// --- editor ---

PlainSourceEditor::PlainSourceEditor(IOTAModule& module, std::string fileName, UnitText text,
                                     std::function<void()> onShow)
    : module_(module), fileName_(std::move(fileName)), buffer_(std::move(text)), view_(buffer_),
      onShow_(std::move(onShow)) {}

std::unique_ptr<IOTAEditReader> PlainSourceEditor::CreateReader() {
    return std::make_unique<PlainEditReader>(buffer_);
}

std::unique_ptr<IOTAEditWriter> PlainSourceEditor::CreateUndoableWriter() {
    return std::make_unique<PlainEditWriter>(*this);
}

void PlainSourceEditor::Change(std::vector<TextEdits> groups, bool joined) {
    const auto places = view_.Take();
    if (joined ? buffer_.ApplyJoined(std::move(groups)) : buffer_.Apply(std::move(groups)))
        TextChanged(places);
}

bool PlainSourceEditor::Undo() {
    const auto places = view_.Take();
    const bool done = buffer_.Undo();
    if (done) TextChanged(places);
    return done;
}

bool PlainSourceEditor::Redo() {
    const auto places = view_.Take();
    const bool done = buffer_.Redo();
    if (done) TextChanged(places);
    return done;
}

void PlainSourceEditor::TextChanged(const PlainEditView::Places& places) {
    view_.Follow(places);
    if (OnView) OnView();
}

} // namespace glotta
