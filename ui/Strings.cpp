#include "ui/Strings.h"

#include "ui/Resources.h"

#include <QCoreApplication>
#include <QTranslator>

namespace zelto {

bool installStrings() {
    initResources();
    const QString name = QStringLiteral("zelto_texts");
    if (QCoreApplication::instance()->findChild<QTranslator*>(name) != nullptr) {
        return true;
    }
    auto* translator = new QTranslator(QCoreApplication::instance());
    translator->setObjectName(name);
    if (!translator->load(QStringLiteral(":/zelto/strings/zelto_en.qm"))) {
        delete translator;
        return false;
    }
    return QCoreApplication::installTranslator(translator);
}

QString localized(const char* key) {
    return qtTrId(key);
}

QString filled(const QString& format, const QStringList& arguments) {
    QString result;
    result.reserve(format.size());
    for (qsizetype at = 0; at < format.size(); ++at) {
        const bool isPlaceholder = format[at] == u'%' && at + 1 < format.size();
        const int number = isPlaceholder ? format[at + 1].unicode() - u'0' : 0;
        if (number >= 1 && number <= 9 && number <= arguments.size()) {
            result += arguments[number - 1];
            ++at;
        } else {
            result += format[at];
        }
    }
    return result;
}

} // namespace zelto
