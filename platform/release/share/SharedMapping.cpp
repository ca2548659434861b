#include "SharedMapping.h"

#include "SharedHistory.h"

#include <core/files/DurableFile.h>
#include <core/files/EditLock.h>
#include <geomcore/records/sameTargetHead.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace VelkRelease {

namespace {

QByteArray jsonOf(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

ShareAnswer parsed(const QString &name, const QByteArray &bytes, MappingFile &file)
{
    QString error;
    if (file.parse(bytes, QString(), &error))
        return {};
    return {ShareAnswer::Unreadable, name + QStringLiteral(": ") + error};
}

bool isWithin(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder + u'/');
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

Participant participantOf(const QJsonObject &note)
{
    Participant participant;
    participant.user = note["user"].toString();
    participant.host = note["host"].toString();
    participant.isOpen = note["open"].toBool();
    participant.seen = QDateTime::fromString(note["seen"].toString(), Qt::ISODate);
    participant.revision = note["revision"].toString();
    const QJsonArray folders = note["folders"].toArray();
    for (const auto &folder : folders)
        participant.folders += folder.toString();
    return participant;
}

QString nameOf(const Participant &participant)
{
    return participant.user + u'@' + participant.host;
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
    m_place.reset();
    m_revision.clear();
    QFile file(linkFile(m_file));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject link = QJsonDocument::fromJson(file.readAll()).object();
    if (const QString shared = link["shared"].toString(); !shared.isEmpty()) {
        m_place = SharedPlace::at(shared);
        m_revision = link["revision"].toString();
    }
}

/// The base first: with a newer base and the former revision the next update merges what is merged
/// already. The other way round its decisions would look as if they were taken back here.
ShareAnswer SharedMapping::store(const QByteArray &base, const QString &revision)
{
    QString error;
    if (!DurableFile::write(baseFile(m_file), base, &error) ||
        !DurableFile::write(linkFile(m_file),
                            jsonOf({{"shared", m_place->file()}, {"revision", revision}}), &error))
        return {ShareAnswer::NotWritable, error};
    m_revision = revision;
    return {};
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
    m_place = std::move(place);
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
    if (ShareAnswer answer = m_place->fetch(there); !answer.isDone())
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
    if (ShareAnswer answer = m_place->fetch(there); !answer.isDone())
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
    SharedHistory::publish(*m_place, m_file, noteName());
    QString revision;
    if (ShareAnswer answer = m_place->publish(own, m_revision, options.message, revision);
        !answer.isDone())
        return answer;
    return store(own, revision);
}

/// One for each mapping file: a user may have several.
QString SharedMapping::noteName() const
{
    const SessionOwner owner = EditLock::self();
    const QByteArray place =
        QCryptographicHash::hash(m_file.toUtf8(), QCryptographicHash::Sha256).toHex().left(8);
    QString name = owner.user + u'@' + owner.host + u'-' + QString::fromLatin1(place);
    name.replace(u'/', u'_').replace(u'\\', u'_');
    return name;
}

QList<Participant> SharedMapping::participants() const
{
    QList<Participant> all;
    if (!m_place)
        return all;
    const QString own = noteName();
    for (const QByteArray &bytes : m_place->notes()) {
        const QJsonObject note = QJsonDocument::fromJson(bytes).object();
        if (note.isEmpty())
            continue;
        all += participantOf(note);
        all.last().isSelf = note["note"].toString() == own;
    }
    return all;
}

Participant SharedMapping::self() const
{
    const QList<Participant> all = participants();
    const auto found = std::ranges::find_if(all, &Participant::isSelf);
    return found == all.end() ? Participant() : *found;
}

ShareAnswer SharedMapping::writeSelf(const Participant &self)
{
    const SessionOwner owner = EditLock::self();
    return m_place->writeNote(
        noteName() + QStringLiteral(".json"),
        jsonOf({{"note", noteName()},
                {"user", owner.user},
                {"host", owner.host},
                {"open", self.isOpen},
                {"seen", QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
                {"revision", m_revision},
                {"folders", QJsonArray::fromStringList(self.folders)}}));
}

ShareAnswer SharedMapping::announce(bool open)
{
    if (!m_place)
        return {ShareAnswer::NotLinked, m_file};
    Participant note = self();
    note.isOpen = open;
    return writeSelf(note);
}

ShareAnswer SharedMapping::takeFolders(const QStringList &folders)
{
    if (!m_place)
        return {ShareAnswer::NotLinked, m_file};
    SharedCopy there; // brings the notes of a repository
    if (ShareAnswer answer = m_place->fetch(there); !answer.isDone())
        return answer;
    for (const Participant &other : participants()) {
        if (other.isSelf)
            continue;
        for (const QString &taken : other.folders) {
            for (const QString &wanted : folders) {
                if (isWithin(wanted, taken) || isWithin(taken, wanted))
                    return {ShareAnswer::TakenByOthers,
                            nameOf(other) + QStringLiteral(": ") + taken};
            }
        }
    }
    Participant note = self();
    note.folders = folders;
    return writeSelf(note);
}

QStringList SharedMapping::ownFolders() const
{
    return self().folders;
}

QStringList SharedMapping::inOthersFolders(const QStringList &sourcePaths) const
{
    QStringList found;
    for (const Participant &other : participants()) {
        for (const QString &folder : other.folders) {
            const bool touched =
                !other.isSelf && std::ranges::any_of(sourcePaths, [&](const QString &path) {
                    return isWithin(path, folder);
                });
            if (touched)
                found += nameOf(other) + QStringLiteral(": ") + folder;
        }
    }
    return found;
}

std::function<bool(const QString &)> SharedMapping::isInOthersFolder() const
{
    QStringList folders;
    for (const Participant &other : participants()) {
        if (!other.isSelf)
            folders += other.folders;
    }
    return [folders](const QString &path) {
        return std::ranges::any_of(folders,
                                   [&](const QString &folder) { return isWithin(path, folder); });
    };
}

} // namespace VelkRelease
