#include "RecoveryVictim.h"

#include "SessionFixture.h"

#include <geomcore/binding/VarsetConditionC.h>
#include <workbench/session/document/MappingDocument.h>

#include <QCoreApplication>

#include <cstdio>
#include <unistd.h>

namespace {

/// What the program does that is killed then.
class Victim
{
public:
    explicit Victim(const QString &file)
        : m_file(file)
    {
        m_document.open({file, {}, {}, {}, {}});
    }

    bool run(const QString &deed)
    {
        if (deed == u"confirm")
            confirm({1, 2, 3});
        else if (deed == u"more")
            confirm({5});
        else if (deed == u"undo")
            m_document.undo();
        else if (deed == u"redo")
            m_document.redo();
        else if (deed == u"autosave")
            m_document.autosave();
        else if (deed == u"save")
            return m_document.save().result == SaveResult::Saved;
        else if (deed == u"close")
            m_document.close();
        else if (deed == u"targets")
            changeTargets();
        else if (deed == u"replace")
            replace();
        else if (deed == u"new")
            m_document.openNew(SessionFixture::sampleRelease(QStringLiteral("2024-01-01")), m_file);
        else if (deed == u"turn")
            changeWithoutEnd();
        else
            return false;
        return true;
    }

private:
    void confirm(const QList<int> &lines)
    {
        m_document.updateMapping(
            SessionFixture::withState(m_document.mapping(projectId("cat/a.prj")), lines, 2));
        QCoreApplication::processEvents();
    }

    void changeTargets()
    {
        PrjMappingC mapping = m_document.mapping(projectId("cat/screws/b.prj"));
        PrjMappingTargetC target;
        target.setTargetPath(QStringLiteral("new/ü.prj"));
        target.setValid(true);
        target.addCondition(VarsetConditionC::fromText(QStringLiteral("A.EQ.'x'")));
        target.addLineId(4, 7, PRJMAPPING::Verified, QStringLiteral("{L=1} -> 2"));
        mapping.insertTarget(0, target);
        m_document.updateMapping(mapping);
        QCoreApplication::processEvents();
    }

    void replace()
    {
        ReleaseMappingC release = m_document.release();
        release.clearMappings();
        release.setTargetDate(QStringLiteral("2027-01-01"));
        release.addMapping(SessionFixture::plainMapping(QStringLiteral("cat/x.prj"), 7, 1));
        m_document.replaceRelease(release, QStringLiteral("Neu"));
    }

    /// A long action in one turn of the event loop, which does not come round.
    void changeWithoutEnd()
    {
        for (int round = 0; round < 60; ++round) {
            for (int line = 1; line <= 10; ++line)
                m_document.updateMapping(SessionFixture::withState(
                    m_document.mapping(projectId("cat/a.prj")), {line}, round % 2 == 0 ? 2 : 1));
        }
    }

    const QString m_file;
    MappingDocument m_document;
};

} // namespace

int runVictim(const QStringList &arguments)
{
    Victim victim(arguments.value(2));
    for (const QString &deed : arguments.mid(3)) {
        if (!victim.run(deed))
            return 1;
    }
    std::puts("ready");
    std::fflush(stdout);
    while (true)
        ::pause();
}
