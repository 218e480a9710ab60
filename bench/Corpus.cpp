#include "Corpus.h"

#include "platform/Encoding.h"
#include "platform/Files.h"
#include "platform/Text.h"

#include <cstdlib>

namespace glotta {
namespace {

constexpr int LiteralsPerRoutine = 8;

std::vector<BenchUnit> ReadTree(const std::filesystem::path& tree) {
    std::vector<BenchUnit> units;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(tree)) {
        const std::string name = entry.path().string();
        const std::string extension = LowerExtension(name);
        if (!entry.is_regular_file() || (extension != ".pas" && extension != ".dpr" && extension != ".cpp" &&
                                         extension != ".c" && extension != ".h"))
            continue;
        const std::string bytes = ReadFile(entry.path());
        units.push_back({name, JoinLines(SplitLines(Decode(bytes, DetectEncoding(bytes))))});
    }
    return units;
}

} // namespace

BenchUnit UnitWithLiterals(int count) {
    std::string text =
        "unit Orders;\r\n\r\ninterface\r\n\r\nuses\r\n  SysUtils, Classes;\r\n\r\nimplementation\r\n";
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        if (i % LiteralsPerRoutine == 0)
            text += "\r\n// Tells the clerk what's wrong with an order\r\nprocedure TOrders.Check" + number +
                    "(Order: TOrder);\r\nvar\r\n  Total: Currency; { it's the customer's }\r\nbegin\r\n"
                    "  Total := Order.Amount * Order.Price - Discount(Order.Customer, Order.Date);\r\n";
        text += "  if Total > " + number +
                " then\r\n    ShowMessage('Order is too large: " + std::to_string(i % 10 == 0 ? 0 : i) +
                "');\r\n";
        if (i % LiteralsPerRoutine == LiteralsPerRoutine - 1 || i + 1 == count) text += "end;\r\n";
    }
    return {"Orders.pas", text + "\r\nend.\r\n"};
}

const std::vector<BenchUnit>& BenchUnits() {
    static const std::vector<BenchUnit> units = [] {
        const char* tree = std::getenv("GLOTTA_BENCH_TREE");
        return tree ? ReadTree(tree) : std::vector<BenchUnit>(1000, UnitWithLiterals(80));
    }();
    return units;
}

} // namespace glotta
