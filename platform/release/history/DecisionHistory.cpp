#include "DecisionHistory.h"

#include "DecisionReader.h"

#include <core/files/DurableFile.h>
#include <geomcore/csv/csvCell.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace VelkRelease {

namespace {

struct DecidedLine
{
    QString release;
    QString path;
    QString version;
    int line;

    friend bool operator==(const DecidedLine &, const DecidedLine &) = default;
};

size_t qHash(const DecidedLine &key, size_t seed = 0)
{
    return qHashMulti(seed, key.release, key.path, key.version, key.line);
}

QString stateOf(const DecisionHistory::Entry &entry)
{
    constexpr std::array names{"toCheck", "mapped", "verified"};
    const bool isKnown = entry.state >= 0 && entry.state < int(names.size());
    if (entry.line < 0 && entry.state == 0)
        return QStringLiteral("notFound");
    return isKnown ? QString::fromLatin1(names[size_t(entry.state)]) : QString::number(entry.state);
}

/// Reasons go to the decision of the same author that they were given for.
QList<DecisionHistory::Decision> withReasons(const QList<DecisionHistory::Decision> &all)
{
    QList<DecisionHistory::Decision> result;
    QHash<DecidedLine, qsizetype> last;
    for (const DecisionHistory::Decision &decision : all) {
        const DecidedLine key{decision.release, decision.path, decision.version, decision.line};
        const qsizetype place = last.value(key, -1);
        if (decision.origin == u"reason" && place >= 0 && result[place].author == decision.author) {
            result[place].reason = decision.reason;
            continue;
        }
        last.insert(key, result.size());
        result.append(decision);
    }
    return result;
}

bool readAll(const QStringList &files, HistorySessions &sessions, QString *error)
{
    return std::ranges::all_of(files,
                               [&](const QString &file) { return sessions.add(file, error); });
}

} // namespace

QString DecisionHistory::adoptedFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".verlauf");
}

QString DecisionHistory::nameAside(const QString &mappingFile)
{
    return DurableFile::stampedName(mappingFile + QStringLiteral(".journal"),
                                    QStringLiteral("alt"));
}

QStringList DecisionHistory::files(const QString &mappingFile)
{
    const QFileInfo info(mappingFile);
    const QString journal = info.fileName() + QStringLiteral(".journal");
    QStringList files;
    // Their times are part of their names.
    const QStringList names = info.dir().entryList(QDir::Files | QDir::System, QDir::Name);
    for (const QString &name : names) {
        if (name.startsWith(journal + QStringLiteral(".alt-")))
            files.append(info.dir().filePath(name));
    }
    for (const QString &file : {adoptedFile(mappingFile), info.dir().filePath(journal)}) {
        const QFileInfo other(file);
        if (other.exists() || other.isSymLink())
            files.append(file);
    }
    return files;
}

bool DecisionHistory::read(const QString &mappingFile, QString *error)
{
    m_decisions.clear();
    HistorySessions sessions;
    if (!readAll(files(mappingFile), sessions, error))
        return false;
    m_damaged = sessions.damagedRows();
    QList<Decision> all;
    for (const HistorySessions::Session &session : sessions.sessions())
        all += DecisionReader::read(session);
    std::ranges::stable_sort(all, {}, &Decision::time);
    m_decisions = withReasons(all);
    return true;
}

QList<DecisionHistory::Decision> DecisionHistory::of(const QString &path, int line) const
{
    QList<Decision> result;
    std::ranges::copy_if(m_decisions, std::back_inserter(result), [&](const Decision &decision) {
        return decision.path == path && (line < 0 || decision.line == line);
    });
    return result;
}

bool DecisionHistory::adopt(const QString &from, const QString &into, QString *error)
{
    return adoptFiles(files(from), into, error);
}

QByteArray DecisionHistory::ownRows(const QString &mappingFile, QString *error)
{
    QStringList own = files(mappingFile);
    own.removeAll(adoptedFile(mappingFile));
    HistorySessions sessions;
    return readAll(own, sessions, error) ? sessions.rowsBeyond({}) : QByteArray();
}

bool DecisionHistory::adoptFiles(const QStringList &from, const QString &into, QString *error)
{
    HistorySessions theirs;
    HistorySessions ours;
    if (!readAll(from, theirs, error) || !readAll(files(into), ours, error))
        return false;
    const QByteArray rows = theirs.rowsBeyond(ours);
    if (rows.isEmpty())
        return true;
    QFile file(adoptedFile(into));
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append)) {
        *error = file.fileName() + QStringLiteral(": ") + file.errorString();
        return false;
    }
    // What a killed program left of a row must not take the next one along.
    const bool isCut = file.size() > 0 && file.seek(file.size() - 1) && file.read(1) != "\n";
    const QByteArray bytes = (isCut ? QByteArray("\n") : QByteArray()) + rows;
    if (file.write(bytes) == bytes.size() && file.flush())
        return true;
    *error = file.fileName() + QStringLiteral(": ") + file.errorString();
    return false;
}

QString DecisionHistory::text(const QList<Entry> &entries)
{
    QStringList texts;
    for (const Entry &entry : entries) {
        texts.append(entry.line < 0
                         ? QStringLiteral("-")
                         : entry.target + u':' + QString::number(entry.line) +
                               (entry.extended.isEmpty() ? QString() : u' ' + entry.extended));
    }
    return texts.join(QStringLiteral("; "));
}

QByteArray DecisionHistory::csvHeader()
{
    return "time,author,host,release,project,version,line,former,former_state,next,next_state,"
           "action,origin,reason,saved\n";
}

QByteArray DecisionHistory::csvRow(const Decision &decision)
{
    const auto states = [](const QList<Entry> &entries) {
        QStringList names;
        for (const Entry &entry : entries)
            names.append(stateOf(entry));
        return names.join(QStringLiteral("; "));
    };
    QByteArrayList cells;
    for (const QString &cell :
         {decision.time.toString(Qt::ISODateWithMs), decision.author, decision.host,
          decision.release, decision.path, decision.version, QString::number(decision.line),
          text(decision.former), states(decision.former), text(decision.next),
          states(decision.next), decision.action, decision.origin, decision.reason})
        cells.append(csvCell(cell));
    cells.append(decision.isSaved ? "1" : "0");
    return cells.join(',') + '\n';
}

} // namespace VelkRelease
