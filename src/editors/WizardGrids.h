// The two lists of the translation wizard.
#pragma once
#include "editors/WizardActions.h"
#include "editors/WizardChoices.h"
#include "platform/Grid.h"

namespace glotta {

// The selected forms: what is on them, and what is to be inserted.
class WizardFormsGrid : public TGrid {
public:
    enum Column { FormName, Used, ToInsert, Columns };

    explicit WizardFormsGrid(std::vector<WizardForm> rows)
        : TGrid(Picking::Extended), rows_(std::move(rows)) {}
    const std::vector<WizardForm>& Rows() const { return rows_; }
    void SetInsert(std::size_t row, const std::string& componentClass) {
        rows_[row].insert = componentClass;
        CellsChanged();
    }

    std::size_t RowCount() const override { return rows_.size(); }
    std::size_t ColumnCount() const override { return Columns; }
    std::string Header(std::size_t column) const override {
        constexpr const char* headers[] = {"Form Name", "Used", "Insert"};
        return headers[column];
    }
    std::string CellText(std::size_t row, std::size_t column) const override {
        const WizardForm& form = rows_[row];
        return column == FormName ? form.form : column == Used ? form.used : form.insert;
    }

private:
    std::vector<WizardForm> rows_;
};

class WizardProgressGrid : public TGrid {
public:
    WizardProgressGrid() : TGrid(Picking::Single) {}
    void SetState(WizardTask task, TaskState state) {
        states_[task] = state;
        CellsChanged();
    }
    void Reset() {
        states_.fill(TaskState::Pending);
        CellsChanged();
    }

    std::size_t RowCount() const override { return WizardTaskCount; }
    std::size_t ColumnCount() const override { return 2; }
    std::string Header(std::size_t column) const override { return column == 0 ? "Task" : "State"; }
    std::string CellText(std::size_t row, std::size_t column) const override {
        return std::string(column == 0 ? WizardTasks[row] : TaskStateName(states_[row]));
    }

private:
    std::array<TaskState, WizardTaskCount> states_{};
};

} // namespace glotta
