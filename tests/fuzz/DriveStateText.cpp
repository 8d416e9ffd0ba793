// "drive.state", from wherever it comes: a drive that can be, or an error; and the same text again
// for the same drive. A digest that does not fit would keep everything out, so it is made to fit.

#include "digest/SHA256.h"
#include "simulator/drive/DriveState.h"
#include "tests/fuzz/Target.h"
#include "tests/support/Bytes.h"

namespace {

std::string sealed(std::string text) {
    const std::span bytes(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
    const auto digest = zelto::digestOf(bytes);
    return text + "sum " + zelto::test::toHex(digest) + "\n";
}

void check(const std::string& text) {
    using namespace zelto::simulator;
    using zelto::test::require;
    SavedDrive drive;
    std::string error;
    if (!decodeDriveState(text, drive, error)) {
        require(!error.empty(), "what is wrong is said");
        return;
    }
    require(faultOf(drive.manufactured).empty(), "such a drive can be made");
    SavedDrive again;
    require(decodeDriveState(encodeDriveState(drive), again, error),
            "what was written can be read");
    require(again == drive, "it is the same drive");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(zelto::test::Input(data, size).restAsText());
    check(text);
    check(sealed(text));
    return 0;
}
