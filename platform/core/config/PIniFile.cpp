#include "PIniFile.h"

#include "PIniText.h"
#include <core/access/openRegularFile.h>
#include <core/text/PString.h>

#include <QFile>
#include <QStringDecoder>

using namespace Internal;

namespace {

const QByteArray ByteOrderMark("\xef\xbb\xbf");

QByteArrayView withoutLineEnd(QByteArrayView line)
{
    if (line.endsWith('\n'))
        line.chop(1);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

QString cannotBeRead(const QString &file, const QString &cause)
{
    return file + QStringLiteral(": ") +
           PString::translate("lässt sich nicht lesen: %1", "VelkCore").arg(cause);
}

bool isComment(QStringView text)
{
    return text.startsWith(u';') || text.startsWith(u'#');
}

} // namespace

// Reading

bool PIniFile::load(const QString &nativePath)
{
    clear();
    m_fileName = nativePath;
    QFile file(nativePath);
    QString problem;
    if (!openRegularFile(file, problem)) {
        m_errorText = cannotBeRead(nativePath, problem);
        return false;
    }
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        m_errorText = cannotBeRead(nativePath, file.errorString());
        return false;
    }
    parse(content, nativePath);
    return true;
}

void PIniFile::clear()
{
    *this = PIniFile();
}

void PIniFile::parse(const QByteArray &content, const QString &fileName)
{
    clear();
    m_fileName = fileName;
    m_byteOrderMark = content.startsWith(ByteOrderMark);
    noteEncoding(content);
    addBlock(QString());
    qsizetype begin = m_byteOrderMark ? ByteOrderMark.size() : 0;
    const qsizetype firstEnd = content.indexOf('\n', begin);
    if (firstEnd > 0 && content.at(firstEnd - 1) == '\r')
        m_lineEnd = "\r\n";
    for (int number = 1; begin < content.size(); ++number) {
        const qsizetype found = content.indexOf('\n', begin);
        const qsizetype end = found < 0 ? content.size() : found + 1;
        parseLine(content.mid(begin, end - begin), number);
        begin = end;
    }
}

/// What makes a whole file senseless, told once and first.
void PIniFile::noteEncoding(const QByteArray &content)
{
    if (content.startsWith("\xff\xfe") || content.startsWith("\xfe\xff"))
        note(1,
             PString::translate("die Datei ist UTF-16; speichern Sie sie als UTF-8", "VelkCore"));
    else if (content.contains('\r') && !content.contains('\n'))
        note(1, PString::translate("die Zeilen enden allein mit Wagenrückläufen; speichern Sie die "
                                   "Datei mit Zeilenvorschüben",
                                   "VelkCore"));
}

void PIniFile::parseLine(const QByteArray &bytes, int number)
{
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString decoded = decode(withoutLineEnd(bytes));
    if (decode.hasError())
        note(number, PString::translate("kein UTF-8", "VelkCore"));
    Line line;
    line.bytes = bytes;
    line.number = number;
    const QStringView text = QStringView(decoded).trimmed();
    if (!text.isEmpty() && !isComment(text)) {
        if (!text.startsWith(u'['))
            line.isKey = parseKey(text, line);
        else if (!parseHeading(text, number))
            note(number, PString::translate("Abschnittsüberschrift ohne Ende", "VelkCore"));
    }
    addLine(std::move(line));
}

bool PIniFile::parseHeading(QStringView text, int number)
{
    QStringView name = text.mid(1).trimmed();
    qsizetype close = -1;
    QString section;
    if (name.startsWith(u'"')) {
        const QuotedText quotedName = readQuoted(name);
        close = quotedName.end < 0 ? -1 : name.indexOf(u']', quotedName.end);
        if (close < 0 || !name.mid(quotedName.end, close - quotedName.end).trimmed().isEmpty())
            return false;
        section = quotedName.text;
    } else {
        close = name.indexOf(u']');
        if (close < 0)
            return false;
        section = name.left(close).trimmed().toString();
    }
    const QStringView rest = name.mid(close + 1).trimmed();
    if (!rest.isEmpty() && !isComment(rest))
        note(number,
             PString::translate("der Text hinter der Abschnittsüberschrift bleibt unbeachtet",
                                "VelkCore"));
    addBlock(section);
    return true;
}

