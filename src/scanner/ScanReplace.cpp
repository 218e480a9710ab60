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
    std::string reference; // the component as the replacements name it

    const SourceFlavour* flavour = nullptr;
    IOTASourceEditor* editor = nullptr;
    std::string text;
    std::vector<const TgxFoundSourceString*> refused; // by the proof
    std::unique_ptr<CallPlaces> places;
    std::unique_ptr<ConstRewrite> constants;

    bool PascalOfCppForm() const { return !flavour->IsCPPSource && FlavourOf(formUnit).IsCPPSource; }
    bool OwnForm() const { return !ownForm.empty() && ownForm == formName; }
    ReplacementContext Replacements(const SettingsValues& settings) const {
        return {reference, *flavour, settings};
    }
};

namespace {

constexpr const char* NoUseOfCpp = "a Delphi unit cannot use a C++ form";

std::vector<ComponentString> StringsOf(const TgxCustomLang& glotta) {
    std::vector<ComponentString> strings;
    for (int i = 0; i < static_cast<int>(glotta.Strings(stStrings).Count()); ++i)
        strings.push_back({glotta.GetIDByIndex(i), glotta.GetTextFromByIndex(i)});
    return strings;
}

bool IsWritten(const TgxFoundSourceString& row) {
    return !row.Deleted && !row.Ignored && row.Note.empty();
}

void Append(TextEdits& to, TextEdits edits) {
    std::move(edits.begin(), edits.end(), std::back_inserter(to));
}

// Nothing was written yet when this throws.
void Prove(const std::string& fileName, const EditVerdicts& verdicts) {
    for (const auto* reasons : {&verdicts.rows, &verdicts.others})
        for (const std::string& reason : *reasons)
            if (!reason.empty())
                throw Error(fileName + ": the rewritten unit would not be sound (" + reason +
                            "); nothing was changed");
}

// The row's replacement is the look-up call, by whatever method.
bool IsAsBuilt(TgxFoundSourceString row, const ReplacementContext& context) {
    const std::string replacement = row.Replacement;
    SettingsValues settings = context.settings;
    return std::any_of(TextGetterNames.begin(), TextGetterNames.end(), [&](std::string_view method) {
        settings.ReplaceMethod = method;
        RebuildReplacement(row, context.component, context.flavour, settings);
        return row.Replacement == replacement;
    });
}

const IOTAModuleInfo* FindUnit(const IOTAProject& project, const std::string& name) {
    for (const IOTAModuleInfo& unit : project.Modules())
        if (SameText(unit.unitName, name) || SameFileName(unit.fileName, name)) return &unit;
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
    if (job.text.empty()) return false;

    Ui& ui = context_.ide.GetUi();
    Progress progress(ui, "Scanning...");
    if (StoppedIn(progress)) return false; // also what waits in the queue since a former unit
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
    if (StoppedIn(progress)) return false;
    progress.Text("Verifying found strings...");
    VerifyFound(found, StringsOf(*job.glotta), job.Replacements(settings));
    progress.Text("Checking duplicates...");
    ShareDuplicates(found, job.Replacements(settings));
    if (StoppedIn(progress)) return false;
    progress.Close();
    if (!ReviewRows(job)) return false;

    Progress modifying(ui, "Modifying source...");
    found.Sort();
    bool modified = Modify(job);
    modifying.Close();
    TellLeftAlone(job);
    if (!modified) return false;
    std::string done = "Source file translated. All string constants added to \"Strings\" property.";
    if (constMode)
        done += "\r\nYou need to change CONST to VAR declaration or turn ON \"Assignable typed constants\" "
                "compiler "
                "option!";
    ui.MessageDlg(done, MsgType::Information);
    return true;
}

bool ScanReplace::StoppedIn(const Progress& progress) {
    cancelled_ = progress.Cancelled();
    return cancelled_;
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
        if (!unit) throw Error(unitName + ": the project has no such unit");
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
        if (!ide.OpenFile(form->fileName, false)) throw EGlottaSilent();
        if (TComponent* root = ide.GetOwnerByName(job.formName))
            for (TComponent* component : root->Components())
                if ((job.glotta = dynamic_cast<TgxCustomLang*>(component))) break;
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
    if (!context_.ide.OpenFile(job.fileName, false)) throw EGlottaSilent();
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
    input.onFound = [&ui](std::size_t found) {
        ui.SetProgress("Found strings so far: " + std::to_string(found));
    };
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
        if (found[i].Note.empty()) return true;
    return false;
}

// What the developer kept in the review and the proof refused. All other notes were shown there.
void ScanReplace::TellLeftAlone(const Job& job) {
    if (review_ == Review::None || job.refused.empty()) return;
    std::string rows;
    for (const TgxFoundSourceString* row : job.refused)
        rows += "\r\nLine " + std::to_string(row->Line + 1) + ", " + row->ID + ": " + row->Note;
    context_.ide.GetUi().MessageDlg("Left alone, because the unit would not be sound:" + rows,
                                    MsgType::Information);
}

// A call in a routine that is no method of the form cannot name the component alone, nor a form without a
// variable.
void ScanReplace::NoteUnreachable(Job& job) {
    const std::string& formClass = job.glotta->Owner()->ClassName();
    FormReach reach(job.text, job.flavour->IsCPPSource, formClass);
    const bool alone = job.reference == job.glotta->Name();
    std::string why;
    if (!alone)
        why = FormReach::WhyNoVariable(job.OwnForm() ? job.text : context_.ide.GetUnitSource(job.formUnit),
                                       FlavourOf(job.formUnit).IsCPPSource, job.formName, formClass);
    if (job.PascalOfCppForm()) why = NoUseOfCpp;
    TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (found[i].Note.empty())
            found[i].Note = alone ? reach.WhyNotAlone(found[i].Begin, job.reference) : why;
}

void ScanReplace::NoteConstants(Job& job, std::string_view formClass) {
    job.places = std::make_unique<CallPlaces>(job.text, job.flavour->IsCPPSource);
    job.constants = std::make_unique<ConstRewrite>(job.text, *job.places, formClass);
    TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i) {
        TgxFoundSourceString& row = found[i];
        if (row.Note.empty() && job.PascalOfCppForm()) row.Note = NoUseOfCpp;
        if (row.Note.empty())
            row.Note =
                job.constants->WhyNotConst({row.Constant, row.Begin, row.End, row.Value}, &UsesInProject());
    }
}

