// What the walk over an Object Pascal unit knows at one place.
#pragma once
#include "scanner/CallPlacesWalk.h"
#include "scanner/WordTable.h"

namespace glotta::places::pascal_walk {

enum class Word : std::uint8_t {
    None,
    Package,
    Interface,
    Implementation,
    Initialization, // and finalization
    Uses,
    Contains, // and requires
    Exports,
    Const,
    ResourceString,
    Type,
    Var,
    Label,
    Routine,
    Operator,
    Property,
    Class,
    Record,
    Object,
    Packed,
    ClassKind, // abstract, sealed, helper
    For,
    Begin,
    End,
    Case,
    Of,
    To,
    Try,
    Repeat,
    Until,
    Asm,
    External,
    Forward,
    Name, // and index, behind external or in an exports clause
    Message,
    Deprecated,
    Visibility,
};

inline constexpr std::pair<std::string_view, Word> words[] = {
    {"package", Word::Package},
    {"interface", Word::Interface},
    {"dispinterface", Word::Interface},
    {"implementation", Word::Implementation},
    {"initialization", Word::Initialization},
    {"finalization", Word::Initialization},
    {"uses", Word::Uses},
    {"contains", Word::Contains},
    {"requires", Word::Contains},
    {"exports", Word::Exports},
    {"const", Word::Const},
    {"resourcestring", Word::ResourceString},
    {"type", Word::Type},
    {"var", Word::Var},
    {"threadvar", Word::Var},
    {"label", Word::Label},
    {"procedure", Word::Routine},
    {"function", Word::Routine},
    {"constructor", Word::Routine},
    {"destructor", Word::Routine},
    {"operator", Word::Operator},
    {"property", Word::Property},
    {"class", Word::Class},
    {"record", Word::Record},
    {"object", Word::Object},
    {"packed", Word::Packed},
    {"abstract", Word::ClassKind},
    {"sealed", Word::ClassKind},
    {"helper", Word::ClassKind},
    {"for", Word::For},
    {"begin", Word::Begin},
    {"end", Word::End},
    {"case", Word::Case},
    {"of", Word::Of},
    {"to", Word::To},
    {"try", Word::Try},
    {"repeat", Word::Repeat},
    {"until", Word::Until},
    {"asm", Word::Asm},
    {"external", Word::External},
    {"forward", Word::Forward},
    {"name", Word::Name},
    {"index", Word::Name},
    {"message", Word::Message},
    {"deprecated", Word::Deprecated},
    {"platform", Word::Deprecated},
    {"experimental", Word::Deprecated},
    {"private", Word::Visibility},
    {"protected", Word::Visibility},
    {"public", Word::Visibility},
    {"published", Word::Visibility},
    {"strict", Word::Visibility},
    {"automated", Word::Visibility},
};
inline constexpr WordTable<Word, std::size(words), LetterCase::Ignored> wordTable(words);

enum class Frame : std::uint8_t {
    Unit,
    TypeBody, // of a class, record or interface
    Routine,  // heading and local declarations
    Done,     // behind "end."
    // Statement parts
    Begin, // and try
    Case,
    Repeat,
    Asm
};

enum class Section : std::uint8_t {
    None,
    Const,
    ResourceString,
    Var,
    Type,
    Uses,
    Exports,
    Heading,
    Directives,
    External
};

// What stands before a token: a symbol's first character, or one of these.
enum Before : char { Nothing = 0, AWord = 'a', ANumber = '0', ALiteral = '\'', DotDot = 'r', Assign = '!' };

struct State {
    std::uint32_t parent = 0, level = 0;
    std::uint32_t depth = 0;          // of parentheses and brackets in this frame
    std::uint32_t attributeDepth = 0; // of the bracket that opened an attribute
    std::uint32_t firstLabel = 0;     // Case: the first place that may belong to a label
    std::uint32_t constSection = 0;   // the open one, counted from 1
    Frame frame = Frame::Unit;
    Section section = Section::None;
    Word word = Word::None; // before
    char before = Nothing;
    bool inInterface = false, inRoutine = false, inClass = false;
    bool header = false; // TypeBody: nothing but "class(TBase)" seen so far
    bool inAttribute = false;
    bool ofSeen = false, inLabel = false; // Case
    bool inlineConst = false;
    bool inName = false; // Routine: between "procedure" and what follows the name
    bool isPackage = false;
    bool resultIsPChar = false; // of the routine
};

inline bool IsStatement(Frame frame) {
    return frame >= Frame::Begin;
}

} // namespace glotta::places::pascal_walk
