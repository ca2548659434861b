#include "SharedMapping.h"

#include "FolderPattern.h"
#include "SharedHistory.h"

#include <core/files/DurableFile.h>
#include <geomcore/records/sameTargetHead.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace VelkRelease {

namespace {

ShareAnswer parsed(const QString &name, const QByteArray &bytes, MappingFile &file)
{
    QString error;
    if (file.parse(bytes, QString(), &error))
        return {};
    return {ShareAnswer::Unreadable, name + QStringLiteral(": ") + error};
}

QStringList linesInConflict(const MappingFile &file)
{
    QStringList projects;
    for (const ReleaseMappingC &release : file.releases()) {
        for (int i = 0; i < release.countMappings(); ++i) {
            if (release.mappingAt(i).getContainsConflicts())
                projects += release.mappingAt(i).getSourcePath();
        }
    }
    return projects;
}

/// Source paths whose mappings are not the same in both files.
QStringList changedProjects(const MappingFile &before, const MappingFile &after)
{
    QStringList paths;
    for (const ReleaseMappingC &release : after.releases()) {
        const ReleaseMappingC former = before.release(release.getSourceDate());
        for (int i = 0; i < release.countMappings(); ++i) {
            const PrjMappingC &mapping = release.mappingAt(i);
            const PrjMappingC other = former.findMapping(
                mapping.getSourcePath(), mapping.getSourceVersion(), mapping.getTabVersion());
            if (!other.isValid() || !sameMapping(mapping, other))
                paths += mapping.getSourcePath();
        }
        for (int i = 0; i < former.countMappings(); ++i) {
            const PrjMappingC &mapping = former.mappingAt(i);
            if (!release
                     .findMapping(mapping.getSourcePath(), mapping.getSourceVersion(),
                                  mapping.getTabVersion())
                     .isValid())
                paths += mapping.getSourcePath();
        }
    }
    return paths;
}

} // namespace

SharedMapping::SharedMapping(const QString &mappingFile)
    : m_file(QFileInfo(mappingFile).absoluteFilePath())
{
    load();
}

SharedMapping::~SharedMapping() = default;

QString SharedMapping::linkFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".share");
}

QString SharedMapping::baseFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".base");
}

QString SharedMapping::sharedFile() const
{
    return m_place ? m_place->file() : QString();
}

void SharedMapping::load()
{
    m_participants.reset();
    m_place.reset();
    m_revision.clear();
    m_isPublishing = false;
    QFile file(linkFile(m_file));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject link = QJsonDocument::fromJson(file.readAll()).object();
    if (const QString shared = link["shared"].toString(); !shared.isEmpty()) {
        m_place = SharedPlace::at(shared);
        m_participants = std::make_unique<Participants>(*m_place, m_file);
        m_revision = link["revision"].toString();
        m_isPublishing = link["publishing"].toBool();
    }
}

/// The base first: with a newer base and the former revision the next update merges what is merged
/// already. The other way round its decisions would look as if they were taken back here.
ShareAnswer SharedMapping::store(const QByteArray &base, const QString &revision)
{
    QString error;
    if (!DurableFile::write(baseFile(m_file), base, &error))
        return {ShareAnswer::NotWritable, error};
    const QString former = std::exchange(m_revision, revision);
    ShareAnswer answer = writeLink(false);
    if (!answer.isDone())
        m_revision = former;
    return answer;
}

ShareAnswer SharedMapping::writeLink(bool isPublishing)
{
    QJsonObject link{{"shared", m_place->file()}, {"revision", m_revision}};
    if (isPublishing)
        link["publishing"] = true;
    QString error;
    if (!DurableFile::write(linkFile(m_file), QJsonDocument(link).toJson(), &error))
        return {ShareAnswer::NotWritable, error};
    m_isPublishing = isPublishing;
    return {};
}

