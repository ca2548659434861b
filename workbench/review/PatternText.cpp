#include "PatternText.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace PatternText {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("PatternText", text);
}

VelkRelease::ValueChange::Words words()
{
    return {tr(QT_TRANSLATE_NOOP("PatternText", "Zahl in der Nähe")),
            tr(QT_TRANSLATE_NOOP("PatternText", "andere Zahl")),
            tr(QT_TRANSLATE_NOOP("PatternText", "anderer Wortlaut")),
            tr(QT_TRANSLATE_NOOP("PatternText", "Wert hinzugekommen")),
            tr(QT_TRANSLATE_NOOP("PatternText", "Wert fehlt"))};
}

} // namespace

QString of(const QList<VelkRelease::ValueChange> &changes)
{
    QStringList texts;
    for (const VelkRelease::ValueChange &change : changes)
        texts += change.text(words());
    return texts.join(QStringLiteral("; "));
}

QString of(const VelkRelease::DifferencePatterns &patterns, int pattern)
{
    if (!patterns.isComparable(pattern))
        return tr(QT_TRANSLATE_NOOP("PatternText", "nicht zu vergleichen"));
    const QString text = of(patterns.changes(pattern));
    return text.isEmpty() ? tr(QT_TRANSLATE_NOOP("PatternText", "kein Unterschied")) : text;
}

QString of(const AgreedReplacement &replacement)
{
    VelkRelease::ValueChange change;
    change.variable = replacement.variable;
    change.kind = replacement.isNumeric() ? VelkRelease::ValueChange::NumberMap
                                          : VelkRelease::ValueChange::Replacement;
    change.before = replacement.before;
    change.after = replacement.after;
    change.factor = replacement.isNumeric() ? replacement.factor.toDouble() : 1;
    change.offset = replacement.offset.toDouble();
    return change.text(words());
}

QString percent(double share)
{
    return QString::number(int(std::floor(share * 100 + 1e-9))) + QStringLiteral(" %");
}

} // namespace PatternText
