#include "scanner/ScanReplace.h"

#include "ide/EditorEdits.h"
#include "ide/UnitEdits.h"
#include "platform/Encoding.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "runtime/CustomLang.h"
#include "scanner/CallPlaces.h"
#include "scanner/ConstRewrite.h"
#include "scanner/FormReach.h"
#include "scanner/PhasesAfterScan.h"
#include "scanner/ReplacementText.h"
#include "scanner/SoundRewrite.h"
#include "scanner/SourceScan.h"
#include "scanner/UpdateStringsWiring.h"
#include "scanner/_scan.h"
#include "settings/ExpertSettings.h"

namespace glotta {

struct ScanReplace::Job {
    bool constMode = false;
    bool selectionOnly = false;

    std::string unitName, fileName; // of the unit to scan
    std::string ownForm;            // its form, empty without one
    std::string formName;           // of the form whose component receives the strings
    std::string formUnit;           // that form's unit file
    TgxCustomLang* glotta = nullptr;
    std::string reference;          // the component as the replacements name it

    const SourceFlavour* flavour = nullptr;
    IOTASourceEditor* editor = nullptr;
    std::string text;
    std::unique_ptr<ConstRewrite> constants;
    std::unique_ptr<CallPlaces> places;

    bool OwnForm() const { return !ownForm.empty() && ownForm == formName; }
    ReplacementContext Replacements(const SettingsValues& settings) const { return {reference, *flavour, settings}; }
};

namespace {

std::vector<ComponentString> StringsOf(const TgxCustomLang& glotta) {
    std::vector<ComponentString> strings;
    for (int i = 0; i < static_cast<int>(glotta.Strings(stStrings).Count()); ++i)
        strings.push_back({glotta.GetIDByIndex(i), glotta.GetTextFromByIndex(i)});
    return strings;
}

bool IsWritten(const TgxFoundSourceString& row) { return !row.Deleted && !row.Ignored && row.Note.empty(); }

const IOTAModuleInfo* FindUnit(const IOTAProject& project, const std::string& name) {
    for (const IOTAModuleInfo& unit : project.Modules())
        if (SameText(unit.unitName, name) || SameFileName(unit.fileName, name))
            return &unit;
    return nullptr;
}

} // namespace

ScanReplace::ScanReplace(ScanContext context, Review review) : context_(context), review_(review) {}
ScanReplace::~ScanReplace() = default;

bool ScanReplace::DoScanReplace(const std::string& unitName, const std::string& stringsForm, bool constMode,
                                bool selectionOnly) {
    context_.results.found.Clear();
    context_.results.skipped.clear();
    Job job;
    job.constMode = constMode;
    job.selectionOnly = selectionOnly;
    LocateUnit(job, unitName);
    LocateComponent(job, stringsForm);
    OpenUnit(job);
    context_.results.source = job.text;
    if (job.text.empty())
        return false;

    Ui& ui = context_.ide.GetUi();
    Progress progress(ui, "Scanning...");
    Scan(job);
    if (constMode)
        NoteConstants(job, job.OwnForm() ? job.glotta->Owner()->ClassName() : std::string_view());
    else
        NoteUnreachable(job);
    TgxFoundSourceStrings& found = context_.results.found;
    if (found.Count() == 0) {
        progress.Close();
        ui.MessageDlg(constMode ? "There are no strings in CONST section of \"" + job.unitName + "\" unit!"
                                : "No strings found in the \"" + job.unitName + "\" source!",
                      MsgType::Information);
        return false;
    }
    found.Sort();
    const SettingsValues& settings = context_.settings.Values();
    progress.Text("Verifying found strings...");
    VerifyFound(found, StringsOf(*job.glotta), job.Replacements(settings));
    progress.Text("Checking duplicates...");
    ShareDuplicates(found, job.Replacements(settings));
    progress.Close();
    if (!ReviewRows(job))
        return false;

    Progress modifying(ui, "Modifying source...");
    found.Sort();
    bool modified = Modify(job);
    modifying.Close();
    if (!modified)
        return false;
    std::string done = "Source file translated. All string constants added to \"Strings\" property.";
    if (constMode)
        done += "\r\nYou need to change CONST to VAR declaration or turn ON \"Assignable typed constants\" compiler "
                "option!";
    ui.MessageDlg(done, MsgType::Information);
    return true;
}

void ScanReplace::LocateUnit(Job& job, const std::string& unitName) {
    IdeServices& ide = context_.ide;
    if (const FormsListItem* item = ide.Forms().FindExact(unitName)) {
        job.unitName = item->unitName;
        job.fileName = item->fileName;
        job.ownForm = item->formName;
    } else {
        IOTAProject* project = ide.GetActiveProject();
        const IOTAModuleInfo* unit = project ? FindUnit(*project, unitName) : nullptr;
        if (!unit)
            throw Error(unitName + ": the project has no such unit");
        job.unitName = unit->unitName;
        job.fileName = unit->fileName;
        job.ownForm = unit->formName;
    }
}

void ScanReplace::LocateComponent(Job& job, const std::string& stringsForm) {
    IdeServices& ide = context_.ide;
    job.formName = stringsForm.empty() ? job.ownForm : stringsForm;
    if (const FormsListItem* form = ide.Forms().FindExact(job.formName)) {
        job.formUnit = form->fileName;
        if (!ide.OpenFile(form->fileName, false))
            throw EGlottaSilent();
        if (TComponent* root = ide.GetOwnerByName(job.formName))
            for (TComponent* component : root->Components())
                if ((job.glotta = dynamic_cast<TgxCustomLang*>(component)))
                    break;
    }
    if (!job.glotta) {
        ide.GetUi().MessageDlg("No forms found with TGlotta! Double click on the form to insert TGlotta.",
                               MsgType::Information);
        throw EGlottaSilent();
    }
}

void ScanReplace::OpenUnit(Job& job) {
    SetSourceFlavour(job.fileName);
    job.flavour = &CurrentFlavour();
    if (job.glotta) {
        bool withForm = context_.settings.Values().AddFormName || !job.OwnForm();
        job.reference = ComponentReference(job.formName, job.glotta->Name(), withForm, *job.flavour);
    }
    if (!context_.ide.OpenFile(job.fileName, false))
        throw EGlottaSilent();
    job.editor = context_.ide.GetSourceEditorFromFileName(job.fileName);
    job.text = context_.ide.GetUnitSource(job.fileName);
}

void ScanReplace::Scan(Job& job) {
    Ui& ui = context_.ide.GetUi();
    ScanRules rules(context_.settings.Values(), context_.helper);
    ScanInput input;
    input.text = job.text;
    input.flavour = job.flavour;
    input.constMode = job.constMode;
    input.component = job.reference;
    if (job.glotta)
        for (const ComponentString& string : StringsOf(*job.glotta))
            input.idsInUse.push_back(string.id);
    if (job.selectionOnly && job.editor) {
        IOTAEditView& view = job.editor->View();
        input.begin = ByteOffset(job.text, job.editor->PosToOffset(view.BlockStart()));
        input.end = ByteOffset(job.text, job.editor->PosToOffset(view.BlockAfter()));
    }
    input.onFound = [&ui](std::size_t found) { ui.SetProgress("Found strings so far: " + std::to_string(found)); };
    ScanOutput output = ScanSource(input, rules);
    context_.results.found = std::move(output.found);
    context_.results.skipped = std::move(output.skipped);
}

bool ScanReplace::FindsConstants(const std::string& unitName) {
    Job job;
    job.constMode = true;
    LocateUnit(job, unitName);
    OpenUnit(job);
    Scan(job);
    TComponent* root = job.ownForm.empty() ? nullptr : context_.ide.GetOwnerByName(job.ownForm);
    NoteConstants(job, root ? std::string_view(root->ClassName()) : std::string_view());
    const TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (found[i].Note.empty())
            return true;
    return false;
}

// A call in a routine that is no method of the form cannot name the component alone, nor a form without a variable.
void ScanReplace::NoteUnreachable(Job& job) {
    FormReach reach(job.text, job.flavour->IsCPPSource, job.glotta->Owner()->ClassName());
    bool alone = job.reference == job.glotta->Name();
    std::string why;
    if (!alone)
        why = FormReach::WhyNoVariable(job.OwnForm() ? job.text : context_.ide.GetUnitSource(job.formUnit),
                                       job.flavour->IsCPPSource, job.formName, job.glotta->Owner()->ClassName());
    TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i) {
        if (!found[i].Note.empty())
            continue;
        found[i].Note = alone ? reach.WhyNotAlone(found[i].Begin, job.reference) : why;
    }
}

