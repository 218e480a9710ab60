#include "workbench/ComponentPalette.h"

#include "workbench/QtText.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace glotta {

ComponentPalette::ComponentPalette(QWidget* parent) : QWidget(parent) {
    filter_ = new QLineEdit(this);
    filter_->setPlaceholderText("Search the palette");
    filter_->setClearButtonEnabled(true);
    tree_ = new QTreeWidget(this);
    tree_->setObjectName("palette");
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setExpandsOnDoubleClick(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    column->addWidget(filter_);
    column->addWidget(tree_);
    connect(filter_, &QLineEdit::textChanged, this, [this] { Filter(); });
    connect(filter_, &QLineEdit::returnPressed, this, [this] { // the first that is found
        for (QTreeWidgetItemIterator item(tree_, QTreeWidgetItemIterator::NotHidden); *item; ++item)
            if ((*item)->parent()) {
                tree_->setCurrentItem(*item);
                tree_->setFocus();
                return;
            }
    });
    connect(tree_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (item->parent() && OnPlace) OnPlace(S(item->text(0)));
    });
}

void ComponentPalette::Show(const std::vector<ClassesOnPage>& pages) {
    tree_->clear();
    for (const ClassesOnPage& page : pages) {
        auto* top = new QTreeWidgetItem(tree_, {Q(page.name)});
        top->setFlags(Qt::ItemIsEnabled);
        QFont font = tree_->font();
        font.setBold(true);
        top->setFont(0, font);
        for (const std::string& name : page.classes) {
            auto* item = new QTreeWidgetItem(top, {Q(name)});
            item->setToolTip(0, "Double-click to place a " + Q(name) + " on the form");
        }
    }
    tree_->expandAll();
    setVisible(!pages.empty());
    Filter();
}

void ComponentPalette::Filter() {
    for (int page = 0; page < tree_->topLevelItemCount(); ++page) {
        QTreeWidgetItem& top = *tree_->topLevelItem(page);
        bool any = false;
        for (int i = 0; i < top.childCount(); ++i) {
            const bool shown = top.child(i)->text(0).contains(filter_->text(), Qt::CaseInsensitive);
            top.child(i)->setHidden(!shown);
            any = any || shown;
        }
        top.setHidden(!any);
    }
}

} // namespace glotta
