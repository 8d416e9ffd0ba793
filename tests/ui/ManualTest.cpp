#include "tests/ui/AllForms.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

/// A heading's name, as links have it.
QString pageOf(const QString& heading) {
    QString page = heading.toLower().replace(u' ', u'-');
    return page.remove(QRegularExpression(QStringLiteral("[^a-z0-9-]")));
}

class ManualTest : public ::testing::Test {
protected:
    void SetUp() override {
        QFile file(QStringLiteral(ZELTO_MANUAL));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        m_text = QString::fromUtf8(file.readAll());
        const QRegularExpression heading(QStringLiteral("^## (.*)$"),
                                         QRegularExpression::MultilineOption);
        for (auto match = heading.globalMatch(m_text); match.hasNext();) {
            m_pages.insert(pageOf(match.next().captured(1)));
        }
    }

    QString m_text;
    QSet<QString> m_pages;
};

TEST_F(ManualTest, EveryWindowLeadsToAPageOfIt) {
    for (const FormUnderTest& form : allForms()) {
        const std::unique_ptr<Window> window = form.create();
        const auto* const help = window->findChild<HelpButton*>();
        ASSERT_NE(help, nullptr) << form.name;
        EXPECT_TRUE(m_pages.contains(help->page()))
            << form.name << ' ' << help->page().toStdString();
    }
}

TEST_F(ManualTest, EveryLinkLeadsToAPage) {
    const QRegularExpression link(QStringLiteral("\\]\\(#([^)]*)\\)"));
    for (auto match = link.globalMatch(m_text); match.hasNext();) {
        const QString page = match.next().captured(1);
        EXPECT_TRUE(m_pages.contains(page)) << page.toStdString();
    }
}

TEST_F(ManualTest, EveryPictureIsThere) {
    const QRegularExpression picture(QStringLiteral("\\]\\((pictures/[^)]*)\\)"));
    const QString folder = QStringLiteral(ZELTO_MANUAL).section(u'/', 0, -2);
    int pictures = 0;
    for (auto match = picture.globalMatch(m_text); match.hasNext(); ++pictures) {
        const QString name = match.next().captured(1);
        EXPECT_TRUE(QFile::exists(folder + u'/' + name)) << name.toStdString();
    }
    EXPECT_GE(pictures, 10);
}

} // namespace
} // namespace zelto::test
