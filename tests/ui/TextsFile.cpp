#include "tests/ui/TextsFile.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace zelto::test {
namespace {

const QString Sources = QStringLiteral(ZELTO_SOURCES);

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TextMessage readMessage(QXmlStreamReader& xml) {
    TextMessage message;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            message.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

// Designer keeps a text without an id too, but the program would show nothing for it.
void addTextsOfForm(const QString& path, std::map<QString, QString>& texts) {
    QXmlStreamReader xml(contentsOf(path));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"string" ||
            xml.attributes().value(QStringLiteral("notr")) == u"true") {
            continue;
        }
        const QString id = xml.attributes().value(QStringLiteral("id")).toString();
        const QString text = xml.readElementText();
        texts[id.isEmpty() ? QStringLiteral("no id: ") + text : id] = text;
    }
}

void addTextsOfCode(const QString& path, std::map<QString, QString>& texts) {
    // A text that stands in the code itself is met as the id that it isn't.
    static const QRegularExpression quotedId(
        QStringLiteral("\"(IDS_[A-Z0-9_]+|OK)\"|\\btr\\(\"([^\"]*)\""));
    const QString code = QString::fromUtf8(contentsOf(path));
    for (auto match = quotedId.globalMatch(code); match.hasNext();) {
        const auto found = match.next();
        texts.emplace(found.captured(found.lastCapturedIndex()), QString());
    }
}

} // namespace

std::map<QString, TextMessage> textsOf(const QString& language) {
    std::map<QString, TextMessage> texts;
    QXmlStreamReader xml(
        contentsOf(Sources + QStringLiteral("/ui/texts/zelto_%1.ts").arg(language)));
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"message") {
            const QString id = xml.attributes().value(QStringLiteral("id")).toString();
            texts.emplace(id, readMessage(xml));
        }
    }
    return texts;
}

std::map<QString, QString> usedTexts() {
    std::map<QString, QString> texts;
    for (const char* folder : {"app", "device", "session", "settings", "ui"}) {
        QDirIterator files(Sources + u'/' + QLatin1String(folder), QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            if (path.endsWith(QStringLiteral(".ui"))) {
                addTextsOfForm(path, texts);
            } else if (path.endsWith(QStringLiteral(".cpp")) ||
                       path.endsWith(QStringLiteral(".h"))) {
                addTextsOfCode(path, texts);
            }
        }
    }
    addTextsOfCode(Sources + QStringLiteral("/packaging/bundle/starter.in"), texts);
    return texts;
}

} // namespace zelto::test
