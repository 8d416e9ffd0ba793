// SHA-256 beside libcrypto's, in pieces of any size. The first byte says how large they are.

#include "digest/SHA256.h"
#include "tests/fuzz/Target.h"

#include <openssl/sha.h>

#include <array>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    Input input(data, size);
    const std::size_t piece = std::size_t{1} + input.takeByte();
    const auto message = input.rest();
    std::array<std::uint8_t, 32> theirs{};
    SHA256(message.data(), message.size(), theirs.data());
    std::array<std::uint8_t, 32> ours{};
    zelto::SHA256 digest;
    digest.Init();
    while (!input.isEmpty()) {
        const auto bytes = input.takeBytes(piece);
        digest.Input(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    }
    digest.Get(ours.data());
    require(ours == theirs && zelto::digestOf(message) == theirs, "all digests are the same");
    return 0;
}
