// Where there is no fuzzer, a target goes over the inputs that are kept: the files that it is
// given.

#include "tests/fuzz/Target.h"

#include <fstream>
#include <iterator>
#include <vector>

int main(int argc, char** argv) {
    for (int index = 1; index < argc; ++index) {
        std::ifstream file(argv[index], std::ios::binary);
        const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
        zelto::test::require(file.good() || file.eof(), argv[index]);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    (void)std::printf("%d inputs\n", argc - 1);
    return argc > 1 ? 0 : 1;
}
