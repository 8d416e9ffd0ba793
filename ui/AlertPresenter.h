#pragma once

#include "platform/Alerts.h"

namespace zelto {

/// Alerts as message boxes over the active window. All texts are shown as plain text.
class AlertPresenter : public Alerts {
public:
    AlertButton NSRunAlertPanel(const AlertPanel& panel) override;
};

} // namespace zelto
