// An IDE in memory: modules as a test lists them, and a log of what was asked of it.
#pragma once
#include "platform/Files.h"
#include "ide/Services.h"
#include "platform/Text.h"
#include "support/ScriptedUi.h"

#include <deque>
#include <stdexcept>

namespace glotta {

class FakeSource : public IOTASourceEditor, public IOTAEditView {
public:
    FakeSource(IOTAModule& module, std::string content) : text(std::move(content)), module_(module) {}
    std::string text;
    EditPos start, after;
    bool failing = false;
    std::size_t longestPiece = 0;

    std::string FileName() const override { return module_.FileName(); }
    bool Modified() const override { return false; }
    void Show() override {}
    IOTAModule& Module() override { return module_; }
    std::unique_ptr<IOTAEditReader> CreateReader() override { return std::make_unique<Reader>(*this); }
    std::unique_ptr<IOTAEditWriter> CreateUndoableWriter() override {
        return std::make_unique<Writer>(*this);
    }
    IOTAEditView& View() override { return *this; }
    std::size_t PosToOffset(EditPos position) const override {
        std::size_t at = 0;
        for (int line = 1; line < position.line; ++line)
            at = text.find("\r\n", at) + 2;
        return CharCount(text.substr(0, at)) + static_cast<std::size_t>(position.column - 1);
    }
    EditPos OffsetToPos(std::size_t) const override { return {}; }
    bool Undo() override { return false; }
    bool Redo() override { return false; }
    EditPos CursorPos() const override { return after; }
    void SetCursorPos(EditPos) override {}
    EditPos BlockStart() const override { return start; }
    EditPos BlockAfter() const override { return after; }
    void SetBlock(EditPos from, EditPos to) override {
        start = from;
        after = to;
    }
    void Center(int) override {}
    int TopLine() const override { return 1; }

private:
    struct Reader : IOTAEditReader {
        explicit Reader(FakeSource& given) : source(given) {}
        std::string GetText(std::size_t position, std::size_t count) override {
            if (source.failing) throw std::runtime_error("read failed");
            source.longestPiece = std::max(source.longestPiece, count);
            const std::string_view rest =
                std::string_view(source.text).substr(ByteOffset(source.text, position));
            return std::string(CharPrefix(rest, count));
        }
        FakeSource& source;
    };
    struct Writer : IOTAEditWriter {
        explicit Writer(FakeSource& given) : source(given) {}
        ~Writer() override { source.text = done + source.text.substr(at); }
        void CopyTo(std::size_t position) override {
            const std::size_t to = ByteOffset(source.text, position);
            done += source.text.substr(at, to - at);
            at = to;
        }
        void DeleteTo(std::size_t position) override { at = ByteOffset(source.text, position); }
        void Insert(std::string_view inserted) override { done += inserted; }
        FakeSource& source;
        std::string done;
        std::size_t at = 0;
    };
    IOTAModule& module_;
};

class FakeForm : public IOTAFormEditor, public IDesigner {
public:
    FakeForm(IOTAModule& module, const std::string& dfm, const std::string& rootBase)
        : module_(module), file_(FormFile::Parse(dfm, "fake.dfm")), tree_(file_, rootBase) {}
    int timesModified = 0;

