#include "host/HostMenus.h"

namespace glotta {

HostMenus::HostMenus() {
    constexpr const char* Captions[] = {"&File", "&Edit",      "&Search", "&View", "&Project",
                                        "&Run",  "&Component", "&Tools",  "&Help"};
    static_assert(std::size(Captions) == std::size(MenuSections));
    for (std::size_t i = 0; i < std::size(Captions); ++i)
        mainMenu_.Items.Add(Captions[i], std::string(MenuSections[i]));
}

INTAForm* HostMenus::GetForm(int index) {
    return index >= 0 && index < FormCount() ? windows_[std::size_t(index)].get() : nullptr;
}

HostEditWindow& HostMenus::AddEditWindow() {
    return *windows_.emplace_back(std::make_unique<HostEditWindow>());
}

void HostMenus::RemoveEditWindow(const HostEditWindow& window) {
    std::erase_if(windows_, [&](const auto& each) { return each.get() == &window; });
}

} // namespace glotta
