// Regular expressions that must match a whole text, bounded in time and memory.
#pragma once
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace glotta {

class WholeMatch {
public:
    WholeMatch();
    ~WholeMatch();
    // A pattern that is no valid expression, or that costs too much on this text, does not match.
    bool Matches(std::string_view pattern, std::string_view text);

private:
    struct Machine;
    struct Pattern;
    std::unique_ptr<Machine> machine_;
    std::unordered_map<std::string, Pattern> patterns_;
};

} // namespace glotta
