// Lexer and scan in MB/s, and the time against the number of literals of one unit.
#include "Corpus.h"

#include "ide/SourceTokens.h"
#include "scanner/CallPlaces.h"
#include "scanner/PhasesAfterScan.h"
#include "scanner/SourceScan.h"

#include <benchmark/benchmark.h>

namespace glotta {
namespace {

const HelperLibrary& Helper() {
    static const HelperLibrary helper;
    return helper;
}

const ScanRules& Rules() {
    static const ScanRules rules(
        [] {
            SettingsValues settings;
            settings.IgnorableLength = 1;
            return settings;
        }(),
        Helper());
    return rules;
}

template <typename Work> void OverAllUnits(benchmark::State& state, const Work& work) {
    std::size_t bytes = 0;
    BenchUnits(); // reads them
    for (auto _ : state)
        for (const BenchUnit& unit : BenchUnits()) {
            work(unit, FlavourOf(unit.name));
            bytes += unit.text.size();
        }
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
}

void BM_Tokenize(benchmark::State& state) {
    OverAllUnits(state, [](const BenchUnit& unit, const SourceFlavour& flavour) {
        benchmark::DoNotOptimize(Tokenize(unit.text, flavour.IsCPPSource));
    });
}

void BM_FindComments(benchmark::State& state) {
    OverAllUnits(state, [](const BenchUnit& unit, const SourceFlavour& flavour) {
        benchmark::DoNotOptimize(FindComments(unit.text, flavour.IsCPPSource));
    });
}

void BM_CallPlaces(benchmark::State& state) {
    OverAllUnits(state, [](const BenchUnit& unit, const SourceFlavour& flavour) {
        benchmark::DoNotOptimize(CallPlaces(unit.text, flavour.IsCPPSource).WhyNot(0, 1));
    });
}

ScanOutput ScanUnit(const BenchUnit& unit, const ScanRules& rules, std::vector<std::string> idsInUse = {}) {
    ScanInput input;
    input.text = unit.text;
    input.flavour = &FlavourOf(unit.name);
    input.component = "glotta1";
    input.idsInUse = std::move(idsInUse);
    return ScanSource(input, rules);
}

void BM_ScanSource(benchmark::State& state) {
    std::size_t found = 0;
    OverAllUnits(state, [&](const BenchUnit& unit, const SourceFlavour&) {
        found += ScanUnit(unit, Rules()).found.Count();
    });
    state.counters["found"] =
        benchmark::Counter(static_cast<double>(found), benchmark::Counter::kAvgIterations);
}

void BM_ScanSourceWithoutHelper(benchmark::State& state) {
    const HelperLibrary absent = HelperLibrary::Absent();
    const ScanRules rules(Rules().Settings(), absent);
    OverAllUnits(state, [&](const BenchUnit& unit, const SourceFlavour&) {
        benchmark::DoNotOptimize(ScanUnit(unit, rules).found.Count());
    });
}

// One unit with `literals` literals whose component holds as many strings: scan and both phases behind it.
void BM_ScanBySize(benchmark::State& state) {
    const int literals = static_cast<int>(state.range(0));
    const BenchUnit unit = UnitWithLiterals(literals);
    std::vector<ComponentString> strings;
    std::vector<std::string> ids;
    for (int i = 0; i < literals; ++i) {
        ids.push_back("IDS_" + std::to_string(i));
        strings.push_back({ids.back(), "Order is too large: " + std::to_string(i * 2)});
    }
    const SourceFlavour& flavour = FlavourOf(unit.name);
    for (auto _ : state) {
        ScanOutput output = ScanUnit(unit, Rules(), ids);
        const ReplacementContext context{"glotta1", flavour, Rules().Settings()};
        VerifyFound(output.found, strings, context);
        ShareDuplicates(output.found, context);
        benchmark::DoNotOptimize(output.found.Count());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(unit.text.size()) * state.iterations());
    state.SetComplexityN(literals);
}

BENCHMARK(BM_Tokenize)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FindComments)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CallPlaces)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScanSource)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScanSourceWithoutHelper)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ScanBySize)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond)->Complexity();

} // namespace
} // namespace glotta

BENCHMARK_MAIN();
