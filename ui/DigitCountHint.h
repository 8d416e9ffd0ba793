#pragma once

#include <QLabel>
#include <QString>

class QLineEdit;

namespace zelto {

/// Counts the digits of a hexadecimal field of the window while it is filled. Decoration: it
/// decides nothing.
class DigitCountHint : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString field MEMBER m_fieldName)

public:
    explicit DigitCountHint(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;

private:
    void findField();
    void refresh();

    /// The field's object name.
    QString m_fieldName;
    QLineEdit* m_field = nullptr;
};

} // namespace zelto
