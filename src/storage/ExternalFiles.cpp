#include "storage/ExternalFiles.h"

namespace glotta {

void TgxExternalFiles::Changed() {
    if (!files_.Empty() && !loading) Save();
}

void TgxExternalFiles::SetFiles(TStringList files) {
    files_ = std::move(files);
    Changed();
}

void TgxExternalFiles::AddFile(std::string file) {
    files_.Add(std::move(file));
    Changed();
}

void TgxExternalFiles::SetProjectName(std::string name) {
    if (projectName_ == name) return;
    projectName_ = std::move(name);
    Changed();
}

} // namespace glotta
