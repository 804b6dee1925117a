#include "ui/page_scripts.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

namespace pinmora {
namespace {

QString sourceOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The source of a file that holds one function, called with the arguments.
QString calledWith(const QString &path, const QJsonArray &arguments) {
    const QByteArray list = QJsonDocument(arguments).toJson(QJsonDocument::Compact);
    return sourceOf(path).trimmed() + QStringLiteral("(...%1);").arg(QString::fromUtf8(list));
}

QWebEngineScript script(const QString &name, const QString &source,
                        QWebEngineScript::ScriptWorldId world) {
    QWebEngineScript made;
    made.setName(name);
    made.setSourceCode(source);
    made.setInjectionPoint(QWebEngineScript::DocumentCreation);
    made.setWorldId(world);
    made.setRunsOnSubFrames(false);
    return made;
}

} // namespace

QList<QWebEngineScript> pageScripts(const QString &origin, const QString &publishedName) {
    // One script: the order of several is not promised.
    const QString channel = sourceOf(QStringLiteral(":/qtwebchannel/qwebchannel.js")) + u'\n' +
                            calledWith(QStringLiteral(":/page/channel.js"),
                                       {origin, longestArgument + longestName + 20});
    const QString published = calledWith(QStringLiteral(":/page/published-object.js"),
                                         {origin, publishedName, longestArgument});
    const QString suffix = u' ' + publishedName + u' ' + origin;
    return {script(QStringLiteral("channel") + suffix, channel, QWebEngineScript::ApplicationWorld),
            script(QStringLiteral("object") + suffix, published, QWebEngineScript::MainWorld)};
}

} // namespace pinmora
