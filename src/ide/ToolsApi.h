// The IDE as the expert sees it. A host implements these; the expert calls nothing else of it. Pointers are the
// host's: valid while the object they name is open; nil means "not there". Text is UTF-8 with CR LF line ends.
#pragma once
#include "platform/Encoding.h"
#include "vcl/Component.h"
#include "vcl/Menu.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glotta {

class IOTAModule;

class IOTAEditReader {
public:
    virtual ~IOTAEditReader() = default;
    // At most `count` characters from the 0-based character `position` on. Reading on in order costs no re-decoding.
    virtual std::string GetText(std::size_t position, std::size_t count) = 0;
};

// One undoable change of a buffer. Positions are 0-based characters of the text before the change and only grow.
// The change takes effect, as one undo step, when the writer is destroyed; what was not copied yet is kept.
class IOTAEditWriter {
public:
    virtual ~IOTAEditWriter() = default;
    virtual void CopyTo(std::size_t position) = 0;
    virtual void DeleteTo(std::size_t position) = 0;
    virtual void Insert(std::string_view text) = 0;
};

// 1-based line and column, columns in characters.
struct EditPos {
    int line = 1;
    int column = 1;
    auto operator<=>(const EditPos&) const = default;
};

class IOTAEditView {
public:
    virtual ~IOTAEditView() = default;
    virtual EditPos CursorPos() const = 0;
    virtual void SetCursorPos(EditPos position) = 0;
    // The block selection [start, after); both equal when nothing is selected.
    virtual EditPos BlockStart() const = 0;
    virtual EditPos BlockAfter() const = 0;
    virtual void SetBlock(EditPos start, EditPos after) = 0;
    // Scrolls so that the line shows.
    virtual void Center(int line) = 0;
    virtual int TopLine() const = 0;
};

class IOTAEditor {
public:
    virtual ~IOTAEditor() = default;
    virtual std::string FileName() const = 0;
    virtual bool Modified() const = 0;
    virtual void Show() = 0;
    virtual IOTAModule& Module() = 0;
};

class IOTASourceEditor : public IOTAEditor {
public:
    virtual std::unique_ptr<IOTAEditReader> CreateReader() = 0;
    virtual std::unique_ptr<IOTAEditWriter> CreateUndoableWriter() = 0;
    virtual IOTAEditView& View() = 0;
    // 0-based character position of a place, and back.
    virtual std::size_t PosToOffset(EditPos position) const = 0;
    virtual EditPos OffsetToPos(std::size_t offset) const = 0;
    virtual bool Undo() = 0; // false when there is nothing to undo
    virtual bool Redo() = 0;
};

// What an event of a class looks like: its parameter lists. Empty ones for a plain procedure.
struct MethodType {
    std::string pascalParameters; // "Sender: TObject"
    std::string cppParameters;    // "TObject *Sender"
};

class IDesigner {
public:
    virtual ~IDesigner() = default;
    virtual TComponent& Root() = 0;
    // Declares the method in the form class and adds an empty body to the unit. A method of that name that is there
    // already is returned instead (Object Pascal ignores letter case). The result is the method's name as declared.
    virtual std::string CreateMethod(const std::string& name, const MethodType& type) = 0;
    virtual void ShowMethod(const std::string& name) = 0;
    virtual void SelectComponent(TComponent* component) = 0;
    virtual TComponent* SelectedComponent() = 0;
    virtual void Modified() = 0;
};

class IOTAFormEditor;

class IOTAComponent {
public:
    virtual ~IOTAComponent() = default;
    virtual int GetComponentCount() = 0;
    virtual IOTAComponent* GetComponent(int index) = 0;
    virtual TComponent* GetComponentHandle() = 0;
};

class IOTAFormEditor : public IOTAEditor {
public:
    virtual IOTAComponent* GetRootComponent() = 0;
    // Creates a component of the class on the root, with the field in the form class and the unit in `uses` (C++: the
    // member and the #include), named as the IDE names components. Throws Error when the form cannot take it.
    virtual TComponent& CreateComponent(const std::string& className) = 0;
    // Takes a component off the form, and its field out of the form class; `uses` stays.
    virtual void DeleteComponent(TComponent& component) = 0;
    virtual void MarkModified() = 0;
    virtual void MarkTakenBack() {} // all changes since it was saved were undone from outside
    virtual IDesigner& Designer() = 0;
};

// What every notifier hears of the object that it is registered with.
class IOTANotifier {
public:
    virtual ~IOTANotifier() = default;
    virtual void AfterSave() {}
    virtual void BeforeSave() {}
    virtual void Destroyed() {} // the object goes away: the notifier is no longer registered afterwards
    virtual void Modified() {}
};

// Events of an open module and its form.
class IOTAModuleNotifier : public IOTANotifier {
public:
    virtual void FormActivated() {}
    virtual void FormSaving() {}
    // After the rename; the root component is the form itself.
    virtual void ComponentRenamed(TComponent* /*component*/, const std::string& /*oldName*/,
                                  const std::string& /*newName*/) {}
};

class IOTAModule {
public:
    virtual ~IOTAModule() = default;
    // The index by which the notifier is removed; -1 when the module takes none.
    virtual int AddNotifier(std::shared_ptr<IOTAModuleNotifier> /*notifier*/) { return -1; }
    virtual void RemoveNotifier(int /*index*/) {}
    virtual std::string FileName() const = 0;
    // The name by which the form list refers to the module: its form's name, or the unit name.
    virtual std::string Name() const = 0;
    virtual int GetModuleFileCount() const = 0;
    virtual IOTAEditor* GetModuleFileEditor(int index) = 0;
    virtual bool Modified() const = 0;
    virtual bool Save(bool changeName, bool forceSave) = 0;
    virtual bool Close() = 0;
    // Forced, it closes without a question, and what is not saved is lost.
    virtual bool CloseModule(bool /*forceClosed*/) { return Close(); }
};

