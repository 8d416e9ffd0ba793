#include "device/PasswordRecords.h"

#include <algorithm>

namespace zelto {
namespace {

using record::Field;
using record::get;
using record::put;

constexpr Field StepFlag{0, 1};
constexpr Field AfterStepFlag{1, 1};
constexpr Field Digest{2, 32};

static_assert(record::covers(std::array{StepFlag, AfterStepFlag, Digest}, AuthPayload::Size));

constexpr std::uint8_t AlwaysOneValue = 1;

void putDigest(std::span<std::uint8_t> record, Field field, const PasswordDigest& digest) {
    std::ranges::copy(digest, record::bytes(record, field).begin());
}

} // namespace

AuthPayload::Bytes encodeAuthPayload(const AuthPayload& payload) {
    AuthPayload::Bytes bytes{};
    put(bytes, StepFlag, payload.firstStep ? 1 : 0);
    putDigest(bytes, Digest, payload.digest);
    return bytes;
}

AuthPayload decodeAuthPayload(std::span<const std::uint8_t, AuthPayload::Size> bytes) {
    AuthPayload payload{.firstStep = get(bytes, StepFlag) != 0};
    std::ranges::copy(record::bytes(bytes, Digest), payload.digest.begin());
    return payload;
}

AuthInfo::Bytes encodeAuthInfo(const AuthInfo& info) {
    AuthInfo::Bytes bytes{};
    put(bytes, AuthInfoField::Kind, info.kind);
    put(bytes, AuthInfoField::AlwaysOne, AlwaysOneValue);
    put(bytes, AuthInfoField::NumberOfTrials, info.numberOfTrials);
    putDigest(bytes, AuthInfoField::Slot1, info.slot1);
    putDigest(bytes, AuthInfoField::Slot2, info.slot2);
    if (info.kind == AuthInfo::ChangeBoth) {
        putDigest(bytes, AuthInfoField::Slot3, info.slot3);
    }
    return bytes;
}

EncryptionInfo::Bytes encodeEncryptionInfo(const EncryptionInfo& info) {
    using namespace EncryptionInfoField;
    EncryptionInfo::Bytes bytes{};
    put(bytes, Magic, MagicValue);
    put(bytes, Form, FormValue);
    if (info.automaticKey) {
        put(bytes, AutomaticKey, AutomaticKeyBit);
    } else {
        std::ranges::copy(info.key, record::bytes(std::span<std::uint8_t>(bytes), Key).begin());
    }
    return bytes;
}

} // namespace zelto
