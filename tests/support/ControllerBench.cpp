#include "tests/support/ControllerBench.h"

#include "tests/support/AlertWeights.h"
#include "ui/Strings.h"

#include <gtest/gtest.h>

namespace zelto::test {

ControllerBench::ControllerBench()
    : person([](const std::string& what) { ADD_FAILURE() << what; }) {
    installStrings(QStringLiteral("en"));
    alerts.setExpectation(expectWeightOfWords);
    computer.usb.addHandleLayer(
        [forgeries = m_forgeries](std::unique_ptr<UsbDeviceInterface> handle) {
            return std::make_unique<ForgedReplies>(std::move(handle), forgeries);
        });
    computer.usb.addHandleLayer([cable = plan](std::unique_ptr<UsbDeviceInterface> handle) {
        return std::make_unique<FaultyDevice>(std::move(handle), cable);
    });
}

ControllerBench::~ControllerBench() = default;

ControllerBench::Drive ControllerBench::plugNewDrive(const std::string& serial,
                                                     std::uint64_t sectors) {
    auto drive = simulator::makeDrive(serial, sectors);
    plug(drive);
    return drive;
}

ControllerBench::Drive ControllerBench::plugPreparedDrive(const simulator::DriveSetup& setup) {
    auto drive = simulator::makePreparedDrive(setup, computer.clock.worldTime());
    if (drive == nullptr) {
        ADD_FAILURE() << "the drive refused to be prepared";
        return plugNewDrive(setup.serial);
    }
    plug(drive);
    return drive;
}

void ControllerBench::start() {
    end();
    m_process = std::make_unique<simulator::UtilityProcess>(computer, alerts);
    m_process->start();
}

std::vector<std::string> ControllerBench::commands() const {
    std::vector<std::string> names = computer.log.texts(simulator::LogLine::Kind::Command);
    std::erase(names, "TKVR21_ZELTO_GetTimeStatus");
    return names;
}

std::vector<std::string> ControllerBench::diskToolRuns() const {
    return computer.log.texts(simulator::LogLine::Kind::DiskTool);
}

} // namespace zelto::test
