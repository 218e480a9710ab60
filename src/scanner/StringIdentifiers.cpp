#include "scanner/StringIdentifiers.h"

#include <charconv>

namespace glotta {
namespace {

// The number that follows the prefix, written as a counter is: nothing else but digits, no leading zero.
std::optional<std::uint64_t> NumberOf(std::string_view id, std::string_view prefix) {
    if (!StartsWithText(id, prefix)) return {};
    const std::size_t digits = id.find_last_not_of("0123456789") + 1;
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(id.data() + digits, id.data() + id.size(), number);
    if (error != std::errc() || end != id.data() + id.size()) return {};
    return SameText(id, std::string(prefix) + std::to_string(number)) ? std::optional(number) : std::nullopt;
}

} // namespace

StringIdentifiers::StringIdentifiers(const SettingsValues& settings, const std::vector<std::string>& inUse)
    : settings_(settings), inUse_(inUse) {
    for (const std::string& id : inUse)
        if (const auto number = NumberOf(id, settings.HCPrefix)) numbers_.push_back(*number);
    std::sort(numbers_.begin(), numbers_.end());
}

std::string StringIdentifiers::ForCode() {
    for (; nextNumber_ < numbers_.size() && numbers_[nextNumber_] <= counter_; ++nextNumber_)
        if (numbers_[nextNumber_] == counter_) ++counter_;
    return settings_.HCPrefix + std::to_string(counter_++);
}

std::string StringIdentifiers::ForConstant(std::string_view name) {
    if (names_.empty())
        for (const std::string& id : inUse_)
            names_.try_emplace(id, 0);
    const std::string base =
        settings_.CnstPrefix + (settings_.CnstPermanent == 1 ? UpperCase(name) : std::string(name));
    const auto [taken, isFree] = names_.try_emplace(base, 0);
    if (isFree) return base;
    int& suffix = taken->second; // stays in place when the table grows
    std::string id;
    do
        id = base + '_' + std::to_string(++suffix);
    while (!names_.try_emplace(id, 0).second);
    return id;
}

} // namespace glotta
