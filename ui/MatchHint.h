#pragma once

#include <QLabel>
#include <QString>

namespace zelto {

class SecretField;

/// Says whether two fields of the window hold the same text. Decoration: it decides nothing, and
/// says nothing while the second field is empty or disabled.
class MatchHint : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString firstField READ firstField WRITE setFirstField)
    Q_PROPERTY(QString secondField READ secondField WRITE setSecondField)

public:
    explicit MatchHint(QWidget* parent = nullptr);

    /// Object names of the two fields; they are looked up when the window is first shown.
    [[nodiscard]] const QString& firstField() const { return m_firstField; }
    void setFirstField(const QString& name) { m_firstField = name; }
    [[nodiscard]] const QString& secondField() const { return m_secondField; }
    void setSecondField(const QString& name) { m_secondField = name; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;

private:
    void findFields();
    void refresh();
    [[nodiscard]] QString verdict() const;

    QString m_firstField;
    QString m_secondField;
    SecretField* m_first = nullptr;
    SecretField* m_second = nullptr;
};

} // namespace zelto
