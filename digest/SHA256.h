#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace zelto {

/// SHA-256 (FIPS 180-4), fed in pieces and finished once: Init, Input any number of times, Get.
/// Passwords pass through it, so the whole state is zeroed when the object goes, and it cannot be
/// copied. Nothing is allocated, nothing fails.
class SHA256 {
public:
    SHA256() = default;
    SHA256(const SHA256&) = delete;
    SHA256& operator=(const SHA256&) = delete;
    ~SHA256();

    /// Starts a message. Construction does not: call it first, and again for the next message.
    void Init();
    /// Appends `length` bytes to the message; `data` may be null when `length` is 0.
    void Input(const std::uint8_t* data, std::uint32_t length);
    /// Compresses the block, already extended to 64 words, into the hash state (6.2.2).
    void Calculation();
    /// Pads the message and finishes the digest; does nothing when it is finished already.
    void Final();
    /// Finishes the digest and writes its 32 bytes, most significant first, to `out`.
    void Get(std::uint8_t* out);

private:
    /// Bytes of a block, and where in the last block the message length begins.
    static constexpr std::int32_t BlockSize = 64;
    static constexpr std::int32_t LengthOffset = 56;

    /// Takes what fits into the current block; returns the number of bytes taken.
    std::uint32_t fillBlock(const std::uint8_t* data, std::uint32_t length);
    void putByte(std::uint8_t byte);
    void extendSchedule();

    std::int8_t m_fFinalize = 0;
    std::array<std::uint8_t, 32> m_bDigest{};
    std::array<std::uint32_t, 8> m_H{};
    /// The current block in its first 16 words, the rest its message schedule.
    std::array<std::uint32_t, 64> m_W{};
    /// Bytes of the current block filled so far.
    std::int32_t m_indexW = 0;
    /// In bits.
    std::uint64_t m_nMessageLength = 0;
};

/// The digest of one whole message, most significant byte first.
[[nodiscard]] std::array<std::uint8_t, 32> digestOf(std::span<const std::uint8_t> message);

} // namespace zelto
