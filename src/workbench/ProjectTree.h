// The open project or group as a tree: projects, their units, the units' forms.
#pragma once
#include "ide/ToolsApi.h"

#include <QtWidgets/QWidget>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace glotta {

class ProjectTree : public QWidget {
public:
    explicit ProjectTree(QWidget* parent);

    void ShowProject(IOTAModule* project); // a project or a group; nil empties the tree
    void ShowActive();                     // another project of the group became the active one
    void ShowAgain(IOTAProject& project);  // it lists other units or forms
    QTreeWidget& Tree() { return *tree_; }

    std::function<void(const std::string& fileName, bool form)> OnOpen;
    std::function<void(int index)> OnActivateProject; // of the group

private:
    void AddUnits(QTreeWidgetItem& parent, IOTAProject& project);
    void AddGroup(IOTAProjectGroup& group);
    void Load(QTreeWidgetItem& item); // a project of the group, when it is opened in the tree
    void Filter(const QString& text);
    QTreeWidget* tree_;
    QLineEdit* filter_;
    IOTAModule* shown_ = nullptr;
};

} // namespace glotta
