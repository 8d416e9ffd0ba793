#pragma once

#include <QLabel>
#include <QString>

class QLineEdit;

namespace zelto {

/// Says whether two fields of the window hold the same text. Decoration: it decides nothing, and
/// says nothing while the second field is empty or disabled.
class MatchHint : public QLabel {
    Q_OBJECT
    Q_PROPERTY(QString firstField MEMBER m_firstField)
    Q_PROPERTY(QString secondField MEMBER m_secondField)

public:
    explicit MatchHint(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;

private:
    void findFields();
    void refresh();
    [[nodiscard]] QString verdict() const;

    /// Object names of the two fields.
    QString m_firstField;
    QString m_secondField;
    QLineEdit* m_first = nullptr;
    QLineEdit* m_second = nullptr;
};

} // namespace zelto
