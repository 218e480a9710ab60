#include "settings/FormStorage.h"

#include "platform/RegistryStore.h"

namespace glotta {

std::optional<FormPlacement> TgxFormStorage::ReadPlacement() const {
    const TRegIniFile store(store_, subKey_);
    const auto number = [&](std::string_view name) { return store.ReadInteger({}, name, 0); };
    const FormPlacement placement{number("Left"), number("Top"), number("Width"), number("Height"),
                                  store.ReadBool({}, "Maximized", false)};
    if (placement.width <= 0 || placement.height <= 0) return {};
    return placement;
}

void TgxFormStorage::WritePlacement(const FormPlacement& placement) {
    TRegIniFile store(store_, subKey_);
    store.WriteInteger({}, "Left", placement.left);
    store.WriteInteger({}, "Top", placement.top);
    store.WriteInteger({}, "Width", placement.width);
    store.WriteInteger({}, "Height", placement.height);
    store.WriteBool({}, "Maximized", placement.maximized);
}

} // namespace glotta
