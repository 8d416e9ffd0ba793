#include "tests/ui/TextsFile.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

TEST(Texts, EveryTextThatIsUsedHasItsEnglish) {
    const auto english = textsOf(QStringLiteral("en"));
    for (const auto& [id, shown] : usedTexts()) {
        const auto found = english.find(id);
        ASSERT_NE(found, english.end()) << id.toStdString();
        EXPECT_FALSE(found->second.source.isEmpty()) << id.toStdString();
    }
}

TEST(Texts, EveryEnglishTextIsUsed) {
    const auto used = usedTexts();
    for (const auto& [id, message] : textsOf(QStringLiteral("en"))) {
        EXPECT_TRUE(used.contains(id)) << id.toStdString();
    }
}

TEST(Texts, AFormShowsTheDesignerWhatItWillShowTheUser) {
    const auto english = textsOf(QStringLiteral("en"));
    for (const auto& [id, shown] : usedTexts()) {
        const auto found = english.find(id);
        if (!shown.isEmpty() && found != english.end()) {
            EXPECT_EQ(shown.toStdString(), found->second.source.toStdString()) << id.toStdString();
        }
    }
}

// A second place for the English would be free to say something else.
TEST(Texts, EnglishStandsInTheSourceAlone) {
    for (const auto& [id, message] : textsOf(QStringLiteral("en"))) {
        EXPECT_TRUE(message.translation.trimmed().isEmpty()) << id.toStdString();
    }
}

} // namespace
} // namespace zelto::test
