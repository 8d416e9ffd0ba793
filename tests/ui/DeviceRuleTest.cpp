#include "ui/DeviceRule.h"

#include <QFile>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

TEST(DeviceRule, TheCommandHoldsTheRuleThatThePackageInstalls) {
    QFile rule(QStringLiteral(ZELTO_RULE));
    ASSERT_TRUE(rule.open(QIODevice::ReadOnly));
    const QString command = deviceRuleCommand();
    EXPECT_TRUE(command.startsWith(
        QStringLiteral("sudo tee /etc/udev/rules.d/60-zelto.rules >/dev/null <<'END'\n")));
    EXPECT_TRUE(command.endsWith(QString::fromUtf8(rule.readAll()) + QStringLiteral("END\n")));
}

TEST(DeviceRule, TheDocumentationPrintsEveryLineThatSaysSomething) {
    QFile rule(QStringLiteral(ZELTO_RULE));
    QFile page(QStringLiteral(ZELTO_INSTALLING));
    ASSERT_TRUE(rule.open(QIODevice::ReadOnly) && page.open(QIODevice::ReadOnly));
    const QString printed = QString::fromUtf8(page.readAll());
    for (const QString& line : QString::fromUtf8(rule.readAll()).split(u'\n')) {
        if (!line.isEmpty() && !line.startsWith(u'#')) {
            EXPECT_TRUE(printed.contains(QStringLiteral("\n    ") + line + u'\n'))
                << line.toStdString();
        }
    }
}

TEST(DeviceRule, NoLineOfTheRuleEndsTheCommandEarly) {
    EXPECT_EQ(deviceRuleCommand().count(QStringLiteral("\nEND\n")), 1);
}

} // namespace
} // namespace zelto::test
