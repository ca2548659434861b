#include "ImportCommand.h"

#include "CommandLine.h"
#include <release/assign/ReleaseDate.h>
#include <release/import/TableImport.h>
#include <release/import/TableSource.h>
#include <release/import/TypeRecognition.h>

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QSet>
#include <QTextStream>

#include <algorithm>

using namespace VKTab;

namespace velkmap {

namespace {

const QString ImportDescription = QStringLiteral(
    "Makes a catalog of projects and tables from a folder tree of CSV tables, or of files that an "
    "extension reads. "
    "Each NAME.csv becomes NAME.prj, NAME.json (the descriptor) and NAME.csv below CATALOG, at the "
    "same relative path. Column types, value ranges, decimal commas and key columns are recognised "
    "and printed. What is wrong can be corrected in the descriptor: a later import keeps it. It "
    "also keeps the ids of lines whose key is still there.");

/// One run of the command.
class ImportRun
{
public:
    ImportRun(QTextStream &out, QTextStream &err)
        : m_out(out)
        , m_err(err)
    {
    }

    ExitStatus run(const QString &from, const QString &into, VelkRelease::ImportOptions options);

private:
    QStringList findTables(const QDir &from);
    bool importTable(const QString &relative, const QString &csvFile, const QString &target);
    void print(const QString &relative, const VelkRelease::TableImport &table);
    void noteLeftOvers(const QDir &into, const QStringList &tables);
    void printSummary();

