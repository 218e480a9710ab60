// The check of string identifiers: a unit's source against a component's strings.
#include "storage/IdentifierCheck.h"

#include <benchmark/benchmark.h>

namespace glotta {
namespace {

// Of `lines` lines every second one has a call; the identifiers go around, the last ones stay unused.
std::string Source(int lines, int identifiers) {
    std::string text;
    for (int line = 0; line < lines; ++line) {
        const std::string number = std::to_string(line);
        if (line % 2)
            text += "  if Assigned(Panel" + number + ") then Panel" + number +
                    ".Hint := FormatHint(Value, '" + number + "');\r\n";
        else
            text += "    Label" + number + ".Caption := Glotta1.GetText('IDS_" +
                    std::to_string(line * 7 % (identifiers - 10)) + "');\r\n";
    }
    return text;
}

void Check(benchmark::State& state) {
    const int lines = int(state.range(0)), identifiers = int(state.range(1));
    const std::string source = Source(lines, identifiers);
    FormIDs form{"Form1", {{"Glotta1", {}}}};
    for (int id = 0; id < identifiers; ++id)
        form.components[0].ids.Add("IDS_" + std::to_string(id));
    std::size_t rows = 0;
    for (auto _ : state) {
        FormIDs fresh = form; // its look-up table is built anew
        rows = CheckIDs(source, PascalFlavour, "Form1", [&](const std::string&) { return &fresh; }).size();
    }
    state.counters["rows"] = double(rows);
    state.SetBytesProcessed(state.iterations() * std::int64_t(source.size()));
}
BENCHMARK(Check)
    ->Args({20000, 5000})
    ->Args({200000, 5000})
    ->Args({20000, 50000})
    ->Args({200000, 50000})
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace glotta

BENCHMARK_MAIN();
