#include "cli/ScanCommand.h"

#include "cli/OrderedWork.h"
#include "cli/ScanReport.h"
#include "cli/UnitFiles.h"
#include "host/UnitText.h"
#include "platform/Error.h"
#include "platform/Files.h"
#include "runtime/CustomLang.h"
#include "scanner/ReplacementText.h"
#include "scanner/CallPlaces.h"
#include "scanner/ConstRewrite.h"
#include "scanner/FormReach.h"
#include "scanner/PhasesAfterScan.h"
#include "scanner/SourceScan.h"

#include <cstdio>
#include <iostream>

namespace glotta {

namespace {

// The localization component that a unit's calls would name.
struct ComponentInForm {
    std::string form, formClass, component;
    std::vector<ComponentString> texts;
};

// The class names of localization components share a stem, in text and binary forms alike: most forms need no parse.
bool MayHoldComponent(std::string_view bytes) {
    static constexpr std::string_view stem = "Glotta";
    static const std::boyer_moore_horspool_searcher searcher(stem.begin(), stem.end());
    return std::search(bytes.begin(), bytes.end(), searcher) != bytes.end();
}

ComponentInForm ReadComponent(const UnitFile& unit) {
    ComponentInForm result;
    if (unit.formFile.empty())
        return result;
    std::string bytes = ReadFile(unit.formFile);
    FormHead head = FormFile::PeekHead(bytes, PathText(unit.formFile));
    result.form = head.name;
    result.formClass = head.className;
    if (!MayHoldComponent(bytes))
        return result;
    FormFile file = FormFile::Parse(bytes, PathText(unit.formFile), unit.codePage.value_or(1252));
    ComponentTree tree(file, {});
    for (TComponent* component : tree.Root().Components())
        if (auto* lang = dynamic_cast<TgxCustomLang*>(component)) {
            result.component = lang->Name();
            for (int i = 0; i < static_cast<int>(lang->Strings(stStrings).Count()); ++i)
                result.texts.push_back({lang->GetIDByIndex(i), lang->GetTextFromByIndex(i)});
            break;
        }
    return result;
}

// Why constants must be left alone, as far as the unit itself tells.
void NoteConstants(std::string_view text, std::string_view formClass, TgxFoundSourceStrings& found) {
    if (found.Count() == 0)
        return;
    CallPlaces places(text, false);
    ConstRewrite rewrite(text, places, formClass);
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (found[i].Note.empty())
            found[i].Note = rewrite.WhyNotConst({found[i].Constant, found[i].Begin, found[i].End, found[i].Value});
}

void NoteUnreachable(std::string_view text, const ScanInput& input, const std::string& formClass,
                     TgxFoundSourceStrings& found) {
    if (found.Count() == 0)
        return;
    FormReach reach(text, input.flavour->IsCPPSource, formClass);
    for (std::size_t i = 0; i < found.Count(); ++i)
        if (found[i].Note.empty())
            found[i].Note = reach.WhyNotAlone(found[i].Begin, input.component);
}

struct UnitResult {
    std::string text;
    ScanTotals totals;
    std::string error;
};

class Scan {
public:
    Scan(const ScanCommandOptions& options, const ScanRules& rules, std::optional<Encoding> told)
        : options_(options), rules_(rules), told_(told) {}

    UnitResult operator()(const UnitFile& unit) const {
        UnitResult result;
        try {
            ScanUnit(unit, result);
        } catch (const std::exception& error) {
            result.error = error.what();
        }
        return result;
    }

private:
    void ScanUnit(const UnitFile& unit, UnitResult& result) const {
        std::optional<Encoding> hint;
        if (unit.codePage)
            hint = Encoding{EncodingKind::CodePage, *unit.codePage, false};
        UnitText source = DecodeUnit(ReadFile(unit.file), told_, hint);
        ComponentInForm known = ReadComponent(unit);

        ScanInput input;
        input.text = source.text;
        input.flavour = &FlavourOf(unit.shown);
        input.constMode = options_.constMode;
        input.component = Reference(known, *input.flavour);
        for (const ComponentString& stored : known.texts)
            input.idsInUse.push_back(stored.id);
        ScanOutput output = ScanSource(input, rules_);
        ReplacementContext replacements{input.component, *input.flavour, rules_.Settings()};
        VerifyFound(output.found, known.texts, replacements);
        ShareDuplicates(output.found, replacements);

        if (options_.constMode)
            NoteConstants(source.text, known.formClass, output.found);
        else if (!known.formClass.empty() && input.component.find(input.flavour->METHODPOINT) == std::string::npos)
            NoteUnreachable(source.text, input, known.formClass, output.found);

        UnitReport report{unit.shown, input.flavour->IsCPPSource, output.found, output.skipped};
        result.text = options_.json ? JsonLine(report) : Table(report);
        result.totals.Add(report);
    }

    // A component on another form than the unit's own is named together with its form.
    std::string Reference(const ComponentInForm& known, const SourceFlavour& flavour) const {
        std::string component = !options_.component.empty() ? options_.component
                                : !known.component.empty()  ? known.component
                                                            : "Glotta1";
        const std::string& form = options_.form.empty() ? known.form : options_.form;
        bool foreign = !options_.form.empty() && options_.form != known.form;
        bool withForm = !form.empty() && (rules_.Settings().AddFormName || foreign);
        return ComponentReference(form, component, withForm, flavour);
    }

    const ScanCommandOptions& options_;
    const ScanRules& rules_;
    std::optional<Encoding> told_;
};

} // namespace

int RunScan(const GlobalOptions& global, const ScanCommandOptions& options) {
    Session session(global, !options.noHelper);
    RegisterGlottaClasses();
    ScanRules rules(session.Settings().Values(), session.Helper());
    UnitFiles units(options.paths);
    for (const std::string& problem : units.Problems())
        std::cerr << problem << "\n";

    ScanTotals totals;
    bool failed = false;
    Scan scan(options, rules, session.ToldEncoding());
    InOrder<UnitResult>([&] { return units.Next(); }, scan,
                        [&](const UnitResult& result) {
                            std::cout.write(result.text.data(), static_cast<std::streamsize>(result.text.size()));
                            totals.Add(result.totals);
                            if (!result.error.empty()) {
                                std::cerr << result.error << "\n";
                                failed = true;
                            }
                        });
    if (!options.json)
        std::cout << totals.Text();
    return failed ? 2 : 0;
}

} // namespace glotta
