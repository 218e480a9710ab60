#include "host/FormReferences.h"

#include "host/ProjectListing.h"
#include "ide/SourceTokens.h"
#include "platform/Text.h"
#include "platform/TextEdit.h"

namespace glotta {
namespace {

class References {
public:
    References(bool isBinary, std::string from, std::string to)
        : isBinary_(isBinary), from_(std::move(from)), to_(std::move(to)) {}

    void RenameIn(TComponent& component) const {
        for (FormProperty& property : component.Node().properties)
            if (MayName(component, property.name) && Rename(property.value)) property.raw = Rewritten(property);
    }

private:
    static bool MayName(const TComponent& component, const std::string& property) {
        const auto info = component.FindProperty(property);
        return !info || info->typeName.empty() || info->kind == TTypeKind::tkClass;
    }

    bool Rename(FormValue& value) const {
        bool changed = false;
        if (value.kind == FormValueKind::Identifier && Names(value.text)) {
            value.text.replace(0, from_.size(), to_);
            changed = true;
        }
        if (value.kind == FormValueKind::List)
            for (FormValue& item : value.items)
                changed |= Rename(item);
        for (FormItem& item : value.collection)
            for (FormProperty& property : item.properties)
                if (Rename(property.value)) {
                    property.raw.clear();
                    changed = true;
                }
        return changed;
    }

    // The property as it is written, but for the name; empty when the name is all that is known of it.
    std::string Rewritten(const FormProperty& property) const {
        if (isBinary_ || !IsAscii(to_)) return {};
        const std::string_view raw = property.raw;
        const std::vector<Token> tokens = Tokenize(raw, false);
        const auto text = [&](std::size_t index) {
            return raw.substr(tokens[index].begin, tokens[index].end - tokens[index].begin);
        };
        TextEdits edits;
        bool inList = false;
        for (std::size_t i = 1; i < tokens.size(); ++i) {
            if (text(i) == "(" || text(i) == ")") inList = text(i) == "(";
            const bool isValue = text(i - 1) == "=" || (inList && text(i - 1) != ".");
            if (isValue && tokens[i].kind == TokenKind::Identifier &&
                Names(raw.substr(tokens[i].begin)))
                edits.push_back({tokens[i].begin, tokens[i].begin + from_.size(), to_});
        }
        return ApplyEdits(raw, std::move(edits));
    }

    // The component itself, or one that it owns: Frame1.Button1.
    bool Names(std::string_view text) const {
        if (!StartsWithText(text, from_)) return false;
        const std::string_view rest = text.substr(std::min(from_.size(), text.size()));
        return rest.empty() || !IsIdentifier("_" + std::string(1, rest.front()));
    }

    bool isBinary_;
    std::string from_, to_;
};

} // namespace

void RenameOnForm(TComponent& component, const std::string& newName) {
    TComponent& root = component.Tree().Root();
    const bool isBinary = component.Tree().File().IsBinary();
    const References plain(isBinary, component.Name(), newName);
    const References qualified(isBinary, root.Name() + "." + component.Name(), root.Name() + "." + newName);
    const auto follow = [&](TComponent& user) {
        plain.RenameIn(user);
        if (&component != &root) qualified.RenameIn(user);
    };
    follow(root);
    for (TComponent* user : root.Components())
        follow(*user);
    component.SetName(newName);
}

} // namespace glotta
