#include "platform/linux/ControlTransfer.h"

#include "digest/Wipe.h"

#include <libusb.h>

#include <algorithm>
#include <array>
#include <memory>

namespace zelto::linux_platform {
namespace {

using Buffer = std::array<std::uint8_t, LIBUSB_CONTROL_SETUP_SIZE + LongestDataStage>;

struct FreeTransfer {
    void operator()(libusb_transfer* transfer) const { libusb_free_transfer(transfer); }
};

void LIBUSB_CALL noteEnd(libusb_transfer* transfer) {
    *static_cast<int*>(transfer->user_data) = 1;
}

int errorOf(libusb_transfer_status status) {
    switch (status) {
    case LIBUSB_TRANSFER_COMPLETED:
        return LIBUSB_SUCCESS;
    case LIBUSB_TRANSFER_TIMED_OUT:
        return LIBUSB_ERROR_TIMEOUT;
    case LIBUSB_TRANSFER_STALL:
        return LIBUSB_ERROR_PIPE;
    case LIBUSB_TRANSFER_NO_DEVICE:
        return LIBUSB_ERROR_NO_DEVICE;
    case LIBUSB_TRANSFER_OVERFLOW:
        return LIBUSB_ERROR_OVERFLOW;
    case LIBUSB_TRANSFER_ERROR:
    case LIBUSB_TRANSFER_CANCELLED:
        return LIBUSB_ERROR_IO;
    }
    return LIBUSB_ERROR_OTHER;
}

/// The buffer belongs to the kernel until the transfer has ended, so this waits also for the end
/// of one that it has to call off.
void waitForEnd(libusb_context* context, libusb_transfer* transfer, int& hasEnded) {
    while (hasEnded == 0) {
        const int status = libusb_handle_events_completed(context, &hasEnded);
        if (status < 0 && status != LIBUSB_ERROR_INTERRUPTED) {
            libusb_cancel_transfer(transfer);
        }
    }
}

} // namespace

int controlTransfer(libusb_context* context, libusb_device_handle* handle,
                    const IOUSBDevRequest& request, unsigned timeLimitMilliseconds) {
    const std::unique_ptr<libusb_transfer, FreeTransfer> transfer(libusb_alloc_transfer(0));
    if (transfer == nullptr) {
        return LIBUSB_ERROR_NO_MEM;
    }
    Wiped<Buffer> buffer;
    const bool isToHost = (request.bmRequestType & LIBUSB_ENDPOINT_IN) != 0;
    libusb_fill_control_setup(buffer->data(), request.bmRequestType, request.bRequest,
                              request.wValue, request.wIndex, request.wLength);
    if (!isToHost) {
        std::copy_n(request.pData, request.wLength, buffer->begin() + LIBUSB_CONTROL_SETUP_SIZE);
    }
    int hasEnded = 0;
    libusb_fill_control_transfer(transfer.get(), handle, buffer->data(), noteEnd, &hasEnded,
                                 timeLimitMilliseconds);
    if (const int status = libusb_submit_transfer(transfer.get()); status != LIBUSB_SUCCESS) {
        return status;
    }
    waitForEnd(context, transfer.get(), hasEnded);
    if (const int status = errorOf(transfer->status); status != LIBUSB_SUCCESS) {
        return status;
    }
    const int length = std::clamp(transfer->actual_length, 0, int{request.wLength});
    if (isToHost) {
        std::copy_n(buffer->begin() + LIBUSB_CONTROL_SETUP_SIZE, length, request.pData);
    }
    return length;
}

} // namespace zelto::linux_platform
