#include "simulator/scsi/ScsiSense.h"

#include "device/Record.h"

namespace zelto::simulator {

std::vector<std::uint8_t> encodeFixedSense(const SenseData& data) {
    constexpr std::uint8_t CurrentErrorFixed = 0x70;
    constexpr std::uint8_t Valid = 0x80;
    std::vector<std::uint8_t> bytes(18);
    bytes[0] = CurrentErrorFixed;
    if (data.information && *data.information <= 0xFFFFFFFF) {
        bytes[0] |= Valid;
        record::put(bytes, {3, 4}, *data.information);
    }
    bytes[2] = data.sense.key;
    bytes[7] = static_cast<std::uint8_t>(bytes.size() - 8);
    bytes[12] = data.sense.additionalCode;
    bytes[13] = data.sense.qualifier;
    return bytes;
}

std::vector<std::uint8_t> encodeDescriptorSense(const SenseData& data) {
    constexpr std::uint8_t CurrentErrorDescriptor = 0x72;
    std::vector<std::uint8_t> bytes{CurrentErrorDescriptor,
                                    data.sense.key,
                                    data.sense.additionalCode,
                                    data.sense.qualifier,
                                    0,
                                    0,
                                    0,
                                    0};
    if (data.information) {
        bytes.resize(20);
        bytes[7] = 12;
        bytes[8] = 0x00;  // information descriptor
        bytes[9] = 0x0A;  // bytes that follow
        bytes[10] = 0x80; // valid
        record::put(bytes, {12, 8}, *data.information);
    }
    return bytes;
}

} // namespace zelto::simulator
