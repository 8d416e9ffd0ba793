#include "app/AppDelegate.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/PrivateMemory.h"
#include "ui/AlertPresenter.h"
#include "ui/OutlinedStyle.h"
#include "ui/ProductIcon.h"
#include "ui/ProductVersion.h"
#include "ui/Strings.h"
#include "ui/WorkIndicator.h"

#include <QApplication>

#include <cstdio>
#include <memory>
#include <string_view>

namespace {

/// The framework's main loop: creates the controller, hands it the application's events, and
/// returns when it has quit.
int NSApplicationMain(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zelto"));
    QApplication::setDesktopFileName(QStringLiteral("com.kestrin.zelto"));
    // The controller decides what the closing of a window means.
    QApplication::setQuitOnLastWindowClosed(false);
    zelto::installStrings();
    // No display name: the toolkit would append it to the titles, which begin with it.
    QApplication::setWindowIcon(zelto::ProductIcon::icon());
    QApplication::setStyle(new zelto::OutlinedStyle);

    zelto::AlertPresenter alerts;
    zelto::linux_platform::LinuxPlatform linuxPlatform(
        alerts, [] { return std::make_shared<zelto::BusyWindows>(); });
    zelto::AppDelegate delegate(linuxPlatform.platform());
    delegate.applicationWillFinishLaunching();
    // From inside the loop: a relocating program quits at once, which needs a loop to leave.
    QMetaObject::invokeMethod(
        &application, [&delegate] { delegate.applicationDidFinishLaunching(); },
        Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc == 2 && std::string_view(argv[1]) == "--version") {
        std::puts(qPrintable(QStringLiteral("zelto ") + zelto::productVersion()));
        return 0;
    }
    zelto::linux_platform::keepMemoryPrivate();
    return NSApplicationMain(argc, argv);
}
