#include "workbench/Bindings.h"

#include "mainwindow/CommandRunner.h"
#include "workbench/GridView.h"
#include "workbench/TreeView.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTabWidget>

namespace glotta {

namespace {

class KeyFilter : public QObject {
public:
    KeyFilter(QObject* parent, bool (*accepts)(char32_t)) : QObject(parent), accepts_(accepts) {}
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto typed = static_cast<QKeyEvent*>(event)->text().toUcs4();
        return !typed.isEmpty() && !accepts_(char32_t(typed.front())) && typed.front() != 127;
    }

private:
    bool (*accepts_)(char32_t);
};

QString MemoText(const std::string& text) {
    QString shown = Q(text);
    return shown.replace("\r\n", "\n");
}

QKeySequence Keys(const std::string& shortcut) {
    return QKeySequence(Q(shortcut), QKeySequence::PortableText);
}

} // namespace

template <class T> void Bindings::Tie(TField<T>& field, QWidget& control, std::function<void()> show) {
    Follow(field, [&field, &control, show = std::move(show)] {
        const QSignalBlocker quiet(&control);
        show();
        control.setEnabled(field.Enabled());
        control.setHidden(!field.Visible());
    });
}

void Bindings::Bind(TForm& form) {
    form.OnView = [this] { Later(); };
    release_.push_back([&form] { form.OnView = {}; });
}

void Bindings::Bind(QLineEdit& edit, TField<std::string>& field) {
    Tie(field, edit, [&] {
        if (edit.text() != Q(field())) edit.setText(Q(field()));
    });
    QObject::connect(&edit, &QLineEdit::textEdited, Context(),
                     [this, &field](const QString& text) { Act([&] { field.Enter(text.toStdString()); }); });
}

void Bindings::Bind(QPlainTextEdit& memo, TField<std::string>& field) {
    Tie(field, memo, [&] {
        if (memo.toPlainText() != MemoText(field())) memo.setPlainText(MemoText(field()));
    });
    if (memo.isReadOnly()) return;
    QObject::connect(&memo, &QPlainTextEdit::textChanged, Context(), [this, &field, &memo] {
        Act([&] { field.Enter(memo.toPlainText().replace("\n", "\r\n").toStdString()); });
    });
}

void Bindings::Bind(QLabel& label, TField<std::string>& field) {
    Tie(field, label, [&] { label.setText(Q(field())); });
}

void Bindings::Bind(QCheckBox& box, TField<bool>& field) {
    Tie(field, box, [&] { box.setChecked(field()); });
    QObject::connect(&box, &QCheckBox::toggled, Context(),
                     [this, &field](bool on) { Act([&] { field.Enter(on); }); });
}

void Bindings::Bind(QComboBox& combo, TField<std::string>& field, const std::vector<std::string>& items) {
    const auto choose = [&] {
        combo.setCurrentIndex(combo.findText(Q(field()), Qt::MatchExactly));
        if (combo.isEditable() && combo.currentText() != Q(field())) combo.setEditText(Q(field()));
    };
    Always([&combo, &items, choose, shown = std::vector<std::string>()]() mutable {
        if (shown == items) return;
        const QSignalBlocker quiet(&combo);
        combo.clear();
        for (const std::string& item : items)
            combo.addItem(Q(item));
        shown = items;
        choose();
    });
    Tie(field, combo, choose);
    QObject::connect(&combo, &QComboBox::currentTextChanged, Context(),
                     [this, &field](const QString& text) { Act([&] { field.Enter(text.toStdString()); }); });
}

void Bindings::Bind(QButtonGroup& group, TField<int>& field) {
    Follow(field, [&] {
        if (QAbstractButton* button = group.button(field())) button->setChecked(true);
    });
    QObject::connect(&group, &QButtonGroup::idClicked, Context(), [this, &field](int id) {
        Act([&] {
            field.Set(id);
            if (field.OnChange) field.OnChange();
        });
    });
}

void Bindings::Bind(QTabWidget& pages, TField<int>& field) {
    Tie(field, pages, [&] { pages.setCurrentIndex(field()); });
    QObject::connect(&pages, &QTabWidget::currentChanged, Context(),
                     [this, &field](int page) { Act([&] { field.Enter(page); }); });
}

