#include "AgreedReplacement.h"

namespace {

/// Digits of a product that count: 10 * 0.1 is 1.
constexpr int NumberDigits = 12;

bool areParted(QChar a, QChar b)
{
    return !((a.isDigit() && b.isDigit()) || (a.isLetter() && b.isLetter()));
}

/// Where the token stands at or behind \a from, not inside of a word or number; -1: nowhere.
qsizetype placeOf(const QString &token, const QString &text, qsizetype from)
{
    if (token.isEmpty())
        return -1;
    for (qsizetype at = text.indexOf(token, from); at >= 0; at = text.indexOf(token, at + 1)) {
        const qsizetype end = at + token.size();
        if ((at == 0 || areParted(text[at - 1], token.front())) &&
            (end == text.size() || areParted(token.back(), text[end])))
            return at;
    }
    return -1;
}

} // namespace

bool AgreedReplacement::holdsIn(const QString &sourcePath) const
{
    if (folder.isEmpty())
        return true;
    QString path = sourcePath;
    path.replace(u'\\', u'/');
    return path == folder ||
           (path.startsWith(folder) && (folder.endsWith(u'/') || path.at(folder.size()) == u'/'));
}

bool AgreedReplacement::isFoundIn(const QString &value) const
{
    return placeOf(before, value, 0) >= 0;
}

QString AgreedReplacement::applied(const QString &value, QChar decimalChar) const
{
    if (isNumeric()) {
        bool isNumber = false;
        const double number =
            QString(value).replace(decimalChar, u'.').trimmed().toDouble(&isNumber);
        if (!isNumber)
            return value;
        return QString::number(number * factor.toDouble() + offset.toDouble(), 'g', NumberDigits)
            .replace(u'.', decimalChar);
    }
    QString result;
    qsizetype done = 0;
    for (qsizetype at = placeOf(before, value, 0); at >= 0; at = placeOf(before, value, done)) {
        result += QStringView(value).mid(done, at - done);
        result += after;
        done = at + before.size();
    }
    return result + value.mid(done);
}