void ScanReplace::NoteConstants(Job& job, std::string_view formClass) {
    job.places = std::make_unique<CallPlaces>(job.text, job.flavour->IsCPPSource);
    job.constants = std::make_unique<ConstRewrite>(job.text, *job.places, formClass);
    TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i) {
        TgxFoundSourceString& row = found[i];
        if (row.Note.empty())
            row.Note = job.constants->WhyNotConst({row.Constant, row.Begin, row.End, row.Value}, &UsesElsewhere(job));
    }
}

const ConstantContexts& ScanReplace::UsesElsewhere(const Job& job) {
    if (project_)
        return *project_;
    project_ = std::make_unique<ConstantContexts>();
    IOTAProject* project = context_.ide.GetActiveProject();
    for (const IOTAModuleInfo& unit : project->Modules()) {
        if (unit.missing || SameFileName(unit.fileName, job.fileName))
            continue;
        std::string source = context_.ide.IsFileOpen(unit.fileName) ? context_.ide.GetUnitSource(unit.fileName) : "";
        if (source.empty()) {
            std::string bytes = ReadFile(PathFromText(unit.fileName));
            source = Decode(bytes, DetectEncoding(bytes));
        }
        project_->Add(source);
    }
    return *project_;
}

bool ScanReplace::ReviewRows(Job& job) {
    if (review_ == Review::None)
        return true;
    TfrmFound form({context_.ide, context_.settings, context_.registry, context_.results.found,
                    context_.results.skipped, job.text, *job.flavour, job.unitName, job.reference, job.glotta});
    form.caption = "Found String Constants (" + job.unitName + ")";
    if (context_.ide.GetUi().ShowModal(form) != ModalResult::OK)
        return false;
    // What the developer saw with its note and kept is the developer's wish; the proof below still guards the source.
    TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count() && !job.constMode; ++i)
        if (!found[i].Deleted)
            found[i].Note.clear();
    return true;
}

