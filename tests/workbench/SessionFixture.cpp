#include "SessionFixture.h"

#include <core/json/PJsonValue.h>
#include <core/plugin/PTranslateManager.h>
#include <geomcore/records/MappingFile.h>

#include <QFile>
#include <QTest>

SessionFixture::SessionFixture()
{
    Q_ASSERT(m_folder.isValid());
    // German plurals come from a catalog, too.
    PTranslateManager::registerModule("velkworkbench");
    PTranslateManager::instance().setLanguage(QStringLiteral("de"));
}

QString SessionFixture::write(const ReleaseMappingC &release) const
{
    const QString file = path(QStringLiteral("release.json"));
    addRelease(file, release);
    return file;
}

void SessionFixture::addRelease(const QString &file, const ReleaseMappingC &release) const
{
    MappingFile mappings;
    QVERIFY(!QFile::exists(file) || mappings.read(file));
    mappings.setRelease(release);
    QVERIFY(mappings.write(file));
}

QByteArray SessionFixture::content(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

void SessionFixture::setContent(const QString &file, const QByteArray &bytes)
{
    QFile out(file);
    QVERIFY(out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size());
}

ReleaseMappingC SessionFixture::sampleRelease(const QString &sourceDate)
{
    ReleaseMappingC release;
    release.setSourceDate(sourceDate);
    release.setTargetDate(QStringLiteral("2026-01-01"));
    for (const char *path : {"cat/a.prj", "cat/screws/b.prj", "cat/screws/c.prj"})
        release.addMapping(plainMapping(QString::fromLatin1(path), 10));
    return release;
}

PrjMappingC SessionFixture::mapping(const QString &path, const QList<SampleLine> &lines,
                                    const QString &target)
{
    PrjMappingC result;
    result.setSourcePath(path);
    result.setSourceVersion(Version);
    result.setTabVersion(QStringLiteral("t1"));
    PrjMappingTargetC first;
    first.setTargetPath(target);
    first.setValid(true);
    for (const SampleLine &line : lines) {
        first.addLineId(line.source, line.target, PRJMAPPING::CheckState(line.state),
                        line.extended);
        first.setLineConflicted(line.source, line.conflict);
    }
    result.addTarget(first);
    return result;
}

PrjMappingC SessionFixture::plainMapping(const QString &path, int lines, int state)
{
    QList<SampleLine> list;
    list.reserve(lines);
    for (int i = 1; i <= lines; ++i)
        list.append({i, i, state, QString(), false});
    return mapping(path, list);
}

PrjMappingC SessionFixture::withState(const PrjMappingC &mapping, const QList<int> &lines,
                                      int state)
{
    PrjMappingC result = mapping;
    PrjMappingTargetC target = result.findTarget(0);
    for (int line : lines) {
        const PrjMappingTargetLineC entry = target.getMappedLine(line);
        target.addLineId(line, entry.getTargetLineId(), PRJMAPPING::CheckState(state),
                         entry.getExtended());
    }
    result.updateTarget(0, target);
    return result;
}

QByteArray SessionFixture::bytes(const ReleaseMappingC &release)
{
    PJsonValue value;
    release.toJson(value, false);
    return value.toByteArray(true);
}

QByteArray SessionFixture::bytes(const PrjMappingC &mapping)
{
    ReleaseMappingC release;
    release.addMapping(mapping);
    return bytes(release);
}
