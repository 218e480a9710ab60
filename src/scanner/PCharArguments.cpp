#include "scanner/PCharArguments.h"

#include "platform/Text.h"
#include "scanner/TextMacro.h"

#include <iterator>
#include <string>
#include <unordered_map>

namespace glotta {
namespace {

// Positions of arguments, from 0.
constexpr std::uint32_t At(auto... positions) {
    return ((std::uint32_t{1} << positions) | ...);
}
constexpr std::uint32_t All = ~std::uint32_t{0};

struct Routine {
    std::string_view name;
    std::uint32_t pointers;
    bool cppOnly = false;
};

// Names with A or W behind them are meant too. Where a method and a routine share a name (MessageBox,
// TextOut), the positions are those of both, but for what is a string in one of them.
constexpr Routine routines[] = {
    // Windows: dialogs and windows
    {"MessageBox", At(0, 1, 2)},
    {"MessageBoxEx", At(1, 2)},
    {"FatalAppExit", At(1)},
    {"ShellAbout", At(1, 2)},
    {"FindWindow", At(0, 1)},
    {"FindWindowEx", At(2, 3)},
    {"CreateWindow", At(0, 1)},
    {"CreateWindowEx", At(1, 2)},
    {"SetWindowText", At(1)},
    {"SetDlgItemText", At(2)},
    {"SetProp", At(1)},
    {"GetProp", At(1)},
    {"RemoveProp", At(1)},
    {"SendMessage", At(3)},
    {"PostMessage", At(3)},
    {"SendDlgItemMessage", At(4)},
    {"RegisterWindowMessage", At(0)},
    {"RegisterClipboardFormat", At(0)},
    {"AppendMenu", At(3)},
    {"InsertMenu", At(4)},
    {"ModifyMenu", At(4)},
    {"WinHelp", At(1)},
    {"HtmlHelp", At(1)},
    // Drawing
    {"TextOut", At(3)},
    {"ExtTextOut", At(5)},
    {"TabbedTextOut", At(3)},
    {"DrawText", At(1)},
    {"DrawTextEx", At(1)},
    {"GetTextExtentPoint", At(1)},
    {"GetTextExtentPoint32", At(1)},
    {"CreateFont", At(13)},
    {"CreateDC", At(0, 1, 2)},
    {"AddFontResource", At(0)},
    // Programs, libraries and resources
    {"ShellExecute", At(1, 2, 3, 4)},
    {"WinExec", At(0)},
    {"CreateProcess", At(0, 1, 7)},
    {"LoadLibrary", At(0)},
    {"LoadLibraryEx", At(0)},
    {"GetModuleHandle", At(0)},
    {"GetProcAddress", At(1)},
    {"LoadIcon", At(1)},
    {"LoadCursor", At(1)},
    {"LoadBitmap", At(1)},
    {"LoadImage", At(1)},
    {"LoadMenu", At(1)},
    {"FindResource", At(1, 2)},
    {"ExtractIcon", At(1)},
    {"OutputDebugString", At(0)},
    {"SetConsoleTitle", At(0)},
    {"sndPlaySound", At(0)},
    {"PlaySound", At(0)},
    {"mciSendString", At(0)},
    // Files and what else has a name
    {"CreateFile", At(0)},
    {"DeleteFile", At(0)},
    {"CopyFile", At(0, 1)},
    {"MoveFile", At(0, 1)},
    {"MoveFileEx", At(0, 1)},
    {"CreateDirectory", At(0)},
    {"RemoveDirectory", At(0)},
    {"GetFileAttributes", At(0)},
    {"SetFileAttributes", At(0)},
    {"GetTempFileName", At(0, 1)},
    {"SetEnvironmentVariable", At(0, 1)},
    {"ExpandEnvironmentStrings", At(0)},
    {"CreateMutex", At(2)},
    {"OpenMutex", At(2)},
    {"CreateEvent", At(3)},
    {"OpenEvent", At(2)},
    {"CreateSemaphore", At(3)},
    {"CreateFileMapping", At(5)},
    {"OpenFileMapping", At(2)},
    {"GlobalAddAtom", At(0)},
    {"GlobalFindAtom", At(0)},
    {"OpenService", At(1)},
    // Settings
    {"GetPrivateProfileString", At(0, 1, 2, 5)},
    {"GetPrivateProfileInt", At(0, 1, 3)},
    {"WritePrivateProfileString", At(0, 1, 2, 3)},
    {"GetProfileString", At(0, 1, 2)},
    {"WriteProfileString", At(0, 1, 2)},
    {"RegOpenKey", At(1)},
    {"RegOpenKeyEx", At(1)},
    {"RegCreateKey", At(1)},
    {"RegCreateKeyEx", At(1)},
    {"RegDeleteKey", At(1)},
    {"RegDeleteValue", At(1)},
    {"RegQueryValue", At(1)},
    {"RegQueryValueEx", At(1)},
    {"RegSetValue", At(1, 3)},
    {"RegSetValueEx", At(1, 4)},
    // Strings that a null ends
    {"lstrcpy", At(1)},
    {"lstrcat", At(1)},
    {"lstrcmp", At(0, 1)},
    {"lstrcmpi", At(0, 1)},
    {"lstrlen", At(0)},
    {"StrCopy", At(1)},
    {"StrECopy", At(1)},
    {"StrLCopy", At(1)},
    {"StrMove", At(1)},
    {"StrCat", At(1)},
    {"StrLCat", At(1)},
    {"StrComp", At(0, 1)},
    {"StrIComp", At(0, 1)},
    {"StrLComp", At(0, 1)},
    {"StrLIComp", At(0, 1)},
    {"AnsiStrComp", At(0, 1)},
    {"AnsiStrIComp", At(0, 1)},
    {"AnsiStrLComp", At(0, 1)},
    {"AnsiStrLIComp", At(0, 1)},
    {"AnsiStrPos", At(0, 1)},
    {"StrPos", At(0, 1)},
    {"StrScan", At(0)},
    {"StrRScan", At(0)},
    {"StrLen", At(0)},
    {"StrEnd", At(0)},
    {"StrNew", At(0)},
    {"StrPas", At(0)},
    {"StrFmt", At(1)},
    {"StrLFmt", At(2)},
    // The C library
    {"printf", All, true},
    {"fprintf", All, true},
    {"sprintf", All, true},
    {"snprintf", All, true},
    {"wsprintf", All, true},
    {"cat_sprintf", All, true},
    {"cat_printf", All, true},
    {"scanf", All, true},
    {"sscanf", All, true},
    {"fscanf", All, true},
    {"puts", All, true},
    {"fputs", All, true},
    {"perror", All, true},
    {"fopen", All, true},
    {"freopen", All, true},
    {"open", All, true},
    {"access", All, true},
    {"remove", All, true},
    {"unlink", All, true},
    {"rename", All, true},
    {"system", All, true},
    {"getenv", All, true},
    {"putenv", All, true},
    {"strcpy", All, true},
    {"strncpy", All, true},
    {"strcat", All, true},
    {"strncat", All, true},
    {"strcmp", All, true},
    {"strncmp", All, true},
    {"stricmp", All, true},
    {"strcmpi", All, true},
    {"strnicmp", All, true},
    {"strcasecmp", All, true},
    {"strstr", All, true},
    {"strchr", All, true},
    {"strrchr", All, true},
    {"strpbrk", All, true},
    {"strspn", All, true},
    {"strcspn", All, true},
    {"strtok", All, true},
    {"strlen", All, true},
    {"strdup", All, true},
    {"memcmp", All, true},
    {"memcpy", All, true},
    {"atoi", All, true},
    {"atof", All, true},
};
constexpr std::uint8_t OwnRoutine = 255;
static_assert(std::size(routines) < OwnRoutine);

using Numbers = std::unordered_map<std::string_view, std::uint8_t, TextHash, TextEqual>;

std::uint8_t NumberOf(std::string_view name, bool isCpp) {
    static const Numbers numbers = [] {
        Numbers result;
        for (const Routine& routine : routines)
            result.emplace(routine.name, static_cast<std::uint8_t>(result.size() + 1));
        return result;
    }();
    auto found = numbers.find(name);
    if (found == numbers.end() && (name.ends_with('A') || name.ends_with('W')))
        found = numbers.find(name.substr(0, name.size() - 1));
    if (found == numbers.end() || (!isCpp && routines[found->second - 1].cppOnly)) return 0;
    return found->second;
}

} // namespace

void PCharArguments::TakeSymbol(char symbol) {
    switch (symbol) {
    case '(':
        open_.push_back(Opened());
        break;
    case '[':
        open_.emplace_back();
        break;
    case ')':
    case ']':
        if (!open_.empty()) open_.pop_back();
        break;
    case ',':
        if (!open_.empty()) ++open_.back().argument;
        break;
    case ';':
    case '{':
    case '}':
        open_.clear();
        break;
    default:
        break;
    }
    word_ = {};
}

// A parenthesis that only groups changes nothing. In C/C++ what it groups is mostly made a pointer behind it.
PCharArguments::Group PCharArguments::Opened() const {
    const bool groups = isCpp_ ? IsTextMacro(word_) : word_.empty();
    if (!groups) return {word_};
    return open_.empty() ? Group() : open_.back();
}

std::uint8_t PCharArguments::Routine() const {
    if (open_.empty() || open_.back().routine.empty() || open_.back().argument > 31) return 0;
    const std::uint8_t number = NumberOf(open_.back().routine, isCpp_);
    if (!number && own_.IsParameter(open_.back().routine, open_.back().argument)) return OwnRoutine;
    return number && (routines[number - 1].pointers >> open_.back().argument & 1) ? number : 0;
}

std::string_view PCharArguments::Note(std::uint8_t routine, bool isCpp) {
    static const auto notes = [] {
        std::vector<std::string> result;
        for (bool cpp : {false, true})
            for (const glotta::Routine& each : routines)
                result.push_back("argument of " + std::string(each.name) +
                                 (cpp ? " is a char pointer: add .c_str() to the call"
                                      : " is a PChar: typecast the call"));
        return result;
    }();
    if (routine == OwnRoutine)
        return isCpp ? "argument is a char pointer: add .c_str() to the call"
                     : "argument is a PChar: typecast the call";
    return notes[routine - 1u + (isCpp ? std::size(routines) : 0)];
}

} // namespace glotta
