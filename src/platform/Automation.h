// Automation servers of other programs.
#pragma once
#include <memory>
#include <string>

namespace glotta {

// A held server; it is released with the object.
class AutomationObject {
public:
    virtual ~AutomationObject() = default;
};

class Automation {
public:
    virtual ~Automation() = default;
    // The class identifier that is registered for a programmatic one, empty when there is none.
    virtual std::string ClassIdOf(const std::string& progId) = 0;
    // Throws Error when the server cannot be created.
    virtual std::unique_ptr<AutomationObject> CreateObject(const std::string& progId) = 0;
};

// Where the system has no automation every creation is an Error that says so.
std::unique_ptr<Automation> SystemAutomation();

} // namespace glotta
