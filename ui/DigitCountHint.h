#pragma once

#include <QLabel>
#include <QString>

namespace zelto {

class SecretField;

/// Counts the digits of a hexadecimal field of the window while it is filled. Decoration: it
/// decides nothing.
class DigitCountHint : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString field READ field WRITE setField)

public:
    explicit DigitCountHint(QWidget* parent = nullptr);

    /// The field's object name; it is looked up when the window is first shown.
    [[nodiscard]] const QString& field() const { return m_fieldName; }
    void setField(const QString& name) { m_fieldName = name; }

protected:
    bool event(QEvent* event) override;

private:
    void findField();
    void refresh();

    QString m_fieldName;
    SecretField* m_field = nullptr;
};

} // namespace zelto
