#include "PIniFile.h"

#include "PIniText.h"

#include <core/files/DurableFile.h>
#include <core/text/PString.h>

using namespace Internal;

// Changing

PIniFile::Line PIniFile::makeLine(const QString &key, const QString &value,
                                  const QByteArray &comment) const
{
    Line line;
    line.isKey = true;
    line.key = key;
    line.value = value;
    line.comment = comment;
    const bool quotes = valueNeedsQuotes(value) || !comment.trimmed().isEmpty();
    const QString text = (keyNeedsQuotes(key) ? quoted(key) : key) + QStringLiteral(" = ") +
                         (quotes ? quoted(value) : value);
    line.bytes = text.toUtf8() + comment + m_lineEnd;
    return line;
}

void PIniFile::setValue(const QString &section, const QString &key, const QString &value)
{
    const Line *old = find(section, key);
    if (!old) {
        insertKey(section, makeLine(key, value, {}));
        return;
    }
    if (old->value == value)
        return;
    const Position position = m_sections[section].last[key];
    m_blocks[size_t(position.block)].lines[size_t(position.line)] =
        makeLine(key, value, old->comment);
}

/// Behind the last key of the section's last block: only lines without keys move, so that the
/// positions of all keys stay.
void PIniFile::insertKey(const QString &section, Line line)
{
    if (m_blocks.empty())
        addBlock(QString());
    if (m_sections.value(section).blocks.isEmpty())
        addSection(section);
    Section &entry = m_sections[section];
    const int blockIndex = entry.blocks.constLast();
    std::vector<Line> &lines = m_blocks[size_t(blockIndex)].lines;
    size_t at = lines.size();
    while (at > 0 && !lines[at - 1].isKey)
        --at;
    if (at == 0)
        at = blockIndex == 0 ? endOfText(lines) : 1;
    if (at > 0)
        endLine(lines[at - 1]);
    entry.keys.append(line.key);
    entry.last[line.key] = {blockIndex, int(at)};
    lines.insert(lines.begin() + qsizetype(at), std::move(line));
}

/// Index behind the last line that is not blank.
size_t PIniFile::endOfText(const std::vector<Line> &lines)
{
    size_t at = lines.size();
    while (at > 0 && lines[at - 1].bytes.trimmed().isEmpty())
        --at;
    return at;
}

void PIniFile::endLine(Line &line) const
{
    if (!line.bytes.isEmpty() && !line.bytes.endsWith('\n'))
        line.bytes += m_lineEnd;
}

void PIniFile::addSection(const QString &section)
{
    Line *last = nullptr;
    for (Block &block : m_blocks) {
        for (Line &line : block.lines)
            last = line.bytes.isEmpty() ? last : &line;
    }
    Line heading;
    if (last) {
        endLine(*last);
        if (!last->bytes.trimmed().isEmpty())
            heading.bytes = m_lineEnd;
    }
    const QString name = sectionNeedsQuotes(section) ? quoted(section) : section;
    heading.bytes += '[' + name.toUtf8() + ']' + m_lineEnd;
    addBlock(section);
    addLine(std::move(heading));
}

void PIniFile::remove(const QString &section, const QString &key)
{
    const auto found = m_sections.find(section);
    if (found == m_sections.end() || !found->last.remove(key))
        return;
    found->keys.removeOne(key);
    for (const int block : std::as_const(found->blocks)) {
        for (Line &line : m_blocks[size_t(block)].lines) {
            if (line.isKey && line.key == key)
                line = Line();
        }
    }
}

// Writing

QByteArray PIniFile::toByteArray() const
{
    QByteArray result(m_byteOrderMark ? "\xef\xbb\xbf" : "");
    for (const Block &block : m_blocks) {
        for (const Line &line : block.lines)
            result += line.bytes;
    }
    return result;
}

bool PIniFile::save(const QString &nativePath)
{
    QString cause;
    const bool written = DurableFile::write(nativePath, toByteArray(), &cause);
    m_errorText =
        written ? QString()
                : nativePath + QStringLiteral(": ") +
                      PString::translate("lässt sich nicht schreiben: %1", "VelkCore").arg(cause);
    return written;
}
