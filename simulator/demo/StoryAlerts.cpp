#include "simulator/demo/StoryAlerts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QTimer>

namespace zelto::simulator {

AlertButton StoryAlerts::NSRunAlertPanel(const AlertPanel& panel) {
    m_panels.push_back(panel);
    AlertButton answer = AlertButton::Default;
    if (!m_answers.empty()) {
        answer = m_answers.front();
        m_answers.pop_front();
    }
    // Due at once, but run by the alert's own loop.
    QTimer opened;
    opened.setSingleShot(true);
    QObject::connect(&opened, &QTimer::timeout, [&] { close(panel, answer); });
    opened.start(0);
    return m_presenter.NSRunAlertPanel(panel);
}

void StoryAlerts::close(const AlertPanel& panel, AlertButton button) const {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
        return;
    }
    if (m_whileOpen) {
        m_whileOpen(*dialog);
    }
    const QString wanted =
        button == AlertButton::Default ? panel.defaultButton : panel.alternateButton;
    for (QAbstractButton* const candidate : dialog->findChildren<QAbstractButton*>()) {
        if (candidate->text().remove(QLatin1Char('&')) ==
            QString(wanted).remove(QLatin1Char('&'))) {
            candidate->click();
            return;
        }
    }
    dialog->reject();
}

} // namespace zelto::simulator
