// A form as people work on it: its components as a tree, the properties and events of the selected one, its picture.
#pragma once
#include "host/DesignRegistry.h"
#include "host/FormEditor.h"
#include "workbench/ObjectInspector.h"

#include <QtWidgets/QWidget>

class QTreeWidget;
class QTreeWidgetItem;

namespace glotta {

class ComponentPalette;
class FormCanvas;

class FormPage : public QWidget {
public:
    FormPage(PlainFormEditor& form, DesignRegistry& registry, ObjectInspector::Run run, QWidget* parent);
    ~FormPage() override;

    void Select(TComponent* component);
    // The selected components, the root when there is none else.
    IDesignerSelections Selection() const;
    // The verbs of what is selected; its items may be chosen as long as the form's page is there.
    TPopupMenu& DesignMenu();
    void DesignChanged(); // packages came or went
    QTreeWidget& Components() { return *tree_; }
    ObjectInspector& Inspector() { return *inspector_; }
    ComponentPalette& Palette() { return *palette_; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Refresh(); // the form changed
    void SelectAgain(const IDesignerSelections& selection); // in a tree that was filled anew
    void FillTree();
    void AddNode(QTreeWidgetItem& parent, const FormNode& node, int depth);
    void Activate(TComponent* component); // a double click
    void PlaceComponent(const std::string& className);
    void PopUpMenu(const QPoint& global);
    void Later();

    PlainFormEditor& form_;
    DesignRegistry& registry_;
    ObjectInspector::Run run_;
    TPopupMenu menu_{"DesignerMenu"};
    TComponent* selected_ = nullptr;
    std::unordered_map<const FormNode*, TComponent*> byNode_;
    QTreeWidget* tree_;
    ObjectInspector* inspector_;
    FormCanvas* canvas_;
    ComponentPalette* palette_;
    bool filling_ = false, stale_ = true, pending_ = false;
};

} // namespace glotta
