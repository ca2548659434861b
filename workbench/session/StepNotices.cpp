#include "StepNotices.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>

namespace {

QString say(const char *text)
{
    return QCoreApplication::translate("StepNotices", text);
}

bool isExpired(const PrjMappingTargetLineC &line)
{
    return line.getState() == PRJMAPPING::Verified && line.getTargetLineId() == -1;
}

/// "3, 4, 5, ..."
QString numbers(const QList<int> &lines)
{
    constexpr qsizetype Shown = 10;
    QStringList texts;
    for (qsizetype i = 0; i < qMin(lines.size(), Shown); ++i)
        texts += QString::number(lines[i]);
    if (lines.size() > Shown)
        texts += QStringLiteral("...");
    return texts.join(QStringLiteral(", "));
}

class Collector
{
public:
    explicit Collector(const MappingDifference &difference)
        : m_difference(difference)
    {
    }

    QList<ChangeNotice> collect()
    {
        if (!m_difference.validBefore || !m_difference.validAfter)
            return {};
        noteExpired();
        for (const MappingDifference::TargetPair &pair : m_difference.targets)
            noteTarget(pair);
        if (m_remapDue)
            add(ChangeNotice::RemapDue,
                say("Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. "
                    "Dabei bleibt nur erhalten, was bestätigt ist.")
                    .arg(m_difference.project.path));
        return m_notices;
    }

private:
    void add(ChangeNotice::Kind kind, const QString &text, const QList<int> &lines = {})
    {
        m_notices.append({kind, m_difference.project, lines, text});
    }

    void noteExpired()
    {
        std::set<int> before;
        std::set<int> after;
        for (const MappingDifference::TargetPair &pair : m_difference.targets) {
            for (const LineDifference &line : pair.lines) {
                if (line.inBefore && isExpired(line.before))
                    before.insert(line.line);
                if (line.inAfter && isExpired(line.after))
                    after.insert(line.line);
            }
        }
        if (before.size() <= after.size())
            return;
        QList<int> lost;
        std::set_difference(before.begin(), before.end(), after.begin(), after.end(),
                            std::back_inserter(lost));
        const QString path = m_difference.project.path;
        add(ChangeNotice::ExpiredLost,
            lost.size() == 1
                ? say("Zeile %1 in %2 war als entfallen bestätigt und ist es nicht mehr.")
                      .arg(numbers(lost), path)
                : say("%1 Zeilen in %2 waren als entfallen bestätigt und sind es nicht mehr: %3")
                      .arg(QString::number(lost.size()), path, numbers(lost)),
            lost);
    }

    void noteTarget(const MappingDifference::TargetPair &pair)
    {
        if (pair.before < 0) {
            m_remapDue = m_remapDue || (!pair.headAfter.path.isEmpty() && pair.lines.empty());
            return;
        }
        if (pair.after < 0)
            return;
        const QString path = m_difference.project.path;
        if (!pair.stillIgnored.isEmpty())
            add(ChangeNotice::IgnoredNotShrunk,
                say("In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, "
                    "\"Formel...\" wählen oder die Zeile löschen und neu eingeben.")
                    .arg(path, pair.stillIgnored.join(QStringLiteral(", "))));
        if (!pair.headDiffers)
            return;
        const TargetHead &before = pair.headBefore;
        const TargetHead &after = pair.headAfter;
        if (after.conditions.size() < before.conditions.size())
            add(ChangeNotice::ConditionDropped,
                say("Eine Bedingung des Zielprojekts %1 in %2 ist entfallen.")
                    .arg(after.path, path));
        if (after.modifiers.size() < before.modifiers.size())
            add(ChangeNotice::ModifierDropped,
                say("Eine Variablenzuordnung des Zielprojekts %1 in %2 ist entfallen.")
                    .arg(after.path, path));
        if (after.modifiers != before.modifiers && pair.lines.empty())
            m_remapDue = true;
    }

    const MappingDifference &m_difference;
    QList<ChangeNotice> m_notices;
    bool m_remapDue = false;
};

} // namespace

QList<ChangeNotice> stepNotices(const MappingDifference &difference)
{
    return Collector(difference).collect();
}
