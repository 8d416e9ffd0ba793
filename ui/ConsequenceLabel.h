#pragma once

#include <QLabel>
#include <QString>

namespace zelto {

/// Says what a control of the window brings about, before it is used: with a sign that warns, seen
/// before the words are read, and to a reader as the control's description.
class ConsequenceLabel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString control READ control WRITE setControl)

public:
    explicit ConsequenceLabel(QWidget* parent = nullptr);

    /// The control's object name; it is looked up each time the label is shown.
    [[nodiscard]] const QString& control() const { return m_control; }
    void setControl(const QString& name) { m_control = name; }

    /// A consequence that can be taken back is said without the sign.
    void setWarns(bool warns);
    [[nodiscard]] bool warns() const { return m_warns; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeRoomForSign();

    QString m_control;
    bool m_warns = true;
};

} // namespace zelto