    QTextStream &m_out;
    QTextStream &m_err;
    VelkRelease::ImportOptions m_options;
    ExitStatus m_status = ExitStatus::Done;
    int m_new = 0;
    int m_changed = 0;
    int m_unchanged = 0;
    int m_failed = 0;
    qint64 m_lines = 0;
};

QString withoutEnding(const QString &table)
{
    return table.chopped(QFileInfo(table).suffix().size() + 1);
}

ExitStatus ImportRun::run(const QString &from, const QString &into,
                          VelkRelease::ImportOptions options)
{
    m_options = std::move(options);
    const QStringList tables = findTables(QDir(from));
    if (tables.isEmpty() && m_status == ExitStatus::Done) {
        m_err << "velkmap import: there is no CSV file below " << from << '\n';
        return ExitStatus::InputUnreadable;
    }
    for (const QString &table : tables) {
        const QString target = QDir(into).filePath(withoutEnding(table));
        if (!importTable(withoutEnding(table), QDir(from).filePath(table), target))
            return ExitStatus::ResultUnwritable;
    }
    noteLeftOvers(QDir(into), tables);
    printSummary();
    return m_status;
}

bool isTable(const QFileInfo &file)
{
    return file.suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0 ||
           VelkRelease::TableSource::of(file.fileName());
}

QStringList ImportRun::findTables(const QDir &from)
{
    QStringList tables;
    QDirIterator entries(from.path(), QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QFileInfo entry(entries.next());
        if (entry.isDir() && !entry.isReadable()) {
            m_err << entry.filePath() << ": the directory cannot be read\n";
            m_status = ExitStatus::InputUnreadable;
        } else if (entry.isFile() && isTable(entry)) {
            tables.append(from.relativeFilePath(entry.filePath()));
        }
    }
    std::sort(tables.begin(), tables.end());
    const auto sameTable = [this, &from](const QString &a, const QString &b) {
        if (withoutEnding(a) != withoutEnding(b))
            return false;
        m_err << from.filePath(b) << ": would become the same table as " << a << "; rename one\n";
        m_status = ExitStatus::InputUnreadable;
        ++m_failed;
        return true;
    };
    tables.erase(std::unique(tables.begin(), tables.end(), sameTable), tables.end());
    return tables;
}

bool ImportRun::importTable(const QString &relative, const QString &csvFile, const QString &target)
{
    VelkRelease::TableImport table(csvFile, target, m_options);
    const bool readable = table.prepare();
    const bool written = !readable || table.write();
    for (const TableError &error : table.errors())
        m_err << error.toString() << '\n';
    if (!readable) {
        ++m_failed;
        m_status = ExitStatus::InputUnreadable;
    } else if (written) {
        print(relative, table);
    }
    return written;
}

void ImportRun::print(const QString &relative, const VelkRelease::TableImport &table)
{
    static const char *const states[] = {"new", "changed", "unchanged"};
    int *const counts[] = {&m_new, &m_changed, &m_unchanged};
    ++*counts[int(table.state())];
    m_lines += table.lineCount();
    const TableDescriptor &descriptor = table.descriptor();
    m_out << relative << ": " << table.lineCount() << (table.lineCount() == 1 ? " line" : " lines");
    if (!descriptor.primaryKey.isEmpty())
        m_out << ", key " << descriptor.primaryKey.join(QStringLiteral(", "));
    m_out << ", " << states[int(table.state())] << '\n';
    QStringList columns;
    for (const TableField &field : descriptor.fields) {
        if (field.name != descriptor.lineIdField)
            columns.append(field.name + u' ' + VelkRelease::describeField(field));
    }
    m_out << "  " << columns.join(QStringLiteral(", ")) << '\n';
    for (const QString &note : table.notes())
        m_out << "  note: " << note << '\n';
}

void ImportRun::noteLeftOvers(const QDir &into, const QStringList &tables)
{
    QSet<QString> expected;
    for (const QString &table : tables)
        expected.insert(withoutEnding(table) + QStringLiteral(".prj"));
    QStringList left;
    QDirIterator entries(into.path(), {QStringLiteral("*.prj")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString name = into.relativeFilePath(entries.next());
        if (!expected.contains(name))
            left.append(name);
    }
    std::sort(left.begin(), left.end());
    for (const QString &name : std::as_const(left))
        m_out << "note: " << name << " has no CSV file any more and stays as it is\n";
}

void ImportRun::printSummary()
{
    m_out << m_new + m_changed + m_unchanged << " tables with " << m_lines << " lines: " << m_new
          << " new, " << m_changed << " changed, " << m_unchanged << " unchanged";
    if (m_failed > 0)
        m_out << "; " << m_failed << " could not be imported";
    m_out << '\n';
}

bool lieInside(const QString &inner, const QString &outer)
{
    return (inner + u'/').startsWith(outer + u'/');
}

QString absolute(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

/// 0 for something else.
char separatorNamed(const QString &name)
{
    if (name == QLatin1String("comma") || name == QLatin1String(","))
        return ',';
    if (name == QLatin1String("semicolon") || name == QLatin1String(";"))
        return ';';
    return name == QLatin1String("tab") || name == QLatin1String("\t") ? '\t' : '\0';
}

} // namespace

ExitStatus runImport(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    CommandLine line(QStringLiteral("import"), ImportDescription);
    line.addRequired(QStringLiteral("from"), QStringLiteral("CSV_DIR"),
                     QStringLiteral("Folder tree of CSV files."));
    line.addRequired(QStringLiteral("into"), QStringLiteral("ROOT/CATALOG"),
                     QStringLiteral("Folder of the catalog; made if it is missing."));
    line.addOptional(
        QStringLiteral("date"), QStringLiteral("ISO8601"),
        QStringLiteral("Date of projects and tables, UTC unless it has an offset. "
                       "Without it: now, and only for tables that are new or changed."));
    line.addOptional(QStringLiteral("key"), QStringLiteral("COLUMN"),
                     QStringLiteral("Key column of all tables that have it."));
    line.addOptional(QStringLiteral("separator"), QStringLiteral("NAME"),
                     QStringLiteral("What separates the cells: comma, semicolon or tab; recognised "
                                    "without it."));
    line.addOptional(QStringLiteral("encoding"), QStringLiteral("NAME"),
                     QStringLiteral("utf-8, utf-16 or windows-1252; without it UTF-16 by its byte "
                                    "order mark, else UTF-8."));
    if (const auto status = line.parse(arguments, out, err))
        return *status;
    const QString from = absolute(line.value(QStringLiteral("from")));
    const QString into = absolute(line.value(QStringLiteral("into")));
    if (lieInside(into, from) || lieInside(from, into))
        return line.wrongUsage(QStringLiteral("--from and --into lie inside each other"), err);
    VelkRelease::ImportOptions options;
    options.keyColumn = line.value(QStringLiteral("key"));
    options.root = into;
    options.form.encoding = line.value(QStringLiteral("encoding")).toLower();
    if (line.isSet(QStringLiteral("encoding")) &&
        !VelkRelease::SourceText::encodings().contains(options.form.encoding))
        return line.wrongUsage(QStringLiteral("--encoding is none of ") +
                                   VelkRelease::SourceText::encodings().join(QStringLiteral(", ")),
                               err);
    options.form.separator = separatorNamed(line.value(QStringLiteral("separator")));
    if (line.isSet(QStringLiteral("separator")) && !options.form.separator)
        return line.wrongUsage(QStringLiteral("--separator is none of comma, semicolon, tab"), err);
    options.dateIsGiven = line.isSet(QStringLiteral("date"));
    options.date = options.dateIsGiven ? VelkRelease::dateInUtc(line.value(QStringLiteral("date")))
                                       : QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
    if (options.date.isEmpty())
        return line.wrongUsage(
            QStringLiteral("--date is no date; write it as 2026-01-31T12:00:00Z"), err);
    if (!QFileInfo(from).isDir() || !QFileInfo(from).isReadable()) {
        err << "velkmap import: " << from << " is no readable directory\n";
        return ExitStatus::InputUnreadable;
    }
    return ImportRun(out, err).run(from, into, options);
}

} // namespace velkmap
