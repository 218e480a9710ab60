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
    // The names of the languages as the assigned component lists them, Glotta before the dispatcher. Empty
    // when it is on another form.
    std::vector<std::string> SourceNames() const;

    std::vector<TLanguageInfo> LanguageInfos() const;
    // What did not change stays as it is written, and so does what an item holds besides. The count is that
    // of the infos.
    void SetLanguageInfos(const std::vector<TLanguageInfo>& infos);

private:
    std::string SourceName(std::string_view property) const;
};

} // namespace glotta
