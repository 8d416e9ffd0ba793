#include "app/AppDelegate.h"
#include "platform/linux/LinuxPlatform.h"
#include "ui/AlertPresenter.h"
#include "ui/Strings.h"

#include <QApplication>
#include <QIcon>

namespace {

/// The framework's main loop: creates the controller, hands it the application's events, and
/// returns when it has quit.
int NSApplicationMain(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zelto"));
    QApplication::setDesktopFileName(QStringLiteral("zelto"));
    // The controller decides what the closing of a window means.
    QApplication::setQuitOnLastWindowClosed(false);
    zelto::installStrings();
    QApplication::setApplicationDisplayName(zelto::localized("IDS_APP_TITLE"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/zelto.png")));

    zelto::AlertPresenter alerts;
    zelto::LinuxPlatform linuxPlatform(alerts);
    zelto::AppDelegate delegate(linuxPlatform.platform());
    delegate.applicationWillFinishLaunching();
    // From inside the loop: a relocating program quits at once, which needs a loop to leave.
    QMetaObject::invokeMethod(
        &application, [&delegate] { delegate.applicationDidFinishLaunching(); },
        Qt::QueuedConnection);
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[]) { return NSApplicationMain(argc, argv); }
