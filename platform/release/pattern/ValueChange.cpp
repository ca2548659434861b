#include "ValueChange.h"

namespace VelkRelease {

namespace {

/// Characters that are shown of a value.
constexpr qsizetype MaxShown = 60;

QString shown(const QString &value)
{
    if (value.isEmpty())
        return QStringLiteral("\u2205");
    return value.size() > MaxShown ? value.left(MaxShown) + QChar(0x2026) : value;
}

QString number(double value)
{
    return QString::number(value, 'g', 6);
}

QString numberMap(double factor, double offset)
{
    QString text;
    if (factor != 1)
        text = QStringLiteral("\u00d7 ") + number(factor);
    if (offset == 0 && factor != 1)
        return text;
    if (!text.isEmpty())
        text += u' ';
    return text + (offset < 0 ? QStringLiteral("\u2212 ") : QStringLiteral("+ ")) +
           number(qAbs(offset));
}

} // namespace

QString ValueChange::text(const Words &words) const
{
    const QString head = variable + QStringLiteral(": ");
    switch (kind) {
    case Replacement:
        return head + shown(before) + QStringLiteral(" \u2192 ") + shown(after);
    case NumberMap:
        return head + numberMap(factor, offset);
    case NearNumber:
        return head + words.nearNumber;
    case OtherNumber:
        return head + words.otherNumber;
    case Wording:
        return head + words.wording;
    case Notation:
        return head + words.notation;
    case Added:
        return head + words.added;
    case Project:
        return words.project + QStringLiteral(": ") +
               (before == after ? words.otherName
                                : shown(before) + QStringLiteral(" \u2192 ") + shown(after));
    case Changed:
        return head + words.changed;
    case AnyOf:
        return words.anyOf;
    case Missing:
        break;
    }
    return head + words.missing;
}

QString ValueChange::lookUpName() const
{
    constexpr QChar Between(0x1f);
    return variable + Between + QString::number(int(kind)) + Between + before + Between + after +
           Between + QString::number(factor, 'g', 17) + Between + QString::number(offset, 'g', 17) +
           (agreed ? u'+' : u'-');
}

} // namespace VelkRelease
