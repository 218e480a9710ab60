#include "storage/FoundPhrases.h"
#include "ui_FoundPhrasesView.h"
#include "workbench/Placement.h"
#include "workbench/Views.h"

#include <QtGui/QAction>

namespace glotta {

namespace {

const std::vector<int> DesignedWidths = {270, 100, 70, 100};

class FoundPhrasesView : public WindowOf<QMainWindow, Ui_FoundPhrasesView, TfrmFoundPhrases> {
public:
    FoundPhrasesView(TfrmFoundPhrases& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        GridView& list = *controls.LVIDs;
        setWindowFlag(Qt::Window);
        bind.Bind(list, form.LVIDs);
        list.SetColumnWidths(DesignedWidths);
        list.OnActivated = [this](int row) {
            bind.Act([this, row] { form.LVIDsDblClick(std::size_t(row)); });
        };
        auto* close = new QAction(this);
        close->setShortcut(Qt::Key_Escape);
        addAction(close);
        connect(close, &QAction::triggered, this, [this] { AskToClose(); });
        Place(*this, form.Placement());
        list.setFocus();
    }
    void Moved() override { form.Placement.Enter(PlacementOf(*this)); }
};

} // namespace

View* MakeFoundPhrasesView(TfrmFoundPhrases& form, Ui& ui, QWidget* parent) {
    return new FoundPhrasesView(form, ui, parent);
}

} // namespace glotta
