#include "host/ProjectFiles.h"
#include "platform/Error.h"
#include "platform/Text.h"
#include "support/TempFolder.h"

namespace glotta {
namespace {

using Files = std::vector<std::pair<std::string, std::string>>;

std::string Form(const std::string& name) {
    return "object " + name + ": T" + name + "\r\nend\r\n";
}

// Every path relative to the folder of the test.
std::string Relative(std::string text, const TempFolder& folder) {
    return ReplaceStr(text, PathText(folder.Path()) + "/", "");
}

std::string Dump(const ProjectDescription& project, const TempFolder& folder) {
    static const char* const kinds[] = {"program", "library", "package", "cpp"};
    std::string text = kinds[static_cast<int>(project.kind)];
    text += " " + PathText(project.mainSource);
    text += project.codePage ? " " + std::to_string(*project.codePage) + "\n" : "\n";
    const std::vector<IOTAModuleInfo> infos = ModuleInfos(project);
    for (std::size_t i = 0; i < infos.size(); ++i) {
        const IOTAModuleInfo& info = infos[i];
        text += info.unitName + " " + info.fileName + (info.missing ? " missing" : "");
        if (!info.formName.empty()) text += " form " + info.formName;
        if (info.annotatedFormName != info.formName) text += " listed as " + info.annotatedFormName;
        if (!project.entries[i].designClass.empty()) text += " " + project.entries[i].designClass;
        text += (info.formFile.empty() ? "" : " in " + info.formFile) + "\n";
    }
    for (const std::string& problem : project.problems)
        text += "! " + problem + "\n";
    return Relative(text, folder);
}

// The first file is read as project or group; an Error gives its text.
std::string Read(const Files& files) {
    const TempFolder folder;
    for (const auto& [name, bytes] : files)
        folder.Put(name, bytes);
    const std::filesystem::path file = folder.Path() / files.front().first;
    try {
        if (!IsProjectGroupFile(file)) return Dump(ReadProject(file), folder);
        const ProjectGroupDescription group = ReadProjectGroup(file);
        std::string text;
        for (std::size_t i = 0; i < group.projects.size(); ++i)
            text += (static_cast<int>(i) == group.activeIndex ? "* " : "- ") +
                    PathText(group.projects[i].file) + (group.projects[i].missing ? " missing\n" : "\n");
        for (const std::string& problem : group.problems)
            text += "! " + problem + "\n";
        return Relative(text, folder);
    } catch (const Error& error) {
        return Relative(error.what(), folder) + "\n";
    }
}

TEST(ProjectFiles, ADelphiProgramWithEverythingAUsesClauseMayHold) {
    EXPECT_EQ(Read({{"App.dpr", "program App;\r\n"
                                "{ uses Ghost in 'Ghost.pas'; }\r\n"
                                "uses\r\n"
                                "  Forms, // the library's\r\n"
                                "  Main in 'src\\MAIN.PAS' {MainForm},\r\n"
                                "  {$IFDEF DB} Data in 'src\\../Data.pas' {DM: TDataModule}, {$ELSE}\r\n"
                                "  Fake in 'Fake.pas', {$ENDIF}\r\n"
                                "  My.Dotted in 'My.Dotted.pas' { two words },\r\n"
                                "  Plain in 'Plain' (*Odd*), (* Ghost in 'Ghost.pas', *)\r\n"
                                "  Cond in 'Cond.pas' {$IFNDEF CPUX64} {CondForm} {$ENDIF},\r\n"
                                "  Com in 'Com.pas' {Server: CoClass},\r\n"
                                "  Again in 'src\\main.pas',\r\n"
                                "  Gone in 'lib\\Gone.pas' {GoneForm};\r\n"
                                "{$R *.res}\r\n"
                                "begin\r\n  Run('in ''x.pas''');\r\nend.\r\n"},
                    {"src/Main.pas", "unit Main;"},
                    {"src/main.DFM", Form("MainForm2")},
                    {"Data.pas", ""},
                    {"Fake.pas", ""},
                    {"My.Dotted.pas", ""},
                    {"My.Dotted.dfm", Form("Dotted")},
                    {"Plain.pas", ""},
                    {"Cond.pas", ""},
                    {"Com.pas", ""},
                    {"App.dof", "[Version Info]\r\nLocale=1049\r\nCodePage=1251\r\n"}}),
              "program App.dpr 1251\n"
              "Main src/Main.pas form MainForm2 listed as MainForm in src/main.DFM\n"
              "Data Data.pas form DM TDataModule\n"
              "Fake Fake.pas\n"
              "My.Dotted My.Dotted.pas form Dotted listed as  in My.Dotted.dfm\n"
              "Plain Plain.pas form Odd\n"
              "Cond Cond.pas form CondForm\n"
              "Com Com.pas listed as Server CoClass\n"
              "Gone lib/Gone.pas missing form GoneForm\n"
              "! App.dpr: unit 'lib\\Gone.pas' is missing\n");
}

TEST(ProjectFiles, FileNamesAreInTheCodePageOfTheOptions) {
    const std::string dpr = "program P; uses A in '\xC3\xEB.pas';"; // windows-1251
    EXPECT_EQ(Read({{"P.dpr", dpr}, {"P.dof", "CodePage=1251"}, {"Гл.pas", ""}}),
              "program P.dpr 1251\nA Гл.pas\n");
    EXPECT_EQ(Read({{"P.dpr", dpr}, {"Ãë.pas", ""}}), "program P.dpr\nA Ãë.pas\n");
    EXPECT_EQ(Read({{"P.bpr", "[Version Info]\nCodePage=1251\n"},
                    {"P.cpp", "USEUNIT(\"\xC3\xEB.cpp\");"},
                    {"гл.cpp", ""}}),
              "cpp P.cpp 1251\nГл гл.cpp\n");
}

TEST(ProjectFiles, APackageListsWhatItContains) {
    EXPECT_EQ(
        Read({{"Pack.dpk", "package Pack;\nrequires vcl, rtl;\ncontains\n A in 'A.pas',\n B in 'B';\nend."},
              {"A.pas", ""},
              {"B.pas", ""},
              {"Pack.dproj", "<Project><DCCReference Include='b.PAS'><Form>BF</Form>"
                             "<DesignClass>TFrame</DesignClass></DCCReference>"
                             "<DCCReference Include='C.pas'/></Project>"}}),
        "package Pack.dpk\nA A.pas\nB B.pas form BF TFrame\n");
    EXPECT_EQ(
        Read({{"Lib.DPR", "library Lib; function contains(a: T): T; uses A in 'A.pas'"}, {"A.pas", ""}}),
        "library Lib.DPR\nA A.pas\n");
}

TEST(ProjectFiles, TheUnitDecidesBetweenTwoFormFiles) {
    const auto formOf = [](const std::string& unit) {
        return Read({{"P.dpr", "program P; uses U in 'U.pas';"},
                     {"U.pas", unit},
                     {"U.dfm", Form("Vcl")},
                     {"U.XFM", Form("Clx")}});
    };
    const std::string vcl = "program P.dpr\nU U.pas form Vcl listed as  in U.dfm\n";
    const std::string clx = "program P.dpr\nU U.pas form Clx listed as  in U.XFM\n";
    EXPECT_EQ(formOf("unit U; {$R *.xfm}"), clx);
    EXPECT_EQ(formOf("unit U; {$r *.XFM}"), clx);
    EXPECT_EQ(formOf("unit U; { {$R *.xfm} {$R *.dfm}"), vcl);
    EXPECT_EQ(formOf("unit U; {$IFDEF LINUX}{$R *.xfm}{$ELSE}{$R *.dfm}{$ENDIF}"), vcl);
    EXPECT_EQ(formOf("unit U; s = '{$R *.xfm}'"), vcl);
}

TEST(ProjectFiles, TheMainSourceOfADelphiProjectFileIsTheAuthority) {
    const std::string dproj = "<Project xmlns='http://x'><PropertyGroup><MainSource>App.dpr</MainSource>\n"
                              "<DCC_CodePage>65001</DCC_CodePage></PropertyGroup><ItemGroup>"
                              "<DelphiCompile Include='$(MainSource)'/>"
                              "<DCCReference Include='rtl.dcp'/>"
                              "<DCCReference Include='A.pas'><Form>FormA</Form></DCCReference>"
                              "<DCCReference Include='B%20b.pas'><Form>$IFNDEF CPUX64</Form></DCCReference>"
                              "</ItemGroup></Project>";
    const Files units = {{"A.pas", ""}, {"B b.pas", ""}, {"C.pas", ""}};
    const auto with = [&](Files files) {
        files.insert(files.end(), units.begin(), units.end());
        return Read(files);
    };
    EXPECT_EQ(with({{"App.dproj", dproj}, {"App.dpr", "library App; uses C in 'C.pas', A in 'A.pas';"}}),
              "library App.dpr 65001\nC C.pas\nA A.pas form FormA\n");
    EXPECT_EQ(with({{"App.dproj", dproj}}), "program  65001\nA A.pas form FormA\nB b B b.pas\n"
                                            "! App.dproj: main source 'App.dpr' is missing\n");
    EXPECT_EQ(with({{"P.bdsproj", "<BorlandProject><Delphi.Personality><Source>\n"
                                  "<Source Name='MainSource'>sub\\p.dpk</Source></Source><VersionInfo>"
                                  "<VersionInfo Name='CodePage'>1250</VersionInfo></VersionInfo>"
                                  "</Delphi.Personality></BorlandProject>"},
                    {"sub/P.dpk", "package P; contains A in '..\\a.pas';"}}),
              "package sub/P.dpk 1250\nA A.pas\n");
}

TEST(ProjectFiles, CppBuilderProjectsOfEveryGeneration) {
    const std::string source = "#include <vcl.h>\n#define USEFORM(a, b)\n// USEUNIT(\"Ghost.cpp\");\n"
                               "USEFORM(\"Main.cpp\", MainForm);\nUSERES(\"App.res\");\n"
                               "USEDATAMODULE(\"sub\\data.cpp\", Data);\n"
                               "USEFORMNS(\"Pas.pas\", Pas, Frame1); /* TFrame: File Type */\n"
                               "USEUNIT(\"Gone.cpp\");\nint WinMain() { }\n";
    const Files units = {{"App.cpp", source},  {"Main.cpp", ""}, {"Main.dfm", Form("MainForm")},
                         {"sub/Data.cpp", ""}, {"Pas.pas", ""},  {"Extra.cpp", ""}};
    const auto with = [&](const std::string& name, const std::string& text) {
        Files files = {{name, text}};
        files.insert(files.end(), units.begin(), units.end());
        return Read(files);
    };
    const std::string rest = "data sub/Data.cpp form Data TDataModule\nPas Pas.pas form Frame1 TFrame\n"
                             "Gone Gone.cpp missing\n";
    const std::string main = "Main Main.cpp form MainForm in Main.dfm\n";
    EXPECT_EQ(Read(units), "cpp App.cpp\n" + main + rest + "! App.cpp: unit 'Gone.cpp' is missing\n");
    EXPECT_EQ(with("App.bpr", "# makefile\n!if !$d(BCB)\nOBJFILES = Main.obj \\\n  data.obj\n"
                              "MAINSOURCE = app.cpp\n[Version Info]\nCodePage=936\n"),
              "cpp App.cpp 936\n" + main + rest + "! App.bpr: unit 'Gone.cpp' is missing\n");
    EXPECT_EQ(with("App.bpk",
                   "<?xml version='1.0'?>\n<PROJECT><MACROS><MAINSOURCE value='Lost.cpp'/></MACROS>\n"
                   "<FILELIST><FILE FILENAME='App.cpp' FORMNAME='' UNITNAME='App'/>\n"
                   "<FILE FILENAME='App.res' UNITNAME='App'/>"
                   "<FILE FILENAME='EXTRA.CPP' FORMNAME='ExtraForm' UNITNAME='Extra' "
                   "DESIGNCLASS='TFrame'/></FILELIST>"
                   "<IDEOPTIONS><![CDATA[\n[Version Info]\nCodePage=1251\n]]></IDEOPTIONS></PROJECT>"),
              "cpp App.cpp 1251\nExtra Extra.cpp form ExtraForm TFrame\n" + main + rest +
                  "! App.bpk: main source 'Lost.cpp' is missing\n! App.bpk: unit 'Gone.cpp' is missing\n");
    EXPECT_EQ(
        with("App.cbproj", "\xEF\xBB\xBF<Project><PropertyGroup><MainSource>App.cpp</MainSource>"
                           "</PropertyGroup><ItemGroup><CppCompile Include='App.cpp'/>"
                           "<CppCompile Include='extra.cpp;Main.cpp'><DependentOn>Extra.h</DependentOn>"
                           "</CppCompile><FormResources Include='Main.dfm'/>"
                           "<DelphiCompile Include='Pas.pas'><Form>Frame1</Form></DelphiCompile>"
                           "</ItemGroup></Project>"),
        "cpp App.cpp\nextra Extra.cpp\n" + main +
            "Pas Pas.pas form Frame1 TFrame\ndata sub/Data.cpp form Data TDataModule\nGone Gone.cpp missing\n"
            "! App.cbproj: unit 'Gone.cpp' is missing\n");
}

TEST(ProjectFiles, Groups) {
    const Files projects = {{"a/A.dpr", ""}, {"b b/B.bpr", ""}, {"C.dproj", ""}};
    const auto with = [&](const std::string& name, const std::string& text) {
        Files files = {{name, text}};
        files.insert(files.end(), projects.begin(), projects.end());
        return Read(files);
    };
    EXPECT_EQ(with("All.bpg",
                   "VERSION = BWS.01\n#------\n!ifndef ROOT\nROOT = $(MAKEDIR)\\..\n!endif\n"
                   "PROJECTS = Gone.exe B.exe \\\n  A.exe my c.exe\n#------\n"
                   "default: $(PROJECTS)\n\nmy c.exe: c.DPROJ\n  $(DCC)\n\nA.exe: a\\a.dpr\n  $(DCC)\n\n"
                   "B.exe: b b\\B.bpr\n  $(ROOT)\\bin\\bpr2mak $**\n\nGone.exe: x\\Gone.dpr\n"),
              "- x/Gone.dpr missing\n* b b/B.bpr\n- a/A.dpr\n- C.dproj\n"
              "! All.bpg: project 'x\\Gone.dpr' is missing\n");
    EXPECT_EQ(with("All.bdsgroup", "<BorlandProject><Projects ActiveProject='A.exe'>\n"
                                   "<Projects Name='C.exe'>C.dproj</Projects>\n"
                                   "<Projects Name='A.exe'>A\\A.dpr</Projects></Projects></BorlandProject>"),
              "- C.dproj\n* a/A.dpr\n");
    EXPECT_EQ(with("All.groupproj",
                   "<Project><ItemGroup><Projects Include='C.dproj'/><Projects Include='a\\a.dpr'>"
                   "<Dependencies/></Projects></ItemGroup><Target Name='C'>"
                   "<MSBuild Projects='Other.dproj'/></Target></Project>"),
              "* C.dproj\n- a/A.dpr\n");
    EXPECT_EQ(with("All.groupproj",
                   "<Project><ItemGroup /><Target Name='C'><MSBuild Projects='C.dproj'/></Target>"
                   "<Target Name='C:Clean'><MSBuild Projects='c.dproj' Targets='Clean'/></Target>"
                   "<Target Name='A'><MSBuild Projects='a\\A.dpr'/></Target></Project>"),
              "* C.dproj\n- a/A.dpr\n");
}

TEST(ProjectFiles, AProjectFileThatCannotBeReadIsAnError) {
    EXPECT_EQ(Read({{"template.dproj", "<Project>\n  <A>\n<%%% BEGIN %%%>\n</Project>"}}),
              "template.dproj: line 3: not well-formed XML: Could not determine tag type\n");
    EXPECT_EQ(Read({{"All.groupproj", "<Project>\n"}}),
              "All.groupproj: line 1: not well-formed XML: Start-end tags mismatch\n");
    EXPECT_EQ(Read({{"Main.pas", "unit Main;"}}), "Main.pas: not a Delphi or C++Builder project\n");
    EXPECT_EQ(
        Read({{"App.dpr", "program App; uses A in 'A.pas';"}, {"A.pas", ""}, {"App.dproj", "<"}}),
        "program App.dpr\nA A.pas\n! App.dproj: line 1: not well-formed XML: Could not determine tag type\n");
    EXPECT_THROW(ReadProject("/nowhere/App.dpr"), Error);
    const TempFolder folder;
    EXPECT_TRUE(IsProjectFile(folder.Put("App.cpp", "USEFORM(\"Main.cpp\", Form1);")));
    EXPECT_FALSE(IsProjectFile(folder.Put("Main.cpp", "// USEFORM(\"Main.cpp\", Form1);")));
}

} // namespace
} // namespace glotta
