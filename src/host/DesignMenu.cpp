#include "host/DesignMenu.h"

namespace glotta {
namespace {

using Execute = std::function<void()>;
using Prepare = std::function<void(TMenuItem&)>;

void AddVerb(TMenuItem& menu, const std::string& verb, const Execute& execute, const Prepare& prepare,
             const RunVerb& run) {
    TMenuItem& item = menu.Add(verb);
    if (item.IsSeparator()) return;
    item.OnClick = execute;
    prepare(item);
    if (item.Count() > 0) item.OnClick = nullptr; // opening a submenu executes nothing
    const auto guard = [&run](TMenuItem& each) {
        if (each.OnClick) each.OnClick = [run, act = std::move(each.OnClick)] { run(act); };
    };
    guard(item);
    item.ForEach(guard);
}

} // namespace

void FillDesignMenu(TMenuItem& menu, DesignRegistry& registry, IDesigner& designer,
                    const IDesignerSelections& selection, const RunVerb& run) {
    menu.Clear();
    if (selection.size() == 1)
        if (const std::shared_ptr<IComponentEditor> editor = registry.ComponentEditorOf(*selection.front(), designer))
            for (int verb = 0; verb < editor->GetVerbCount(); ++verb)
                AddVerb(
                    menu, editor->GetVerb(verb), [editor, verb] { editor->ExecuteVerb(verb); },
                    [&](TMenuItem& item) { editor->PrepareItem(verb, item); }, run);
    for (auto& made : registry.SelectionEditorsOf(selection, designer)) {
        const std::shared_ptr<ISelectionEditor> editor = std::move(made);
        if (menu.Count() > 0 && editor->GetVerbCount() > 0) menu.Add("-");
        for (int verb = 0; verb < editor->GetVerbCount(); ++verb)
            AddVerb(
                menu, editor->GetVerb(verb), [editor, verb, selection] { editor->ExecuteVerb(verb, selection); },
                [&](TMenuItem& item) { editor->PrepareItem(verb, item, selection); }, run);
    }
}

} // namespace glotta
