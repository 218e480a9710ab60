#include "platform/Automation.h"

#include "platform/Error.h"

#ifdef _WIN32
#include "platform/WindowsText.h"

#include <windows.h>

#include <oaidl.h>
#include <objbase.h>
#endif

namespace glotta {
namespace {

#ifdef _WIN32

// The calling thread may use COM for the object's life.
struct ComApartment {
    ComApartment() : entered(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ComApartment() {
        if (entered) CoUninitialize();
    }
    bool entered;
};

class ComObject : public AutomationObject {
public:
    explicit ComObject(IDispatch* object) : object_(object) {}
    ~ComObject() override { object_->Release(); }

private:
    ComApartment apartment_;
    IDispatch* object_;
};

class ComAutomation : public Automation {
public:
    std::string ClassIdOf(const std::string& progId) override {
        CLSID id;
        wchar_t text[64] = {};
        if (FAILED(CLSIDFromProgID(WideText(progId).c_str(), &id)) ||
            !StringFromGUID2(id, text, 64))
            return {};
        return FromWideText(text);
    }
    std::unique_ptr<AutomationObject> CreateObject(const std::string& progId) override {
        const ComApartment apartment;
        CLSID id;
        void* object = nullptr;
        HRESULT result = CLSIDFromProgID(WideText(progId).c_str(), &id);
        if (SUCCEEDED(result)) result = CoCreateInstance(id, nullptr, CLSCTX_SERVER, IID_IDispatch, &object);
        if (FAILED(result)) throw Error(progId + ": " + WindowsMessage(static_cast<unsigned long>(result)));
        return std::make_unique<ComObject>(static_cast<IDispatch*>(object));
    }
};

#else

class NoAutomation : public Automation {
public:
    std::string ClassIdOf(const std::string&) override { return {}; }
    std::unique_ptr<AutomationObject> CreateObject(const std::string& progId) override {
        throw Error("Unable to start " + progId + ": automation servers are available on Windows only.");
    }
};

#endif

} // namespace

std::unique_ptr<Automation> SystemAutomation() {
#ifdef _WIN32
    return std::make_unique<ComAutomation>();
#else
    return std::make_unique<NoAutomation>();
#endif
}

} // namespace glotta
