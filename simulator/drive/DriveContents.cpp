#include "simulator/drive/DriveContents.h"

#include "simulator/drive/SecretBytes.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <openssl/evp.h>
#include <string_view>
#include <utility>

namespace zelto::simulator {
namespace {

/// What is enciphered at a time before it goes to the store.
constexpr std::size_t BufferSize = std::size_t{256} * 1024;

StorageResult resultOf(bool succeeded) {
    return succeeded ? StorageResult::Done : StorageResult::Failed;
}

/// Whether the medium has these sectors.
bool isWithin(const Medium& medium, std::uint64_t sector, std::size_t size) {
    return size % SectorSize == 0 && sector <= medium.sectorCount &&
           size / SectorSize <= medium.sectorCount - sector;
}

struct FreeContext {
    void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};
using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, FreeContext>;

/// The two keys of XTS, which must differ: libcrypto refuses equal ones, and the bytes of a key
/// entered by hand (a single 00, say) may well repeat. A digest of them does not.
MediumKey expandKey(const MediumKey& key) {
    constexpr std::string_view Purpose = "sectors of the secure area";
    std::array<std::uint8_t, Purpose.size() + std::tuple_size_v<MediumKey>> source{};
    std::ranges::copy(Purpose, source.begin());
    std::ranges::copy(key, source.begin() + Purpose.size());
    MediumKey expanded{};
    unsigned size = 0;
    EVP_Digest(source.data(), source.size(), expanded.data(), &size, EVP_sha512(), nullptr);
    wipe(source);
    return expanded;
}

} // namespace

/// AES-256-XTS, sector by sector. The key schedules of the latest key are kept, in both
/// directions; each sector then only sets its tweak.
class DriveContents::Cipher {
public:
    ~Cipher() { forgetKey(); }

    /// Makes `key` the one in use. False when libcrypto has no such cipher.
    [[nodiscard]] bool use(const MediumKey& key) {
        if (m_key && equalSecrets(*m_key, key)) {
            return true;
        }
        forgetKey();
        MediumKey expanded = expandKey(key);
        const bool ready =
            prepare(m_encrypt, expanded, Encrypt) && prepare(m_decrypt, expanded, Decrypt);
        wipe(expanded);
        if (ready) {
            m_key = key;
        }
        return ready;
    }

    void forgetKey() {
        forgetSecret(m_key);
        // Freeing a context wipes it.
        m_encrypt.reset();
        m_decrypt.reset();
    }

    [[nodiscard]] bool encrypt(std::uint64_t sector, std::span<const std::uint8_t> plain,
                               std::uint8_t* enciphered) {
        return transform(m_encrypt.get(), sector, plain, enciphered);
    }
    [[nodiscard]] bool decrypt(std::uint64_t sector, std::span<std::uint8_t> bytes) {
        return transform(m_decrypt.get(), sector, bytes, bytes.data());
    }

private:
    static constexpr int Encrypt = 1;
    static constexpr int Decrypt = 0;

    static bool prepare(CipherContext& context, const MediumKey& key, int direction) {
        context.reset(EVP_CIPHER_CTX_new());
        return context && EVP_CipherInit_ex(context.get(), EVP_aes_256_xts(), nullptr, key.data(),
                                            nullptr, direction) == 1;
    }

    static bool transform(EVP_CIPHER_CTX* context, std::uint64_t sector,
                          std::span<const std::uint8_t> from, std::uint8_t* to) {
        for (; !from.empty(); from = from.subspan(SectorSize), to += SectorSize, ++sector) {
            std::array<std::uint8_t, 16> tweak{};
            for (std::size_t index = 0; index < sizeof sector; ++index) {
                tweak[index] = static_cast<std::uint8_t>(sector >> (8 * index));
            }
            int done = 0;
            if (EVP_CipherInit_ex(context, nullptr, nullptr, nullptr, tweak.data(), -1) != 1 ||
                EVP_CipherUpdate(context, to, &done, from.data(), SectorSize) != 1 ||
                done != static_cast<int>(SectorSize)) {
                return false;
            }
        }
        return true;
    }

    std::optional<MediumKey> m_key;
    CipherContext m_encrypt;
    CipherContext m_decrypt;
};

DriveContents::DriveContents(std::unique_ptr<SectorStore> store)
    : m_store(std::move(store)),
      m_cipher(std::make_unique<Cipher>()),
      m_buffer(std::make_unique<std::uint8_t[]>(BufferSize)) {}

DriveContents::~DriveContents() = default;

StorageResult DriveContents::read(const Medium& medium, std::uint64_t sector,
                                  std::span<std::uint8_t> bytes) {
    if (!isWithin(medium, sector, bytes.size())) {
        return StorageResult::OutOfRange;
    }
    const std::uint64_t first = medium.firstSector + sector;
    if (!m_store->read(first, bytes)) {
        return StorageResult::Failed;
    }
    if (!medium.secure) {
        return StorageResult::Done;
    }
    return resultOf(medium.key && m_cipher->use(*medium.key) && m_cipher->decrypt(first, bytes));
}

StorageResult DriveContents::write(const Medium& medium, std::uint64_t sector,
                                   std::span<const std::uint8_t> bytes) {
    if (!isWithin(medium, sector, bytes.size())) {
        return StorageResult::OutOfRange;
    }
    const std::uint64_t first = medium.firstSector + sector;
    return medium.secure ? writeEnciphered(medium, first, bytes)
                         : resultOf(m_store->write(first, bytes));
}

StorageResult DriveContents::writeEnciphered(const Medium& medium, std::uint64_t sector,
                                             std::span<const std::uint8_t> bytes) {
    if (!medium.key || !m_cipher->use(*medium.key)) {
        return StorageResult::Failed;
    }
    while (!bytes.empty()) {
        const auto part = bytes.first(std::min(bytes.size(), BufferSize));
        if (!m_cipher->encrypt(sector, part, m_buffer.get()) ||
            !m_store->write(sector, {m_buffer.get(), part.size()})) {
            return StorageResult::Failed;
        }
        sector += part.size() / SectorSize;
        bytes = bytes.subspan(part.size());
    }
    return StorageResult::Done;
}

StorageResult DriveContents::flush() {
    return resultOf(m_store->flush());
}

StorageResult DriveContents::discardAll() {
    return resultOf(m_store->discardAll());
}

void DriveContents::forgetKey() {
    m_cipher->forgetKey();
}

} // namespace zelto::simulator
