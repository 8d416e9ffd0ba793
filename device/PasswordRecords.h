#pragma once

#include "device/Record.h"

#include <vector>

namespace zelto {

/// SHA-256 of a password's bytes; passwords never travel in any other form.
using PasswordDigest = std::array<std::uint8_t, 32>;

/// The data of a log-in, sent with TKVR21_Authenticate.
struct AuthPayload {
    static constexpr std::size_t Size = 34;
    using Bytes = std::array<std::uint8_t, Size>;

    /// The first step of a log-in.
    bool firstStep = false;
    PasswordDigest digest{};
};

[[nodiscard]] AuthPayload::Bytes encodeAuthPayload(const AuthPayload&);
[[nodiscard]] AuthPayload decodeAuthPayload(std::span<const std::uint8_t, AuthPayload::Size>);

/// The password record, sent with TKVR21_SetAuthInfo: 72 bytes with two digest slots, or 104 with
/// three.
struct AuthInfo {
    static constexpr std::size_t ShortSize = 72;
    static constexpr std::size_t LongSize = 104;
    using Bytes = std::array<std::uint8_t, LongSize>;

    /// Flags, byte 0. The system sends exactly these four combinations.
    enum Kind : std::uint8_t {
        /// Slot 1: a new password (the first; or the second, as the first of two records).
        Set = 0x02,
        /// Slots 1 and 2: new first and new second password.
        SetBoth = 0x0B,
        /// Slot 1: a new password; slot 2: the current one of the same kind.
        Change = 0x06,
        /// Slots 1 to 3: new first, current first, new second password. The long form.
        ChangeBoth = 0x0F,
    };

    Kind kind = Set;
    /// Trials allowed for the second password; 0 in records that do not set one on its own.
    std::uint8_t numberOfTrials = 0;
    PasswordDigest slot1{};
    PasswordDigest slot2{};
    /// Travels in the long form only.
    PasswordDigest slot3{};

    [[nodiscard]] constexpr std::size_t size() const {
        return kind == ChangeBoth ? LongSize : ShortSize;
    }
};

/// The record in the form that its kind calls for, padded with zeros to the long form; the first
/// `info.size()` bytes are the record.
[[nodiscard]] AuthInfo::Bytes encodeAuthInfo(const AuthInfo& info);

/// The encryption record, sent with TKVR21_SetEncryptionInfo.
struct EncryptionInfo {
    static constexpr std::size_t Size = 72;
    static constexpr std::size_t KeySize = 64;
    using Bytes = std::array<std::uint8_t, Size>;

    /// The drive makes its own key; `key` stays zero.
    bool automaticKey = false;
    /// A key entered by hand, padded with zeros; its length does not travel.
    std::array<std::uint8_t, KeySize> key{};
};

[[nodiscard]] EncryptionInfo::Bytes encodeEncryptionInfo(const EncryptionInfo&);

/// Offsets of the password and encryption records, for whoever has to read them back (the drive).
namespace AuthInfoField {
inline constexpr record::Field Kind{0, 1};
inline constexpr record::Field AfterKind{1, 1};
inline constexpr record::Field AlwaysOne{2, 1};
inline constexpr record::Field AfterAlwaysOne{3, 1};
inline constexpr record::Field NumberOfTrials{4, 1};
inline constexpr record::Field BeforeSlots{5, 3};
inline constexpr record::Field Slot1{8, 32};
inline constexpr record::Field Slot2{40, 32};
inline constexpr record::Field Slot3{72, 32};
static_assert(record::covers(std::array{Kind, AfterKind, AlwaysOne, AfterAlwaysOne, NumberOfTrials,
                                        BeforeSlots, Slot1, Slot2, Slot3},
                             AuthInfo::LongSize));
} // namespace AuthInfoField

namespace EncryptionInfoField {
inline constexpr record::Field Magic{0, 4};
inline constexpr record::Field Form{4, 1};
inline constexpr record::Field AutomaticKey{5, 1};
inline constexpr record::Field BeforeKey{6, 2};
inline constexpr record::Field Key{8, 64};
static_assert(record::covers(std::array{Magic, Form, AutomaticKey, BeforeKey, Key},
                             EncryptionInfo::Size));

/// "TKER", ASCII.
inline constexpr std::uint64_t MagicValue = 0x544B4552;
/// Bit 0 set, and the two-bit field in bits 1 and 2 equal to 1.
inline constexpr std::uint8_t FormValue = 0x03;
inline constexpr std::uint8_t AutomaticKeyBit = 0x80;
} // namespace EncryptionInfoField

} // namespace zelto
