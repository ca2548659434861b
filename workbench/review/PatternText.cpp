#include "PatternText.h"

#include <QCoreApplication>
#include <QStringList>

namespace PatternText {

VelkRelease::ValueChange::Words words()
{
    return {QCoreApplication::translate("PatternText", "Zahl in der Nähe"),
            QCoreApplication::translate("PatternText", "andere Zahl"),
            QCoreApplication::translate("PatternText", "anderer Wortlaut"),
            QCoreApplication::translate("PatternText", "Wert hinzugekommen"),
            QCoreApplication::translate("PatternText", "Wert fehlt"),
            QCoreApplication::translate("PatternText", "andere Schreibweise"),
            QCoreApplication::translate("PatternText", "Projektname"),
            QCoreApplication::translate("PatternText", "ein anderer"),
            QCoreApplication::translate("PatternText", "anderer Wert"),
            QCoreApplication::translate("PatternText", "je Zeile eine oder mehrere davon")};
}

VelkRelease::GoneGroup::Words goneWords()
{
    return {QCoreApplication::translate("PatternText", "ganzer Ordner ohne Ziel: %1"),
            QCoreApplication::translate("PatternText", "ganzes Projekt ohne Ziel: %1"),
            QCoreApplication::translate("PatternText", "Zielprojekt gibt es nicht mehr: %1"),
            QCoreApplication::translate("PatternText", "%1: %2 gibt es nicht mehr"),
            QCoreApplication::translate("PatternText", "keine ähnliche Zeile: %1")};
}

QString incomparable()
{
    return QCoreApplication::translate("PatternText", "nicht zu vergleichen");
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
        return incomparable();
    const std::optional<VelkRelease::GoneGroup> &gone = patterns.gone(pattern);
    QString text = gone ? gone->text(goneWords()) : of(patterns.changes(pattern));
    if (text.isEmpty())
        text = QCoreApplication::translate("PatternText", "kein Unterschied");
    return patterns.isDoubtful(pattern)
               ? QCoreApplication::translate("PatternText", "unsicher: %1").arg(text)
               : text;
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

} // namespace PatternText
