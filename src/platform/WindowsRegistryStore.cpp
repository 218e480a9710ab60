#ifdef _WIN32
#include "platform/WindowsRegistryStore.h"

#include "platform/Error.h"
#include "platform/WindowsText.h"

#include <windows.h>

namespace glotta {
namespace {

std::wstring SubKey(std::string_view key) {
    while (key.starts_with('\\'))
        key.remove_prefix(1);
    while (key.ends_with('\\'))
        key.remove_suffix(1);
    return WideText(key);
}

void Check(LSTATUS status, std::string_view key) {
    if (status != ERROR_SUCCESS)
        throw Error("Registry key " + std::string(key) + ": " +
                    WindowsMessage(static_cast<unsigned long>(status)));
}

// An open key; empty when it does not exist and is not to be created.
class OpenKey {
public:
    OpenKey(std::string_view key, REGSAM access, bool create) {
        const std::wstring path = SubKey(key);
        if (create)
            Check(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, access, nullptr, &key_,
                                  nullptr),
                  key);
        else if (const LSTATUS status = RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, &key_);
                 status != ERROR_FILE_NOT_FOUND)
            Check(status, key);
    }
    ~OpenKey() {
        if (key_) RegCloseKey(key_);
    }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    explicit operator bool() const { return key_ != nullptr; }
    operator HKEY() const { return key_; }

private:
    HKEY key_ = nullptr;
};

} // namespace

std::optional<std::string> WindowsRegistryStore::ReadString(std::string_view key, std::string_view name) {
    const OpenKey open(key, KEY_QUERY_VALUE, false);
    if (!open) return {};
    const std::wstring value = WideText(name);
    std::vector<unsigned char> data;
    for (;;) {
        DWORD type = 0, size = DWORD(data.size());
        const LSTATUS status = RegQueryValueExW(open, value.c_str(), nullptr, &type, data.data(), &size);
        if (status == ERROR_FILE_NOT_FOUND) return {};
        if (status != ERROR_MORE_DATA) Check(status, key);
        if (type != REG_SZ && type != REG_EXPAND_SZ) return {};
        if (status == ERROR_SUCCESS && size <= data.size()) {
            std::wstring text(reinterpret_cast<const wchar_t*>(data.data()), size / sizeof(wchar_t));
            if (text.ends_with(L'\0')) text.pop_back();
            return FromWideText(text);
        }
        data.resize(std::max<std::size_t>(size, 2)); // it may grow between two calls
    }
}

void WindowsRegistryStore::WriteString(std::string_view key, std::string_view name, std::string_view value) {
    const OpenKey open(key, KEY_SET_VALUE, true);
    const std::wstring text = WideText(value);
    Check(RegSetValueExW(open, WideText(name).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                         DWORD((text.size() + 1) * sizeof(wchar_t))),
          key);
}

void WindowsRegistryStore::DeleteValue(std::string_view key, std::string_view name) {
    const OpenKey open(key, KEY_SET_VALUE, false);
    if (!open) return;
    if (const LSTATUS status = RegDeleteValueW(open, WideText(name).c_str()); status != ERROR_FILE_NOT_FOUND)
        Check(status, key);
}

bool WindowsRegistryStore::KeyExists(std::string_view key) {
    return bool(OpenKey(key, KEY_QUERY_VALUE, false));
}
void WindowsRegistryStore::CreateKey(std::string_view key) {
    OpenKey(key, KEY_QUERY_VALUE, true);
}

std::vector<std::string> WindowsRegistryStore::ValueNames(std::string_view key) {
    std::vector<std::string> names;
    const OpenKey open(key, KEY_QUERY_VALUE, false);
    std::vector<wchar_t> name(16384); // the longest possible name
    for (DWORD index = 0; open; ++index) {
        DWORD length = DWORD(name.size());
        const LSTATUS status =
            RegEnumValueW(open, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (status == ERROR_NO_MORE_ITEMS) break;
        Check(status, key);
        names.push_back(FromWideText({name.data(), length}));
    }
    return names;
}

} // namespace glotta
#endif
