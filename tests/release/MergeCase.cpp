#include "MergeCase.h"

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetConditionI.h>

#include <QRegularExpression>
#include <QStringList>

using VelkRelease::LineStanding;
using VelkRelease::MergeClash;

namespace MergeCase {

namespace {

void addLine(PrjMappingTargetC &target, const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d+)>(x|\\d+)([vc]?)(!?)(?:\\*(.*))?$"));
    const auto match = form.match(text);
    Q_ASSERT_X(match.hasMatch(), "MergeCase", qPrintable(text));
    const QString mark = match.captured(3);
    const int line = match.captured(1).toInt();
    target.addLineId(line, match.captured(2) == "x" ? -1 : match.captured(2).toInt(),
                     mark == "v"   ? PRJMAPPING::Verified
                     : mark == "c" ? PRJMAPPING::ToCheck
                                   : PRJMAPPING::Mapped,
                     match.captured(5));
    target.setLineConflicted(line, !match.captured(4).isEmpty());
}

PrjMappingTargetC targetOf(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([^\\[(@]+)(?:@(\\w+))?(?:\\[(.*)\\])?\\((.*)\\)$"));
    const auto match = form.match(text);
    Q_ASSERT_X(match.hasMatch(), "MergeCase", qPrintable(text));
    PrjMappingTargetC target;
    target.setValid(true);
    target.setTargetPath(match.captured(1) == "-" ? QString() : match.captured(1));
    target.setTargetVersion(match.captured(2));
    if (!match.captured(3).isEmpty())
        target.addCondition(VarsetConditionC::fromText(match.captured(3)));
    for (const QString &line : match.captured(4).split(',', Qt::SkipEmptyParts))
        addLine(target, line);
    return target;
}

QString lineText(const PrjMappingTargetLineC &line)
{
    QString text = line.getTargetLineId() == -1 ? QStringLiteral("x")
                                                : QString::number(line.getTargetLineId());
    text += line.getState() == PRJMAPPING::Verified  ? "v"
            : line.getState() == PRJMAPPING::ToCheck ? "c"
                                                     : "";
    text += line.getConflict() ? "!" : "";
    return line.getExtended().isEmpty() ? text : text + "*" + line.getExtended();
}

QString targetText(const PrjMappingTargetC &target)
{
    QString text = target.isNotFoundTarget() ? QStringLiteral("-") : target.getTargetPath();
    if (!target.getTargetVersion().isEmpty())
        text += "@" + target.getTargetVersion();
    for (const VarsetConditionI *condition : target.getConditions())
        text += "[" + condition->getCondition() + "]";
    QStringList lines;
    for (const auto &entry : target.lines())
        lines << QString::number(entry.sourceLine()) + ">" + lineText(entry.line());
    return text + "(" + lines.join(',') + ")";
}

QString pathText(const QString &path)
{
    return path.isEmpty() ? QStringLiteral("-") : path;
}

} // namespace

ReleaseMappingC release(const QString &text)
{
    ReleaseMappingC release;
    release.setSourceDate("2023-01-01");
    release.setTargetDate("2024-01-01");
    for (const QString &project : text.split(';', Qt::SkipEmptyParts)) {
        const QStringList parts = project.trimmed().split(": ");
        PrjMappingC mapping;
        mapping.setSourcePath(parts.first().section('@', 0, 0));
        mapping.setSourceVersion(parts.first().section('@', 1));
        QList<PrjMappingTargetC> targets;
        for (const QString &target : parts.value(1).split(' ', Qt::SkipEmptyParts))
            targets << targetOf(target);
        mapping.setTargets(targets);
        release.appendMapping(mapping);
    }
    return release;
}

QString text(const PrjMappingC &mapping)
{
    QStringList targets;
    for (const PrjMappingTargetC &target : mapping.getTargets())
        targets << targetText(target);
    const QString version = mapping.getSourceVersion();
    return mapping.getSourcePath() + (version.isEmpty() ? "" : "@" + version) + ": " +
           targets.join(' ');
}

QString text(const ReleaseMappingC &release)
{
    QStringList projects;
    for (const PrjMappingC &mapping : release.getMappingList())
        projects << text(mapping);
    return projects.join("; ");
}

QString text(const LineStanding &standing)
{
    QStringList entries;
    for (const VelkRelease::LineEntry &entry : standing)
        entries << pathText(entry.target) + ">" + lineText(entry.line);
    return entries.isEmpty() ? QStringLiteral("?") : entries.join(' ');
}

QStringList texts(const QList<MergeClash> &clashes)
{
    static const QStringList kinds = {"line",           "conditions", "variables",
                                      "target version", "order",      "target removed",
                                      "version",        "removed",    "date"};
    QStringList result;
    for (const MergeClash &clash : clashes) {
        QString text = clash.sourcePath + " " + kinds.value(clash.kind);
        if (clash.kind == MergeClash::Line)
            text += QStringLiteral(" %1: ").arg(clash.line) + MergeCase::text(clash.base) + " | " +
                    MergeCase::text(clash.ours) + " | " + MergeCase::text(clash.theirs);
        if (!clash.target.isEmpty())
            text += " " + clash.target;
        if (clash.kind == MergeClash::TargetRemoved || clash.kind == MergeClash::ProjectRemoved)
            text += clash.removedByOurs ? " by ours" : " by theirs";
        result << text;
    }
    return result;
}

QStringList texts(const MappingChangeMap &changes)
{
    QStringList result;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        QString text = change.key().second + " " + QString::number(change->type);
        if (change->type <= 2 || change->type == 11)
            text += QStringLiteral(" %1 ").arg(change->lineId) +
                    pathText(change->target.getTargetPath()) + ">" + lineText(change->targetLine);
        else if (change->target.isValid())
            text += " " + pathText(change->target.getTargetPath());
        result << text;
    }
    result.sort();
    return result;
}

} // namespace MergeCase
