#include "LinkDbSettings.h"

#include <core/text/PString.h>

#include <QUrl>
#include <QUrlQuery>

namespace {

const QStringList &sslModes()
{
    static const QStringList modes{QStringLiteral("disable"),   QStringLiteral("allow"),
                                   QStringLiteral("prefer"),    QStringLiteral("require"),
                                   QStringLiteral("verify-ca"), QStringLiteral("verify-full")};
    return modes;
}

QString unknownAddress(const QString &text)
{
    return PString::translate("\"%1\" ist keine Adresse einer Linkdatenbank. Möglich sind "
                              "sqlite:DATEI und postgresql://BENUTZER@RECHNER:PORT/DATENBANK.",
                              "VelkGeomCore")
        .arg(text);
}

LinkDbSettings fromUrl(const QString &text, QString &problem)
{
    const QUrl url(text, QUrl::StrictMode);
    const QUrlQuery query(url);
    LinkDbSettings settings;
    settings.host = url.host(QUrl::FullyDecoded);
    // QUrl takes no "/" in a host, so the folder of a socket may also stand in the query.
    if (query.hasQueryItem(QStringLiteral("host")))
        settings.host = query.queryItemValue(QStringLiteral("host"), QUrl::FullyDecoded);
    settings.port = query.hasQueryItem(QStringLiteral("port"))
                        ? query.queryItemValue(QStringLiteral("port")).toInt()
                        : url.port(0);
    settings.database = url.path(QUrl::FullyDecoded).mid(1);
    settings.user = query.hasQueryItem(QStringLiteral("user"))
                        ? query.queryItemValue(QStringLiteral("user"), QUrl::FullyDecoded)
                        : url.userName(QUrl::FullyDecoded);
    settings.sslMode = query.queryItemValue(QStringLiteral("sslmode"));
    if (query.hasQueryItem(QStringLiteral("connect_timeout")))
        settings.connectSeconds = query.queryItemValue(QStringLiteral("connect_timeout")).toInt();
    if (settings.connectSeconds < 1 || !url.isValid() || settings.database.isEmpty() ||
        settings.database.contains(u'/'))
        problem = unknownAddress(text);
    else if (!url.password().isEmpty())
        problem = PString::translate("In der Adresse der Linkdatenbank steht ein Kennwort. Es "
                                     "gehört in die Kennwortdatei oder in PGPASSWORD.",
                                     "VelkGeomCore");
    else if (!settings.sslMode.isEmpty() && !sslModes().contains(settings.sslMode))
        problem =
            PString::translate("sslmode \"%1\" gibt es nicht; möglich sind: %2", "VelkGeomCore")
                .arg(settings.sslMode, sslModes().join(QStringLiteral(", ")));
    else
        settings.kind = LinkDbSettings::Kind::PostgreSQL;
    return settings;
}

} // namespace

LinkDbSettings LinkDbSettings::fromText(const QString &text, QString *problem)
{
    QString cause;
    LinkDbSettings settings;
    const QString sqlite = QStringLiteral("sqlite:");
    if (text.startsWith(QLatin1String("postgresql:")) ||
        text.startsWith(QLatin1String("postgres:")))
        settings = fromUrl(text, cause);
    else if (text.startsWith(sqlite))
        settings.file = text.mid(sqlite.size());
    else if (!text.contains(QLatin1String("://")))
        settings.file = text;
    if (!settings.file.isEmpty())
        settings.kind = Kind::SQLite;
    if (settings.kind == Kind::None) {
        settings = {};
        if (problem)
            *problem = cause.isEmpty() ? unknownAddress(text) : cause;
    }
    return settings;
}

QString LinkDbSettings::toText() const
{
    if (kind == Kind::SQLite)
        return QStringLiteral("sqlite:") + file;
    if (kind == Kind::None)
        return {};
    QUrl url;
    QUrlQuery query;
    url.setScheme(QStringLiteral("postgresql"));
    const bool isSocket = host.contains(u'/');
    if (isSocket)
        query.addQueryItem(QStringLiteral("host"), host);
    // A null one would leave out "//".
    url.setHost(isSocket || host.isEmpty() ? QStringLiteral("") : host);
    if (port > 0 && !url.host().isEmpty())
        url.setPort(port);
    else if (port > 0)
        query.addQueryItem(QStringLiteral("port"), QString::number(port));
    if (url.host().isEmpty() && !user.isEmpty())
        query.addQueryItem(QStringLiteral("user"), user);
    else if (!user.isEmpty()) // an empty one would be written, too
        url.setUserName(user, QUrl::DecodedMode);
    url.setPath(u'/' + database, QUrl::DecodedMode);
    if (!sslMode.isEmpty())
        query.addQueryItem(QStringLiteral("sslmode"), sslMode);
    if (connectSeconds != LinkDbSettings().connectSeconds)
        query.addQueryItem(QStringLiteral("connect_timeout"), QString::number(connectSeconds));
    if (!query.isEmpty())
        url.setQuery(query);
    return url.toString(QUrl::FullyEncoded);
}

QString LinkDbSettings::displayName() const
{
    if (kind != Kind::PostgreSQL)
        return file;
    return host.isEmpty() ? database : QStringLiteral("%1 (%2)").arg(database, host);
}