bool PIniFile::parseKey(QStringView text, Line &line)
{
    qsizetype equals = -1;
    if (text.startsWith(u'"')) {
        const QuotedText key = readQuoted(text);
        if (key.end >= 0) {
            equals = text.indexOf(u'=', key.end);
            if (equals >= 0 && !text.mid(key.end, equals - key.end).trimmed().isEmpty())
                equals = -1;
        }
        line.key = key.text;
    } else {
        equals = text.indexOf(u'=');
        line.key = text.left(qMax(equals, qsizetype(0))).trimmed().toString();
        if (line.key.isEmpty())
            equals = -1;
    }
    if (equals < 0) {
        note(line.number,
             PString::translate("weder Abschnitt noch Schlüssel noch Kommentar", "VelkCore"));
        return false;
    }
    parseValue(text.mid(equals + 1).trimmed(), line);
    return true;
}

void PIniFile::parseValue(QStringView text, Line &line)
{
    line.value = text.toString();
    if (!text.startsWith(u'"'))
        return;
    const QuotedText value = readQuoted(text);
    if (value.end < 0) {
        note(line.number,
             PString::translate("Anführungszeichen ohne Ende; der Text gilt, wie er dasteht",
                                "VelkCore"));
        return;
    }
    const QStringView rest = text.mid(value.end);
    if (!rest.trimmed().isEmpty() && !isComment(rest.trimmed())) {
        note(line.number,
             PString::translate("Text hinter den Anführungszeichen; alles gilt, wie es dasteht",
                                "VelkCore"));
        return;
    }
    if (!value.unknownEscape.isEmpty())
        note(line.number,
             PString::translate("die unbekannte Escape-Folge %1 gilt, wie sie dasteht", "VelkCore")
                 .arg(value.unknownEscape));
    line.value = value.text;
    line.comment = rest.toUtf8();
}

void PIniFile::note(int line, const QString &message)
{
    m_diagnostics.append({line, message});
}

QStringList PIniFile::diagnosticTexts() const
{
    QStringList texts;
    for (const Diagnostic &diagnostic : m_diagnostics)
        texts.append(QStringLiteral("%1:%2: %3")
                         .arg(m_fileName, QString::number(diagnostic.line), diagnostic.message));
    return texts;
}

void PIniFile::addBlock(const QString &section)
{
    if (!m_sections.contains(section))
        m_sectionOrder.append(section);
    m_sections[section].blocks.append(int(m_blocks.size()));
    m_blocks.push_back({section, {}});
}

void PIniFile::addLine(Line line)
{
    Block &block = m_blocks.back();
    if (line.isKey) {
        Section &section = m_sections[block.section];
        if (!section.last.contains(line.key))
            section.keys.append(line.key);
        section.last[line.key] = {int(m_blocks.size()) - 1, int(block.lines.size())};
    }
    block.lines.push_back(std::move(line));
}

// Asking

QStringList PIniFile::sections() const
{
    QStringList result;
    for (const QString &section : m_sectionOrder) {
        if (hasSection(section))
            result.append(section);
    }
    return result;
}

bool PIniFile::hasSection(const QString &section) const
{
    const auto found = m_sections.constFind(section);
    return found != m_sections.cend() && (!section.isEmpty() || !found->keys.isEmpty());
}

QStringList PIniFile::keys(const QString &section) const
{
    return m_sections.value(section).keys;
}

const PIniFile::Line *PIniFile::find(const QString &section, const QString &key) const
{
    const auto found = m_sections.constFind(section);
    if (found == m_sections.cend())
        return nullptr;
    const auto position = found->last.constFind(key);
    if (position == found->last.cend())
        return nullptr;
    return &m_blocks[size_t(position->block)].lines[size_t(position->line)];
}

bool PIniFile::contains(const QString &section, const QString &key) const
{
    return find(section, key) != nullptr;
}

QString PIniFile::value(const QString &section, const QString &key,
                        const QString &defaultValue) const
{
    const Line *found = find(section, key);
    return found ? found->value : defaultValue;
}

int PIniFile::line(const QString &section, const QString &key) const
{
    const Line *found = find(section, key);
    return found ? found->number : 0;
}
