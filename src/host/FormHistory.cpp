#include "host/FormHistory.h"

#include <algorithm>

namespace glotta {

std::vector<FormHistory::TextStep> FormHistory::Texts() const {
    std::vector<TextStep> texts;
    for (const PlainSourceEditor* editor : editors_())
        texts.push_back({editor->FileName(), editor->Buffer().NewestStep()});
    return texts;
}

std::vector<FormHistory::TextStep> FormHistory::ChangedSince(const std::vector<TextStep>& before) const {
    std::vector<TextStep> changed;
    for (TextStep& now : Texts()) {
        const auto old = std::find_if(before.begin(), before.end(),
                                      [&](const TextStep& text) { return text.file == now.file; });
        now.before = old == before.end() ? 0 : old->newest; // 0: opened since
        if (now.newest != now.before) changed.push_back(std::move(now));
    }
    return changed;
}

void FormHistory::UndoTexts(std::vector<TextStep>& texts) const {
    for (PlainSourceEditor* editor : editors_())
        for (TextStep& text : texts) {
            const UnitBuffer& buffer = editor->Buffer();
            if (text.file != editor->FileName() || text.newest != buffer.NewestStep()) continue;
            while (buffer.NewestStep() > text.before)
                editor->Undo();
            text.first = buffer.UndoneStep();
        }
}

void FormHistory::RedoTexts(const std::vector<TextStep>& texts) const {
    for (PlainSourceEditor* editor : editors_())
        for (const TextStep& text : texts)
            if (text.file == editor->FileName() && text.first && text.first == editor->Buffer().UndoneStep())
                while (editor->Buffer().NewestStep() < text.newest && editor->Redo()) {}
}

void FormHistory::Step(const std::function<void()>& change, bool onlyTouched) {
    if (inStep_) return change();
    FormSnapshot before(tree_);
    const std::vector<TextStep> texts = Texts();
    inStep_ = true;
    touched_ = false;
    try {
        change();
    } catch (...) {
        inStep_ = false;
        std::vector<TextStep> failed = ChangedSince(texts);
        UndoTexts(failed);
        before.Restore(tree_);
        throw;
    }
    inStep_ = false;
    if (onlyTouched && !touched_) return;
    FormSnapshot after(tree_);
    if (!FormSnapshot::Difference(before, after)) return;
    steps_.resize(done_, {before, after, {}});
    if (saved_ != Nowhere && saved_ > done_) saved_ = Nowhere;
    steps_.push_back({std::move(before), std::move(after), ChangedSince(texts)});
    ++done_;
}

FormHistory::Renames FormHistory::Undo() {
    FormStep& step = steps_[--done_];
    UndoTexts(step.texts);
    step.before.Restore(tree_);
    return FormSnapshot::Renames(step.after, step.before);
}

FormHistory::Renames FormHistory::Redo() {
    FormStep& step = steps_[done_++];
    RedoTexts(step.texts);
    step.after.Restore(tree_);
    return FormSnapshot::Renames(step.before, step.after);
}

void FormHistory::Touch() {
    touched_ = true;
    if (inStep_) return;
    steps_.clear();
    done_ = 0;
    saved_ = Nowhere;
}

} // namespace glotta
