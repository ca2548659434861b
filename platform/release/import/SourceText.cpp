#include "SourceText.h"

#include "CsvRewriter.h"
#include "TableSource.h"

#include <release/text/releaseText.h>

#include <QDir>
#include <QStringDecoder>

namespace VelkRelease {

namespace {

const QString Utf8 = QStringLiteral("utf-8");
const QString Utf16 = QStringLiteral("utf-16");
const QString Windows1252 = QStringLiteral("windows-1252");

/// What Windows-1252 has in place of the control characters of Latin-1, from 0x80.
constexpr char16_t windowsCharacters[] = {
    0x20ac, 0x81,   0x201a, 0x192,  0x201e, 0x2026, 0x2020, 0x2021, 0x2c6,  0x2030, 0x160,
    0x2039, 0x152,  0x8d,   0x17d,  0x8f,   0x90,   0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x2dc,  0x2122, 0x161,  0x203a, 0x153,  0x9d,   0x17e,  0x178};

QString fromWindows1252(const QByteArray &bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &character : text) {
        if (character.unicode() >= 0x80 && character.unicode() < 0xa0)
            character = windowsCharacters[character.unicode() - 0x80];
    }
    return text;
}

bool hasUtf16Mark(const QByteArray &bytes)
{
    return bytes.startsWith("\xff\xfe") || bytes.startsWith("\xfe\xff");
}

/// Without a byte order mark.
std::string_view plainText(const QByteArray &csv)
{
    const QByteArrayView mark("\xef\xbb\xbf");
    const QByteArrayView bytes = csv.startsWith(mark) ? QByteArrayView(csv).sliced(3) : csv;
    return {bytes.constData(), size_t(bytes.size())};
}

QString separatorNote(char separator)
{
    return separator == ';' ? releaseText("die Zellen sind durch Semikolons getrennt")
                            : releaseText("die Zellen sind durch Tabulatoren getrennt");
}

} // namespace

SourceText::SourceText(const QString &file, const SourceForm &form)
    : m_file(file)
    , m_form(form)
{
}

QStringList SourceText::encodings()
{
    return {Utf8, Utf16, Windows1252};
}

bool SourceText::read()
{
    if (!open())
        return false;
    if (const TableSource *source = TableSource::of(m_file.fileName()))
        return convert(*source);
    decode();
    if (!checkLineEnds())
        return false;
    const char separator = m_form.separator ? m_form.separator : separatorOf(plainText(m_csv));
    if (separator == ',')
        return true;
    m_notes.append(separatorNote(separator));
    return rewrite(separator);
}

bool SourceText::open()
{
    if (!m_file.open(QIODevice::ReadOnly))
        return fail(0, 0, releaseText("lässt sich nicht öffnen: %1").arg(m_file.errorString()));
    const qint64 size = m_file.size();
    const uchar *const bytes = size > 0 ? m_file.map(0, size) : nullptr;
    if (size > 0 && !bytes)
        return fail(0, 0, releaseText("lässt sich nicht lesen: %1").arg(m_file.errorString()));
    m_csv = QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), size);
    return true;
}

bool SourceText::convert(const TableSource &source)
{
    VKTab::TableError error;
    const QByteArray csv = source.toCsv(m_csv, &error);
    if (csv.isNull())
        return fail(error.row, error.column, error.text);
    m_csv = csv;
    m_isAsWritten = false;
    return true;
}

void SourceText::decode()
{
    QString text;
    if (m_form.encoding == Utf16 || (m_form.encoding.isEmpty() && hasUtf16Mark(m_csv))) {
        QStringDecoder decoder(QStringDecoder::Utf16);
        text = decoder(m_csv);
    } else if (m_form.encoding == Windows1252) {
        text = fromWindows1252(m_csv);
    } else {
        return;
    }
    m_notes.append(releaseText("gelesen als %1")
                       .arg(m_form.encoding == Windows1252 ? QStringLiteral("Windows-1252")
                                                           : QStringLiteral("UTF-16")));
    m_csv = text.toUtf8();
    m_isAsWritten = false;
}

bool SourceText::checkLineEnds()
{
    const int row = rowOfBareReturn(plainText(m_csv));
    return row == 0 ||
           fail(row, 0,
                releaseText("die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die "
                            "Datei mit Zeilenvorschüben"));
}

bool SourceText::acceptBareQuotes()
{
    const VKTab::TableErrorList before = m_errors;
    const bool accepted = rewrite(',');
    m_errors = before;
    return accepted;
}

bool SourceText::rewrite(char separator)
{
    CsvRewriter rewriter(plainText(m_csv), separator);
    if (!rewriter.run())
        return fail(rewriter.row(), rewriter.column(), rewriter.error());
    if (separator == ',' && rewriter.firstBareQuote().row == 0)
        return false;
    if (const auto [row, column] = rewriter.firstBareQuote(); row > 0)
        m_notes.append(
            releaseText("Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in "
                        "Zeile %1, Spalte %2")
                .arg(QString::number(row), QString::number(column)));
    m_csv = rewriter.take();
    m_isAsWritten = false;
    return true;
}

bool SourceText::fail(int row, int column, const QString &text)
{
    m_errors.append({QDir::toNativeSeparators(m_file.fileName()), row, column, text});
    return false;
}

} // namespace VelkRelease