const ConstantContexts& ScanReplace::UsesInProject() {
    if (project_) return *project_;
    project_ = std::make_unique<ConstantContexts>();
    IOTAProject* project = context_.ide.GetActiveProject();
    if (!project) return *project_;
    for (const IOTAModuleInfo& unit : project->Modules()) {
        if (unit.missing) continue;
        std::string source =
            context_.ide.IsFileOpen(unit.fileName) ? context_.ide.GetUnitSource(unit.fileName) : "";
        if (source.empty()) {
            std::string bytes = ReadFile(PathFromText(unit.fileName));
            source = Decode(bytes, DetectEncoding(bytes));
        }
        project_->Add(source);
    }
    return *project_;
}

bool ScanReplace::ReviewRows(Job& job) {
    if (review_ == Review::None) return true;
    TfrmFound form({context_.ide, context_.settings, context_.registry, context_.results.found,
                    context_.results.skipped, job.text, *job.flavour, job.unitName, job.reference,
                    job.glotta});
    form.caption = "Found String Constants (" + job.unitName + ")";
    if (context_.ide.GetUi().ShowModal(form) != ModalResult::OK) return false;
    // A row with a note is left alone, unless the developer gave it a replacement of its own; the proof below
    // still guards the source.
    TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count() && !job.constMode; ++i)
        if (!found[i].Note.empty() && !IsAsBuilt(found[i], job.Replacements(context_.settings.Values())))
            found[i].Note.clear();
    return true;
}

bool ScanReplace::Modify(Job& job) {
    TextEdits rows = job.constMode ? TextEdits() : SoundLiteralEdits(job);
    TextEdits others = job.constMode ? ConstantEdits(job) : TextEdits();
    const bool written = !rows.empty() || !others.empty();
    for (TextEdit& mark : IgnoreMarks(job))
        others.push_back(std::move(mark));
    if (rows.empty() && others.empty()) return false;
    std::string formText; // of the form's unit, when that is another
    TextEdits formEdits;
    if (written && !job.constMode) {
        ReachForm(job, others);
    } else if (written && job.OwnForm()) {
        Append(others, WireForm(job, job.text));
    } else if (written) {
        formText = context_.ide.GetUnitSource(job.formUnit);
        formEdits = WireForm(job, formText);
        Append(formEdits, pascal::AddImplementationUses(formText, job.unitName));
    }
    Prove(job.fileName, CheckEdits(job.text, rows, others, job.flavour->IsCPPSource));
    Prove(job.formUnit, CheckEdits(formText, {}, formEdits, false));

    Append(rows, std::move(others));
    WriteEdits(*job.editor, job.text, std::move(rows));
    if (!formEdits.empty())
        WriteEdits(*context_.ide.GetSourceEditorFromFileName(job.formUnit), formText, std::move(formEdits));
    if (!written) return true;
    TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (IsWritten(found[i])) job.glotta->AddString(found[i].ID, found[i].Value);
    context_.ide.MarkModifiedForm(job.formUnit);
    return true;
}

// Behind the line of each row that the developer marked, once a line.
TextEdits ScanReplace::IgnoreMarks(const Job& job) {
    TextEdits marks;
    const TgxFoundSourceStrings& found = context_.results.found;
    for (std::size_t i = 0; i < found.Count(); ++i) {
        if (!found[i].Ignored || found[i].Deleted) continue;
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
        if (verdicts.Sound()) return edits;
        for (std::size_t i = 0; i < rows.size(); ++i)
            if (!verdicts.rows[i].empty()) {
                rows[i]->Note = verdicts.rows[i];
                job.refused.push_back(rows[i]);
            }
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
TextEdits ScanReplace::WireForm(const Job& job, std::string_view formText) {
    IdeServices& ide = context_.ide;
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
    return WireUpdateStrings(input).edits;
}

// A unit whose calls name another form's component can see that form.
void ScanReplace::ReachForm(const Job& job, TextEdits& edits) {
    if (job.OwnForm()) return;
    const std::string unit = PathText(PathFromText(job.formUnit).stem());
    const char* header =
        FlavourOf(job.formUnit).IsCPPSource ? ".h" : ".hpp"; // the compiler makes .hpp of Delphi units
    Append(edits, job.flavour->IsCPPSource ? cpp::AddInclude(job.text, unit + header, false)
                                           : pascal::AddImplementationUses(job.text, unit));
}

} // namespace glotta