    std::string FileName() const override { return module_.FileName(); }
    bool Modified() const override { return timesModified > 0; }
    void Show() override {}
    IOTAModule& Module() override { return module_; }
    IOTAComponent* GetRootComponent() override { return nullptr; }
    TComponent& CreateComponent(const std::string& className) override {
        return tree_.Create(className, tree_.UniqueName(className));
    }
    void DeleteComponent(TComponent& component) override { tree_.Remove(component); }
    void MarkModified() override { ++timesModified; }
    IDesigner& Designer() override { return *this; }
    TComponent& Root() override { return tree_.Root(); }
    std::string CreateMethod(const std::string& name, const MethodType&) override { return name; }
    void ShowMethod(const std::string&) override {}
    void SelectComponent(TComponent* component) override { selected_ = component; }
    TComponent* SelectedComponent() override { return selected_; }
    void Modified() override { ++timesModified; }

private:
    IOTAModule& module_;
    FormFile file_;
    ComponentTree tree_;
    TComponent* selected_ = nullptr;
};

// A module of any nature.
template <class Interface> class FakeModuleOf : public Interface {
public:
    FakeModuleOf(std::string fileName, std::string name)
        : fileName_(std::move(fileName)), name_(std::move(name)) {}
    std::unique_ptr<FakeSource> source;
    std::unique_ptr<FakeForm> form;
    int timesSaved = 0;

    std::string FileName() const override { return fileName_; }
    std::string Name() const override { return name_; }
    // The form editor comes first, so that a search by kind is a search.
    int GetModuleFileCount() const override { return (form ? 1 : 0) + (source ? 1 : 0); }
    IOTAEditor* GetModuleFileEditor(int index) override {
        return form && index == 0 ? static_cast<IOTAEditor*>(form.get()) : source.get();
    }
    bool Modified() const override { return false; }
    bool Save(bool, bool) override { return ++timesSaved > 0; }
    bool Close() override { return true; }

private:
    std::string fileName_, name_;
};
using FakeModule = FakeModuleOf<IOTAModule>;

class FakeProject : public FakeModuleOf<IOTAProject> {
public:
    using FakeModuleOf::FakeModuleOf;
    std::vector<IOTAModuleInfo> infos;
    const std::vector<IOTAModuleInfo>& Modules() const override { return infos; }
    bool IsCpp() const override { return false; }
};

class FakeGroup : public FakeModuleOf<IOTAProjectGroup> {
public:
    using FakeModuleOf::FakeModuleOf;
    std::vector<IOTAProject*> projects;
    int active = 0;
    int ProjectCount() const override { return static_cast<int>(projects.size()); }
    IOTAProject* GetProject(int index) override { return projects[static_cast<std::size_t>(index)]; }
    IOTAProject* ActiveProject() override { return projects.empty() ? nullptr : GetProject(active); }
    void SetActiveProject(int index) override { active = index; }
};

class FakeIde : public IOTAModuleServices, public IOTAActionServices {
public:
    std::vector<std::string> log;
    std::vector<IOTAModule*> open;
    IOTAModule* current = nullptr;
    bool succeeds = true; // what the action services answer
    ScriptedUi ui;
    FormsList forms;
    IdeServices services{BorlandIDEServices{*this, *this}, forms, ui};

    FakeModule& Open(const std::string& fileName, const std::string& name, const std::string& text = {}) {
        modules_.emplace_back(fileName, name);
        FakeModule& module = modules_.back();
        module.source = std::make_unique<FakeSource>(module, text);
        open.push_back(&module);
        return module;
    }
    FakeModule& OpenForm(const std::string& fileName, const std::string& name, const std::string& dfm,
                         const std::string& rootBase = "TForm") {
        FakeModule& module = Open(fileName, name);
        module.form = std::make_unique<FakeForm>(module, dfm, rootBase);
        FormsListItem item;
        item.formName = name;
        item.fileName = fileName;
        forms.items.push_back(item);
        return module;
    }
    // What was asked of the IDE, then of the user, since the last call.
    std::string Log() {
        std::string text = JoinLines(log, "\n") + (log.empty() ? "" : "\n") + ui.Transcript().substr(told_);
        log.clear();
        told_ = ui.Transcript().size();
        return text;
    }

    int ModuleCount() const override { return static_cast<int>(open.size()); }
    IOTAModule* GetModule(int index) override { return open[static_cast<std::size_t>(index)]; }
    IOTAModule* CurrentModule() override { return current; }
    IOTAModule* FindModule(const std::string& fileName) override {
        IOTAModule* exact = Find([&](IOTAModule& m) { return m.FileName() == fileName; });
        return exact ? exact : Find([&](IOTAModule& m) { return SameFileName(m.FileName(), fileName); });
    }
    IOTAModule* FindFormModule(const std::string& formName) override {
        return Find([&](IOTAModule& m) { return m.Name() == formName; });
    }
    bool OpenFile(const std::string& fileName) override { return Did("open", fileName); }
    bool CloseFile(const std::string& fileName) override { return Did("close", fileName); }
    bool SaveFile(const std::string& fileName) override { return Did("save", fileName); }

private:
    template <class Matches> IOTAModule* Find(Matches matches) {
        const auto found = std::find_if(open.begin(), open.end(), [&](IOTAModule* m) { return matches(*m); });
        return found == open.end() ? nullptr : *found;
    }
    bool Did(const std::string& what, const std::string& fileName) {
        log.push_back(what + " " + fileName);
        return succeeds;
    }
    std::deque<FakeModule> modules_;
    std::size_t told_ = 0;
};

} // namespace glotta