// A project's entry for a unit, whether it is open or not. Names are as the project file writes them.
struct IOTAModuleInfo {
    std::string unitName;  // "Main"
    std::string fileName;  // full path on disk
    std::string formName;  // by the form file where there is one, else by the project file; empty without a form
    std::string annotatedFormName; // by the project file
    std::string formFile;  // full path of the .dfm or .xfm, empty without one
    bool missing = false;  // listed, but not on disk
};

class IOTAProject : public IOTAModule {
public:
    virtual const std::vector<IOTAModuleInfo>& Modules() const = 0;
    virtual bool IsCpp() const = 0;
    // How the project's files are encoded where they do not tell themselves.
    virtual std::optional<Encoding> EncodingHint() const { return {}; }
};

class IOTAProjectGroup : public IOTAModule {
public:
    virtual int ProjectCount() const = 0;
    virtual IOTAProject* GetProject(int index) = 0;
    virtual IOTAProject* ActiveProject() = 0;
    virtual void SetActiveProject(int index) = 0;
};

class IOTAModuleServices {
public:
    virtual ~IOTAModuleServices() = default;
    virtual int ModuleCount() const = 0;
    virtual IOTAModule* GetModule(int index) = 0; // open modules in order of opening
    virtual IOTAModule* CurrentModule() = 0;
    // The open module of a file, by the platform's comparison of file names; one of exactly that name before others.
    virtual IOTAModule* FindModule(const std::string& fileName) = 0;
    virtual IOTAModule* FindFormModule(const std::string& formName) = 0;
};

class IOTAActionServices {
public:
    virtual ~IOTAActionServices() = default;
    virtual bool OpenFile(const std::string& fileName) = 0; // opens, or brings to front what is open
    virtual bool CloseFile(const std::string& fileName) = 0;
    virtual bool SaveFile(const std::string& fileName) = 0;
};

enum TOTAFileNotification { ofnFileOpened, ofnFileClosing, ofnActiveProjectChanged };

// Events of the IDE as a whole.
class IOTAIDENotifier : public IOTANotifier {
public:
    // Before a file closes `cancel` keeps it open; the other events ignore it.
    virtual void FileNotification(TOTAFileNotification code, const std::string& fileName, bool& cancel) = 0;
    virtual void BeforeCompile(IOTAProject* /*project*/, bool& /*cancel*/) {}
    virtual void AfterCompile(bool /*succeeded*/) {}
    virtual void BeforeCompile(IOTAProject* /*project*/, bool /*isCodeInsight*/, bool& /*cancel*/) {}
    virtual void AfterCompile(bool /*succeeded*/, bool /*isCodeInsight*/) {}
};

class IOTAServices {
public:
    virtual ~IOTAServices() = default;
    virtual int AddNotifier(std::shared_ptr<IOTAIDENotifier> notifier) = 0; // its index
    virtual void RemoveNotifier(int index) = 0;
};

// A form of the IDE on the screen. Editor windows are of the class "TEditWindow" and have the menu "EditorLocalMenu".
class INTAForm {
public:
    virtual ~INTAForm() = default;
    virtual std::string ClassName() const = 0;
    // Its component of that name, nil when there is none.
    virtual TPopupMenu* FindPopupMenu(std::string_view name) = 0;
    // The class names of its components, in their order.
    virtual std::vector<std::string> ComponentClasses() const { return {}; }
};
inline constexpr std::string_view EditWindowClass = "TEditWindow";
inline constexpr std::string_view EditControlClass = "TEditControl"; // the control in it that shows the text
inline constexpr std::string_view EditorMenuName = "EditorLocalMenu";

// The top items of the IDE's main menu, by component name, in their order.
inline constexpr std::string_view MenuSections[] = {"FileMenu",    "EditMenu", "SearchMenu",
                                                    "ViewsMenu",   "ProjectMenu", "RunMenu",
                                                    "ComponentMenu", "ToolsMenu", "HelpMenu"};

class INTAServices {
public:
    virtual ~INTAServices() = default;
    virtual TMainMenu& MainMenu() = 0;
    virtual int FormCount() const = 0;
    virtual INTAForm* GetForm(int index) = 0;
};

// An expert as the IDE knows it.
class IOTAWizard : public IOTANotifier {
public:
    virtual std::string GetIDString() const = 0;
    virtual std::string GetName() const = 0;
    virtual std::string GetAuthor() const { return {}; }
    virtual std::string GetComment() const { return {}; }
    virtual std::string GetPage() const { return {}; }
    virtual unsigned GetState() const { return 0; } // a set of flags
    virtual void Execute() {}
};

class IOTAWizardServices {
public:
    virtual ~IOTAWizardServices() = default;
    // The IDE holds the wizard until its package is unloaded.
    virtual void RegisterPackageWizard(std::shared_ptr<IOTAWizard> wizard) = 0;
};

class IDesignServices; // ide/DesignIntf.h

// All services of a running IDE. Those that a host does not offer are nil.
struct BorlandIDEServices {
    IOTAModuleServices& modules;
    IOTAActionServices& actions;
    IOTAServices* services = nullptr;
    INTAServices* menus = nullptr;
    IOTAWizardServices* wizards = nullptr;
    IDesignServices* design = nullptr;
};

// The module's nature: modules, projects and groups are told apart by the interface they offer.
inline IOTAProject* AsProject(IOTAModule* module) { return dynamic_cast<IOTAProject*>(module); }
inline IOTAProjectGroup* AsProjectGroup(IOTAModule* module) { return dynamic_cast<IOTAProjectGroup*>(module); }

} // namespace glotta
