#include "simulator/demo/DemoPanel.h"
#include "simulator/demo/Story.h"
#include "ui/Strings.h"
#include "ui/VirtualScreen.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

constexpr const char* Help =
    R"(zelto-demo: the utility on a virtual computer with virtual drives.

  zelto-demo                         the windows, and a panel to plug, unplug and wait with
  zelto-demo --story                 stories that play by themselves, without a display
  zelto-demo --story --pictures DIR  the same, with a picture of each window left in DIR
      --scale 2 --dark               pictures at 200 %, and as dark desktops have the windows
  zelto-demo --help                  this text

Without a display the stories play. Exit codes: 1, a check failed; 2, the command line is wrong.
)";

bool hasDisplay() {
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

int playStories(int argc, char** argv, const QCommandLineParser& line) {
    const std::filesystem::path pictures = line.value("pictures").toStdString();
    if (!pictures.empty()) {
        std::error_code error;
        std::filesystem::create_directories(pictures, error);
        if (error) {
            std::fprintf(stderr, "zelto-demo: %s: %s\n", pictures.c_str(), error.message().c_str());
            return EXIT_FAILURE;
        }
    }
    const zelto::VirtualScreen screen(line.value("scale").toDouble());
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    if (line.isSet("dark")) {
        QApplication::setPalette(zelto::darkPalette());
    }
    zelto::installStrings();
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    bool failed = false;
    const auto tell = [&](const char* name, void (*play)(zelto::simulator::Story&)) {
        zelto::simulator::Story story(name, pictures);
        play(story);
        failed = failed || story.hasFailed();
    };
    tell("log-in", zelto::simulator::playLogInStory);
    tell("set-up", zelto::simulator::playSetUpStory);
    std::printf("\n%s\n", failed ? "The story has failed." : "Everything went as told.");
    return failed ? EXIT_FAILURE : EXIT_SUCCESS;
}

int showWindows(int argc, char** argv) {
    const QApplication application(argc, argv);
    // The utility's windows come and go; the demo ends with its own panel.
    QApplication::setQuitOnLastWindowClosed(false);
    zelto::installStrings();
    zelto::simulator::DemoWorld world;
    zelto::simulator::DemoPanel panel(world);
    panel.show();
    QTimer::singleShot(0, &world, [&world] { world.startUtility(); });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    QCommandLineParser line;
    line.addOptions({{{"h", "help"}, {}},
                     {"story", {}},
                     {"pictures", {}, "DIR"},
                     {"scale", {}, "FACTOR", "1"},
                     {"dark", {}}});
    if (!line.parse(QStringList(argv, argv + argc)) || !line.positionalArguments().isEmpty()) {
        std::fputs(Help, stderr);
        return 2;
    }
    if (line.isSet("help")) {
        std::fputs(Help, stdout);
        return EXIT_SUCCESS;
    }
    return line.isSet("story") || !hasDisplay() ? playStories(argc, argv, line)
                                                : showWindows(argc, argv);
}
