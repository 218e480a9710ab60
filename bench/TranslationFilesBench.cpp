// Saving, loading and merging the translations of many forms, one by one, through one file.
#include "platform/Files.h"
#include "runtime/CustomLang.h"

#include <benchmark/benchmark.h>

#include <deque>

namespace glotta {
namespace {

constexpr int TextsOfForm = 50, LanguageCount = 8;

struct BenchForm {
    explicit BenchForm(int number)
        : file(FormFile::Parse("object Form" + std::to_string(number) +
                                   ": TForm1\r\n  object g: TGlotta\r\n  end\r\nend\r\n",
                               "Form.dfm")),
          tree(file, "TForm"), lang(dynamic_cast<TgxCustomLang&>(*tree.Root().FindComponent("g"))) {}
    FormFile file;
    ComponentTree tree;
    TgxCustomLang& lang;
};

// Every second text of the other languages is missing where `filled` is false.
FormTranslations Translations(int form, bool filled) {
    FormTranslations all;
    all.languages.SetCount(LanguageCount);
    for (int i = 0; i < TextsOfForm; ++i) {
        const std::string id = "Panel1.Button" + std::to_string(i) + ".Caption";
        std::vector<std::string> fields{id};
        for (int language = 0; language < LanguageCount; ++language)
            fields.push_back(!filled && language > 0 && i % 2
                                 ? ""
                                 : "&Text " + std::to_string(i) + " of form " + std::to_string(form) +
                                       (language % 2 ? " \u043F\u043E" : " line\r\n"));
        all.records[static_cast<std::size_t>(i % 4)].push_back(JoinFields(fields));
    }
    return all;
}

struct BenchProject {
    explicit BenchProject(int forms) {
        RegisterGlottaClasses();
        for (int i = 0; i < forms; ++i)
            list.emplace_back(i);
    }
    void Fill(bool filled) {
        for (std::size_t i = 0; i < list.size(); ++i)
            list[i].lang.SetTranslations(Translations(static_cast<int>(i), filled));
    }
    void Clear() {
        for (BenchForm& form : list)
            form.lang.SetTranslations({});
    }
    std::deque<BenchForm> list;
};

class BenchFile {
public:
    explicit BenchFile(bool binary)
        : binary_(binary),
          path_(std::filesystem::temp_directory_path() / (binary ? "bench.glb" : "bench.glt")) {}
    ~BenchFile() { Remove(); }
    void Remove() { std::filesystem::remove(path_); }
    void Save(BenchProject& project) {
        TranslationFiles files;
        for (BenchForm& form : project.list)
            binary_ ? form.lang.SaveAllToBinaryFile(files, Name())
                    : form.lang.SaveAllToFile(files, Name(), "~!@#$");
        files.Flush();
    }
    void Load(BenchProject& project) {
        TranslationFiles files;
        for (BenchForm& form : project.list)
            binary_ ? form.lang.LoadAllFromBinaryFile(files, Name())
                    : form.lang.LoadAllFromFile(files, Name(), true);
    }
    void Merge(BenchProject& project) {
        TranslationFiles files;
        for (BenchForm& form : project.list)
            form.lang.MergeAllFromFile(files, Name());
    }

private:
    std::string Name() const { return PathText(path_); }
    bool binary_;
    std::filesystem::path path_;
};

template <class Prepare, class Work>
void Run(benchmark::State& state, bool binary, const Prepare& prepare, const Work& work) {
    BenchProject project(static_cast<int>(state.range(0)));
    BenchFile file(binary);
    project.Fill(true);
    file.Save(project);
    for (auto _ : state) {
        state.PauseTiming();
        prepare(project, file);
        state.ResumeTiming();
        work(project, file);
    }
}

void BM_SaveNew(benchmark::State& state, bool binary) {
    Run(
        state, binary, [](BenchProject&, BenchFile& file) { file.Remove(); },
        [](BenchProject& project, BenchFile& file) { file.Save(project); });
}

// Every form differs from what the file holds.
void BM_SaveOver(benchmark::State& state, bool binary) {
    bool filled = true;
    Run(
        state, binary, [&](BenchProject& project, BenchFile&) { project.Fill(filled = !filled); },
        [](BenchProject& project, BenchFile& file) { file.Save(project); });
}

void BM_Load(benchmark::State& state, bool binary) {
    Run(
        state, binary, [](BenchProject& project, BenchFile&) { project.Clear(); },
        [](BenchProject& project, BenchFile& file) { file.Load(project); });
}

void BM_Merge(benchmark::State& state, bool binary) {
    Run(
        state, binary, [](BenchProject& project, BenchFile&) { project.Fill(false); },
        [](BenchProject& project, BenchFile& file) { file.Merge(project); });
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
}
BENCHMARK_CAPTURE(BM_SaveNew, glt, false)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_SaveNew, glb, true)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_SaveOver, glt, false)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_SaveOver, glb, true)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_Load, glt, false)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_Load, glb, true)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_Merge, glt, false)->Apply(Sizes);
BENCHMARK_CAPTURE(BM_Merge, glb, true)->Apply(Sizes);

} // namespace
} // namespace glotta

BENCHMARK_MAIN();
