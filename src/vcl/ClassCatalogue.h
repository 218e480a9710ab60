// What is known of component classes without their compiled code: ancestors and published properties with
// their type kinds. The common VCL and CLX classes and the TGlotta classes are built in.
#pragma once
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Text.h"

namespace glotta {

// The type kinds of run-time type information, by its own names.
enum class TTypeKind : unsigned char {
    tkUnknown,
    tkInteger,
    tkChar,
    tkEnumeration,
    tkFloat,
    tkString,
    tkSet,
    tkClass,
    tkMethod,
    tkWChar,
    tkLString,
    tkWString,
    tkVariant,
    tkArray,
    tkRecord,
    tkInterface,
    tkInt64,
    tkDynArray,
    tkUString
};
std::string_view TypeKindName(TTypeKind kind); // "tkLString"

struct PropertyInfo {
    std::string name;
    std::string typeName; // "TCaption", "TStrings", "TNotifyEvent"
    TTypeKind kind;
};

struct ClassInfo {
    std::string name;
    std::string parent;                   // empty for TPersistent
    std::string unit;                     // the unit that declares it ("StdCtrls")
    std::vector<PropertyInfo> properties; // those the class itself publishes
    std::string itemClass;                // of a collection
};

class ClassCatalogue {
public:
    static const ClassCatalogue& BuiltIn();
    // The same classes as CLX publishes them: texts are wide strings.
    static const ClassCatalogue& Clx();
    static const ClassCatalogue& OfForm(std::string_view formFile); // by its extension
    // Of texts that only a form file tells of.
    TTypeKind TextKind() const { return textKind_; }

    // Class names compare without regard to letter case. Nil when unknown.
    const ClassInfo* Find(std::string_view className) const;
    // True for the class itself and every ancestor; false for unknown classes (but true when equal).
    bool InheritsFrom(std::string_view className, std::string_view ancestor) const;
    // Inherited ones first, each name once.
    std::vector<const PropertyInfo*> PublishedProperties(std::string_view className) const;
    const PropertyInfo* FindProperty(std::string_view className, std::string_view property) const;
    // What a property of this name is wherever most classes publish it ("Font": TFont); nil without a custom.
    static const PropertyInfo* UsualProperty(std::string_view property);

    // The parameter list of an event type as Object Pascal writes it, "Sender: TObject" for TNotifyEvent, and
    // for C++
    // ("TObject *Sender"). Empty for an unknown type.
    static std::string_view PascalParameters(std::string_view eventType);
    static std::string_view CppParameters(std::string_view eventType);

    void Add(ClassInfo info);
    using ClassMap = std::unordered_map<std::string, ClassInfo, TextHash, TextEqual>;
    const ClassMap& Classes() const { return classes_; }

private:
    ClassMap classes_;
    TTypeKind textKind_ = TTypeKind::tkLString;
};

} // namespace glotta
