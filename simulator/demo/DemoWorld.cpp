#include "simulator/demo/DemoWorld.h"

#include "simulator/demo/Person.h"
#include "simulator/drive/DriveNames.h"

#include <QApplication>
#include <QDateTime>
#include <QTimeZone>

#include <utility>

namespace zelto::simulator {

namespace {

constexpr std::uint64_t NewDriveSectors = 262144;
constexpr std::chrono::milliseconds WhenIdle{20};

} // namespace

DemoWorld::DemoWorld() {
    m_computer.clock.setUtcOffset(
        std::chrono::seconds(QDateTime::currentDateTime().offsetFromUtc()));
    m_computer.application.setListener([this] { settleLater(); });
    m_computer.application.setStopListener([this] { endUtilityWhenIdle(); });
    takePreparedDrive();
    QObject::connect(&m_second, &QTimer::timeout, this, [this] { letASecondPass(); });
    m_second.start(std::chrono::seconds(1));
}

DemoWorld::~DemoWorld() {
    m_computer.application.setListener({});
    m_computer.application.setStopListener({});
}

void DemoWorld::notify() const {
    if (m_changed) {
        m_changed();
    }
}

void DemoWorld::letASecondPass() {
    m_computer.skip(std::chrono::seconds(1));
    notify();
}

void DemoWorld::settleLater() {
    QTimer::singleShot(0, this, [this] { m_computer.settle(); });
}

/// The program asks for its end from inside its own operations, some of them inside a dialog; its
/// windows may go only once all of that has returned.
void DemoWorld::endUtilityWhenIdle() {
    QTimer::singleShot(WhenIdle, this, [this] {
        if (!m_utility || !m_utility->hasQuit()) {
            return;
        }
        if (QApplication::activeModalWidget() != nullptr) {
            endUtilityWhenIdle();
            return;
        }
        m_utility.reset();
        notify();
    });
}

void DemoWorld::startUtility() {
    m_utility.reset();
    m_utility = std::make_unique<UtilityProcess>(m_computer, m_alerts);
    m_utility->start();
    notify();
}

void DemoWorld::skip(std::chrono::seconds duration) {
    m_computer.skip(duration);
    notify();
}

void DemoWorld::loseClock() {
    m_drive->drive().loseClock(m_computer.clock.worldTime());
    notify();
}

void DemoWorld::setVolumesBusy(bool busy) {
    m_volumesBusy = busy;
    for (const auto& disk : m_computer.disks.all()) {
        m_computer.mounts.setHolders(disk->volumeName(),
                                     busy ? std::set<std::string>{"a text editor"}
                                          : std::set<std::string>{});
    }
}

void DemoWorld::exchange(std::shared_ptr<DriveOnBus> drive) {
    if (m_drive) {
        m_computer.unplug(m_drive);
    }
    m_drive = std::move(drive);
    m_computer.plug(m_drive);
    notify();
}

void DemoWorld::takeNewDrive() {
    exchange(makeDrive("ZD-DEMO-" + std::to_string(++m_drivesMade), NewDriveSectors));
}

void DemoWorld::takePreparedDrive() {
    constexpr std::uint32_t OneWeek = 7 * 86400;
    exchange(makePreparedDrive({.serial = "ZD-DEMO-" + std::to_string(++m_drivesMade),
                                .firstPassword = FirstPassword,
                                .secondPassword = SecondPassword,
                                .autoClearSeconds = OneWeek,
                                .showsRemainingTime = true},
                               m_computer.clock.worldTime()));
}

void DemoWorld::typePassword(const char* password) {
    if (m_utility && m_utility->delegate().AuthenticateWindow.isInUse()) {
        Person([](const std::string&) {
        }).type("AuthenticateTextField", QString::fromLatin1(password));
    }
}

QString DemoWorld::describe() {
    setVolumesBusy(m_volumesBusy);
    const auto now = m_computer.clock.now();
    const auto state = m_drive->drive().state(m_computer.clock.worldTime());
    QString text = QStringLiteral("Drive %1: %2")
                       .arg(QString::fromStdString(m_drive->description().serial),
                            QString::fromStdString(
                                std::string(isPlugged() ? nameOf(state) : "not plugged in")));
    QStringList volumes;
    for (const auto& mounted : m_computer.mounts.getmntinfo()) {
        if (mounted.f_mntonname != "/") {
            volumes << QString::fromStdString(mounted.f_mntonname);
        }
    }
    text +=
        QStringLiteral("\nVolumes: %1")
            .arg(volumes.isEmpty() ? QStringLiteral("none") : volumes.join(QStringLiteral(", ")));
    const QTimeZone zone(static_cast<int>(m_computer.clock.utcOffset(now).count()));
    const auto moment = QDateTime::fromSecsSinceEpoch(now.time_since_epoch().count(), zone);
    return text +
           QStringLiteral("\nTime: %1").arg(moment.toString(QStringLiteral("yyyy/MM/dd HH:mm:ss")));
}

} // namespace zelto::simulator
