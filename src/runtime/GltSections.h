// A text of [sections] as a list of sections, each with its lines as they stand.
#pragma once
#include "runtime/GltSyntax.h"

#include <functional>
#include <list>
#include <optional>
#include <vector>

namespace glotta {

// A line of a section, apart from its header.
struct GltLine {
    std::size_t number;     // in the file, from 1
    std::string_view raw;   // with its line end
    std::string_view name;  // before the "="; for a line without one, everything
    std::string_view value; // behind it
    bool isComment, isBlank, hasValue;
};

struct GltSection {
    std::string name; // as written between the brackets; empty for what stands before the first section
    std::string text; // with the comments directly above the header
    std::size_t headerEnd = 0;
    std::size_t firstLine = 1; // the number of the text's first line, for messages

    std::size_t HeaderLine() const;
    std::vector<GltLine> Lines() const;
    bool HasComments() const;

    using Entry = GltSyntax::Line;
    // The entries replace the lines that `isEntry`. Everything else stays, before the entry it stood before.
    void SetEntries(const std::vector<Entry>& entries, std::string_view lineEnd,
                    const std::function<bool(const GltLine&)>& isEntry);
};

class GltSections {
public:
    using Place = std::list<GltSection>::iterator;

    explicit GltSections(std::string_view text);

    std::list<GltSection>& All() { return all_; }
    const std::string& LineEnd() const { return lineEnd_; }
    std::string ToText() const;

    // A new section, parted from others by a blank line.
    Place Insert(Place before, const std::string& name);
    void Erase(Place section) { all_.erase(section); }
    Place End() { return all_.end(); }

private:
    std::list<GltSection> all_; // the first one has no header
    std::string lineEnd_ = "\r\n";
};

} // namespace glotta
