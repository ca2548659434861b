#include "ProductRun.h"

#include <geomcore/records/MappingFile.h>
#include <tools/velkmap/Commands.h>

#include <QTextStream>

#include <stdexcept>

namespace velkbench {

QString qtPath(const std::filesystem::path &path)
{
    return QString::fromStdString(path.string());
}

void runVelkmap(const QStringList &arguments, const QList<int> &goodStatuses)
{
    QString output;
    QString errors;
    QTextStream out(&output);
    QTextStream err(&errors);
    const int status = int(velkmap::run(arguments, out, err));
    out.flush();
    err.flush();
    if (!goodStatuses.contains(status)) {
        throw std::runtime_error("velkmap " + arguments.join(' ').toStdString() + " ends with " +
                                 std::to_string(status) + ":\n" + errors.toStdString());
    }
}

void writeEmptyMapping(const std::vector<GeneratedProject> &projects,
                       const std::filesystem::path &file)
{
    ReleaseMappingC release;
    release.setSourceDate(QStringLiteral("2023-01-31"));
    release.setTargetDate(QStringLiteral("2025-06-30"));
    for (const GeneratedProject &project : projects) {
        PrjMappingC mapping;
        mapping.setSourcePath(QString::fromStdString(project.path));
        mapping.setSourceVersion(QStringLiteral("v230131100000"));
        mapping.addTarget(QString::fromStdString(project.path), QStringLiteral("v250630100000"));
        release.addMapping(mapping);
    }
    MappingFile mappingFile;
    mappingFile.setRelease(release);
    QString error;
    if (!mappingFile.write(qtPath(file), &error))
        throw std::runtime_error(error.toStdString());
}

StateCounts countStates(const std::filesystem::path &mappingFile)
{
    MappingFile file;
    QString error;
    if (!file.read(qtPath(mappingFile), {}, &error) || file.releases().isEmpty())
        throw std::runtime_error("no release in " + mappingFile.string() + error.toStdString());
    const ReleaseMappingC release = file.releases().last();
    StateCounts sum;
    for (int i = 0; i < release.countMappings(); ++i) {
        const LineCounts counts = release.mappingAt(i).lineCounts();
        sum.lines += counts.lines();
        sum.mapped += counts.mapped();
        sum.toCheck += counts.toCheck();
        sum.notFound += counts.notFound();
    }
    return sum;
}

} // namespace velkbench
