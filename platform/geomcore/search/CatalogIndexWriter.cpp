#include "CatalogIndexWriter.h"

#include "SearchText.h"

#include <QDir>

namespace {

QString notNull(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

/// A file beside the project is kept by its name.
QString storedFile(const QString &file, const QString &directory)
{
    const QString beside = directory + QDir::separator();
    const bool isBeside =
        file.startsWith(beside) && !file.mid(beside.size()).contains(QDir::separator());
    return notNull(isBeside ? file.mid(beside.size()) : file);
}

QString joined(const QSet<QString> &tokens)
{
    QString text;
    for (const QString &token : tokens) {
        text += token;
        text += u' ';
    }
    return notNull(text);
}

} // namespace

CatalogIndexWriter::CatalogIndexWriter(CatalogIndexFile &file)
    : m_file(file)
    , m_removeProject(file.prepared(QStringLiteral("DELETE FROM projects WHERE id = ?")))
    , m_removeColumns(file.prepared(QStringLiteral("DELETE FROM columns WHERE project = ?")))
    , m_removeWords(file.prepared(QStringLiteral("DELETE FROM words WHERE rowid = ?")))
    , m_project(file.prepared(QStringLiteral(
          "INSERT INTO projects VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")))
    , m_column(file.prepared(QStringLiteral("INSERT INTO columns VALUES(?, ?, ?, ?, ?, ?, ?, ?)")))
    , m_words(
          file.prepared(QStringLiteral("INSERT INTO words(rowid, head, lines) VALUES(?, ?, ?)")))
{
}

bool CatalogIndexWriter::remove(qint64 project)
{
    for (QSqlQuery *query : {&m_removeWords, &m_removeColumns, &m_removeProject}) {
        query->bindValue(0, project);
        if (!m_file.run(*query))
            return false;
    }
    return true;
}

bool CatalogIndexWriter::enter(const IndexedProject &project, qint64 known,
                               const QList<qint64> &chain)
{
    qint64 id = known; // stays, and with it the project's place among the hits
    return (known == 0 || remove(known)) && enterProject(project, chain.first(), id) &&
           enterColumns(project, id) && enterWords(project, chain, id);
}

bool CatalogIndexWriter::enterProject(const IndexedProject &project, qint64 directory, qint64 &id)
{
    const IndexedFiles &files = project.files;
    const QString &native = files.directory;
    int at = 0;
    const auto bind = [this, &at](const QVariant &value) {
        m_project.bindValue(at++, value);
    };
    bind(id == 0 ? QVariant() : QVariant(id));
    bind(directory);
    bind(project.path);
    bind(project.title);
    bind(notNull(project.normNumber));
    bind(project.lineCount);
    bind(notNull(project.head));
    bind(files.project.time);
    bind(files.project.size);
    bind(storedFile(files.descriptor, native));
    bind(files.descriptorStamp.time);
    bind(files.descriptorStamp.size);
    bind(storedFile(files.lines, native));
    bind(files.linesStamp.time);
    bind(files.linesStamp.size);
    if (!m_file.run(m_project))
        return false;
    id = m_project.lastInsertId().toLongLong();
    return true;
}

bool CatalogIndexWriter::enterColumns(const IndexedProject &project, qint64 id)
{
    for (const IndexedColumn &column : project.columns) {
        int at = 0;
        const auto bind = [this, &at](const QVariant &value) {
            m_column.bindValue(at++, value);
        };
        bind(id);
        bind(column.name);
        bind(notNull(column.unit));
        bind(column.isRange ? 1 : 0);
        bind(QString(QLatin1Char(column.decimalChar)));
        bind(column.hasNumbers ? QVariant(column.least) : QVariant());
        bind(column.hasNumbers ? QVariant(column.greatest) : QVariant());
        bind(column.values);
        if (!m_file.run(m_column))
            return false;
    }
    return true;
}

bool CatalogIndexWriter::enterWords(const IndexedProject &project, const QList<qint64> &chain,
                                    qint64 id)
{
    QString head = joined(project.headTokens);
    for (const qint64 directory : chain)
        head += SearchText::directoryToken(directory) + u' ';
    m_words.bindValue(0, id);
    m_words.bindValue(1, head);
    m_words.bindValue(2, joined(project.lineTokens));
    return m_file.run(m_words);
}
