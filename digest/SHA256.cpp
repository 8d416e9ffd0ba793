#include "digest/SHA256.h"

#include "digest/Wipe.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <functional>

namespace zelto {
namespace {

/// The initial hash value (FIPS 180-4, 5.3.3).
constexpr std::array<std::uint32_t, 8> InitialHash{
    0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A, 0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19,
};

/// The round constants (4.2.2).
constexpr std::array<std::uint32_t, 64> dwK256{
    0x428A2F98, 0x71374491, 0xB5C0FBCF, 0xE9B5DBA5, 0x3956C25B, 0x59F111F1, 0x923F82A4, 0xAB1C5ED5,
    0xD807AA98, 0x12835B01, 0x243185BE, 0x550C7DC3, 0x72BE5D74, 0x80DEB1FE, 0x9BDC06A7, 0xC19BF174,
    0xE49B69C1, 0xEFBE4786, 0x0FC19DC6, 0x240CA1CC, 0x2DE92C6F, 0x4A7484AA, 0x5CB0A9DC, 0x76F988DA,
    0x983E5152, 0xA831C66D, 0xB00327C8, 0xBF597FC7, 0xC6E00BF3, 0xD5A79147, 0x06CA6351, 0x14292967,
    0x27B70A85, 0x2E1B2138, 0x4D2C6DFC, 0x53380D13, 0x650A7354, 0x766A0ABB, 0x81C2C92E, 0x92722C85,
    0xA2BFE8A1, 0xA81A664B, 0xC24B8B70, 0xC76C51A3, 0xD192E819, 0xD6990624, 0xF40E3585, 0x106AA070,
    0x19A4C116, 0x1E376C08, 0x2748774C, 0x34B0BCB5, 0x391C0CB3, 0x4ED8AA4A, 0x5B9CCA4F, 0x682E6FF3,
    0x748F82EE, 0x78A5636F, 0x84C87814, 0x8CC70208, 0x90BEFFFA, 0xA4506CEB, 0xBEF9A3F7, 0xC67178F2,
};

// The functions of 4.1.2, under the standard's names.

constexpr std::uint32_t Ch(std::uint32_t x, std::uint32_t y, std::uint32_t z) {
    return (x & y) ^ (~x & z);
}
constexpr std::uint32_t Maj(std::uint32_t x, std::uint32_t y, std::uint32_t z) {
    return (x & y) ^ (x & z) ^ (y & z);
}
constexpr std::uint32_t Sigma0(std::uint32_t x) {
    return std::rotr(x, 2) ^ std::rotr(x, 13) ^ std::rotr(x, 22);
}
constexpr std::uint32_t Sigma1(std::uint32_t x) {
    return std::rotr(x, 6) ^ std::rotr(x, 11) ^ std::rotr(x, 25);
}
constexpr std::uint32_t sigma0(std::uint32_t x) {
    return std::rotr(x, 7) ^ std::rotr(x, 18) ^ (x >> 3);
}
constexpr std::uint32_t sigma1(std::uint32_t x) {
    return std::rotr(x, 17) ^ std::rotr(x, 19) ^ (x >> 10);
}

constexpr std::uint32_t bigEndianWord(const std::uint8_t* bytes) {
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
           std::uint32_t{bytes[2]} << 8 | std::uint32_t{bytes[3]};
}

} // namespace

SHA256::~SHA256() {
    wipeObject(m_fFinalize);
    wipe(m_bDigest);
    wipe(m_H);
    wipe(m_W);
    wipeObject(m_indexW);
    wipeObject(m_nMessageLength);
}

void SHA256::Init() {
    m_fFinalize = 0;
    m_H = InitialHash;
    m_indexW = 0;
    m_nMessageLength = 0;
    m_W.fill(0);
}

void SHA256::Input(const std::uint8_t* data, std::uint32_t length) {
    do {
        const std::uint32_t taken = fillBlock(data, length);
        m_nMessageLength += std::uint64_t{8} * taken;
        if (m_indexW < BlockSize) {
            return;
        }
        extendSchedule();
        Calculation();
        m_indexW = 0;
        m_W.fill(0);
        data += taken;
        length -= taken;
    } while (length > 0);
}

std::uint32_t SHA256::fillBlock(const std::uint8_t* data, std::uint32_t length) {
    std::uint32_t taken = 0;
    while (m_indexW % 4 != 0 && taken < length) {
        putByte(data[taken++]);
    }
    while (m_indexW + 4 <= BlockSize && length - taken >= 4) {
        m_W[static_cast<std::size_t>(m_indexW / 4)] |= bigEndianWord(data + taken);
        m_indexW += 4;
        taken += 4;
    }
    while (m_indexW < BlockSize && taken < length) {
        putByte(data[taken++]);
    }
    return taken;
}

void SHA256::putByte(std::uint8_t byte) {
    m_W[static_cast<std::size_t>(m_indexW / 4)] |= std::uint32_t{byte} << (24 - 8 * (m_indexW % 4));
    ++m_indexW;
}

void SHA256::extendSchedule() {
    for (std::size_t t = 16; t < m_W.size(); ++t) {
        m_W[t] = sigma1(m_W[t - 2]) + m_W[t - 7] + sigma0(m_W[t - 15]) + m_W[t - 16];
    }
}

void SHA256::Calculation() {
    std::array<std::uint32_t, 8> working = m_H;
    auto& [a, b, c, d, e, f, g, h] = working;
    for (std::size_t t = 0; t < m_W.size(); ++t) {
        const std::uint32_t t1 = h + Sigma1(e) + Ch(e, f, g) + dwK256[t] + m_W[t];
        const std::uint32_t t2 = Sigma0(a) + Maj(a, b, c);
        h = g;
        g = f;
        f = e;
        e = d + t1;
        d = c;
        c = b;
        b = a;
        a = t1 + t2;
    }
    std::ranges::transform(m_H, working, m_H.begin(), std::plus<>());
    wipe(working);
}

void SHA256::Final() {
    if (m_fFinalize != 0) {
        return;
    }
    putByte(0x80);
    m_indexW = (m_indexW + 3) / 4 * 4;
    if (m_indexW > LengthOffset) {
        extendSchedule();
        Calculation();
        m_indexW = 0;
    }
    // The words behind the block's 16 are not cleared: the schedule is computed anew over them.
    std::fill(m_W.begin() + m_indexW / 4, m_W.begin() + LengthOffset / 4, 0);
    m_W[14] = static_cast<std::uint32_t>(m_nMessageLength >> 32);
    m_W[15] = static_cast<std::uint32_t>(m_nMessageLength);
    extendSchedule();
    Calculation();
    for (std::size_t index = 0; index < m_bDigest.size(); ++index) {
        m_bDigest[index] = static_cast<std::uint8_t>(m_H[index / 4] >> (24 - 8 * (index % 4)));
    }
    m_fFinalize = 1;
}

void SHA256::Get(std::uint8_t* out) {
    Final();
    std::ranges::copy(m_bDigest, out);
}

std::array<std::uint8_t, 32> digestOf(std::span<const std::uint8_t> message) {
    std::array<std::uint8_t, 32> digest{};
    SHA256 sha;
    sha.Init();
    sha.Input(message.data(), static_cast<std::uint32_t>(message.size()));
    sha.Get(digest.data());
    return digest;
}

} // namespace zelto
