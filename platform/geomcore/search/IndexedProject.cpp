#include "IndexedProject.h"

#include "CellCondition.h"
#include "SearchText.h"
#include <geomcore/mapper/DesignationPattern.h>
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/project/PrjFile.h>
#include <geomcore/project/tableFileOf.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/CanonicalNumber.h>
#include <geomcore/value/CellKey.h>
#include <geomcore/value/RangeCell.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>

using VKTab::CanonicalNumber;
using VKTab::FieldKind;
using VKTab::LineView;
using VKTab::TableData;
using VKTab::TableDescriptor;
using VKTab::TableField;

namespace {

/// So many bytes of a column's values are kept.
constexpr qsizetype MaxColumnValues = 64 * 1024;
/// So many values of a range are looked at for the least and the greatest.
constexpr qint64 MaxLooked = 1000;

QString textOfBytes(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

/// Gathers the values of one column.
class ColumnValues
{
public:
    ColumnValues(const TableField &field, QSet<QString> &tokens)
        : m_tokens(tokens)
    {
        m_column.name = SearchText::folded(field.name);
        m_column.unit = field.unit;
        m_column.isRange = field.isRange();
        m_column.decimalChar = field.decimalChar;
        m_column.values = QByteArray("");
    }

    void add(std::string_view cell)
    {
        const std::string_view value = VKTab::trimmedCell(cell);
        addNumbers(value);
        keep(value);
        SearchText::addTokens(SearchText::folded(textOfBytes(value)), m_tokens);
    }
    [[nodiscard]] const IndexedColumn &column() const { return m_column; }

private:
    void addNumbers(std::string_view value)
    {
        if (m_column.isRange) {
            if (const auto range =
                    VKTab::parseRangeCell(textOfBytes(value), m_column.decimalChar)) {
                addRange(*range);
                return;
            }
        }
        if (const auto number = CanonicalNumber::parse(value, m_column.decimalChar))
            addNumber(number->toDouble());
    }
    void addRange(const VKTab::RangeText &range)
    {
        if (range.count() > MaxLooked) {
            addNumber(-std::numeric_limits<double>::max());
            addNumber(std::numeric_limits<double>::max());
            return;
        }
        for (qint64 i = 0; i < range.count(); ++i) {
            const QByteArray value = range.value(i).toUtf8();
            if (const auto number = CanonicalNumber::parse(
                    {value.constData(), size_t(value.size())}, m_column.decimalChar))
                addNumber(number->toDouble());
        }
    }
    void addNumber(double number)
    {
        m_column.least = m_column.hasNumbers ? std::min(m_column.least, number) : number;
        m_column.greatest = m_column.hasNumbers ? std::max(m_column.greatest, number) : number;
        m_column.hasNumbers = true;
    }
    void keep(std::string_view value)
    {
        if (m_column.values.isNull())
            return;
        if (!m_column.values.isEmpty())
            m_column.values.append('\0');
        m_column.values.append(value.data(), qsizetype(value.size()));
        if (m_column.values.size() > MaxColumnValues)
            m_column.values = QByteArray();
    }

    IndexedColumn m_column;
    QSet<QString> &m_tokens;
};

void addHead(IndexedProject &project, const QString &text)
{
    if (text.isEmpty())
        return;
    if (!project.head.isEmpty())
        project.head += u'\n';
    project.head += SearchText::folded(text);
}

/// What stands between the names in braces; nothing of the name of a column.
QString literalText(const QString &pattern)
{
    QString text;
    qsizetype at = 0;
    while (pattern.contains(u'{') && at < pattern.size()) {
        const qsizetype open = pattern.indexOf(u'{', at);
        const qsizetype close = open < 0 ? -1 : pattern.indexOf(u'}', open);
        text += pattern.mid(at, close < 0 ? -1 : open - at) + u' ';
        at = close < 0 ? pattern.size() : close + 1;
    }
    return text.trimmed();
}

void addDescriptor(IndexedProject &project, const TableDescriptor &descriptor)
{
    project.normNumber = descriptor.normNumber;
    for (const QString &text :
         {descriptor.name, descriptor.title, descriptor.description, descriptor.normNumber,
          descriptor.designation, literalText(descriptor.lineNormNumber),
          literalText(descriptor.lineDesignation)})
        addHead(project, text);
    for (const auto &language : descriptor.translations) {
        for (const QString &text : {descriptor.title, descriptor.designation, project.title})
            addHead(project, language.value(text));
    }
}

void addStored(IndexedProject &project, const TableData &table, int column)
{
    ColumnValues values(table.descriptor().fields.at(column), project.lineTokens);
    for (const std::string_view cell : table.interned(column).values) {
        if (!table.isMissing(cell))
            values.add(cell);
    }
    project.columns.append(values.column());
}

void addComputed(IndexedProject &project, const TableData &table, int column)
{
    ColumnValues values(table.descriptor().fields.at(column), project.lineTokens);
    QSet<QByteArray> known;
    std::string scratch;
    for (int row = 0; row < table.rowCount(); ++row) {
        const std::string_view text = LineView(table, row).text(column, scratch);
        const QByteArray value(text.data(), qsizetype(text.size()));
        if (value.isEmpty() || known.contains(value))
            continue;
        known.insert(value);
        values.add(text);
    }
    project.columns.append(values.column());
}

/// The texts of lines in which values and what stands between them make words of their own.
void addDesignations(IndexedProject &project, const TableData &table)
{
    const Mapper::DesignationPattern pattern(table.descriptor());
    if (pattern.isEmpty())
        return;
    std::string scratch;
    for (int row = 0; row < table.rowCount(); ++row) {
        const LineView line(table, row);
        const std::string text = pattern.text([&](const QString &name) {
            const int column = table.fields().indexOf(name);
            return column < 0 ? std::string() : std::string(line.text(column, scratch));
        });
        SearchText::addTokens(SearchText::folded(textOfBytes(text)), project.lineTokens);
    }
}

void addTable(IndexedProject &project, const TableData &table)
{
    addDescriptor(project, table.descriptor());
    project.lineCount = table.rowCount();
    const QList<TableField> &fields = table.descriptor().fields;
    for (int column = 0; column < fields.size(); ++column) {
        if (fields.at(column).kind == FieldKind::Internal)
            continue;
        if (column < table.columnCount())
            addStored(project, table, column);
        else
            addComputed(project, table, column);
    }
    addDesignations(project, table);
}

bool mayBeRead(const QString &file, const QString &namedBy)
{
    // What is no link and lies beside the file that names it lies where that does: the usual case,
    // told without asking for the real path of every directory.
    const QFileInfo info(file);
    return (info.path() == QFileInfo(namedBy).path() && !info.isSymLink()) ||
           CatalogPlaces::instance().refusal(file, namedBy).isEmpty();
}

void readTable(IndexedProject &project, const QString &projectFile)
{
    IndexedFiles &files = project.files;
    files.descriptorStamp = FileStamp::of(files.descriptor);
    if (!mayBeRead(files.descriptor, projectFile))
        return;
    VKTab::TableErrorList errors;
    // The lines' place is wanted also of a table that cannot be read: they may be mended.
    const auto head = TableDescriptor::read(files.descriptor, errors);
    if (!head)
        return;
    files.lines = QDir::toNativeSeparators(head->csvFile(files.descriptor));
    files.linesStamp = FileStamp::of(files.lines);
    if (!mayBeRead(files.lines, files.descriptor)) {
        addDescriptor(project, *head);
        return;
    }
    if (const auto table = TableData::read(*head, files.lines))
        addTable(project, *table.data);
    else
        addDescriptor(project, *head);
    files.descriptorStamp.distrustIfYoung();
    files.linesStamp.distrustIfYoung();
}

} // namespace

bool IndexedFiles::areUnchanged(const QString &projectName, const DirectoryStamps &beside) const
{
    return beside.of(projectName) == project &&
           (descriptor.isEmpty() || beside.of(descriptor) == descriptorStamp) &&
           (lines.isEmpty() || beside.of(lines) == linesStamp);
}

IndexedProject IndexedProject::read(const QString &root, const QString &catalogPath)
{
    IndexedProject project;
    project.path = catalogPath;
    const QString file = QDir::toNativeSeparators(root + u'/' + catalogPath);
    project.files.directory = file.left(file.lastIndexOf(QDir::separator()));
    project.files.project = FileStamp::of(file);
    PrjFile lexems;
    if (lexems.Load(file, false) == 1)
        project.title = lexems.GetLexemValue(QStringLiteral("NAME"));
    project.files.descriptor =
        tableFileOf(file, lexems.GetLexemValue(QStringLiteral("SACHM")), catalogPath);
    addHead(project, QString(catalogPath).replace(u'/', u'\n'));
    addHead(project, project.title);
    if (project.title.isEmpty())
        project.title = catalogPath.section(u'/', -1);
    if (!project.files.descriptor.isEmpty())
        readTable(project, file);
    project.files.project.distrustIfYoung();
    SearchText::addTokens(project.head, project.headTokens);
    return project;
}
