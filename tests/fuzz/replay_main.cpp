// Runs a fuzz target over files, and over random changes of them, where there is no libFuzzer.
//   fuzz_TARGET [--mutate N] [--seed S] [--keep FILE] FILE-OR-FOLDER...
// --keep FILE writes each input there before it runs: the last one is the one that crashed.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

struct Options {
    int mutations = 0;
    unsigned seed = 1;
    std::string keep; // the file that each input is written to before it runs
    std::vector<std::string> inputs;
};

std::string ReadAll(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> Inputs(const std::vector<std::string>& paths) {
    std::vector<std::string> inputs;
    for (const std::string& path : paths) {
        if (!fs::is_directory(path)) {
            inputs.push_back(ReadAll(path));
            continue;
        }
        for (const auto& entry : fs::recursive_directory_iterator(path))
            if (entry.is_regular_file()) inputs.push_back(ReadAll(entry.path()));
    }
    return inputs;
}

class Mutator {
public:
    Mutator(const std::vector<std::string>& corpus, unsigned seed) : corpus_(corpus), random_(seed) {}

    std::string Next() {
        std::string bytes = Any();
        for (unsigned changes = 1 + random_() % 4; changes > 0; --changes)
            Change(bytes);
        return bytes;
    }

private:
    const std::string& Any() { return corpus_[random_() % corpus_.size()]; }
    std::size_t Place(const std::string& bytes) { return bytes.empty() ? 0 : random_() % (bytes.size() + 1); }
    char Byte() {
        constexpr char Likely[] = "\0\n\r\t '\"{}()[]<>=\\/*;,.:#$@+-&\xC3\xE2\xFF\x01TPF0";
        return random_() % 2 ? Likely[random_() % (sizeof Likely - 1)] : static_cast<char>(random_() & 0xFF);
    }
    void Change(std::string& bytes) {
        const std::size_t at = Place(bytes), length = random_() % 16;
        switch (random_() % 6) {
        case 0:
            bytes.insert(at, 1, Byte());
            break;
        case 1:
            bytes.erase(at, length);
            break;
        case 2:
            if (at < bytes.size()) bytes[at] = Byte();
            break;
        case 3:
            bytes.insert(at, bytes.substr(Place(bytes), length * 8));
            break;
        case 4:
            bytes.resize(at);
            break;
        case 5: {
            const std::string& other = Any();
            bytes.insert(at, other.substr(Place(other), length * 8));
            break;
        }
        }
    }

    const std::vector<std::string>& corpus_;
    std::mt19937 random_;
};

void Run(const std::string& bytes, const Options& options) {
    if (!options.keep.empty()) std::ofstream(options.keep, std::ios::binary) << bytes;
    // A block of exactly this size: a sanitizer sees each byte read beyond it.
    const std::vector<std::uint8_t> block(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(block.data(), block.size());
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--mutate" && i + 1 < argc)
            options.mutations = std::atoi(argv[++i]);
        else if (word == "--seed" && i + 1 < argc)
            options.seed = static_cast<unsigned>(std::atoi(argv[++i]));
        else if (word == "--keep" && i + 1 < argc)
            options.keep = argv[++i];
        else
            options.inputs.push_back(word);
    }
    const std::vector<std::string> corpus = Inputs(options.inputs);
    if (corpus.empty()) {
        std::fprintf(stderr, "usage: %s [--mutate N] [--seed S] [--keep FILE] FILE-OR-FOLDER...\n", argv[0]);
        return 2;
    }
    for (const std::string& bytes : corpus)
        Run(bytes, options);
    Mutator mutator(corpus, options.seed);
    const long long rounds =
        static_cast<long long>(options.mutations) * static_cast<long long>(corpus.size());
    for (long long i = 0; i < rounds; ++i)
        Run(mutator.Next(), options);
    std::printf("%zu inputs, %lld mutations\n", corpus.size(), rounds);
    return 0;
}
