// An open module in the editor window: its source, its header and its form, each on a page that is made when it is
// looked at first.
#pragma once
#include "ide/ToolsApi.h"

#include <QtWidgets/QTabWidget>

namespace glotta {

class CodeEditor;
class DesignRegistry;
class FormPage;
class PlainFormEditor;

class UnitPage : public QTabWidget {
    Q_OBJECT // it is told from other tab widgets
public:
    using Run = std::function<void(const std::function<void()>&)>;
    UnitPage(IOTAModule& module, DesignRegistry& registry, Run run, QWidget* parent);
    ~UnitPage() override;

    IOTAModule& Module() { return module_; }
    QString Title() const; // with a mark when it is modified
    void Prepare();        // makes what is to be seen
    CodeEditor* Code();    // of the shown source, else of the unit; nil when the module has no source
    FormPage* Form();
    PlainFormEditor* ShownForm(); // nil while a source is shown
    void DesignChanged(); // packages came or went
    void ShowCode();
    void ShowForm();
    void ToggleForm();
    void Restyle();
    // The page's current code changed in text, cursor or selection.
    std::function<void()> OnChanged;
    std::function<void(const QPoint& global)> OnPopup;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* Made(int index);
    IOTAModule& module_;
    DesignRegistry& registry_;
    Run run_;
    std::vector<IOTAEditor*> editors_; // by tab
};

} // namespace glotta
