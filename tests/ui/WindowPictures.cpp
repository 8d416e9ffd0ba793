#include "tests/support/AlertWeights.h"
#include "tests/ui/AllForms.h"
#include "tests/ui/FilledForms.h"
#include "ui/AlertPresenter.h"
#include "ui/ClippedTexts.h"
#include "ui/OutlinedStyle.h"
#include "ui/Strings.h"
#include "ui/VirtualScreen.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QPixmap>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace zelto::test {
namespace {

/// Takes pictures into one folder, and says which texts are not whole.
class Camera {
public:
    explicit Camera(const QString& folder) : m_folder(folder) {
        if (!m_folder.mkpath(QStringLiteral("."))) {
            complain(folder + QStringLiteral(": cannot be made"));
        }
    }

    void take(QWidget& window, const QString& name) {
        settle(window);
        const QString path = m_folder.filePath(name + QStringLiteral(".png"));
        if (const QString cut = clippedTexts(window).join(u';'); !cut.isEmpty()) {
            complain(path + QStringLiteral(": ") + cut);
        }
        if (!window.grab().save(path)) {
            complain(path + QStringLiteral(": cannot be written"));
        }
    }
    [[nodiscard]] bool hasComplained() const { return m_hasComplained; }

private:
    void complain(const QString& words) {
        std::fprintf(stderr, "%s\n", qPrintable(words));
        m_hasComplained = true;
    }

    QDir m_folder;
    bool m_hasComplained = false;
};

void takeForms(Camera& camera) {
    for (const FormUnderTest& under : allForms()) {
        const auto form = under.create();
        fill(*form);
        form->centreAndMakeKeyAndOrderFront();
        for (int turn = 0; turn < textsInTurn(*form); ++turn) {
            showText(*form, turn);
            camera.take(*form, QStringLiteral("%1-%2").arg(QLatin1String(under.name)).arg(turn));
        }
    }
}

void takeAlerts(Camera& camera) {
    AlertPresenter presenter;
    for (const WeighedText& text : alertTexts()) {
        QTimer::singleShot(0, qApp, [&] {
            QWidget* const alert = QApplication::activeModalWidget();
            camera.take(*alert, QLatin1String(text.key));
            alert->close();
        });
        (void)presenter.NSRunAlertPanel(panelOf(text));
    }
}

} // namespace
} // namespace zelto::test

int main(int argc, char** argv) {
    const zelto::VirtualScreen screen;
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser line;
    line.addOptions({{"dark", {}}, {"high-contrast", {}}});
    if (!line.parse(QCoreApplication::arguments()) || line.positionalArguments().size() != 1) {
        std::fputs("usage: window_pictures [--dark | --high-contrast] DIR\n", stderr);
        return 2;
    }
    if (line.isSet("dark")) {
        QApplication::setPalette(zelto::darkPalette());
    } else if (line.isSet("high-contrast")) {
        QApplication::setPalette(zelto::highContrastPalette());
    }
    QApplication::setStyle(new zelto::OutlinedStyle);
    zelto::installStrings();
    zelto::test::Camera camera(line.positionalArguments().constFirst());
    zelto::test::takeForms(camera);
    zelto::test::takeAlerts(camera);
    return camera.hasComplained() ? EXIT_FAILURE : EXIT_SUCCESS;
}
