#include "ValueRangeCheck.h"

#include <core/progress/PProgress.h>
#include <core/text/PPathName.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/readProjectTable.h>

#include <QCache>

namespace {

class Checker
{
public:
    Checker(const QString &targetRoot, ValueRangeCheck::Result &result)
        : m_root(targetRoot)
        , m_result(result)
    {
    }

    void check(const PrjMappingC &mapping)
    {
        m_project = ProjectId::of(mapping);
        for (int i = 0; i < mapping.countTargets(); ++i)
            check(mapping.targetAt(i));
    }

private:
    void check(const PrjMappingTargetC &target)
    {
        m_target = target.getTargetPath();
        m_toldMissing = false;
        for (const LineTable::Iterator &entry : target.lines().texts())
            check(entry.sourceLine(), entry.extended()->text);
    }

    void check(int line, const QString &text)
    {
        ++m_result.texts;
        int number = 0;
        for (const QString &row : text.split(u'\n')) {
            ++number;
            if (row.trimmed().isEmpty())
                continue;
            ++m_result.rows;
            checkRow(line, number, row);
        }
    }

    void checkRow(int line, int number, const QString &row)
    {
        const QList<QPair<QString, int>> parsed =
            PrjMappingTargetLineC(-1, PRJMAPPING::ToCheck, row).getVarsetList();
        if (parsed.isEmpty()) {
            add(ValueRangeCheck::NotParsed, line, number, row, -1,
                ValueRangeCheck::tr(
                    "%1, Zeile %2: Reihe %3 der Wertebereichszuordnung hat nicht die Form "
                    "{NAME=WERT} -> Zeilennummer: \"%4\". Bitte berichtigen oder neu auflösen.")
                    .arg(m_project.path, QString::number(line), QString::number(number), row));
            return;
        }
        const int targetLine = parsed.first().second;
        if (m_target.isEmpty()) {
            add(ValueRangeCheck::NoTarget, line, number, row, targetLine,
                ValueRangeCheck::tr(
                    "%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, aber die Zeile hat "
                    "kein Zielprojekt. Bitte zuordnen oder den Text leeren.")
                    .arg(m_project.path, QString::number(line), QString::number(targetLine)));
            return;
        }
        const VKTab::ContentRef *content = tableOf(m_target);
        if (!content->isValid()) {
            tellMissing(line);
        } else if (!content->getLineInfo(VKTab::LineId(targetLine)).isValid()) {
            add(ValueRangeCheck::UnknownLine, line, number, row, targetLine,
                ValueRangeCheck::tr(
                    "%1, Zeile %2: Die Wertebereichszuordnung nennt Zeile %3, die es in %4 nicht "
                    "gibt. Bitte berichtigen oder neu auflösen.")
                    .arg(m_project.path, QString::number(line), QString::number(targetLine),
                         m_target));
        }
    }

    void tellMissing(int line)
    {
        if (m_toldMissing)
            return;
        m_toldMissing = true;
        add(ValueRangeCheck::TableMissing, line, 0, QString(), -1,
            ValueRangeCheck::tr(
                "%1: Die Tabelle des Zielprojekts %2 kann nicht gelesen werden, seine "
                "Wertebereichszuordnungen sind ungeprüft. Bitte das Verzeichnis der Zielprojekte "
                "prüfen (%3).")
                .arg(m_project.path, m_target, m_root));
    }

    void add(ValueRangeCheck::Kind kind, int line, int number, const QString &row, int targetLine,
             const QString &text)
    {
        m_result.findings.append(
            {kind, {m_project, line}, m_target, number, row, targetLine, text});
    }

    const VKTab::ContentRef *tableOf(const QString &path)
    {
        if (const VKTab::ContentRef *known = m_tables.object(path))
            return known;
        VKTab::ContentRef table{VKTab::Content()};
        const QString file = (PPathName(m_root) + PPathName(path)).native();
        (void)VKTab::readProjectTable(file, table, {.tells = false});
        m_tables.insert(path, new VKTab::ContentRef(table));
        return m_tables.object(path);
    }

    const QString m_root;
    ValueRangeCheck::Result &m_result;
    ProjectId m_project;
    QString m_target;
    bool m_toldMissing = false;
    QCache<QString, VKTab::ContentRef> m_tables{16}; ///< by target path
};

} // namespace

ValueRangeCheck::Result ValueRangeCheck::run(const ReleaseMappingC &release,
                                             const QString &targetRoot)
{
    Result result;
    Checker checker(targetRoot, result);
    PProgress progress(0, release.countMappings(), 1.0, true, false);
    progress.setText(ValueRangeCheck::tr("Wertebereichszuordnungen werden geprüft"));
    for (int i = 0; i < release.countMappings(); ++i) {
        if (progress.isCanceled()) {
            result.cancelled = true;
            break;
        }
        checker.check(release.mappingAt(i));
        progress.nextStep();
    }
    progress.done();
    return result;
}

QString ValueRangeCheck::Result::summary() const
{
    const QString checked =
        ValueRangeCheck::tr("%Ln Wertebereichszuordnung(en) geprüft", nullptr, texts);
    const QString found = findings.isEmpty() ? ValueRangeCheck::tr("keine Beanstandung")
                                             : ValueRangeCheck::tr("%Ln Beanstandung(en)", nullptr,
                                                                   int(findings.size()));
    return (cancelled ? ValueRangeCheck::tr("%1 (abgebrochen): %2.") : QStringLiteral("%1: %2."))
        .arg(checked, found);
}
