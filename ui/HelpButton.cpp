#include "ui/HelpButton.h"

#include "ui/ProductVersion.h"
#include "ui/Strings.h"

#include <QKeySequence>
#include <QShortcut>

namespace zelto {

HelpButton::HelpButton(QWidget* parent) : QPushButton(parent) {
    setText(localized("IDS_HELP_BUTTON"));
    setToolTip(localized("IDS_HELP_DESCRIPTION", productVersion()));
    setAutoDefault(false);
    // Beside the button's own shortcut, its mnemonic.
    auto* const key = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(key, &QShortcut::activated, this, &QPushButton::click);
}

} // namespace zelto
