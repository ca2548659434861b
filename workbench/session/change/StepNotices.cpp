#include "StepNotices.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <set>

namespace {

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

class StepNotices
{
    Q_DECLARE_TR_FUNCTIONS(StepNotices)

public:
    StepNotices(const MappingDifference &difference, const PrjMappingC &after)
        : m_difference(difference)
        , m_after(after)
    {
    }

    QList<ChangeNotice> collect()
    {
        if (!m_difference.validBefore || !m_difference.validAfter)
            return {};
        noteExpired();
        for (const MappingDifference::TargetPair &pair : m_difference.targets) {
            noteTarget(pair);
            noteTaken(pair);
        }
        if (m_remapDue)
            add(ChangeNotice::RemapDue,
                tr("Die Änderung in %1 wirkt erst, wenn die Zeilen erneut zugewiesen werden. "
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
            tr("%Ln Zeile(n) in %1 war(en) als ausgelaufen bestätigt und ist/sind es nicht mehr: "
               "%2",
               nullptr, int(lost.size()))
                .arg(path, numbers(lost)),
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
                tr("In %1 bleiben Variablen ignoriert: %2. Um eine davon wieder zuzuordnen, "
                   "\"Formel...\" wählen oder die Zeile löschen und neu eingeben.")
                    .arg(path, pair.stillIgnored.join(QStringLiteral(", "))));
        if (!pair.headDiffers)
            return;
        const TargetHead &before = pair.headBefore;
        const TargetHead &after = pair.headAfter;
        if (after.conditions.size() < before.conditions.size())
            add(ChangeNotice::ConditionDropped,
                tr("Eine Bedingung des Zielprojekts %1 in %2 wurde entfernt.")
                    .arg(after.path, path));
        if (after.modifiers.size() < before.modifiers.size())
            add(ChangeNotice::ModifierDropped,
                tr("Eine Variablenzuordnung des Zielprojekts %1 in %2 wurde entfernt.")
                    .arg(after.path, path));
        if (after.modifiers != before.modifiers && pair.lines.empty())
            m_remapDue = true;
    }

    /// A target line that a line got in this step and that another line has already.
    void noteTaken(const MappingDifference::TargetPair &pair)
    {
        if (pair.after < 0)
            return;
        QHash<int, int> taken; // target line, line that got it
        for (const LineDifference &line : pair.lines) {
            const bool decided = line.inAfter && line.after.getState() == PRJMAPPING::Verified;
            const int target = decided ? line.after.getTargetLineId() : -1;
            if (target != -1 && !(line.inBefore && line.before.getTargetLineId() == target))
                taken.insert(target, line.line);
        }
        if (taken.isEmpty())
            return;
        QList<int> others;
        for (const LineTable::Iterator &line : m_after.targetAt(pair.after).lines()) {
            const auto at = taken.constFind(line.targetLine());
            if (at == taken.cend() || *at == line.sourceLine())
                continue;
            others += line.sourceLine();
        }
        if (others.isEmpty())
            return;
        const QString path = m_difference.project.path;
        const QString text =
            taken.size() == 1
                ? tr("Zeile %1 → %2 in %3: die Zielzeile hat/haben auch %Ln andere Zeile(n): %4",
                     nullptr, int(others.size()))
                      .arg(QString::number(taken.begin().value()),
                           QString::number(taken.begin().key()), path, numbers(others))
                : tr("%Ln Zeile(n) in %1 teilt/teilen ihre Zielzeile mit neu zugeordneten: %2",
                     nullptr, int(others.size()))
                      .arg(path, numbers(others));
        add(ChangeNotice::TargetLineShared, text, others);
    }

    const MappingDifference &m_difference;
    const PrjMappingC &m_after;
    QList<ChangeNotice> m_notices;
    bool m_remapDue = false;
};

} // namespace

QList<ChangeNotice> stepNotices(const MappingDifference &difference, const PrjMappingC &after)
{
    return StepNotices(difference, after).collect();
}