void Bindings::Bind(QStackedWidget& pages, TField<int>& field) {
    Follow(field, [&] { pages.setCurrentIndex(field()); });
}

void Bindings::Bind(QAbstractButton& button, TAction& action) {
    QObject::connect(&button, &QAbstractButton::clicked, Context(),
                     [this, &action] { Act([&] { action.Execute(); }); });
    Always([&] {
        if (!action.caption.empty() && button.text() != Q(action.caption)) button.setText(Q(action.caption));
        if (!action.shortcut.empty()) button.setShortcut(Keys(action.shortcut));
        if (!action.hint.empty()) button.setToolTip(Q(action.hint));
        button.setEnabled(action.Enabled());
        if (button.isCheckable()) button.setChecked(action.Checked());
    });
}

void Bindings::Bind(QAction& item, TAction& action) {
    QObject::connect(&item, &QAction::triggered, Context(),
                     [this, &action] { Act([&] { action.Execute(); }); });
    item.setShortcut(Keys(action.shortcut));
    item.setCheckable(bool(action.checked));
    Always([&] {
        item.setText(Q(action.caption));
        item.setIconText(Q(action.caption).remove('&')); // with its dots
        QString hint = action.hint.empty() ? Q(action.caption).remove('&') : Q(action.hint);
        if (!action.shortcut.empty()) hint += " (" + item.shortcut().toString(QKeySequence::NativeText) + ")";
        item.setToolTip(hint);
        item.setEnabled(action.Enabled());
        item.setChecked(action.Checked());
    });
}

void Bindings::Bind(GridView& view, TGrid& grid) {
    view.Model().Run = [this](const std::function<void()>& act) { Act(act); };
    view.OnChanged = [this] { Later(); };
    view.SetGrid(grid);
    grids_.push_back(&view);
    release_.push_back([&grid] { grid.OnView = {}; });
}

void Bindings::Bind(TreeView& view, TTree& tree) {
    view.Run = [this](const std::function<void()>& act) { Act(act); };
    view.OnChanged = [this] { Later(); };
    view.SetTree(tree);
    trees_.push_back(&view);
    release_.push_back([&tree] { tree.OnView = {}; });
}

void Bindings::BindColumns(GridView& view, TField<std::vector<int>>& widths) {
    Follow(widths, [&] { view.SetColumnWidths(widths()); });
    view.OnWidths = [&] { widths.Enter(view.ColumnWidths()); };
}

void Bindings::BindColumn(GridView& view, TField<int>& column) {
    Follow(column, [&] { view.SetColumn(column()); });
    view.OnColumn = [this, &column](int now) { Act([&] { column.Enter(now); }); };
}

void Bindings::FilterKeys(QLineEdit& edit, bool (*accepts)(char32_t)) {
    edit.installEventFilter(new KeyFilter(&edit, accepts));
}

void Bindings::Always(std::function<void()> show) {
    show();
    always_.push_back(std::move(show));
}

// The view may be closed, and this object gone, when `act` returns.
void Bindings::Act(const std::function<void()>& act) {
    const QPointer<QObject> alive(Context());
    RunCommand(ui_, act);
    if (alive) Later();
}

void Bindings::Later() {
    if (pending_ || !context_) return;
    pending_ = true;
    QMetaObject::invokeMethod(
        Context(),
        [this] {
            pending_ = false;
            for (std::size_t i = 0; i < always_.size(); ++i)
                always_[i]();
        },
        Qt::QueuedConnection);
}

void Bindings::Release() {
    for (const auto& release : release_)
        release();
    Forget();
}

void Bindings::AtEnd(std::function<void()> act) {
    atEnd_.push_back(std::move(act));
}

void Bindings::Forget() {
    for (const auto& act : std::exchange(atEnd_, {}))
        act();
    release_.clear();
    always_.clear();
    context_.reset();
    for (GridView* view : std::exchange(grids_, {})) {
        view->OnChanged = {};
        view->OnWidths = {};
        view->OnColumn = {};
        view->OnActivated = {};
        view->OnPopup = {};
        view->Forget();
    }
    for (TreeView* view : std::exchange(trees_, {})) {
        view->OnChanged = {};
        view->OnDoubleClick = {};
        view->OnPopup = {};
        view->Forget();
    }
}

} // namespace glotta
