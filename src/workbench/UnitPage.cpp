#include "workbench/UnitPage.h"

#include "host/FormEditor.h"
#include "host/SourceEditor.h"
#include "platform/Files.h"
#include "workbench/CodeEditor.h"
#include "workbench/FormPage.h"
#include "workbench/QtText.h"

#include <QtWidgets/QTabBar>
#include <QtWidgets/QVBoxLayout>

namespace glotta {

UnitPage::UnitPage(IOTAModule& module, DesignRegistry& registry, Run run, QWidget* parent)
    : QTabWidget(parent), module_(module), registry_(registry), run_(std::move(run)) {
    setTabPosition(South);
    setDocumentMode(true);
    for (int i = 0; i < module_.GetModuleFileCount(); ++i) {
        IOTAEditor* editor = module_.GetModuleFileEditor(i);
        const bool isForm = dynamic_cast<PlainFormEditor*>(editor);
        auto* holder = new QWidget(this);
        auto* room = new QVBoxLayout(holder);
        room->setContentsMargins(0, 0, 0, 0);
        editors_.push_back(editor);
        addTab(holder, isForm ? QString("Form") : Q(PathText(PathFromText(editor->FileName()).filename())));
        if (auto* source = dynamic_cast<PlainSourceEditor*>(editor))
            source->OnShow = [this, i] { setCurrentIndex(i); };
        else if (auto* form = dynamic_cast<PlainFormEditor*>(editor))
            form->OnShow = [this, i] { setCurrentIndex(i); };
    }
    tabBar()->setVisible(count() > 1);
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        if (isVisible()) Made(index);
        if (OnChanged) OnChanged();
    });
}

UnitPage::~UnitPage() {
    for (IOTAEditor* editor : editors_)
        if (auto* source = dynamic_cast<PlainSourceEditor*>(editor))
            source->OnShow = nullptr;
        else if (auto* form = dynamic_cast<PlainFormEditor*>(editor))
            form->OnShow = nullptr;
    // The pages' own farewell needs the editors, which may go right behind this.
    for (int i = 0; i < count(); ++i)
        qDeleteAll(widget(i)->findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
}

QString UnitPage::Title() const {
    const QString name = Q(PathText(PathFromText(module_.FileName()).filename()));
    return module_.Modified() ? name + " *" : name;
}

void UnitPage::Prepare() {
    Made(currentIndex());
}

void UnitPage::showEvent(QShowEvent* event) {
    QTabWidget::showEvent(event);
    Prepare();
}

QWidget* UnitPage::Made(int index) {
    if (index < 0) return nullptr;
    QLayout* room = widget(index)->layout();
    if (room->count() > 0) return room->itemAt(0)->widget();
    QWidget* made = nullptr;
    IOTAEditor* editor = editors_[std::size_t(index)];
    if (auto* source = dynamic_cast<PlainSourceEditor*>(editor)) {
        auto* code = new CodeEditor(*source, widget(index));
        code->OnChanged = [this] {
            if (OnChanged) OnChanged();
        };
        code->OnPopup = [this](const QPoint& global) {
            if (OnPopup) OnPopup(global);
        };
        made = code;
    } else if (auto* form = dynamic_cast<PlainFormEditor*>(editor)) {
        made = new FormPage(*form, registry_, run_, widget(index));
    }
    room->addWidget(made);
    widget(index)->setFocusProxy(made);
    return made;
}

CodeEditor* UnitPage::Code() {
    if (auto* shown = dynamic_cast<CodeEditor*>(Made(currentIndex()))) return shown;
    return dynamic_cast<CodeEditor*>(Made(0));
}

FormPage* UnitPage::Form() {
    for (int i = 0; i < count(); ++i)
        if (dynamic_cast<PlainFormEditor*>(editors_[std::size_t(i)])) return dynamic_cast<FormPage*>(Made(i));
    return nullptr;
}

PlainFormEditor* UnitPage::ShownForm() {
    return count() > 0 ? dynamic_cast<PlainFormEditor*>(editors_[std::size_t(currentIndex())]) : nullptr;
}

void UnitPage::DesignChanged() {
    for (int i = 0; i < count(); ++i)
        if (const QLayoutItem* made = widget(i)->layout()->itemAt(0))
            if (auto* form = dynamic_cast<FormPage*>(made->widget())) form->DesignChanged();
}

void UnitPage::ShowCode() {
    if (count() > 0 && !dynamic_cast<PlainSourceEditor*>(editors_[std::size_t(currentIndex())])) setCurrentIndex(0);
    if (CodeEditor* code = Code()) code->setFocus();
}

void UnitPage::ShowForm() {
    for (int i = 0; i < count(); ++i)
        if (dynamic_cast<PlainFormEditor*>(editors_[std::size_t(i)])) {
            setCurrentIndex(i);
            Made(i)->setFocus();
        }
}

void UnitPage::ToggleForm() {
    if (count() > 0 && dynamic_cast<PlainFormEditor*>(editors_[std::size_t(currentIndex())]))
        ShowCode();
    else
        ShowForm();
}

void UnitPage::Restyle() {
    for (CodeEditor* code : findChildren<CodeEditor*>())
        code->Restyle();
}

} // namespace glotta
