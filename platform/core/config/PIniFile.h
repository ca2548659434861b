#pragma once

#include <core/VelkCoreGlobal.h>

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

/// Text file of sections and keys, read and written in place: what is not changed keeps its bytes,
/// comments, order and line ends included. UTF-8.
///
///     key before any section = value      (section "")
///     ; comment, or # comment
///     [Section name]
///     key name = value up to the end of the line, without the blanks around it
///     key = "quoted: blanks at both ends, \"quotes\", \\, \n, \r, \t, \u00A0"  ; comment
///
/// Section and key names can be quoted in the same way. Unquoted text knows no escapes, so
/// `C:\new` and `10;12;16` are taken as they stand. Names are compared exactly. Of a key that
/// occurs twice the last one counts; a section may be continued further down.
class VELKCORE_EXPORT PIniFile
{
public:
    /// Something that could not be understood; the line was kept as it is and gives no value.
    struct Diagnostic
    {
        int line = 0; ///< counted from 1
        QString message;
    };

    PIniFile() = default;

    /// Reads a file and forgets what was there. False if it cannot be read; errorText() says why
    /// and names the file. Lines that make no sense do not make it fail, see diagnostics().
    [[nodiscard]] bool load(const QString &nativePath);
    /// Takes the content of a file. The name serves messages only.
    void parse(const QByteArray &content, const QString &fileName = QString());
    /// Writes beside the file, syncs and renames. False leaves the old file as it was; errorText()
    /// says why.
    [[nodiscard]] bool save(const QString &nativePath);
    [[nodiscard]] QByteArray toByteArray() const;

    /// Sections in the order of their first appearance; "" only if it has keys.
    [[nodiscard]] QStringList sections() const;
    /// Keys of a section in the order of their first appearance.
    [[nodiscard]] QStringList keys(const QString &section) const;
    [[nodiscard]] bool hasSection(const QString &section) const;
    [[nodiscard]] bool contains(const QString &section, const QString &key) const;
    [[nodiscard]] QString value(const QString &section, const QString &key,
                                const QString &defaultValue = QString()) const;
    /// Line of the value in the text that was read, counted from 1; 0 if there is none or it was
    /// set since.
    [[nodiscard]] int line(const QString &section, const QString &key) const;

    /// Changes the value in its line, or adds a line behind the section's last key, or a section at
    /// the end.
    void setValue(const QString &section, const QString &key, const QString &value);
    /// Takes out every line of the key.
    void remove(const QString &section, const QString &key);

    [[nodiscard]] const QList<Diagnostic> &diagnostics() const { return m_diagnostics; }
    /// The diagnostics as "file:line: message".
    [[nodiscard]] QStringList diagnosticTexts() const;
    [[nodiscard]] const QString &errorText() const { return m_errorText; }
    [[nodiscard]] const QString &fileName() const { return m_fileName; }

private:
    struct Line
    {
        QByteArray bytes;   ///< with its line end
        QString key;        ///< with isKey only
        QString value;      ///< with isKey only
        QByteArray comment; ///< what follows a quoted value
        int number = 0;
        bool isKey = false;
    };
    /// A heading and what follows it up to the next one; the first block has no heading.
    struct Block
    {
        QString section;
        std::vector<Line> lines;
    };
    struct Position
    {
        int block = -1;
        int line = -1;
    };
    struct Section
    {
        QList<int> blocks;
        QStringList keys;
        QHash<QString, Position> last;
    };

    void clear();
    void noteEncoding(const QByteArray &content);
    void parseLine(const QByteArray &bytes, int number);
    bool parseHeading(QStringView text, int number);
    bool parseKey(QStringView text, Line &line);
    void parseValue(QStringView text, Line &line);
    void note(int line, const QString &message);
    void addBlock(const QString &section);
    void addLine(Line line);
    [[nodiscard]] const Line *find(const QString &section, const QString &key) const;
    [[nodiscard]] Line makeLine(const QString &key, const QString &value,
                                const QByteArray &comment) const;
    void insertKey(const QString &section, Line line);
    void addSection(const QString &section);
    void endLine(Line &line) const;
    [[nodiscard]] static size_t endOfText(const std::vector<Line> &lines);

    std::vector<Block> m_blocks;
    QHash<QString, Section> m_sections;
    QStringList m_sectionOrder;
    QList<Diagnostic> m_diagnostics;
    QByteArray m_lineEnd = "\n";
    bool m_byteOrderMark = false;
    QString m_fileName;
    QString m_errorText;
};
