// What the review keeps from one time to the next.
#include "platform/RegistryStore.h"
#include "platform/StringList.h"
#include "scanner/_scan.h"
#include "settings/ExpertSettings.h"

namespace glotta {

namespace {

const std::string Section = "FoundStrings";

std::string WidthsText(const std::vector<int>& widths) {
    TStringList list;
    for (const int width : widths)
        list.Add(std::to_string(width));
    return list.CommaText();
}

// A width that is no number makes the whole list worthless.
std::vector<int> WidthsOf(const std::string& text) {
    TStringList list;
    list.SetCommaText(text);
    std::vector<int> widths;
    for (const std::string& width : list) {
        if (width.empty() || width.size() > 5 || width.find_first_not_of("0123456789") != std::string::npos)
            return {};
        widths.push_back(std::stoi(width));
    }
    return widths;
}

} // namespace

void TfrmFound::LoadState() {
    const TRegIniFile ini(context_.registry, std::string(BaseRegistryKey));
    GridCols.Set(WidthsOf(ini.ReadString(Section, "GridCols", {})));
    pnNotice.Show(ini.ReadBool(Section, "NoticeVisible", true));
    PreviewHeight.Set(ini.ReadInteger(Section, "PreviewHeight", 0));
    excludeRowsTypedStr_ = ini.ReadString(Section, "ExcludeRowsTypedStr", {});
}

void TfrmFound::SaveState() {
    TRegIniFile ini(context_.registry, std::string(BaseRegistryKey));
    if (!GridCols().empty()) ini.WriteString(Section, "GridCols", WidthsText(GridCols()));
    ini.WriteBool(Section, "NoticeVisible", pnNotice.Visible());
    if (PreviewHeight() > 0) ini.WriteInteger(Section, "PreviewHeight", PreviewHeight());
    ini.WriteString(Section, "ExcludeRowsTypedStr", excludeRowsTypedStr_);
}

} // namespace glotta
