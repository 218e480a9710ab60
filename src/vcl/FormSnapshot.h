// What a form was at one moment, to go back to. Components and nodes stay the objects that they are.
#pragma once
#include "vcl/Component.h"

#include <string>
#include <vector>

namespace glotta {

class FormSnapshot {
public:
    explicit FormSnapshot(ComponentTree& tree);

    // Leaves in both only what differs. False when nothing does.
    static bool Difference(FormSnapshot& before, FormSnapshot& after);
    void Restore(ComponentTree& tree) const;

    struct Rename {
        TComponent* component;
        std::string from, fromClass, to, toClass;
    };
    // Of two snapshots that hold their difference.
    static std::vector<Rename> Renames(const FormSnapshot& from, const FormSnapshot& to);

private:
    struct State {
        TComponent* component;
        std::string name, className, rawHead;
        std::vector<FormProperty> properties;
        std::vector<FormNode*> children;
        std::vector<TComponent*> owned;

        bool IsAs(const State& other) const;
    };
    std::vector<State> states_;
};

} // namespace glotta
