#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <geomcore/records/ReleaseMappingC.h>

#include <QList>
#include <QString>
#include <QTemporaryDir>

/// A line of a target, as tests write it down.
struct SampleLine
{
    int source = 0;
    int target = -1;
    int state = 0;
    QString extended;
    bool conflict = false;
};

/// A folder with mapping files.
class SessionFixture
{
public:
    static inline const QString Version = QStringLiteral("v260131120000");

    SessionFixture();

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    /// "release.json", with one release of the given projects, or of sampleRelease().
    QString write(const ReleaseMappingC &release) const;
    QString write() const { return write(sampleRelease()); }
    /// Adds other releases to a mapping file.
    void addRelease(const QString &file, const ReleaseMappingC &release) const;
    [[nodiscard]] static QByteArray content(const QString &file);
    static void setContent(const QString &file, const QByteArray &bytes);

    /// "cat/a.prj", "cat/screws/b.prj" and "cat/screws/c.prj", each with ten lines in state 0.
    [[nodiscard]] static ReleaseMappingC sampleRelease(const QString &sourceDate);
    [[nodiscard]] static ReleaseMappingC sampleRelease()
    {
        return sampleRelease(QStringLiteral("2022-01-01"));
    }
    [[nodiscard]] static PrjMappingC mapping(const QString &path, const QList<SampleLine> &lines,
                                             const QString &target = QStringLiteral("new/t.prj"));
    /// With lines from 1 on, each to the line of its number.
    [[nodiscard]] static PrjMappingC plainMapping(const QString &path, int lines, int state = 0);
    /// A copy in which lines of the first target have another state.
    [[nodiscard]] static PrjMappingC withState(const PrjMappingC &mapping, const QList<int> &lines,
                                               int state);
    /// The bytes by which releases are compared.
    [[nodiscard]] static QByteArray bytes(const ReleaseMappingC &release);
    [[nodiscard]] static QByteArray bytes(const PrjMappingC &mapping);

private:
    QTemporaryDir m_folder;
};

/// Identity of a project of these releases.
inline ProjectId projectId(const QString &path)
{
    return {path, SessionFixture::Version, QStringLiteral("t1")};
}
