// The expert's settings as values; ExpertSettings reads and writes them.
#pragma once
#include "platform/StringList.h"

#include <cstdint>
#include <string>

namespace glotta {

struct SettingsValues {
    int CnstPermanent = 0; // identifiers from constants: 0 as written, 1 upper case
    std::string CnstPrefix = "str";
    std::string HCPrefix = "IDS_";
    bool AddFormName = false;
    std::string ReplaceMethod = "GetTextOrDefault(";
    int IgnorableLength = 0; // 1 once read
    int SortOrder = 0;       // -1 once read
    int SortedColumn = 0;
    std::string Delimiter;
    std::string DefaultLangNames; // lines joined by CR LF
    int CommentsLength = 0;       // 0: uncut
    bool EmptyConstsValues = true;
    std::string ExcludeChars = "\\|/?><.,\":;]}[{=+-_)(!@#$%^&*`~' ";
    TStringList SkipLines;
    TStringList SkipWords;
    std::string ColumnWidths;
    int LastFilterIndex = 1;
    bool UseRegExpForSkip = false;
    int PreviewLines = 0; // 5 once read
    bool NoCommentsInSources = false;
    std::string MultiProjFolder;
    bool MultiProjUseTemplate = false;
    std::string MultiProjFileName;
    std::string MultiProjTemplate;
    int NumLang = 2;
    std::uint16_t ShortCut = 0; // virtual key plus modifier bits; Ctrl+L once constructed
    std::string MenuSection = "ToolsMenu";
    std::string UserFile;
    bool UseCustom = false;
    bool OpenAllForms = false;
    std::string DefaultComp = "TGlotta";
};

} // namespace glotta
