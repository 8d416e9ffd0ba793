#include "ui/Languages.h"
#include "tests/ui/TextsFile.h"
#include "ui/Strings.h"

#include <QApplication>
#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace zelto::test {
namespace {

// What a text must take along into every language: its arguments, and what the drive is given.
QStringList keptParts(const QString& text) {
    static const QRegularExpression kept(QStringLiteral("%[0-9n]|ZELTO DISK|Disk&?[1-3]|USB|F1"));
    QStringList parts;
    for (auto match = kept.globalMatch(text); match.hasNext();) {
        parts.append(match.next().captured().remove(u'&'));
    }
    parts.sort();
    return parts;
}

class EveryLanguage : public ::testing::Test {
protected:
    void TearDown() override { installStrings(QStringLiteral("en")); }
};

TEST_F(EveryLanguage, SaysAllThatTheEnglishSays) {
    const auto english = textsOf(QStringLiteral("en"));
    ASSERT_GE(textLanguages().size(), 15);
    for (const QString& language : textLanguages()) {
        SCOPED_TRACE(language.toStdString());
        const auto texts = textsOf(language);
        for (const auto& [id, message] : english) {
            const auto found = texts.find(id);
            if (found == texts.end()) {
                ADD_FAILURE() << id.toStdString() << " is missing";
                continue;
            }
            EXPECT_TRUE(language == u"en" || found->second.isFinished) << id.toStdString();
            EXPECT_EQ(found->second.source.toStdString(), message.source.toStdString())
                << id.toStdString() << ": the English has changed since";
        }
        EXPECT_EQ(texts.size(), english.size());
    }
}

TEST_F(EveryLanguage, KeepsArgumentsAndNames) {
    for (const QString& language : textLanguages()) {
        if (language == QStringLiteral("en")) {
            continue;
        }
        SCOPED_TRACE(language.toStdString());
        for (const auto& [id, message] : textsOf(language)) {
            if (!message.isFinished) {
                continue;
            }
            EXPECT_EQ(keptParts(message.translation), keptParts(message.source))
                << id.toStdString() << ": " << message.translation.toStdString();
            EXPECT_EQ(message.translation.contains(u'&'), message.source.contains(u'&'))
                << id.toStdString() << ": " << message.translation.toStdString();
        }
    }
}

// Numbers, words of the language itself, and "Disk1": these may stand bare between words that
// are read from right to left. Any other one would be drawn in pieces: the USB port 1-3 as 3-1.
const QStringList ArgumentsOfNoForeignName{
    "IDS_COMMAND_FAIL_WITH_SENSE_INFO",
    "IDS_TOTAL_CAPACITY",
    "IDS_FREE_CAPACITY",
    "IDS_HINT_KEY_TOO_LONG",
    "IDS_SIZE_MB",
    "IDS_SIZE_GB",
    "IDS_SIZE_TB",
    "IDS_BAR_NAMED",
    "IDS_BAR_UNNAMED",
    "IDS_STEP_CURRENT",
    "IDS_STEP_FAILED",
    "IDS_FIELD_DIGITS",
    "IDS_FIELD_DIGITS_ODD",
};

TEST_F(EveryLanguage, KeepsAForeignNameWholeBetweenWordsFromRightToLeft) {
    static const QRegularExpression bare(QStringLiteral("(?<!\u2066)%[1-9]|%[1-9](?!\u2069)"));
    for (const QString& language : textLanguages()) {
        if (QLocale(language).textDirection() != Qt::RightToLeft) {
            continue;
        }
        for (const auto& [id, message] : textsOf(language)) {
            EXPECT_TRUE(ArgumentsOfNoForeignName.contains(id) ||
                        !message.translation.contains(bare))
                << language.toStdString() << " " << id.toStdString() << ": "
                << message.translation.toStdString();
        }
    }
}

TEST_F(EveryLanguage, IsLinkedInAndReadItsOwnWay) {
    for (const QString& language : textLanguages()) {
        ASSERT_TRUE(installStrings(language)) << language.toStdString();
        const bool isArabic = language == QStringLiteral("ar");
        EXPECT_EQ(QApplication::isRightToLeft(), isArabic) << language.toStdString();
        const QString id = QStringLiteral("IDS_SETTINGS_TITLE");
        const TextMessage message = textsOf(language).at(id);
        EXPECT_EQ(localized("IDS_SETTINGS_TITLE"),
                  message.isFinished ? message.translation : message.source);
    }
}

TEST_F(EveryLanguage, GivesWayToTheNextOneAndToEnglishAgain) {
    ASSERT_TRUE(installStrings(QStringLiteral("ar")));
    ASSERT_TRUE(installStrings(QStringLiteral("de")));
    EXPECT_EQ(localized("IDS_CANCEL_BUTTON"), QStringLiteral("Abbrechen"));
    EXPECT_FALSE(QApplication::isRightToLeft());
    ASSERT_TRUE(installStrings(QStringLiteral("en")));
    EXPECT_EQ(localized("IDS_CANCEL_BUTTON"), QStringLiteral("Cancel"));
}

TEST_F(EveryLanguage, ThatIsNotThereIsRefusedAndEnglishStays) {
    EXPECT_FALSE(installStrings(QStringLiteral("xx")));
    EXPECT_EQ(localized("IDS_CANCEL_BUTTON"), QStringLiteral("Cancel"));
}

// "&Erase Key...", as it reads.
QString nameOfButton(const char* id) {
    static const QRegularExpression added(QStringLiteral("\\s*\\(&.\\)|&|\u2026"));
    return localized(id).remove(added).trimmed();
}

TEST_F(EveryLanguage, CallsAButtonInSentencesWhatTheWindowCallsIt) {
    constexpr std::pair<const char*, const char*> SentencesAndButtons[] = {
        {"IDS_HINT_CLOSES", "IDS_SETTINGS_OK"},
        {"IDS_HINT_CLOSES", "IDS_SETTINGS_CANCEL"},
        {"IDS_HINT_CLOSES", "IDS_SETTINGS_ERASE_KEY"},
        {"IDS_HINT_CLOSES", "IDS_SETTINGS_CLEAR_ALL"},
        {"IDS_HINT_SETUP_ERASES", "IDS_SETTINGS_OK"},
        {"IDS_HINT_PERIOD_ZERO", "IDS_SETTINGS_OK"},
        {"IDS_ERR_ZELTO_DRIVE_LOST", "IDS_SETTINGS_CLEAR_ALL"},
    };
    for (const QString& language : textLanguages()) {
        ASSERT_TRUE(installStrings(language));
        for (const auto& [sentence, button] : SentencesAndButtons) {
            EXPECT_TRUE(localized(sentence).contains(nameOfButton(button)))
                << language.toStdString() << " " << sentence << ": "
                << nameOfButton(button).toStdString();
        }
    }
}

struct ChoiceRow {
    const char* name;
    QStringList wanted;
    const char* chosen;
};

std::ostream& operator<<(std::ostream& stream, const ChoiceRow& row) {
    return stream << row.name;
}

const QStringList There{"ar", "de", "en", "pt_BR", "zh_CN"};

class LanguageChoice : public ::testing::TestWithParam<ChoiceRow> {};

TEST_P(LanguageChoice, IsTheFirstThatThereIs) {
    EXPECT_EQ(languageFor(GetParam().wanted, There).toStdString(), GetParam().chosen);
}

INSTANTIATE_TEST_SUITE_P(
    Desktops, LanguageChoice,
    ::testing::Values(ChoiceRow{"TheFirst", {"de-DE", "en"}, "de"},
                      ChoiceRow{"TheNextWhereTheFirstIsMissing", {"fi-FI", "ar", "de"}, "ar"},
                      ChoiceRow{"EnglishWhereItIsWantedBefore", {"en-GB", "de"}, "en"},
                      ChoiceRow{"EnglishAtTheEnd", {"fi"}, "en"},
                      ChoiceRow{"EnglishForNone", {}, "en"}, ChoiceRow{"EnglishForC", {"C"}, "en"},
                      ChoiceRow{"WhateverTheCountry", {"de-CH"}, "de"},
                      ChoiceRow{"WhateverTheCountryOfOurs", {"pt-PT"}, "pt_BR"},
                      ChoiceRow{"TheScriptThatIsRead", {"zh-Hans-SG"}, "zh_CN"},
                      ChoiceRow{"NotAnotherScript", {"zh-TW"}, "en"}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace zelto::test
