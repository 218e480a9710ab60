// What a scan yields: literals to localize, and literals or lines left out with the reason.
#pragma once
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace glotta {

// What follows a literal expression: nothing to note, a concatenation with something else, the statement's
// semicolon.
enum class Tail : unsigned char { None, Concatenation, Statement }; // "", " + ", ";"

struct TgxFoundSourceString {
    std::string ID;
    std::string SourceText;   // the literal expression as it stands in the source, without what follows it
    std::string Value;        // decoded
    std::size_t Position = 0; // 1-based character of the unit where the expression starts
    int Line = 0;             // 0-based
    int Column = 0;           // 0-based, in characters
    std::string Replacement;  // ends with the tail " + " or ";" when the expression has one
    std::size_t Begin = 0, End = 0; // bytes of the expression in the buffer's text
    std::size_t TailEnd = 0;        // end of the tail; Replacement stands for bytes [Begin, TailEnd)
    Tail FollowedBy = Tail::None;
    bool InBlockComment = false; // the place lies in an open block comment that COMMENTEND would close
    std::string Constant;        // CONST-section scan: the constant's name
    std::string Note;            // why a call cannot stand there; empty when it can
    bool Ignored = false;        // review mark: the line gets the ignore marker
    bool Deleted = false;        // review mark: left alone
};

class TgxFoundSourceStrings {
public:
    TgxFoundSourceString& AddItem();
    void Clear() { items_.clear(); }
    void Sort(); // by Position, ascending
    std::size_t Count() const { return items_.size(); }
    TgxFoundSourceString& operator[](std::size_t index) { return *items_[index]; }
    const TgxFoundSourceString& operator[](std::size_t index) const { return *items_[index]; }

private:
    std::vector<std::unique_ptr<TgxFoundSourceString>> items_;
};

enum TStringSkipReason {
    ssrNone,
    ssrBadChars,
    ssrByLine,
    ssrByPhrase,
    ssrByPhrasesRE,
    ssByIgnoreTag,
    ssrComments
};
const char* SkipReasonName(TStringSkipReason reason); // "ssrBadChars"

struct TgxSkippedString {
    std::string Text;          // the value, or for reasons of a whole line the rest of the line
    std::size_t SourcePos = 0; // 1-based place in a source scan, else 0
    std::size_t ConstPos = 0;  // the same in a CONST-section scan
    TStringSkipReason Reason = ssrNone;
    int Line = 0; // 0-based
};

} // namespace glotta
