// Source to measure with: made here, or the units of a tree named by GLOTTA_BENCH_TREE.
#pragma once
#include <string>
#include <vector>

namespace glotta {

struct BenchUnit {
    std::string name;
    std::string text; // as a buffer holds it
};

// A unit with this many literals in code and the comments, names and directives around them; every tenth text
// is equal to an earlier one.
BenchUnit UnitWithLiterals(int count);
// The tree's units; a made-up set of about 10 MB without a tree.
const std::vector<BenchUnit>& BenchUnits();

} // namespace glotta
