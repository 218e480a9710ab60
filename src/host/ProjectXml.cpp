#include "host/ProjectListing.h"
#include "platform/Error.h"
#include "platform/Text.h"

#include <array>
#include <charconv>
#include <pugixml.hpp>

namespace glotta {
namespace {

pugi::xml_document Parse(std::string_view text, const std::string& fileName) {
    pugi::xml_document document;
    const auto result =
        document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    if (!result) {
        const auto offset = std::min(static_cast<std::size_t>(result.offset), text.size());
        const auto line =
            1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(offset), '\n');
        throw Error(fileName + ": line " + std::to_string(line) +
                    ": not well-formed XML: " + result.description());
    }
    return document;
}

// Every element in document order, without recursion into hostile depths.
template <class Visit> void ForEachElement(pugi::xml_document& document, Visit visit) {
    struct Walker : pugi::xml_tree_walker {
        explicit Walker(Visit& given) : visit(given) {}
        bool for_each(pugi::xml_node& node) override {
            if (node.type() == pugi::node_element) visit(node, std::string_view(node.name()));
            return true;
        }
        Visit& visit;
    } walker(visit);
    document.traverse(walker);
}

std::string_view Attribute(const pugi::xml_node& node, const char* name) {
    return node.attribute(name).value();
}

std::string_view IdentifierOrNothing(std::string_view text) {
    text = Trim(text);
    return IsIdentifier(text) ? text : std::string_view{};
}

std::optional<unsigned> Number(std::string_view text) {
    unsigned value = 0;
    text = Trim(text);
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    return parsed.ec == std::errc() && value > 0 ? std::optional(value) : std::nullopt;
}

// MSBuild writes special characters as %hh.
std::string Unescape(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned code = 0;
        const bool escaped =
            text[i] == '%' && i + 2 < text.size() &&
            std::from_chars(&text[i + 1], &text[i + 1] + 2, code, 16).ptr == &text[i + 1] + 2;
        result += escaped ? static_cast<char>(code) : text[i];
        i += escaped ? 2 : 0;
    }
    return result;
}

// The paths of an MSBuild item list. Items made of a macro name no file.
std::vector<std::string> Items(std::string_view list) {
    std::vector<std::string> items;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(';'), list.size());
        const std::string_view item = Trim(list.substr(0, end));
        if (!item.empty() && !item.starts_with("$(")) items.push_back(Unescape(item));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return items;
}

bool IsUnitPath(std::string_view path) {
    constexpr std::array<std::string_view, 5> extensions = {".pas", ".cpp", ".c", ".cc", ".cxx"};
    return std::find(extensions.begin(), extensions.end(), LowerExtension(path)) != extensions.end();
}

void AddMsBuildUnits(const pugi::xml_node& node, std::vector<ListedUnit>& units) {
    for (std::string& path : Items(Attribute(node, "Include")))
        if (IsUnitPath(path)) {
            std::string stem = WrittenStem(path);
            units.push_back({std::move(stem), std::move(path),
                             std::string(IdentifierOrNothing(node.child_value("Form"))),
                             std::string(IdentifierOrNothing(node.child_value("DesignClass")))});
        }
}

// <FILE FILENAME= FORMNAME= UNITNAME= DESIGNCLASS=> of the C++Builder XML projects.
void AddFile(const pugi::xml_node& node, std::vector<ListedUnit>& units) {
    const std::string path(Trim(Attribute(node, "FILENAME")));
    if (!IsUnitPath(path)) return;
    const std::string_view name = Trim(Attribute(node, "UNITNAME"));
    units.push_back({name.empty() ? WrittenStem(path) : std::string(name), path,
                     std::string(IdentifierOrNothing(Attribute(node, "FORMNAME"))),
                     std::string(IdentifierOrNothing(Attribute(node, "DESIGNCLASS")))});
}

void ReadElement(const pugi::xml_node& node, std::string_view name, ProjectListing& result) {
    const auto setMain = [&](std::string_view value) {
        if (result.mainSource.empty() && !Trim(value).empty()) result.mainSource = Unescape(Trim(value));
    };
    if (name == "MainSource" && std::string_view(node.parent().name()) == "PropertyGroup")
        setMain(node.child_value());
    else if (name == "Source" && Attribute(node, "Name") == "MainSource")
        setMain(node.child_value());
    else if (name == "MAINSOURCE")
        setMain(Attribute(node, "value"));
    else if (name == "DCCReference" || name == "DelphiCompile" || name == "CppCompile")
        AddMsBuildUnits(node, result.units);
    else if (name == "FILE")
        AddFile(node, result.units);
    else if (name == "DCC_CodePage" || Attribute(node, "Name") == "CodePage")
        result.codePage = result.codePage ? result.codePage : Number(node.child_value());
    else if (name == "IDEOPTIONS")
        result.codePage = FindCodePageLine(node.child_value());
}

} // namespace

ProjectListing ListXmlProject(std::string_view text, const std::string& fileName) {
    pugi::xml_document document = Parse(text, fileName);
    ProjectListing result;
    ForEachElement(document, [&](const pugi::xml_node& node, std::string_view name) {
        ReadElement(node, name, result);
    });
    return result;
}

GroupListing ListXmlGroup(std::string_view text, const std::string& fileName) {
    pugi::xml_document document = Parse(text, fileName);
    GroupListing result;
    std::vector<GroupListing::Project> built; // by the build targets, where nothing else lists projects
    const auto addItems = [](std::vector<GroupListing::Project>& to, std::string_view list) {
        for (std::string& path : Items(list))
            to.push_back({WrittenStem(path), path});
    };
    ForEachElement(document, [&](const pugi::xml_node& node, std::string_view name) {
        if (name == "MSBuild") addItems(built, Attribute(node, "Projects"));
        if (name != "Projects") return;
        addItems(result.projects, Attribute(node, "Include"));
        if (const std::string_view active = Attribute(node, "ActiveProject"); !active.empty())
            result.active = active;
        if (const std::string_view output = Attribute(node, "Name"); !output.empty())
            result.projects.push_back({std::string(output), std::string(Trim(node.child_value()))});
    });
    if (result.projects.empty()) result.projects = std::move(built);
    return result;
}

} // namespace glotta
