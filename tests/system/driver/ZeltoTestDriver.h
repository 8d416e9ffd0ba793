#pragma once

#include <QByteArray>
#include <QGenericPlugin>
#include <QJsonObject>
#include <QObject>
#include <QString>

namespace zelto::test {

/// Lets another process use the windows of the program that it is loaded into, as a person at the
/// screen would: it looks at controls by their object names, and clicks and types through the same
/// door that the window system's events come in by.
///
/// Any Qt program loads it, unchanged, from the environment of Qt itself:
///
///     QT_PLUGIN_PATH=FOLDER-ABOVE-generic QT_QPA_GENERIC_PLUGINS=zeltotestdriver:SOCKET-FOLDER
///
/// It listens on the local socket SOCKET-FOLDER/PID. A request is one line, a JSON object; so is
/// the answer. A click or a key is answered before it is carried out: it may open a dialog that
/// stays for minutes.
///
///     {"do": "windows"}                          what is on the screen
///     {"do": "look", "widget": NAME}             state of a control of a visible window
///     {"do": "click", "widget": NAME}            with the left button, in the middle
///     {"do": "type", "widget": NAME, "text": T}  into a field, in place of what it holds
///     {"do": "choose", "widget": NAME, "index": N}    an item of a combo box, by the keyboard
///     {"do": "press", "key": "Return"}           in the window that has the focus
///     {"do": "answer", "button": TEXT}           an alert, by the text of its button
///     {"do": "picture", "file": PATH}            the whole screen, as PNG
///
/// An answer has "error" when the request cannot be met, say for a control that is not there, is
/// disabled, or is shut off by a dialog in front of it.
class TestDriver : public QObject {
    Q_OBJECT

public:
    explicit TestDriver(const QString& socketFolder);

private:
    void listen();
    void accept();
    void receive(int connection);

    QString m_socketFolder;
    int m_listener = -1;
    QByteArray m_received;
};

/// The answer to one request.
[[nodiscard]] QJsonObject answer(const QJsonObject& request);

class TestDriverPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "ZeltoTestDriver.json")

public:
    /// What stands behind the colon names the folder for the socket.
    QObject* create(const QString& key, const QString& specification) override;
};

} // namespace zelto::test
