#include "PPathName.h"

#include "PathAlias.h"
#include <core/access/AddressedFiles.h>

#include <QDir>
#include <QFileInfo>

namespace {

PString resolved(const PString &text)
{
    return PString::ResolveEnvirons(PathAlias::replacedIn(text));
}

bool isSeparator(QChar c)
{
    return c == u'/' || c == u'\\';
}

bool isAsciiLetter(QChar c)
{
    return c.unicode() < 128 && c.isLetter();
}

/// Length of "svn://" and the like at the beginning, 0 for none. One letter is a drive.
qsizetype schemeLength(QStringView text)
{
    qsizetype i = 0;
    while (i < text.size() &&
           (isAsciiLetter(text[i]) || (i > 0 && (text[i].isDigit() || text[i] == u'+' ||
                                                 text[i] == u'-' || text[i] == u'.'))))
        ++i;
    return i > 1 && text.mid(i).startsWith(u"://") ? i + 3 : 0;
}

/// Length of "C:" at the beginning, 0 for none.
qsizetype driveLength(QStringView text)
{
    return text.size() > 1 && isAsciiLetter(text[0]) && text[1] == u':' ? 2 : 0;
}

/// "/" between components, never two of them. On Windows two at the beginning name a server.
QString withSlashes(QStringView text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        const bool repeated = isSeparator(c) && result.endsWith(u'/');
#ifdef Q_OS_WIN
        if (repeated && result.size() > 1)
            continue;
#else
        if (repeated)
            continue;
#endif
        result += isSeparator(c) ? QChar(u'/') : c;
    }
    return result;
}

QString cleaned(const QString &path)
{
    const qsizetype scheme = schemeLength(path);
    if (!scheme)
        return QDir::cleanPath(withSlashes(path));
    const QString rest = withSlashes(QStringView(path).mid(scheme));
    const qsizetype hostEnd = rest.indexOf(u'/');
    if (hostEnd < 0)
        return path.left(scheme) + rest;
    const QString below = QDir::cleanPath(rest.mid(hostEnd));
    return path.left(scheme) + rest.left(hostEnd) + (below == u"/" ? QString() : below);
}

/// Position of the separator before the last component, -1 for none; separators at the end belong
/// to the last component.
qsizetype lastSeparator(QStringView text, qsizetype end)
{
    const qsizetype begin = schemeLength(text);
    for (qsizetype i = end - 1; i >= begin; --i) {
        if (isSeparator(text[i]))
            return i;
    }
    return -1;
}

qsizetype endWithoutSeparators(QStringView text)
{
    const qsizetype begin = schemeLength(text);
    qsizetype end = text.size();
    while (end > begin && isSeparator(text[end - 1]))
        --end;
    return end;
}

} // namespace

PPathName::PPathName(const QString &text)
    : m_text(text)
{
}

PPathName::PPathName(const char *utf8)
    : m_text(utf8)
{
}

bool PPathName::exists(bool dirOnly) const
{
    if (isEmpty())
        return false;
    const PString file = native();
    const std::shared_ptr<AddressedFiles> addressed = AddressedFiles::installed();
    QString problem;
    if (schemeLength(file) || (addressed && !addressed->provide(file, problem)))
        return false;
    const QFileInfo info(file);
    return dirOnly ? info.isDir() : info.exists();
}

PString PPathName::native() const
{
    const PString path = resolved(m_text);
    if (schemeLength(path)) {
        const std::shared_ptr<AddressedFiles> addressed = AddressedFiles::installed();
        const QString file = addressed ? addressed->fileOf(path) : QString();
        return file.isEmpty() ? path : PString(file);
    }
    return QDir::toNativeSeparators(withSlashes(path));
}

bool PPathName::isAddress() const
{
    return schemeLength(resolved(m_text)) > 0;
}

bool PPathName::isAbsolute() const
{
    const PString path = resolved(m_text);
    if (schemeLength(path))
        return true;
    const qsizetype root = driveLength(path);
    return path.size() > root && isSeparator(path.at(root));
}

PPathName PPathName::directory() const
{
    const qsizetype separator = lastSeparator(m_text, endWithoutSeparators(m_text));
    if (separator < 0)
        return {};
    const qsizetype rootEnd = driveLength(m_text);
    return PPathName(m_text.left(separator == rootEnd ? separator + 1 : separator));
}

PString PPathName::standardFileName() const
{
    const qsizetype end = endWithoutSeparators(m_text);
    const qsizetype begin = qMax(lastSeparator(m_text, end) + 1, schemeLength(m_text));
    return m_text.mid(begin, end - begin);
}

PPathName PPathName::operator+(const PPathName &relative) const
{
    if (isEmpty() || relative.isEmpty())
        return isEmpty() ? relative : *this;
    qsizetype begin = 0;
    while (begin < relative.m_text.size() && isSeparator(relative.m_text.at(begin)))
        ++begin;
    const QString base = m_text.left(endWithoutSeparators(m_text));
    const QString rest = relative.m_text.mid(begin);
    if (base.size() == schemeLength(m_text) && !base.isEmpty())
        return PPathName(base + rest);
    return PPathName(base + u'/' + rest);
}

PPathName PPathName::MergeDirAndFile(const PPathName &directory, const PPathName &file,
                                     bool normalise)
{
    if (file.isAbsolute())
        return file;
    const PPathName merged = directory + file;
    return normalise && !merged.isEmpty() ? PPathName(cleaned(resolved(merged.m_text))) : merged;
}

PString PPathName::normalized() const
{
    if (isEmpty())
        return {};
    QString path = cleaned(resolved(m_text));
#ifdef Q_OS_WIN
    return path.toLower();
#else
    return path;
#endif
}

bool operator==(const PPathName &a, const PPathName &b)
{
    return a.m_text == b.m_text || a.normalized() == b.normalized();
}

size_t qHash(const PPathName &path, size_t seed)
{
    return qHash(static_cast<const QString &>(path.normalized()), seed);
}
