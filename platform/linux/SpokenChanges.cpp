#include "platform/linux/SpokenChanges.h"

#include <QAccessible>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QString>

namespace zelto::linux_platform {

/// Something accessible, as the bus names it.
struct AccessibleReference {
    QString service;
    QDBusObjectPath path;
};

static QDBusArgument& operator<<(QDBusArgument& argument, const AccessibleReference& reference) {
    argument.beginStructure();
    argument << reference.service << reference.path;
    argument.endStructure();
    return argument;
}

static const QDBusArgument& operator>>(const QDBusArgument& argument,
                                       AccessibleReference& reference) {
    argument.beginStructure();
    argument >> reference.service >> reference.path;
    argument.endStructure();
    return argument;
}

namespace {

const QString Paths = QStringLiteral("/org/a11y/atspi/accessible/");

/// The toolkit's own, so that the words come in their place among the rest.
QDBusConnection accessibilityBus() {
    return QDBusConnection(QStringLiteral("a11y"));
}

/// False for a control that the bus does not know.
bool tell(const QAccessibleEvent& event, const QString& property, QAccessible::Text text) {
    QAccessibleInterface* const control = event.accessibleInterface();
    auto bus = accessibilityBus();
    if (control == nullptr || !control->isValid() || !bus.isConnected()) {
        return false;
    }
    auto signal = QDBusMessage::createSignal(
        Paths + QString::number(QAccessible::uniqueId(control)),
        QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("PropertyChange"));
    const AccessibleReference program{bus.baseService(),
                                      QDBusObjectPath(Paths + QStringLiteral("root"))};
    signal.setArguments({property, 0, 0, QVariant::fromValue(QDBusVariant(control->text(text))),
                         QVariant::fromValue(program)});
    return bus.send(signal);
}

bool isToldInWords(const QAccessibleEvent& event) {
    switch (event.type()) {
    case QAccessible::NameChanged:
        return tell(event, QStringLiteral("accessible-name"), QAccessible::Name);
    case QAccessible::DescriptionChanged:
        return tell(event, QStringLiteral("accessible-description"), QAccessible::Description);
    default:
        return false;
    }
}

void pass(QAccessibleEvent* event) {
    if (QAccessible::isActive() && isToldInWords(*event)) {
        return;
    }
    // Everything else goes the toolkit's own way, which is open while no handler stands in it.
    QAccessible::installUpdateHandler(nullptr);
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(pass);
}

} // namespace

void tellChangesInWords() {
    qDBusRegisterMetaType<AccessibleReference>();
    QAccessible::installUpdateHandler(pass);
}

} // namespace zelto::linux_platform