/// The shared copy, with what a publishing that was broken off has come to.
ShareAnswer SharedMapping::fetch(SharedCopy &copy)
{
    ShareAnswer answer = m_place->fetch(copy);
    noteRepairs();
    if (!answer.isDone() || !m_isPublishing)
        return answer;
    QByteArray own;
    if (copy.exists && readOwn(own).isDone() && own == copy.bytes) {
        m_repairs += ShareRepair{ShareRepair::Published, {}};
        return store(own, copy.revision);
    }
    m_repairs += ShareRepair{ShareRepair::BrokenOff, {}};
    return writeLink(false);
}

/// A copy of what stands in the mapping file already is of no use.
void SharedMapping::noteRepairs()
{
    for (const ShareRepair &repair : m_place->takeRepairs()) {
        if (repair.kind == ShareRepair::TakenBack &&
            FileState::of(repair.kept).sameContent(FileState::of(m_file)) &&
            QFile::remove(repair.kept))
            continue;
        m_repairs += repair;
    }
}

ShareAnswer SharedMapping::readOwn(QByteArray &bytes) const
{
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly))
        return {ShareAnswer::Unreadable, m_file + QStringLiteral(": ") + file.errorString()};
    bytes = file.readAll();
    return {};
}

ShareAnswer SharedMapping::link(const QString &sharedFile)
{
    auto place = SharedPlace::at(sharedFile);
    SharedCopy there;
    if (ShareAnswer answer = place->fetch(there); !answer.isDone())
        return answer;
    const bool isHere = QFileInfo::exists(m_file);
    QByteArray own;
    if (isHere) {
        if (ShareAnswer answer = readOwn(own); !answer.isDone())
            return answer;
    }
    MappingFile file;
    const QByteArray &content = isHere ? own : there.bytes;
    if (!isHere && !there.exists)
        return {ShareAnswer::NotReachable, place->file()};
    if (ShareAnswer answer = parsed(isHere ? m_file : place->file(), content, file);
        !answer.isDone())
        return answer;
    if (isHere && there.exists && own != there.bytes)
        return {ShareAnswer::BothExist, place->file()};
    if (!there.exists) {
        ShareAnswer answer =
            place->publish(own, QString(), QStringLiteral("Begin to share"), there.revision);
        if (!answer.isDone())
            return answer;
    }
    QString error;
    if (!isHere && !DurableFile::write(m_file, there.bytes, &error))
        return {ShareAnswer::NotWritable, error};
    m_participants.reset();
    m_place = std::move(place);
    m_participants = std::make_unique<Participants>(*m_place, m_file);
    noteRepairs();
    return store(content, there.revision);
}

void SharedMapping::unlink()
{
    QFile::remove(linkFile(m_file));
    QFile::remove(baseFile(m_file));
    load();
}

ShareAnswer SharedMapping::status(Status &status)
{
    if (!m_place)
        return {ShareAnswer::NotLinked, m_file};
    SharedCopy there;
    if (ShareAnswer answer = fetch(there); !answer.isDone())
        return answer;
    if (!there.exists)
        return {ShareAnswer::NotReachable, m_place->file()};
    status.newest = there.revision;
    status.hasNews = there.revision != m_revision;
    status.hasOwn = !FileState::of(m_file).sameContent(FileState::of(baseFile(m_file)));
    return {};
}

ShareAnswer SharedMapping::update(MergedFile &merged, const MergeOptions &options)
{
    merged = MergedFile();
    if (!m_place)
        return {ShareAnswer::NotLinked, m_file};
    SharedCopy there;
    if (ShareAnswer answer = fetch(there); !answer.isDone())
        return answer;
    if (!there.exists)
        return {ShareAnswer::NotReachable, m_place->file()};
    if (there.revision == m_revision)
        return {};
    MappingFile base;
    MappingFile ours;
    MappingFile theirs;
    QString error;
    if (!base.read(baseFile(m_file), QString(), &error) || !ours.read(m_file, QString(), &error))
        return {ShareAnswer::Unreadable, error};
    if (ShareAnswer answer = parsed(m_place->file(), there.bytes, theirs); !answer.isDone())
        return answer;
    MergedFile result = mergeFiles(base, ours, theirs, options);
    if (!result.file.write(m_file, &error))
        return {ShareAnswer::NotWritable, error};
    merged = std::move(result);
    SharedHistory::take(*m_place, m_file);
    return store(there.bytes, there.revision);
}

