#include "TableImport.h"

#include "FileGroup.h"
#include "LineNumbers.h"
#include "TypeRecognition.h"

#include <core/config/PIniFile.h>
#include <core/text/countText.h>
#include <geomcore/csv/CsvCells.h>
#include <geomcore/csv/HeaderNames.h>
#include <geomcore/project/CatalogPlaces.h>
#include <release/text/releaseText.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>

using VKTab::appendCell;
using VKTab::FieldKind;
using VKTab::FieldType;
using VKTab::HeaderRule;
using VKTab::TableData;
using VKTab::TableDescriptor;
using VKTab::TableError;
using VKTab::TableErrorList;
using VKTab::TableField;
using VKTab::TableReadResult;
using VKTab::uniqueColumnNames;

namespace VelkRelease {

namespace {

const QString LineIdName = QStringLiteral("LineId");
const QString ProjectSection = QStringLiteral("PROJECT");

QByteArray contentOf(const QString &file)
{
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
}

/// Where a file really is or would be, with all links followed; empty if a link leads nowhere.
QString realPath(const QString &file)
{
    const QFileInfo info(file);
    if (info.exists())
        return info.canonicalFilePath();
    if (info.isSymLink())
        return QString();
    const QString folder = info.path();
    return folder == file ? file : realPath(folder) + u'/' + info.fileName();
}

/// Without a root everything does.
bool liesInside(const QString &file, const QString &root)
{
    const QString path = realPath(QDir::cleanPath(QFileInfo(file).absoluteFilePath()));
    return root.isEmpty() ||
           path.startsWith(realPath(QDir::cleanPath(QFileInfo(root).absoluteFilePath())) + u'/');
}

bool isUtf8(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return text.isEmpty() || !decoder.hasError();
}

} // namespace

TableImport::TableImport(QString csvFile, QString target, ImportOptions options)
    : m_csvFile(std::move(csvFile))
    , m_target(std::move(target))
    , m_options(std::move(options))
{
}

bool TableImport::prepare()
{
    if (!readSource() || !readFormer())
        return false;
    describe();
    addLineIds();
    makeCsv();
    compareWithFormer();
    makeProject();
    return checkResult();
}

bool TableImport::readSource()
{
    TableDescriptor plain;
    plain.missingValues = QStringList{QString(), QStringLiteral("None")};
    SourceText text(m_csvFile, m_options.form);
    const bool readable = text.read();
    TableReadResult read;
    if (readable && text.isAsWritten())
        read = TableData::read(plain, m_csvFile, HeaderRule::Repair);
    if (readable && !read && (!text.isAsWritten() || text.acceptBareQuotes()))
        read = TableData::fromMemory(plain, text.csv(), m_csvFile, HeaderRule::Repair);
    m_errors += text.errors() + read.errors;
    m_notes += text.notes();
    m_source = read.data;
    if (!m_source) {
        if (readable && !isUtf8(text.csv()))
            error(m_csvFile,
                  releaseText("wenn sie anders kodiert ist, nennen Sie die Kodierung mit "
                              "--encoding"));
        return false;
    }
    noteNames();
    noteHeader();
    return true;
}

bool TableImport::readFormer()
{
    const QString file = m_target + QStringLiteral(".json");
    if (QFileInfo::exists(file)) {
        TableErrorList faults; // reading the table tells them too
        m_formerDescriptor = TableDescriptor::read(file, faults);
    }
    if (!staysInCatalog())
        return false;
    if (!QFileInfo::exists(file))
        return true;
    CatalogPlaces::instance().addRoot(PPathName(m_options.root));
    const TableReadResult read = TableData::read(file);
    m_errors += read.errors;
    m_former = read.data;
    if (!m_former)
        error(file,
              releaseText(
                  "die Tabelle aus dem früheren Import ist nicht lesbar, ihre Zeilen-Ids ließen "
                  "sich nicht behalten; berichtigen Sie sie, oder löschen Sie sie, um neu "
                  "zu beginnen"));
    return m_former != nullptr;
}

bool TableImport::staysInCatalog()
{
    const TableDescriptor descriptor = m_formerDescriptor.value_or(TableDescriptor());
    const QString json = m_target + QStringLiteral(".json");
    for (const QString &file :
         {descriptor.csvFile(json), json, m_target + QStringLiteral(".prj")}) {
        if (liesInside(file, m_options.root))
            continue;
        error(json,
              releaseText("%1 liegt außerhalb des Katalogs und wird nicht geschrieben; berichtigen "
                          "Sie „path“ im Deskriptor, oder entfernen Sie die Verknüpfung")
                  .arg(QDir::toNativeSeparators(file)));
        return false;
    }
    return true;
}

void TableImport::describe()
{
    const QString name = QFileInfo(m_target).fileName();
    if (m_formerDescriptor) {
        m_descriptor = *m_formerDescriptor;
    } else {
        m_descriptor.name = m_descriptor.title = m_descriptor.normNumber = name;
        m_descriptor.missingValues = m_source->descriptor().missingValues;
    }
    takeFields();
    takeKey();
}

void TableImport::takeFields()
{
    const TypeRecognition recognition(*m_source);
    QList<TableField> fields;
    for (int column = 0; column < m_source->columnCount(); ++column) {
        const TableField found = recognition.field(column);
        const int known = m_descriptor.indexOf(found.name);
        fields.append(known < 0 ? found : m_descriptor.fields.at(known));
        if (known >= 0)
            checkField(fields.last(), found);
        else if (m_former)
            m_notes.append(releaseText("neue Spalte „%1“").arg(found.name));
    }
    for (const TableField &field : std::as_const(m_descriptor.fields)) {
        if (m_source->columnOf(field.name) >= 0)
            continue;
        if (field.kind == FieldKind::Computed || field.name == m_descriptor.lineIdField)
            fields.append(field);
        else
            m_notes.append(releaseText("die Spalte „%1“ ist weggefallen").arg(field.name));
    }
    m_descriptor.fields = fields;
}

void TableImport::takeKey()
{
    if (m_source->columnOf(m_options.keyColumn) >= 0) {
        m_descriptor.primaryKey = QStringList{m_options.keyColumn};
    } else if (!m_options.keyColumn.isEmpty()) {
        m_notes.append(releaseText("es gibt keine Spalte „%1“").arg(m_options.keyColumn));
    }
    QStringList &key = m_descriptor.primaryKey;
    const bool gone = std::any_of(key.cbegin(), key.cend(), [this](const QString &name) {
        return m_source->columnOf(name) < 0;
    });
    const TypeRecognition recognition(*m_source);
    if (gone || (key.isEmpty() && !m_former)) {
        const int column = recognition.keyColumn();
        key.clear();
        if (column >= 0)
            key.append(m_source->descriptor().fields.at(column).name);
    }
    const bool named = m_descriptor.lineDesignation.isEmpty() ||
                       (gone && m_descriptor.indexOf(m_descriptor.lineDesignation) < 0 &&
                        !m_descriptor.lineDesignation.contains(u'{'));
    if (named && (gone || !m_former))
        m_descriptor.lineDesignation = key.value(0);
    if (key.size() != 1)
        return;
    if (const int repeated = recognition.repeatedCells(m_source->columnOf(key.first())))
        m_notes.append(
            releaseText("der Schlüssel „%1“ fehlt oder wiederholt sich in %2 von %Ln Zeile(n)",
                        m_source->rowCount())
                .arg(key.first(), countText(repeated)));
}

QStringList TableImport::idKey() const
{
    QStringList common;
    for (const TableField &field : m_source->descriptor().fields) {
        if (m_former && m_former->columnOf(field.name) >= 0)
            common.append(field.name);
    }
    const QStringList &key = m_descriptor.primaryKey;
    const bool known = std::all_of(key.cbegin(), key.cend(), [this](const QString &name) {
        return !m_former || m_former->columnOf(name) >= 0;
    });
    return key.isEmpty() || !known ? common : key;
}

void TableImport::addLineIds()
{
    QString &field = m_descriptor.lineIdField;
    if (m_source->columnOf(field) >= 0)
        return; // the input brings its own
    if (m_source->columnOf(m_descriptor.lineSubIdField) < 0)
        m_descriptor.lineSubIdField.clear();
    if (m_descriptor.primaryKey.isEmpty() && field.isEmpty()) {
        m_notes.append(releaseText(
            "keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei"));
        return;
    }
    LineNumbers numbers(m_descriptor, idKey());
    if (m_former)
        numbers.setFormer(*m_former);
    m_addsIds = true;
    m_lineNumbers = numbers.numbersFor(*m_source);
    m_descriptor.nextLineId = numbers.next();
    if (!field.isEmpty())
        return;
    field = uniqueColumnNames(uniqueColumnNames(m_source->header()) << LineIdName).last();
    m_descriptor.fields.append(TableField{
        .name = field, .type = FieldType::Integer, .kind = FieldKind::Internal, .hidden = true});
}

void TableImport::makeCsv()
{
    const std::string_view source = m_source->bytes();
    const size_t lineFeed = source.find('\n');
    const bool crlf =
        lineFeed != std::string_view::npos && lineFeed > 0 && source[lineFeed - 1] == '\r';
    const QByteArray lineEnd = crlf ? "\r\n" : "\n";
    std::string header;
    QStringList names = uniqueColumnNames(m_source->header());
    if (m_addsIds)
        names.append(m_descriptor.lineIdField);
    for (qsizetype i = 0; i < names.size(); ++i) {
        header += i == 0 ? "" : ",";
        appendCell(header, names.at(i).toStdString());
    }
    m_csv.reserve(qsizetype(source.size()) + qsizetype(header.size()) +
                  qsizetype(m_lineNumbers.size()) * 12);
    m_csv.append(header.data(), qsizetype(header.size())).append(lineEnd);
    for (int row = 0; row < m_source->rowCount(); ++row) {
        const std::string_view cells = m_source->rawRow(row);
        m_csv.append(cells.data(), qsizetype(cells.size()));
        if (m_addsIds)
            m_csv.append(',').append(QByteArray::number(m_lineNumbers[size_t(row)]));
        m_csv.append(lineEnd);
    }
}

void TableImport::compareWithFormer()
{
    if (m_former) {
        const bool sameHead = m_descriptor == *m_formerDescriptor;
        const bool sameLines = m_csv == contentOf(m_former->fileName());
        m_state = sameHead && sameLines ? State::Unchanged : State::Changed;
    }
    if (m_state != State::Unchanged || m_options.dateIsGiven || m_descriptor.finalDate.isEmpty())
        m_descriptor.finalDate = m_options.date;
}

void TableImport::makeProject()
{
    const QString name = QFileInfo(m_target).fileName();
    PIniFile project;
    const QByteArray former = contentOf(m_target + QStringLiteral(".prj"));
    project.parse(former);
    if (!project.contains(ProjectSection, QStringLiteral("NAME")))
        project.setValue(ProjectSection, QStringLiteral("NAME"), name);
    project.setValue(ProjectSection, QStringLiteral("DATE"), m_descriptor.finalDate);
    if (!project.contains(ProjectSection, QStringLiteral("SACHM")))
        project.setValue(ProjectSection, QStringLiteral("SACHM"), name + QStringLiteral(".json"));
    m_project = project.toByteArray();
}

bool TableImport::write()
{
    FileGroup files;
    files.add(m_descriptor.csvFile(m_target + QStringLiteral(".json")), m_csv);
    files.add(m_target + QStringLiteral(".json"), m_descriptor.toJson());
    files.add(m_target + QStringLiteral(".prj"), m_project);
    if (files.commit())
        return true;
    m_errors.append(files.error());
    return false;
}

bool TableImport::checkResult()
{
    const TableReadResult result = TableData::fromMemory(m_descriptor, m_csv, m_csvFile);
    m_errors += result.errors;
    if (result) {
        for (const TableError &warning : result.data->warnings())
            m_notes.append(warning.toString());
    }
    return m_errors.isEmpty();
}

void TableImport::error(const QString &file, const QString &text)
{
    m_errors.append({file, 0, 0, text});
}

} // namespace VelkRelease
