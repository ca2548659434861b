#pragma once

#include "SessionFixture.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/file/GuardedSave.h>

#include <mapping/data/ReleaseMappingHandler.h>

#include <QDir>
#include <QTest>

#include <memory>

/// A mapping file of the sample release, and a document to change and save it.
class SaveFixture
{
protected:
    static inline const QString Date = QStringLiteral("2022-01-01");

    static ProjectId firstProject()
    {
        return {QStringLiteral("cat/a.prj"), SessionFixture::Version, QStringLiteral("t1")};
    }

    static ReleaseMappingC changedRelease()
    {
        ReleaseMappingC release = SessionFixture::sampleRelease();
        release.addMapping(SessionFixture::withState(release.mappingAt(0), {1}, 2));
        return release;
    }

    /// As the document does it.
    static bool commitTo(const QString &copy)
    {
        return ReleaseMappingHandler(changedRelease(), QString(), copy).commitModifications();
    }

    void setUp()
    {
        m_files = std::make_unique<SessionFixture>();
        m_document = std::make_unique<MappingDocument>();
        m_file = m_files->write();
    }

    void clear()
    {
        m_document.reset();
        m_files.reset();
    }

    void openAndChange()
    {
        QCOMPARE(m_document->open({m_file, Date, {}, {}, {}}), MappingDocument::OpenResult::Opened);
        m_document->updateMapping(
            SessionFixture::withState(m_document->mapping(firstProject()), {1, 2}, 2));
        m_document->finishStep();
    }

    /// Saves the sample release, one line confirmed, by a function of the test's own.
    [[nodiscard]] SaveOutcome saveWith(const GuardedSave::Commit &commit,
                                       const SaveOptions &options = {})
    {
        const ReleaseMappingC release = changedRelease();
        GuardedSave guard(m_file, {FileState::of(m_file), SessionFixture::sampleRelease()});
        return guard.run(release, commit, options);
    }

    [[nodiscard]] QStringList names() const
    {
        return QDir(m_files->path(QString())).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    std::unique_ptr<SessionFixture> m_files;
    std::unique_ptr<MappingDocument> m_document;
    QString m_file;
};
