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

} // namespace zelto