ShareAnswer SharedMapping::mayPublish(const QByteArray &own, const PublishOptions &options) const
{
    MappingFile ours;
    if (ShareAnswer answer = parsed(m_file, own, ours); !answer.isDone())
        return answer;
    if (const QStringList projects = linesInConflict(ours); !projects.isEmpty())
        return {ShareAnswer::InConflict, projects.join(QStringLiteral(", "))};
    if (options.intoOthersFolders)
        return {};
    MappingFile base;
    QString error;
    if (!base.read(baseFile(m_file), QString(), &error))
        return {ShareAnswer::Unreadable, error};
    const QStringList foreign = inOthersFolders(changedProjects(base, ours));
    return foreign.isEmpty()
               ? ShareAnswer()
               : ShareAnswer{ShareAnswer::InOthersFolders, foreign.join(QStringLiteral(", "))};
}

ShareAnswer SharedMapping::publish(const PublishOptions &options)
{
    if (!m_place)
        return {ShareAnswer::NotLinked, m_file};
    QByteArray own;
    if (ShareAnswer answer = readOwn(own); !answer.isDone())
        return answer;
    // What was published since comes before all else: it may settle the rest.
    Status now;
    if (ShareAnswer answer = status(now); !answer.isDone())
        return answer;
    if (now.hasNews)
        return {ShareAnswer::NewerThere, {}};
    if (!now.hasOwn)
        return {};
    if (ShareAnswer answer = mayPublish(own, options); !answer.isDone())
        return answer;
    if (ShareAnswer answer = writeLink(true); !answer.isDone())
        return answer;
    SharedHistory::publish(*m_place, m_file, m_participants->noteName());
    QString revision;
    ShareAnswer answer = m_place->publish(own, m_revision, options.message, revision);
    noteRepairs();
    if (answer.isDone())
        return store(own, revision);
    // Unless nobody knows what became of it.
    if (answer.kind != ShareAnswer::NotReachable)
        (void)writeLink(false);
    return answer;
}

QList<Participant> SharedMapping::participants() const
{
    return m_place ? m_participants->all() : QList<Participant>();
}

ShareAnswer SharedMapping::announce(bool open)
{
    if (!m_place)
        return {ShareAnswer::NotLinked, m_file};
    Participant note = m_participants->self();
    note.isOpen = open;
    return m_participants->write(note, m_revision);
}

ShareAnswer SharedMapping::takeFolders(const QStringList &folders)
{
    if (!m_place)
        return {ShareAnswer::NotLinked, m_file};
    SharedCopy there; // brings the notes of a repository
    if (ShareAnswer answer = fetch(there); !answer.isDone())
        return answer;
    QStringList wanted;
    for (const QString &folder : folders) {
        if (const QString cleaned = FolderPattern::cleaned(folder); !cleaned.isEmpty())
            wanted += cleaned;
    }
    if (const QString taken = m_participants->taken(wanted); !taken.isEmpty())
        return {ShareAnswer::TakenByOthers, taken};
    Participant note = m_participants->self();
    note.folders = wanted;
    return m_participants->write(note, m_revision);
}

QStringList SharedMapping::ownFolders() const
{
    return m_place ? m_participants->self().folders : QStringList();
}

QStringList SharedMapping::inOthersFolders(const QStringList &sourcePaths) const
{
    return m_place ? m_participants->inOthersFolders(sourcePaths) : QStringList();
}

std::function<bool(const QString &)> SharedMapping::isInOthersFolder() const
{
    if (!m_place)
        return [](const QString &) {
            return false;
        };
    return m_participants->isInOthersFolder();
}

} // namespace VelkRelease
