#include "platform/Error.h"
#include "platform/Form.h"
#include "support/FakeIde.h"

namespace glotta {
namespace {

const std::string formText = "object Form1: TForm1\r\n  object Label1: TLabel\r\n  end\r\nend\r\n";
const std::string moduleText = "object Data: TData\r\nend\r\n";

struct IdeWithProject : FakeIde {
    IdeWithProject() { open.push_back(&project); }
    FakeProject project{"/p/App.dpr", "App"};
};

TEST(Services, TheFirstGroupOrProjectInOrderOfOpeningIsActive) {
    FakeProject one("/p/One.dpr", "One"), two("/p/Two.dpr", "Two"), alone("/p/Alone.dpr", "Alone");
    FakeGroup group("/p/All.bpg", "All"), empty("/p/None.bpg", "None");
    FakeModule unit("/p/Unit1.pas", "Unit1");
    group.projects = {&one, &two};
    group.active = 1;
    const auto active = [](std::vector<IOTAModule*> open) {
        FakeIde ide;
        ide.open = std::move(open);
        const IOTAProject* project = ide.services.GetActiveProject();
        const IOTAProjectGroup* opened = ide.services.GetActiveProjectGroup();
        return (project ? project->Name() : "nil") + " of " + (opened ? opened->Name() : "nil");
    };
    EXPECT_EQ(active({}), "nil of nil");
    EXPECT_EQ(active({&unit}), "nil of nil");
    EXPECT_EQ(active({&unit, &group, &alone}), "Two of All");
    EXPECT_EQ(active({&alone, &unit, &group}), "Alone of All");
    EXPECT_EQ(active({&empty, &alone}), "nil of None");
}

TEST(Services, WithoutAProjectACommandEndsAfterTheMessage) {
    FakeIde ide;
    ide.OpenForm("/p/Unit1.pas", "Form1", formText);
    IdeServices& services = ide.services;
    const std::function<void()> commands[] = {[&] { services.GetModuleFromFileName("/p/Unit1.pas"); },
                                              [&] { services.GetSourceEditorFromFormName("Nowhere"); },
                                              [&] { services.GetUnitSource("/p/Unit1.pas"); },
                                              [&] { services.SaveFile("/p/Unit1.pas"); },
                                              [&] { services.MarkModifiedForm("/p/Unit1.pas"); }};
    for (const auto& command : commands) {
        ide.ui.Message("Project is NIL!");
        EXPECT_THROW(command(), EGlottaSilent);
        EXPECT_EQ(ide.Log(), "Message: Project is NIL! -> OK\n");
    }
}

TEST(Services, FileNamesIgnoreCaseButAnExactOneWins) {
    IdeWithProject ide;
    FakeModule& lower = ide.Open("/p/main.pas", "main");
    FakeModule& upper = ide.Open("/p/Main.pas", "Main");
    EXPECT_EQ(ide.services.GetModuleFromFileName("/p/Main.pas"), &upper);
    EXPECT_EQ(ide.services.GetModuleFromFileName("/p/main.pas"), &lower);
    EXPECT_EQ(ide.services.GetModuleFromFileName("/P/MAIN.PAS"), &lower);
    EXPECT_EQ(ide.services.GetModuleFromFileName("/p/Other.pas"), nullptr);
    EXPECT_TRUE(ide.services.IsFileOpen("/p/MAIN.pas"));
}

TEST(Services, FormNames) {
    IdeWithProject ide;
    FakeModule& first = ide.OpenForm("/p/Unit1.pas", "Form1", formText);
    FakeModule& second = ide.OpenForm("/q/Unit1.pas", "Form1", formText);
    FakeModule& data = ide.OpenForm("/p/Data.pas", "Data", moduleText, "TDataModule");
    FakeModule& listed = ide.Open("/p/Listed.pas", "Listed");
    ide.project.infos.push_back({"Listed", "/p/Listed.pas", "ListedForm", {}, {}, false});
    IdeServices& services = ide.services;

    EXPECT_EQ(services.GetFormIdeModule("Form1"), &second); // the last of two
    EXPECT_EQ(services.GetFormIdeModule("FORM1"), nullptr);
    EXPECT_EQ(services.GetSourceEditorFromFormName("FORM1"), first.source.get());
    EXPECT_EQ(services.GetSourceEditorFromFormName("listedform"), listed.source.get());
    EXPECT_EQ(services.GetDesignerByFormName("Form1"), first.form.get());
    EXPECT_EQ(services.GetDesignerByFormName("form1"), nullptr);
    EXPECT_EQ(services.GetFormEditorFromModule(&data), data.form.get());
    EXPECT_EQ(services.GetSourceEditorFromModule(&data), data.source.get());
    EXPECT_EQ(services.GetFormEditorFromModule(nullptr), nullptr);
    EXPECT_EQ(services.GetFormEditorFromModule(&listed), nullptr);

    EXPECT_EQ(services.GetDesigner(), nullptr);
    ide.forms.items[2].selected = true;
    EXPECT_EQ(services.GetDesigner(), data.form.get());
    EXPECT_EQ(services.GetOwnerByName("Data"), &data.form->Root());
    EXPECT_TRUE(services.IsDataModule("Data"));
    EXPECT_FALSE(services.IsDataModule("Form1"));
    EXPECT_FALSE(services.IsDataModule("Nowhere"));

    services.MarkModifiedForm("/p/data.pas");
    EXPECT_EQ(data.form->timesModified, 1);
}

TEST(Services, AComponentIsFoundOnAFormThatTheIdeCanGive) {
    IdeWithProject ide;
    ide.OpenForm("/p/Unit1.pas", "Form1", formText);
    const auto find = [&](const std::string& form, const std::string& component) {
        const TComponent* found = ide.services.GetComponentOnForm(form, component);
        return (found ? found->Name() : "nil") + "\n" + ide.Log();
    };
    EXPECT_EQ(find("Form1", "LABEL1"), "Label1\n");
    EXPECT_EQ(find("FORM1", "Label1"), "nil\n");
    EXPECT_EQ(find("Form1", "Label2"), "nil\n");

    FormsListItem closed;
    closed.formName = "Closed";
    closed.fileName = "/p/Closed.pas";
    ide.forms.items.push_back(closed);
    const std::string message =
        "Unable to obtain the interface of form module! Please check your project source.";
    const std::string refused = "nil\nopen /p/Closed.pas\nError: " + message + " -> OK\n";
    ide.ui.Message(message).Message(message);
    EXPECT_EQ(find("Closed", "Label1"), refused);
    TForm window;
    window.caption = "Main";
    ide.services.mainWindow = &window;
    EXPECT_EQ(find("Closed", "Label1"), refused + "BringToFront Main\n");
    ide.succeeds = false;
    EXPECT_EQ(find("Closed", "Label1"), "nil\nopen /p/Closed.pas\n");
}

TEST(Services, AnOpenFileIsOpenedAgainOnlyToShowIt) {
    IdeWithProject ide;
    FakeModule& module = ide.Open("/p/Unit1.pas", "Unit1");
    IdeServices& services = ide.services;
    EXPECT_TRUE(services.OpenFile("/p/unit1.pas", false));
    EXPECT_EQ(ide.Log(), "");
    EXPECT_TRUE(services.OpenFile("/p/Unit1.pas", true));
    EXPECT_EQ(ide.Log(), "open /p/Unit1.pas\n");
    EXPECT_TRUE(services.SaveFile("/p/Unit1.pas"));
    EXPECT_EQ(module.timesSaved, 1);
    EXPECT_FALSE(services.SaveFile("/p/Unit2.pas"));
    ide.succeeds = false;
    EXPECT_FALSE(services.OpenFile("/p/Unit2.pas", false));
    EXPECT_FALSE(services.CloseFile("/p/Unit1.pas"));
    EXPECT_EQ(ide.Log(), "open /p/Unit2.pas\nclose /p/Unit1.pas\n");
}

TEST(Services, AUnitIsReadWholeInPieces) {
    IdeWithProject ide;
    FakeSource& source = *ide.Open("/p/Unit1.pas", "Unit1").source;
    for (const std::size_t length : {0u, 1u, 1023u, 1024u, 1025u, 2048u, 5000u}) {
        source.text.clear();
        for (std::size_t i = 0; i < length; ++i)
            source.text += i % 7 ? "x" : "ж";
        EXPECT_EQ(ide.services.GetUnitSource("/p/Unit1.pas"), source.text) << length;
        EXPECT_EQ(ide.Log(), "Progress: Scanning...\nProgress ends\n");
    }
    EXPECT_EQ(source.longestPiece, 1024u);
    EXPECT_EQ(ide.services.GetUnitSource("/p/Closed.pas"), "");
    EXPECT_EQ(ide.Log(), "");
    source.failing = true;
    EXPECT_THROW(ide.services.GetUnitSource("/p/Unit1.pas"), std::runtime_error);
    EXPECT_EQ(ide.Log(), "Progress: Scanning...\nProgress ends\n");
}

TEST(Services, TheSelectionIsReadAndReplaced) {
    IdeWithProject ide;
    EXPECT_EQ(ide.services.GetSelectedSourceText(), "");
    ide.services.ReplaceSelectedSourceText("ignored");
    FakeModule& module = ide.Open("/p/Unit1.pas", "Unit1", "один\r\nдва три\r\n");
    ide.current = &module;
    EXPECT_EQ(ide.services.GetSelectedSourceText(), "");
    module.source->SetBlock({2, 5}, {2, 8});
    EXPECT_EQ(ide.services.GetSelectedSourceText(), "три");
    ide.services.ReplaceSelectedSourceText("<три>");
    EXPECT_EQ(module.source->text, "один\r\nдва <три>\r\n");
}

TEST(Services, LinesAreCountedByPairsOfCrLf) {
    const std::string text = "ж\r\nb\nc\rd\r\n\r\ne";
    const std::pair<std::size_t, int> lines[] = {{0, 1},  {1, 1},  {3, 1},  {4, 2},  {9, 2},
                                                 {10, 2}, {11, 3}, {12, 3}, {13, 4}, {99, 4}};
    for (const auto& [position, line] : lines)
        EXPECT_EQ(IdeServices::GetLineByPos(text, position), line) << position;

    IdeWithProject ide;
    EXPECT_EQ(ide.services.Pos2Line4CurrentSource(1, text), -1);
    FakeModule& module = ide.Open("/p/Unit1.pas", "Unit1", text);
    ide.current = &module;
    module.source->SetBlock({2, 1}, {3, 1});
    EXPECT_EQ(ide.services.Pos2Line4CurrentSource(1, text), 1);
    ide.services.modeMarker = 999;
    EXPECT_EQ(ide.services.Pos2Line4CurrentSource(1, text), 2);
    EXPECT_EQ(ide.services.Pos2Line4CurrentSource(10, text), 4);
}

// The first editor window counts, and in it the first text control, whatever the letter case of the class names.
struct Screen : INTAServices {
    struct Form : INTAForm {
        std::string name;
        std::vector<std::string> components;
        Form(std::string className, std::vector<std::string> classes)
            : name(std::move(className)), components(std::move(classes)) {}
        std::string ClassName() const override { return name; }
        TPopupMenu* FindPopupMenu(std::string_view) override { return nullptr; }
        std::vector<std::string> ComponentClasses() const override { return components; }
    };
    std::vector<Form> forms;
    TMainMenu menu;
    TMainMenu& MainMenu() override { return menu; }
    int FormCount() const override { return static_cast<int>(forms.size()); }
    INTAForm* GetForm(int index) override { return &forms[static_cast<std::size_t>(index)]; }
};

TEST(Services, EditControlClassOfTheFirstEditorWindow) {
    const auto found = [](std::vector<Screen::Form> forms) {
        FakeIde ide;
        Screen screen;
        screen.forms = std::move(forms);
        BorlandIDEServices services{ide, ide};
        services.menus = &screen;
        return IdeServices(services, ide.forms, ide.ui).GetIDEEditControlClass();
    };
    EXPECT_EQ(found({}), "");
    EXPECT_EQ(found({{"TAppBuilder", {"TEditControl"}}}), "");
    EXPECT_EQ(found({{"TAppBuilder", {}}, {"tEditWindow", {"TPanel", "TEDITCONTROL", "TEditControl"}}}), "TEDITCONTROL");
    EXPECT_EQ(found({{"TEditWindow", {"TPanel"}}, {"TEditWindow", {"TEditControl"}}}), "");
}

} // namespace
} // namespace glotta
