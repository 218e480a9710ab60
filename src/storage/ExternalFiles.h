// The files outside the project that the expert shows with it.
#pragma once
#include "platform/StringList.h"

#include <string>

namespace glotta {

class TgxExternalFiles {
public:
    virtual ~TgxExternalFiles() = default;

    const TStringList& Files() const { return files_; }
    void SetFiles(TStringList files);
    void AddFile(std::string file);
    const std::string& ProjectName() const { return projectName_; }
    void SetProjectName(std::string name);
    void Clear() { files_.Clear(); } // tells nobody

    // Hooks: the list is kept nowhere yet.
    virtual void Load() {}
    virtual void Save() {}

    bool loading = false; // no Save meanwhile

private:
    void Changed();
    TStringList files_;
    std::string projectName_;
};

} // namespace glotta
