// Where there is no fuzzer, a target goes over the inputs that are kept: the files below the
// folders that it is given.

#include "tests/fuzz/Target.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    int count = 0;
    for (int index = 1; index < argc; ++index) {
        for (const auto& entry : fs::recursive_directory_iterator(argv[index])) {
            if (!entry.is_regular_file()) {
                continue;
            }
            std::ifstream file(entry.path(), std::ios::binary);
            const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()),
                                   bytes.size());
            ++count;
        }
    }
    (void)std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
