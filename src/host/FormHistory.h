// Undo and redo of what a person changes on a form, with what the changes did to the texts of its unit and project.
#pragma once
#include "host/SourceEditor.h"
#include "vcl/FormSnapshot.h"

#include <functional>
#include <string>
#include <vector>

namespace glotta {

class FormHistory {
public:
    using Editors = std::function<std::vector<PlainSourceEditor*>()>;
    using Renames = std::vector<FormSnapshot::Rename>;
    // `editors` are the texts that changes of the form may reach.
    FormHistory(ComponentTree& tree, Editors editors) : tree_(tree), editors_(std::move(editors)) {}

    // What `change` does is one step; when it fails, everything is as it was.
    // Of an editor's `change` only when it touches the form.
    void Step(const std::function<void()>& change, bool onlyTouched = false);
    bool CanUndo() const { return done_ > 0; }
    bool CanRedo() const { return done_ < steps_.size(); }
    // The names that changed with it. A text goes back only when nobody changed it since.
    Renames Undo();
    Renames Redo();

    bool Modified() const { return saved_ != done_; }
    void MarkSaved() { saved_ = done_; }
    void MarkUnsaved() { saved_ = Nowhere; }
    // The form was changed; outside of steps none of them can be undone any more.
    void Touch();
    bool Touched() const { return touched_; } // by the step that runs

private:
    static constexpr std::size_t Nowhere = static_cast<std::size_t>(-1);
    struct TextStep { // what a change did to a text: all steps of its buffer behind `before`
        std::string file;
        std::size_t newest;
        std::size_t before = 0;
        std::size_t first = 0; // of them, known once they are undone
    };
    struct FormStep {
        FormSnapshot before, after;
        std::vector<TextStep> texts; // of the texts that it changed
    };
    std::vector<TextStep> Texts() const;
    std::vector<TextStep> ChangedSince(const std::vector<TextStep>& before) const;
    void UndoTexts(std::vector<TextStep>& texts) const;
    void RedoTexts(const std::vector<TextStep>& texts) const;

    ComponentTree& tree_;
    Editors editors_;
    std::vector<FormStep> steps_;
    std::size_t done_ = 0, saved_ = 0; // steps
    bool inStep_ = false, touched_ = false;
};

} // namespace glotta