bool ScanReplace::Modify(Job& job) {
    TextEdits rows = job.constMode ? TextEdits() : SoundLiteralEdits(job);
    TextEdits others = job.constMode ? ConstantEdits(job) : TextEdits();
    bool written = !rows.empty() || !others.empty();
    for (TextEdit& mark : IgnoreMarks(job))
        others.push_back(std::move(mark));
    if (rows.empty() && others.empty())
        return false;
    if (written) {
        if (job.constMode)
            WireForm(job, others);
        else
            ReachForm(job, others);
    }
    Prove(job, rows, others);
    rows.insert(rows.end(), others.begin(), others.end());
    WriteEdits(*job.editor, job.text, std::move(rows));

    TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (IsWritten(found[i]))
            job.glotta->AddString(found[i].ID, found[i].Value);
    if (written)
        context_.ide.MarkModifiedForm(job.formUnit);
    return true;
}

void ScanReplace::Prove(const Job& job, const TextEdits& rows, const TextEdits& others) {
    EditVerdicts verdicts = CheckEdits(job.text, rows, others, job.flavour->IsCPPSource);
    for (const auto* reasons : {&verdicts.rows, &verdicts.others})
        for (const std::string& reason : *reasons)
            if (!reason.empty())
                throw Error(job.fileName + ": the rewritten unit would not be sound (" + reason +
                            "); nothing was changed");
}

