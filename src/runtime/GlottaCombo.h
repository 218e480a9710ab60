// The drop-down in which the end user chooses a language.
#pragma once
#include "runtime/Charsets.h"
#include "vcl/Component.h"

#include <string>
#include <vector>

namespace glotta {

// One language of the drop-down.
struct TLanguageInfo {
    std::string languageName, fontName;
    int fontCharset = DefaultCharset;
    std::string image; // the bytes of a BMP file; empty for none
    bool operator==(const TLanguageInfo&) const = default;
};

class TGlottaCombo : public TComponent {
public:
    using TComponent::TComponent;

    // Whether 'Glotta' or 'GlottaDispatcher' is assigned.
    bool HasSource() const;
    // The component that is assigned, Glotta before the dispatcher, as the form file names it: one of another
    // form by that form's name, too.
    std::string SourceName() const;
    // The languages of the component with this name on a form.
    static std::vector<std::string> LanguageNames(const TComponent& form, std::string_view name);

    std::vector<TLanguageInfo> LanguageInfos() const;
    // What did not change stays as it is written, and so does what an item holds besides. The count is that
    // of the infos.
    void SetLanguageInfos(const std::vector<TLanguageInfo>& infos);

private:
    std::string SourceName(std::string_view property) const;
};

} // namespace glotta
