#include "simulator/demo/Story.h"

#include "ui/ClippedTexts.h"
#include "ui/Strings.h"
#include "ui/Window.h"

#include <QPixmap>

#include <algorithm>
#include <cstdio>

namespace zelto::simulator {

Story::Story(std::string name, std::filesystem::path pictures)
    : person([this](const std::string& what) { check(what, false); }),
      m_name(std::move(name)),
      m_pictures(std::move(pictures)) {
    alerts.setWhileOpen([this](QWidget& alert) { save(alert, "alert"); });
}

void Story::chapter(const std::string& title) const {
    std::printf("\n%s\n\n", title.c_str());
}

void Story::tell(const std::string& sentence) {
    std::printf("%2d. %s\n", ++m_sentence, sentence.c_str());
}

void Story::check(const std::string& what, bool holds) {
    m_failures += holds ? 0 : 1;
    std::printf("    %s %s\n", holds ? "checked:" : "FAILED: ", what.c_str());
}

void Story::save(QWidget& window, const std::string& name) {
    if (m_pictures.empty()) {
        return;
    }
    settle(window);
    if (const QString cut = clippedTexts(window).join(u';'); !cut.isEmpty()) {
        check("all texts are whole: " + cut.toStdString(), false);
    }
    const std::string number = QString::asprintf("-%02d-", ++m_picture).toStdString();
    const std::filesystem::path path = m_pictures / (m_name + number + name + ".png");
    if (!window.grab().save(QString::fromStdString(path.string()), "PNG")) {
        check("picture " + path.string() + " saved", false);
    }
}

void Story::picture(const std::string& name) {
    if (Window* const window = person.visibleWindow()) {
        save(*window, name);
    } else {
        check("a window is open for the picture " + name, false);
    }
}

void Story::startUtility() {
    m_utility.reset();
    m_utility = std::make_unique<UtilityProcess>(computer, alerts);
    m_utility->start();
}

void Story::checkAlert(const char* key) {
    const auto panels = alerts.takePanels();
    // Texts with blanks to fill are told by what stands before the first.
    const QString beginning = localized(key).section(QLatin1Char('%'), 0, 0);
    const bool holds = panels.size() == 1 && panels[0].message.startsWith(beginning);
    check("the alert says: " + (panels.empty() ? "(no alert)" : panels[0].message.toStdString()),
          holds);
}

void Story::checkNoAlert() {
    const auto panels = alerts.takePanels();
    check(panels.empty() ? "no alert was needed" : "no alert: " + panels[0].message.toStdString(),
          panels.empty());
}

void Story::checkWindow(const std::string& name) {
    const std::string open = person.visibleWindowName();
    check("the window that is open is " + (open.empty() ? "none" : open), open == name);
}

void Story::checkState(const std::string& what, DriveOnBus& drive, SecurityState state) {
    check(what, drive.drive().state(computer.clock.worldTime()) == state);
}

const VirtualDisk* Story::diskOfUnit(const std::string& unitName) const {
    const auto& disks = computer.disks.all();
    const auto found =
        std::ranges::find(disks, unitName, [](const auto& disk) { return disk->unitName; });
    return found == disks.end() ? nullptr : found->get();
}

void Story::submitPassword(const QString& password) {
    person.type("AuthenticateTextField", password);
    person.press("AuthenticateSubmit");
}

} // namespace zelto::simulator
