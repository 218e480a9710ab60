#include "scanner/Skippedstrings.h"
#include "ui_SkippedStringsView.h"
#include "workbench/Placement.h"
#include "workbench/SourcePreview.h"
#include "workbench/Views.h"

#include <QtWidgets/QLabel>

namespace glotta {

namespace {

class SkippedStringsView : public WindowOf<QMainWindow, Ui_SkippedStringsView, TfrmSkippedStrings> {
public:
    SkippedStringsView(TfrmSkippedStrings& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        auto& c = controls;
        setWindowFlag(Qt::Window);
        MakeSourcePane(*c.edPreview);
        bind.Bind(*c.lbStrings, form.lbStrings);
        c.lbStrings->ShowAsList();
        bind.Follow(form.edPreview, [&] { ShowSource(*c.edPreview, form.edPreview(), form.PreviewLine); });
        bind.Bind(*c.edReason, form.edReason);
        c.Splitter->setStretchFactor(0, 2);
        c.Splitter->setStretchFactor(1, 3);
        auto* status = new QLabel(this);
        c.StatusBar->addWidget(status);
        bind.Always([this, status] { status->setText(Q(form.StatusText())); });
        auto* close = new QAction(this);
        close->setShortcut(Qt::Key_Escape);
        addAction(close);
        connect(close, &QAction::triggered, this, [this] { AskToClose(); });
        if (form.Placement()) Place(*this, *form.Placement());
    }
    void Moved() override { form.Placement.Enter(PlacementOf(*this)); }
};

} // namespace

View* MakeSkippedStringsView(TfrmSkippedStrings& form, Ui& ui, QWidget* parent) {
    return new SkippedStringsView(form, ui, parent);
}

} // namespace glotta
