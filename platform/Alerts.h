#pragma once

#include <QString>

namespace zelto {

enum class AlertButton { Default, Alternate };

/// A modal message with one or two buttons. All texts are already localised.
struct AlertPanel {
    QString title;
    QString message;
    /// More to the message, shown below it in smaller type; usually empty.
    QString detail = {};
    /// What Return presses.
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
