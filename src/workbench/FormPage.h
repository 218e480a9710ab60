// A form as people work on it: its components as a tree, the properties and events of the selected one, its picture.
#pragma once
#include "host/FormEditor.h"
#include "workbench/PropertyValues.h"

#include <QtWidgets/QWidget>

class QLineEdit;
class QSplitter;
class QTabWidget;
class QTableWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace glotta {

class FormCanvas;

class FormPage : public QWidget {
public:
    // `run` runs what the person asked for, to its end or its message.
    FormPage(PlainFormEditor& form, std::function<void(const std::function<void()>&)> run, QWidget* parent);
    ~FormPage() override;

    void Select(TComponent* component);
    QTreeWidget& Components() { return *tree_; }
    QTableWidget& Properties() { return *properties_; }
    QTableWidget& Events() { return *events_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Refresh(); // the form changed
    void FillTree();
    void AddNode(QTreeWidgetItem& parent, const FormNode& node, int depth);
    void FillInspector();
    void FillTable(QTableWidget& table, bool events);
    void Entered(QTableWidget& table, int row, int column);
    void SetName(const std::string& name);
    void SetEvent(const PropertyInfo& info, const std::string& method);
    // Makes the event's method where there is none, and shows it.
    void GoToEvent(const PropertyInfo& info);
    void GoToDefaultEvent(TComponent* component);
    void Later();

    PlainFormEditor& form_;
    std::function<void(const std::function<void()>&)> run_;
    TComponent* selected_ = nullptr;
    std::unordered_map<const FormNode*, TComponent*> byNode_;
    QTreeWidget* tree_;
    QTabWidget* pages_;
    QTableWidget *properties_, *events_;
    QLineEdit* filter_;
    FormCanvas* canvas_;
    std::vector<PropertyRow> rows_[2];
    bool filling_ = false, stale_ = true, pending_ = false;
};

} // namespace glotta
