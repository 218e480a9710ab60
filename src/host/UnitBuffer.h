// The text of an open unit: undoable changes, and places in bytes, characters, lines and columns.
#pragma once
#include "host/UnitText.h"
#include "ide/ToolsApi.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace glotta {

class UnitBuffer {
public:
    explicit UnitBuffer(UnitText unit);

    const std::string& Text() const { return unit_.text; }
    const UnitText& Unit() const { return unit_; }
    // Grows with every change; what was computed from the text holds while it stays.
    std::size_t Version() const { return version_; }

    // One undo step; byte positions of the present text. False, and no step, when the edits change nothing.
    bool Apply(TextEdits edits) { return Apply(std::vector<TextEdits>{std::move(edits)}); }
    // The same for several groups, each with the positions that the groups before it leave.
    bool Apply(std::vector<TextEdits> groups);
    // The same as a part of the newest step, unless that one was saved: typing is undone by words, not by keys.
    bool ApplyJoined(std::vector<TextEdits> groups);
    bool Undo();
    bool Redo();

    // By which steps are known, wherever undo and redo lead; 0 for none. What joins a step makes it another one.
    std::size_t NewestStep() const { return undo_.empty() ? 0 : undo_.back().id; }
    std::size_t UndoneStep() const { return redo_.empty() ? 0 : redo_.back().id; }

    bool Modified() const { return savedStep_ != undo_.size(); }
    void MarkSaved() { savedStep_ = undo_.size(); }
    // The file holds something else by now: no undo leads back to it.
    void MarkUnsaved() { savedStep_ = std::string::npos; }

    std::size_t CharToByte(std::size_t character) const; // the text's size when there are fewer
    std::size_t ByteToChar(std::size_t byte) const;
    // A column behind the line's end means the end, a line behind the last one the end of the text.
    std::size_t PosToByte(EditPos position) const;
    EditPos ByteToPos(std::size_t byte) const;

    // What the newest change or undo did: groups, each with the positions that the groups before it leave.
    const std::vector<UnitEdits>& LastStep() const { return lastStep_; }
    // Where a byte of the text before the newest change or undo is now.
    std::size_t Moved(std::size_t byte) const;

private:
    struct LineIndex {
        std::size_t version = 0;               // 0: not built
        std::vector<std::size_t> bytes, chars; // of each line's start; no `chars` while all is ASCII
    };
    const LineIndex& Lines() const;
    std::size_t LineOfByte(std::size_t byte) const;
    using Groups = std::vector<UnitEdits>; // in order of application
    struct Step {
        std::size_t id;
        Groups groups;
    };
    void Change(Step step, std::vector<Step>& inverseTo);

    UnitText unit_;
    std::vector<Step> undo_, redo_;
    Groups lastStep_;
    std::size_t version_ = 1;
    std::size_t savedStep_ = 0; // npos: no undo leads back to what was saved
    mutable LineIndex lines_;
};

} // namespace glotta
