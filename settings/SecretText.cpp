#include "settings/SecretText.h"

#include "digest/Wipe.h"

namespace zelto {

QString unsharedCopy(const QString& text) {
    return QString(text.constData(), text.size());
}

void wipeText(QString& text) {
    wipe(text);
    text.clear();
}

void wipePasswords(_tagPasswordSettingsParameters& parameters) {
    wipeText(parameters.strCurrent1stPassword);
    wipeText(parameters.strCurrent2ndPassword);
    wipeText(parameters.strNew1stPassword);
    wipeText(parameters.strNew2ndPassword);
}

} // namespace zelto
