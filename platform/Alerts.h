#pragma once

#include <QString>

namespace zelto {

enum class AlertButton { Default, Alternate };

/// How bad the news is.
enum class AlertWeight {
    /// Something has been done.
    Information,
    /// Something was refused, or may be lost by the answer.
    Warning,
    /// Something is lost.
    Critical,
};

/// A modal message with one or two buttons. All texts are already localised.
struct AlertPanel {
    AlertWeight weight = AlertWeight::Information;
    QString title;
    QString message;
    /// More to the message, shown below it in smaller type; usually empty.
    QString detail = {};
    /// What Return presses while no button has the focus; in a confirmation, which Escape answers
    /// with it too, wherever the focus is.
    QString defaultButton;
    /// Empty: there is no second button.
    QString alternateButton = {};
    /// What Escape and closing the panel press.
    AlertButton onEscape = AlertButton::Default;
};

class Alerts {
public:
    Alerts() = default;
    Alerts(const Alerts&) = delete;
    Alerts& operator=(const Alerts&) = delete;
    virtual ~Alerts() = default;

    /// Shows the panel and returns which button closed it. Blocks until the user has answered.
    virtual AlertButton NSRunAlertPanel(const AlertPanel& panel) = 0;
};

} // namespace zelto
