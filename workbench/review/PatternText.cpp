#include "PatternText.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace PatternText {

VelkRelease::ValueChange::Words words()
{
    return {QCoreApplication::translate("PatternText", "Zahl in der Nähe"),
            QCoreApplication::translate("PatternText", "andere Zahl"),
            QCoreApplication::translate("PatternText", "anderer Wortlaut"),
            QCoreApplication::translate("PatternText", "Wert hinzugekommen"),
            QCoreApplication::translate("PatternText", "Wert fehlt")};
}

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
        return QCoreApplication::translate("PatternText", "nicht zu vergleichen");
    const QString text = of(patterns.changes(pattern));
    return text.isEmpty() ? QCoreApplication::translate("PatternText", "kein Unterschied") : text;
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
