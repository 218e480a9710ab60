// A form as people work on it: its components as a tree, the properties and events of the selected one, its picture.
#pragma once
#include "host/FormEditor.h"
#include "workbench/ObjectInspector.h"

#include <QtWidgets/QWidget>

class QTreeWidget;
class QTreeWidgetItem;

namespace glotta {

class FormCanvas;

class FormPage : public QWidget {
public:
    FormPage(PlainFormEditor& form, ObjectInspector::Run run, QWidget* parent);
    ~FormPage() override;

    void Select(TComponent* component);
    QTreeWidget& Components() { return *tree_; }
    ObjectInspector& Inspector() { return *inspector_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Refresh(); // the form changed
    void FillTree();
    void AddNode(QTreeWidgetItem& parent, const FormNode& node, int depth);
    void GoToDefaultEvent(TComponent* component);
    void Later();

    PlainFormEditor& form_;
    TComponent* selected_ = nullptr;
    std::unordered_map<const FormNode*, TComponent*> byNode_;
    QTreeWidget* tree_;
    ObjectInspector* inspector_;
    FormCanvas* canvas_;
    bool filling_ = false, stale_ = true, pending_ = false;
};

} // namespace glotta
