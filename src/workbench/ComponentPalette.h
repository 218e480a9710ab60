// The component palette: what packages registered, by pages.
#pragma once
#include "host/DesignRegistry.h"

#include <QtWidgets/QWidget>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace glotta {

class ComponentPalette : public QWidget {
public:
    explicit ComponentPalette(QWidget* parent);

    void Show(const std::vector<ClassesOnPage>& pages);
    QTreeWidget& Tree() { return *tree_; }

    std::function<void(const std::string& className)> OnPlace; // a component is wanted on the form

private:
    void Filter();
    QLineEdit* filter_;
    QTreeWidget* tree_;
};

} // namespace glotta
