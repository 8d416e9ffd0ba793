#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace zelto::test {

/// Something in a window, as the accessibility bus tells it.
struct Heard {
    QString name;
    QString role;
    QString description;
    /// Of what has one: a progress bar, say.
    QString value;
    bool isFocusable = false;
    bool isFocused = false;
    bool isEnabled = false;
    bool isChecked = false;
    /// The names and roles of what it is in, from the window inwards.
    QStringList within;

    /// What a reader says when it comes here.
    [[nodiscard]] QString spoken() const;
};

/// A screen reader's end of the accessibility bus. It knows of the program what the bus says, and
/// hears it in the program's order.
class ScreenReader : public QObject {
    Q_OBJECT

public:
    /// Where the address of the bus is found.
    static constexpr auto BusVariable = "ZELTO_ACCESSIBILITY_BUS";

    /// Waits until the program under test, which is this one, is on the bus. The connection stays
    /// for the next reader: signals that have come but were not delivered yet belong to it.
    ScreenReader();

    /// Everything that is on the screen in the window with this title, in reading order.
    [[nodiscard]] std::vector<Heard> read(const QString& windowTitle);

    /// What has been said by itself since the last call: what got the focus, and what changed in
    /// the name, the description or the state of what had it.
    [[nodiscard]] QStringList said();

    /// Runs the program until this is so; the test's time limit is the only one.
    static void waitUntil(const std::function<bool()>& isSo);

    /// Keys take the way over the bus; those pressed so far have arrived when it returns.
    static void letKeysArrive();

    /// A key of the keyboard, through the bus's registry and the display server, to the control
    /// that has the focus. It has arrived there, and is up again, when it returns.
    void pressKey(int keyCode);

private Q_SLOTS:
    void hearChange(const QDBusMessage& signal);
    void hearState(const QDBusMessage& signal);
    void hearMark(const QDBusMessage& signal);

private:
    [[nodiscard]] QDBusMessage ask(const QString& path, const QString& interface,
                                   const QString& method, const QVariantList& arguments = {});
    [[nodiscard]] QVariant property(const QString& path, const QString& interface,
                                    const QString& name);
    [[nodiscard]] QStringList childrenOf(const QString& path);
    [[nodiscard]] Heard hear(const QString& path);
    void readBelow(const QString& path, const QStringList& within, std::vector<Heard>& heard);
    void catchUp();

    QDBusConnection m_bus;
    QString m_program;
    QString m_focus;
    QStringList m_said;
    int m_marksSent = 0;
    int m_marksHeard = 0;
};

/// Everything that passes over the accessibility bus from its beginning to its end.
class BusMonitor {
public:
    /// Listens when it returns.
    BusMonitor();
    ~BusMonitor();
    /// Everything up to now, as text.
    [[nodiscard]] QString heard();

private:
    void readUntil(const QByteArray& mark);

    QProcess m_monitor;
    QByteArray m_heard;
    int m_marks = 0;
};

} // namespace zelto::test
