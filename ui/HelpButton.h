#pragma once

#include <QPushButton>

namespace zelto {

/// Leads to the page of the manual about its window; so does F1. The form names the page.
class HelpButton : public QPushButton {
    Q_OBJECT
    Q_PROPERTY(QString page READ page WRITE setPage)

public:
    explicit HelpButton(QWidget* parent = nullptr);

    /// The page's name, as in the manual's links: "logging-in", say.
    [[nodiscard]] const QString& page() const { return m_page; }
    void setPage(const QString& page) { m_page = page; }

private:
    QString m_page;
};

} // namespace zelto
