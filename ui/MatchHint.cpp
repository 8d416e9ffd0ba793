#include "ui/MatchHint.h"

#include "ui/Description.h"
#include "ui/SecretField.h"
#include "ui/Strings.h"

#include <QEvent>

#include <algorithm>

namespace zelto {

MatchHint::MatchHint(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    // Empty, a reader would take the title around it for its name.
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    hide();
}

// As large as its longest text, so that typing doesn't move the window.
QSize MatchHint::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    const int width = std::max(metrics.horizontalAdvance(localized("IDS_FIELD_ENTRIES_MATCH")),
                               metrics.horizontalAdvance(localized("IDS_FIELD_ENTRIES_DIFFER")));
    return {width + metrics.averageCharWidth(), metrics.height()};
}

bool MatchHint::event(QEvent* event) {
    // By the time a form is polished all its fields exist.
    if (event->type() == QEvent::Polish) {
        findFields();
    }
    return QLabel::event(event);
}

void MatchHint::findFields() {
    m_first = window()->findChild<SecretField*>(m_firstField);
    m_second = window()->findChild<SecretField*>(m_secondField);
    for (const SecretField* field : {m_first, m_second}) {
        if (field != nullptr) {
            connect(field, &SecretField::secretChanged, this, &MatchHint::refresh,
                    Qt::UniqueConnection);
        }
    }
    refresh();
}

void MatchHint::refresh() {
    setText(verdict());
    setVisible(!text().isEmpty());
    if (m_second != nullptr) {
        describe(*m_second, *this, text());
    }
}

QString MatchHint::verdict() const {
    if (m_first == nullptr || m_second == nullptr || m_second->secret().isEmpty()) {
        return {};
    }
    return m_first->secret() == m_second->secret() ? localized("IDS_FIELD_ENTRIES_MATCH")
                                                   : localized("IDS_FIELD_ENTRIES_DIFFER");
}

} // namespace zelto
