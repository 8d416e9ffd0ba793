#include "ui/Strings.h"

#include "ui/Languages.h"

#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace zelto {
namespace {

constexpr auto Language = "zeltoTextLanguage";
const QString English = QStringLiteral("en");
const QString TranslatorName = QStringLiteral("zelto_texts");

// What is installed last is searched first.
bool install(const QString& file, const QString& folder) {
    auto* const translator = new QTranslator(QCoreApplication::instance());
    translator->setObjectName(TranslatorName);
    if (!translator->load(file, folder)) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

bool installTexts(const QString& language) {
    return install(QStringLiteral("zelto_") + language, QStringLiteral(":/zelto/strings"));
}

bool use(const QString& language) {
    QCoreApplication& application = *QCoreApplication::instance();
    if (application.property(Language).toString() == language) {
        return true;
    }
    qDeleteAll(application.findChildren<QTranslator*>(TranslatorName));
    // What the toolkit says by itself, in the menu of a field for example, where the system has it.
    (void)install(QStringLiteral("qtbase_") + language,
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (!installTexts(English) || (language != English && !installTexts(language))) {
        return false;
    }
    QGuiApplication::setLayoutDirection(QLocale(language).textDirection());
    application.setProperty(Language, language);
    return true;
}

} // namespace

bool installStrings() {
    return use(languageFor(desktopLanguages(), textLanguages()));
}

bool installStrings(const QString& language) {
    return textLanguages().contains(language) && use(language);
}

QString localized(const char* key) {
    return qtTrId(key);
}

} // namespace zelto
