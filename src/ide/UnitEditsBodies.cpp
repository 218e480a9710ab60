// Where the bodies of methods lie, in either language.
#include "ide/UnitEdits.h"
#include "ide/UnitEditsCppStructure.h"
#include "ide/UnitEditsPascalStructure.h"

namespace glotta {

std::optional<MethodBody> FindMethodBody(std::string_view text, bool isCpp, std::string_view className,
                                         std::string_view name) {
    if (isCpp) {
        const cpp::CppStructure unit(text);
        const cpp::CppStructure::Body body = unit.FindBody(className, name);
        if (body.open == UnitTokens::None) return std::nullopt;
        return MethodBody{unit.Tokens().End(body.open), unit.Tokens().Begin(body.close),
                          unit.ParameterNames(body)};
    }
    const pascal::UnitStructure unit(text);
    const pascal::UnitStructure::Routine* routine = unit.FindRoutine(className, name);
    if (!routine || !unit.Tokens().Is(routine->begin, "begin")) return std::nullopt;
    return MethodBody{unit.Tokens().End(routine->begin), unit.Tokens().Begin(routine->end),
                      unit.ParameterNames(*routine)};
}

std::vector<ByteRange> InstanceMethods(std::string_view text, bool isCpp, std::string_view className) {
    return isCpp ? cpp::CppStructure(text).MethodsOf(className) : pascal::UnitStructure(text).MethodsOf(className);
}

} // namespace glotta
