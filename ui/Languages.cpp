#include "ui/Languages.h"

#include "ui/Resources.h"

#include <QDir>
#include <QLocale>

#include <algorithm>

namespace zelto {
namespace {

const QLatin1String LastResort("en");

bool canRead(const QLocale& wanted, const QString& language) {
    const QLocale available(language);
    return wanted.language() == available.language() && wanted.script() == available.script();
}

} // namespace

QStringList textLanguages() {
    initResources();
    QStringList languages = QDir(QStringLiteral(":/zelto/strings")).entryList();
    for (QString& language : languages) {
        language = language.section(u'_', 1).section(u'.', 0, 0);
    }
    return languages;
}

QString languageFor(const QStringList& wanted, const QStringList& available) {
    for (const QString& name : wanted) {
        const QLocale locale(name);
        const auto found =
            std::find_if(available.begin(), available.end(),
                         [&locale](const QString& language) { return canRead(locale, language); });
        if (found != available.end()) {
            return *found;
        }
    }
    return LastResort;
}

QStringList desktopLanguages() {
    // As everywhere on the desktop, the list in LANGUAGE says nothing where the locale is "C".
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::C ? QStringList() : locale.uiLanguages();
}

} // namespace zelto
