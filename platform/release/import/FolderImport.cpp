#include "FolderImport.h"

#include "TableSource.h"

#include <release/text/releaseText.h>

#include <QDir>
#include <QDirIterator>
#include <QSet>

#include <algorithm>

namespace VelkRelease {

namespace {

QString withoutEnding(const QString &table)
{
    return table.chopped(QFileInfo(table).suffix().size() + 1);
}

bool isTable(const QFileInfo &file)
{
    return file.suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0 ||
           TableSource::of(file.fileName());
}

} // namespace

FolderImport::FolderImport(const QString &from, const ImportOptions &options,
                           const Listener &listener)
    : m_from(from)
    , m_options(options)
    , m_listener(listener)
{
}

bool FolderImport::areNested(const QString &a, const QString &b)
{
    return (a + u'/').startsWith(b + u'/') || (b + u'/').startsWith(a + u'/');
}

FolderImport::Outcome FolderImport::run()
{
    const QStringList tables = findTables();
    if (tables.isEmpty() && m_outcome == Outcome::Done)
        return Outcome::Empty;
    int done = 0;
    for (const QString &table : tables) {
        if (m_listener.progress && !m_listener.progress(done++, int(tables.size())))
            return Outcome::Cancelled;
        if (!importTable(table))
            return Outcome::Unwritable;
    }
    findLeftOvers(tables);
    return m_outcome;
}

QStringList FolderImport::findTables()
{
    const QDir from(m_from);
    QStringList tables;
    QDirIterator entries(m_from, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        if (entry.isDir() && !entry.isReadable())
            tellError(entry.filePath() + QStringLiteral(": ") +
                      releaseText("das Verzeichnis ist nicht lesbar"));
        else if (entry.isFile() && isTable(entry))
            tables.append(from.relativeFilePath(entry.filePath()));
    }
    std::sort(tables.begin(), tables.end());
    const auto sameTable = [this, &from](const QString &a, const QString &b) {
        if (withoutEnding(a) != withoutEnding(b))
            return false;
        tellError(from.filePath(b) + QStringLiteral(": ") +
                  releaseText("ergäbe dieselbe Tabelle wie %1; benennen Sie eine davon um").arg(a));
        ++m_counts.failed;
        return true;
    };
    tables.erase(std::unique(tables.begin(), tables.end(), sameTable), tables.end());
    return tables;
}

/// False if it cannot be written.
bool FolderImport::importTable(const QString &table)
{
    const QString name = withoutEnding(table);
    TableImport import(QDir(m_from).filePath(table), QDir(m_options.root).filePath(name),
                       m_options);
    const bool readable = import.prepare();
    const bool written = !readable || import.write();
    if (m_listener.error) {
        for (const VKTab::TableError &error : import.errors())
            m_listener.error(error.toString());
    }
    if (!readable) {
        ++m_counts.failed;
        m_outcome = Outcome::Unreadable;
    } else if (written) {
        int *const counts[] = {&m_counts.created, &m_counts.changed, &m_counts.unchanged};
        ++*counts[int(import.state())];
        m_counts.lines += import.lineCount();
        if (m_listener.table)
            m_listener.table(name, import);
    }
    return written;
}

void FolderImport::findLeftOvers(const QStringList &tables)
{
    const QDir into(m_options.root);
    QSet<QString> expected;
    for (const QString &table : tables)
        expected.insert(withoutEnding(table) + QStringLiteral(".prj"));
    QDirIterator entries(into.path(), {QStringLiteral("*.prj")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString name = into.relativeFilePath(entries.next());
        if (!expected.contains(name))
            m_leftOvers.append(name);
    }
    std::sort(m_leftOvers.begin(), m_leftOvers.end());
}

void FolderImport::tellError(const QString &text)
{
    m_outcome = Outcome::Unreadable;
    if (m_listener.error)
        m_listener.error(text);
}

} // namespace VelkRelease
