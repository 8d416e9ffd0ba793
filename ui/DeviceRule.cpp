#include "ui/DeviceRule.h"

#include "ui/Resources.h"

#include <QFile>

namespace zelto {

QString deviceRuleCommand() {
    initResources();
    QFile rule(QStringLiteral(":/zelto/60-zelto.rules"));
    if (!rule.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QStringLiteral("sudo tee /etc/udev/rules.d/60-zelto.rules >/dev/null <<'END'\n") +
           QString::fromUtf8(rule.readAll()) + QStringLiteral("END\n");
}

} // namespace zelto
