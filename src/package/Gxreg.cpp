#include "package/Gxreg.h"

#include "editors/Excludepropertyeditor.h"
#include "editors/_exttransleditprop.h"
#include "package/ComponentEditors.h"
#include "package/ExcludeComponentEditor.h"
#include "package/Gxpropeditors.h"
#include "platform/Error.h"

namespace glotta::Gxreg {
namespace {

constexpr std::string_view Page = "Quorlane";

// What an editor's class is called, and objects of it with what they need besides their place.
template <class Editor, class... More> TPropertyEditorClass PropertyEditor(std::string_view name, More... more) {
    return {name, [=](DesignPlace place, TComponent& component, const PropertyInfo& property) {
                return std::make_unique<Editor>(place, component, property, more...);
            }};
}

template <class Editor, class... More> TComponentEditorClass ComponentEditor(std::string_view name, More... more) {
    return {name, [=](DesignPlace place, TComponent& component) {
                return std::make_unique<Editor>(place, component, more...);
            }};
}

} // namespace

std::weak_ptr<TGlottaExpert> Register(ExpertPorts ports) {
    if (!ports.ide.design || !ports.transEditor) throw Error("The IDE takes no design-time packages");
    IDesignServices& ide = *ports.ide.design;
    Ui* const ui = &ports.ui;
    RegistryStore* const registry = &ports.registry;
    TransEditor* const editor = ports.transEditor;
    // Known once the expert is registered.
    const auto expert = std::make_shared<std::weak_ptr<TGlottaExpert>>();

    const TPropertyEditorClass strings = PropertyEditor<TgxStringsProperty>("TgxStringsProperty", editor);
    const TPropertyEditorClass excluded =
        PropertyEditor<TExcludePropertyEditor>("TExcludePropertyEditor", ui, registry);
    const TPropertyEditorClass language = PropertyEditor<TActiveLanguageProperty>("TActiveLanguageProperty");
    const TComponentEditorClass dispatcher = ComponentEditor<TDispatcherEditor>("TDispatcherEditor");

    ide.RegisterComponents(Page, {"TGlotta", "TGlottaRTSE", "TGlottaRT", "TGlottaLinked", "TGlottaTLV",
                                  "TGlottaDispatcher", "TgxLabel", "TgxFormStorage"});
    ide.RegisterComponentEditor("TgxCustomLang",
                                ComponentEditor<TTranslationsEditor>("TTranslationsEditor", ui, editor, expert));
    for (int kind = stCaptions; kind <= stCollections; ++kind)
        ide.RegisterPropertyEditor("TStrings", "TgxCustomLang", StringsPropertyName(TStringsType(kind)), strings);
    ide.RegisterPropertyEditor("TStrings", "TGlottaTLV", "ListView_TreeView_Items", strings);
    *expert = ExpRegister(std::move(ports));
    ide.RegisterPropertyEditor("TgxCustomLang", "TGlottaLinked", "CommonContainer",
                               PropertyEditor<TCommonContainerProperty>("TCommonContainerProperty"));
    for (const std::string_view list : ExclusionProperties)
        ide.RegisterPropertyEditor("TStrings", "TgxCustomLang", list, excluded);
    ide.RegisterActions("Glotta", {"TGlottaChangeLanguage"}, {});
    ide.RegisterComponentEditor("TGlottaDispatcher", dispatcher);
    ide.RegisterPropertyEditor(
        "TCollection", "TgxCustomLang", "ExtendedTranslations",
        PropertyEditor<TExtendedTranslationsProperty>("TExtendedTranslationsProperty", editor));
    ide.RegisterPropertyEditor("string", "TgxCustomLang", "Language", language);
    ide.RegisterPropertyEditor("string", "TGlottaDispatcher", "Language", language);
    ide.RegisterComponents(Page, {"TGlottaCombo"});
    ide.RegisterPropertyEditor("TLanguageInfos", "TGlottaCombo", "LanguageInfos",
                               PropertyEditor<TComboConfigurationProperty>("TComboConfigurationProperty", ui));
    ide.RegisterComponentEditor("TGlottaCombo", dispatcher);
    ide.RegisterSelectionEditor("TComponent", {"TExcludeComponentEditor", [ui](DesignPlace place) {
                                                   return std::make_unique<TExcludeComponentEditor>(place, *ui);
                                               }});
    return *expert;
}

} // namespace glotta::Gxreg
