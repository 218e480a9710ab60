// The properties and events of the selected components of a form, to look at and to change.
#pragma once
#include "host/DesignRegistry.h"
#include "host/FormEditor.h"
#include "workbench/PropertyValues.h"

#include <QtWidgets/QWidget>

class QLineEdit;
class QTabWidget;
class QTableWidget;

namespace glotta {

class ObjectInspector : public QWidget {
public:
    using Run = std::function<void(const std::function<void()>&)>;
    // `run` runs what the person asked for, to its end or its message.
    ObjectInspector(PlainFormEditor& form, DesignRegistry& registry, Run run, QWidget* parent);

    void Show(IDesignerSelections components);
    // To the method of the event that a double click on the first component means.
    void GoToDefaultEvent();
    QTableWidget& Properties() { return *properties_; }
    QTableWidget& Events() { return *events_; }

    void Forget(); // the components and their editors
    std::function<void()> OnEntered; // a value was taken or refused

private:
    void Fill();
    void FillTable(QTableWidget& table, bool events);
    void Entered(QTableWidget& table, int row, int column);
    void AddDialogButton(QTableWidget& table, int row);
    void OpenDialog(int row); // of a property's editor
    void GoToEvent(const PropertyInfo& info);

    PlainFormEditor& form_;
    DesignRegistry& registry_;
    Run run_;
    IDesignerSelections components_;
    QTabWidget* pages_;
    QTableWidget *properties_, *events_;
    QLineEdit* filter_;
    std::vector<PropertyRow> rows_[2]; // events are 1
    bool filling_ = false;
};

} // namespace glotta
