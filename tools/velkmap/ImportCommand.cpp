#include "ImportCommand.h"

#include "CommandLine.h"
#include "counted.h"

#include <release/assign/ReleaseDate.h>
#include <release/import/FolderImport.h>
#include <release/import/TypeRecognition.h>

#include <QDateTime>
#include <QDir>
#include <QTextStream>

using namespace VKTab;

namespace velkmap {

namespace {

using VelkRelease::FolderImport;

const QString ImportDescription = QStringLiteral(
    "Makes a catalog of projects and tables from a folder tree of CSV tables, or of files that an "
    "extension reads. "
    "Each NAME.csv becomes NAME.prj, NAME.json (the descriptor) and NAME.csv below CATALOG, at the "
    "same relative path. Column types, value ranges, decimal commas and key columns are recognised "
    "and printed. What is wrong can be corrected in the descriptor: a later import keeps it. It "
    "also keeps the ids of lines whose key is still there.");

QLatin1String stateName(VelkRelease::TableImport::State state)
{
    switch (state) {
    case VelkRelease::TableImport::State::New:
        return QLatin1String("new");
    case VelkRelease::TableImport::State::Changed:
        return QLatin1String("changed");
    case VelkRelease::TableImport::State::Unchanged:
        break;
    }
    return QLatin1String("unchanged");
}

void print(const QString &relative, const VelkRelease::TableImport &table, QTextStream &out)
{
    const TableDescriptor &descriptor = table.descriptor();
    out << relative << ": " << counted(table.lineCount(), "line");
    if (!descriptor.primaryKey.isEmpty())
        out << ", key " << descriptor.primaryKey.join(QStringLiteral(", "));
    out << ", " << stateName(table.state()) << '\n';
    QStringList columns;
    for (const TableField &field : descriptor.fields) {
        if (field.name != descriptor.lineIdField)
            columns.append(field.name + u' ' + VelkRelease::describeField(field));
    }
    out << "  " << columns.join(QStringLiteral(", ")) << '\n';
    for (const QString &note : table.notes())
        out << "  note: " << note << '\n';
}

void printSummary(const FolderImport &import, QTextStream &out)
{
    for (const QString &name : import.leftOvers())
        out << "note: " << name << " has no CSV file any more and stays as it is\n";
    const FolderImport::Counts &counts = import.counts();
    out << counted(counts.tables(), "table") << " with " << counted(counts.lines, "line") << ": "
        << counts.created << " new, " << counts.changed << " changed, " << counts.unchanged
        << " unchanged";
    if (counts.failed > 0)
        out << "; " << counts.failed << " could not be imported";
    out << '\n';
}

ExitStatus importFolder(const QString &from, const VelkRelease::ImportOptions &options,
                        QTextStream &out, QTextStream &err)
{
    FolderImport import(
        from, options,
        {.error = [&](const QString &text) { err << text << '\n'; },
         .table = [&](const QString &name,
                      const VelkRelease::TableImport &table) { print(name, table, out); },
         .progress = {}});
    const FolderImport::Outcome outcome = import.run();
    if (outcome == FolderImport::Outcome::Empty)
        err << "velkmap import: there is no CSV file below " << from << '\n';
    if (outcome == FolderImport::Outcome::Unwritable)
        return ExitStatus::ResultUnwritable;
    if (outcome == FolderImport::Outcome::Empty)
        return ExitStatus::InputUnreadable;
    printSummary(import, out);
    return outcome == FolderImport::Outcome::Done ? ExitStatus::Done : ExitStatus::InputUnreadable;
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
    if (FolderImport::areNested(into, from))
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
    return importFolder(from, options, out, err);
}

} // namespace velkmap
