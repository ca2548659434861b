#pragma once

#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <geomcore/records/ReleaseMappingC.h>

#include <QRandomGenerator>

/// Records for tests.
namespace RecordSamples {

inline PrjMappingTargetC target(const QString &path)
{
    PrjMappingTargetC result;
    result.setTargetPath(path);
    result.setValid(true);
    return result;
}

inline PrjMappingC mapping(const QString &path, const QString &version = "v220101000000",
                           const QString &tabVersion = "v220102000000")
{
    PrjMappingC result;
    result.setSourcePath(path);
    result.setSourceVersion(version);
    result.setTabVersion(tabVersion);
    return result;
}

inline QString randomText(QRandomGenerator &random)
{
    static const char *const Pieces[] = {"a",  "\"", "\\", "\n", "ä",      "€", "😀", "{D=4}",
                                         "\t", "/",  " ",  "%1", " -> 17", "'", "<", "\x01"};
    QString text;
    for (quint32 i = random.bounded(6); i > 0; --i)
        text += QString::fromUtf8(Pieces[random.bounded(int(std::size(Pieces)))]);
    return text;
}

inline PrjMappingTargetC randomTarget(QRandomGenerator &random, int lines)
{
    PrjMappingTargetC result;
    result.setTargetPath(random.bounded(5) == 0 ? QString() : "cat/" + randomText(random));
    result.setTargetVersion(randomText(random));
    result.setTabVersion(randomText(random));
    result.setValid(random.bounded(4) != 0);
    for (quint32 i = random.bounded(3); i > 0; --i)
        result.addCondition(VarsetConditionC::fromText(randomText(random)));
    for (quint32 i = random.bounded(3); i > 0; --i) {
        if (random.bounded(2) == 0)
            result.addModifier(new VarsetVarMappingC(randomText(random), randomText(random)));
        else
            result.addModifier(VarsetValueMappingC::fromText(randomText(random)));
    }
    for (int i = 0; i < lines; ++i) {
        const int id =
            random.bounded(3) == 0 ? int(random.generate() >> 1U) : int(random.bounded(1000));
        const int line = random.bounded(4) == 0 ? -1 : int(random.bounded(100000));
        result.addLineId(id, line, PRJMAPPING::CheckState(random.bounded(5)),
                         random.bounded(6) == 0 ? randomText(random) : QString());
        result.setLineConflicted(id, random.bounded(7) == 0);
    }
    return result;
}

inline PrjMappingC randomMapping(QRandomGenerator &random, const QString &path)
{
    PrjMappingC result = mapping(path, randomText(random), randomText(random));
    for (quint32 i = random.bounded(4); i > 0; --i) {
        PrjMappingTargetC target = randomTarget(random, int(random.bounded(40)));
        if (i > 1 && target.isNotFoundTarget()) // is the last one if there is one
            target.setTargetPath("cat/x.prj");
        result.addTarget(target);
    }
    if (random.bounded(3) == 0)
        result.setMappingState(PRJMAPPING::MappingState::fromInt(int(random.bounded(0x1000))));
    return result;
}

inline ReleaseMappingC randomRelease(QRandomGenerator &random, const QString &sourceDate)
{
    ReleaseMappingC release;
    release.setSourceDate(sourceDate);
    release.setTargetDate(randomText(random));
    for (quint32 i = random.bounded(6); i > 0; --i)
        release.addMapping(
            randomMapping(random, "cat/" + QString::number(random.bounded(9)) + ".prj"));
    return release;
}

} // namespace RecordSamples
