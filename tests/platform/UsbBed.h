#pragma once

#include "simulator/drive/DriveModel.h"

#include <atomic>
#include <cstdint>
#include <mutex>
#include <set>
#include <span>
#include <string>
#include <vector>

#include <umockdev.h>

namespace zelto::test {

/// A USB bus that only this process sees, with drives behind it: libudev and libusb are the real
/// ones, the kernel below them is not. One at a time.
class UsbBed {
public:
    UsbBed();
    UsbBed(const UsbBed&) = delete;
    UsbBed& operator=(const UsbBed&) = delete;
    ~UsbBed();

    /// Attaches a drive and announces it, in a place of its own if none is named ("250-2" say).
    /// Returns its folder in sysfs.
    std::string plug(unsigned number, const char* product = "0135", std::string place = {});
    void unplug(const std::string& syspath);
    void set(const std::string& syspath, const char* attribute, const char* value);
    /// Tells of the removal of an earlier device in that place.
    void announceRemovalOf(unsigned number, const std::string& syspath);
    void announce(const std::string& syspath, const char* action);
    /// The real file that stands for a drive's node.
    [[nodiscard]] std::string nodeFile(unsigned number) const;

    /// What every further ioctl fails with; 0: none.
    std::atomic<int> failure{0};
    /// What every further transfer ends with (a negative errno); 0: as the drive decides.
    std::atomic<int> transferStatus{0};

private:
    static gboolean handle(UMockdevIoctlBase* base, UMockdevIoctlClient* client, gpointer bed);
    void answer(UMockdevIoctlClient* client);
    void submit(UMockdevIoctlData* argument);
    [[nodiscard]] bool reap(UMockdevIoctlData* argument);
    [[nodiscard]] simulator::ControlReply control(const simulator::SetupPacket& setup,
                                                  std::span<const std::uint8_t> sent);

    UMockdevTestbed* m_bed = nullptr;
    UMockdevIoctlBase* m_handler = nullptr;
    /// The handler runs in a thread of its own.
    std::mutex m_mutex;
    simulator::DriveModel m_drive;
    std::set<std::string> m_nodes;
    UMockdevIoctlData* m_finished = nullptr;
};

} // namespace zelto::test
