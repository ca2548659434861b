#include "RepositoryAddress.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace {

const QString scheme = QStringLiteral("svn://");
const QString root = QStringLiteral("/trunk/catalog/");

bool isPlain(const QString &text)
{
    return std::none_of(text.cbegin(), text.cend(), [](QChar c) {
        return c.category() == QChar::Other_Control || c.isSurrogate();
    });
}

} // namespace

RepositoryAddress RepositoryAddress::of(const QString &address)
{
    const qsizetype end = address.indexOf(u'/', scheme.size());
    if (!address.startsWith(scheme) || end < 0 || address.indexOf(root, end) != end ||
        !isPlain(address))
        return {};
    QString path = address.mid(end + root.size());
    const QStringList components = path.replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
    if (components.contains(QStringLiteral(".")) || components.contains(QStringLiteral("..")))
        return {};
    return {address.mid(scheme.size(), end - scheme.size()), components.join(u'/')};
}

QString repositoryUrlOf(const QString &catalog, const QString &server)
{
    static const QRegularExpression plainServer(QRegularExpression::anchoredPattern(
        QStringLiteral("svn://([A-Za-z0-9][A-Za-z0-9._-]*|\\[[0-9A-Fa-f:.]+\\])(:[0-9]{1,5})?"
                       "(/[A-Za-z0-9_~-][A-Za-z0-9._~-]*)*")));
    const QString base = server.isEmpty() ? scheme + catalog : server;
    return plainServer.match(base).hasMatch() ? base + QStringLiteral("/trunk/catalog") : QString();
}

QString repositoryUrlBelow(const QString &url, const QString &path)
{
    const QString encoded = QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
    return encoded.isEmpty() ? url : url + u'/' + encoded;
}
