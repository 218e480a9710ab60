// Ties the controls of a view to the fields, actions and grids of its form, both ways, for as long as both
// live.
#pragma once
#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Tree.h"

#include "workbench/QtText.h"

#include <QtCore/QObject>
#include <functional>
#include <memory>
#include <vector>

class QAbstractButton;
class QAction;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QStackedWidget;
class QTabWidget;
class QWidget;

namespace glotta {

class GridView;
class TreeView;

class Bindings {
public:
    explicit Bindings(Ui& ui) : ui_(ui) {}
    ~Bindings() { Release(); }
    Bindings(const Bindings&) = delete;
    Bindings& operator=(const Bindings&) = delete;

    void Bind(TForm& form); // the form changed as a whole
    void Bind(QLineEdit& edit, TField<std::string>& field);
    void Bind(QPlainTextEdit& memo, TField<std::string>& field); // lines joined by CR LF
    void Bind(QLabel& label, TField<std::string>& field);
    void Bind(QCheckBox& box, TField<bool>& field);
    // A drop-down list: the chosen text of these items, which may change. An editable one takes any text.
    void Bind(QComboBox& combo, TField<std::string>& field, const std::vector<std::string>& items);
    void Bind(QButtonGroup& group, TField<int>& field); // the id of the checked button
    void Bind(QTabWidget& pages, TField<int>& field);
    void Bind(QStackedWidget& pages, TField<int>& field); // shows; its buttons are another binding
    void Bind(QAbstractButton& button, TAction& action);
    void Bind(QAction& item, TAction& action);
    void Bind(GridView& view, TGrid& grid);
    void Bind(TreeView& view, TTree& tree);
    void BindColumns(GridView& view, TField<std::vector<int>>& widths);
    void BindColumn(GridView& view, TField<int>& column); // the current one
    // Only characters that the filter accepts can be typed.
    void FilterKeys(QLineEdit& edit, bool (*accepts)(char32_t));
    // `show` runs now and after each change of the field.
    template <class T> void Follow(TField<T>& field, std::function<void()> show);
    // `show` runs now and after each change of anything bound.
    void Always(std::function<void()> show);
    void AtEnd(std::function<void()> act); // when the view is released
    // Something that the person did: runs it to its end or its message, and shows what changed.
    void Act(const std::function<void()>& act);
    QObject* Context() const { return context_.get(); } // for further connections of the view

    void Later();   // shows what may have changed once the event at hand is done
    void Release(); // the form lives on without this view
    void Forget();  // the form is gone

private:
    template <class T> void Tie(TField<T>& field, QWidget& control, std::function<void()> show);
    Ui& ui_;
    std::unique_ptr<QObject> context_ = std::make_unique<QObject>();
    std::vector<std::function<void()>> always_;
    std::vector<std::function<void()>> release_; // touch the form
    std::vector<std::function<void()>> atEnd_;
    std::vector<GridView*> grids_;
    std::vector<TreeView*> trees_;
    bool pending_ = false;
};

template <class T> void Bindings::Follow(TField<T>& field, std::function<void()> show) {
    show();
    field.OnView = [this, before = field.OnView, show = std::move(show)] {
        if (before) before();
        show();
        Later();
    };
    release_.push_back([&field] { field.OnView = {}; });
}

} // namespace glotta