// Behind the line of each row that the developer marked, once a line.
TextEdits ScanReplace::IgnoreMarks(const Job& job) {
    TextEdits marks;
    const TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i) {
        if (!found[i].Ignored || found[i].Deleted)
            continue;
        std::size_t end = std::min(job.text.find("\r\n", found[i].End), job.text.size());
        if (marks.empty() || marks.back().end != end)
            marks.push_back({end, end, " " + std::string(job.flavour->IGNORELINE)});
    }
    return marks;
}

// Each row is proved; what fails is left alone and says why.
TextEdits ScanReplace::SoundLiteralEdits(Job& job) {
    TgxFoundSourceStrings& found = context_.results.found;
    for (;;) {
        std::vector<TgxFoundSourceString*> rows;
        TextEdits edits;
        for (std::size_t i = 0; i < found.Count(); ++i)
            if (IsWritten(found[i])) {
                rows.push_back(&found[i]);
                edits.push_back(ReplacementEdit(job.text, found[i]));
            }
        EditVerdicts verdicts = CheckEdits(job.text, edits, {}, job.flavour->IsCPPSource);
        if (verdicts.Sound())
            return edits;
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (!verdicts.rows[i].empty())
                rows[i]->Note = verdicts.rows[i];
    }
}

TextEdits ScanReplace::ConstantEdits(Job& job) {
    std::vector<FoundConstant> constants;
    const TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (IsWritten(found[i]))
            constants.push_back({found[i].Constant, found[i].Begin, found[i].End, found[i].Value});
    return job.constants->Rewrite(constants, context_.settings.Values());
}

// The form's handlers call UpdateStrings, which gives every constant its text.
void ScanReplace::WireForm(Job& job, TextEdits& unitEdits) {
    IdeServices& ide = context_.ide;
    std::string formText = job.OwnForm() ? job.text : ide.GetUnitSource(job.formUnit);
    TComponent& root = *job.glotta->Owner();
    WiringInput input;
    input.text = formText;
    input.isCpp = job.flavour->IsCPPSource;
    input.dataModule = ide.IsDataModule(job.formName);
    input.formName = job.formName;
    input.className = root.ClassName();
    input.component = job.glotta->Name();
    input.creationHandler = root.GetMethodProp("OnCreate");
    input.languageHandler = job.glotta->GetMethodProp("OnChangeLanguage");
    input.reference = job.glotta->Name();
    input.replaceMethod = context_.settings.Values().ReplaceMethod;
    const TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (IsWritten(found[i]))
            input.assignments.push_back(
                {AssignmentTarget(formText, root.ClassName(), found[i].Constant, job.unitName), found[i].ID});
    Wiring wiring = WireUpdateStrings(input);
    if (job.OwnForm()) {
        for (TextEdit& edit : wiring.edits)
            unitEdits.push_back(std::move(edit));
        return;
    }
    for (TextEdit& edit : pascal::AddImplementationUses(formText, job.unitName))
        wiring.edits.push_back(std::move(edit));
    if (IOTASourceEditor* editor = ide.GetSourceEditorFromFileName(job.formUnit))
        WriteEdits(*editor, formText, std::move(wiring.edits));
}

// A unit whose calls name another form's component can see that form.
void ScanReplace::ReachForm(const Job& job, TextEdits& edits) {
    if (job.OwnForm())
        return;
    std::string unit = PathText(PathFromText(job.formUnit).stem());
    TextEdits added = job.flavour->IsCPPSource ? cpp::AddInclude(job.text, unit + ".h", false)
                                               : pascal::AddImplementationUses(job.text, unit);
    for (TextEdit& edit : added)
        edits.push_back(std::move(edit));
}

} // namespace glotta
