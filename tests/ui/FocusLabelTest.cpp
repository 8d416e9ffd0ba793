#include "ui/FocusLabel.h"

#include <QDialog>
#include <QImage>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>

namespace zelto::test {
namespace {

/// A text that the focus can go to, above a button.
class FocusLabelTest : public ::testing::Test {
protected:
    FocusLabelTest() {
        m_text.setFocusPolicy(Qt::TabFocus);
        // Draws the frame whenever it is asked to.
        m_text.setStyle(m_style.get());
        auto* const layout = new QVBoxLayout(&m_window);
        layout->addWidget(&m_text);
        layout->addWidget(&m_button);
        m_button.setFocus();
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    [[nodiscard]] QImage picture() { return m_text.grab().toImage(); }

    std::unique_ptr<QStyle> m_style{QStyleFactory::create(QStringLiteral("Windows"))};
    QDialog m_window;
    FocusLabel m_text{QStringLiteral("Plug the drive in.")};
    QPushButton m_button{QStringLiteral("OK")};
};

TEST_F(FocusLabelTest, IsSeenToHaveTheFocusThatTheKeyboardHasBroughtThere) {
    const QImage before = picture();
    QTest::keyClick(&m_button, Qt::Key_Tab);
    EXPECT_TRUE(m_text.hasFocus());
    EXPECT_NE(picture(), before);
    QTest::keyClick(&m_text, Qt::Key_Tab);
    EXPECT_EQ(picture(), before);
}

TEST_F(FocusLabelTest, ShowsNoFrameWhereTheWindowHasBegunWithIt) {
    const QImage before = picture();
    m_text.setFocus();
    EXPECT_TRUE(m_text.hasFocus());
    EXPECT_EQ(picture(), before);
}

} // namespace
} // namespace zelto::test
