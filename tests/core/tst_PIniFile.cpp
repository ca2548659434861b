#include "../support/EnglishTexts.h"

#include <core/config/PIniFile.h>

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace {

/// Text of all kinds that a file may not be able to hold as it stands.
QString randomText(QRandomGenerator &random)
{
    static const QString special = QString::fromUtf8("\";#=[]\\ \t\n\r'$%äß€.,nrtu0") +
                                   QChar(u'\0') + QChar(u'\x7f') + QChar(0xa0) + QChar(0x85) +
                                   QChar(0x2028) + QChar(0xfeff) + QChar(0xfffe) + QChar(0xffff) +
                                   QChar(0xd83d) + QChar(0xde00) + QChar(0x3000);
    QString text;
    for (int i = random.bounded(9); i > 0; --i) {
        const int kind = random.bounded(10);
        if (kind < 6)
            text += special.at(random.bounded(int(special.size())));
        else if (kind < 9)
            text += QChar(u'a' + random.bounded(26));
        else
            text += QChar(ushort(random.bounded(0x10000)));
    }
    return text;
}

PIniFile parsed(const QByteArray &content)
{
    PIniFile file;
    file.parse(content, "x.ini");
    return file;
}

} // namespace

class tst_PIniFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void value_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");
        QTest::newRow("plain") << QByteArray("a=b") << "a"
                               << "b";
        QTest::newRow("blanks round both") << QByteArray("  a b \t=  c d  ") << "a b"
                                           << "c d";
        QTest::newRow("equals signs in the value") << QByteArray("a = b = c=") << "a"
                                                   << "b = c=";
        QTest::newRow("empty value") << QByteArray("a=") << "a"
                                     << "";
        QTest::newRow("no comment behind plain text") << QByteArray("a=10;12;16 # mm") << "a"
                                                      << "10;12;16 # mm";
        QTest::newRow("no escapes in plain text") << QByteArray("a=C:\\new\\table") << "a"
                                                  << "C:\\new\\table";
        QTest::newRow("quoted") << QByteArray("a=\" b \"") << "a"
                                << " b ";
        QTest::newRow("escapes") << QByteArray("a=\"1\\n2\\r3\\t4\\\"5\\\\6\\u00e4\"") << "a"
                                 << QString("1\n2\r3\t4\"5\\6ä");
        QTest::newRow("comment behind quotes") << QByteArray("a=\"b\" ; why") << "a"
                                               << "b";
        QTest::newRow("quote inside plain text") << QByteArray("a=3\" x 4\"") << "a"
                                                 << "3\" x 4\"";
        QTest::newRow("quoted key") << QByteArray("\" a=b \" = c") << " a=b "
                                    << "c";
        QTest::newRow("umlauts") << QByteArray("Größe = weiß") << "Größe"
                                 << "weiß";
        QTest::newRow("line end of Windows") << QByteArray("a=b\r\n") << "a"
                                             << "b";
        QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf"
                                                       "a=b")
                                         << "a"
                                         << "b";
    }
    void value()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        const PIniFile file = parsed(line);
        QCOMPARE(file.diagnosticTexts(), QStringList());
        QCOMPARE(file.keys(""), QStringList{key});
        QCOMPARE(file.value("", key, "missing"), expected);
        QCOMPARE(file.toByteArray(), line);
    }

    void sectionsAndKeysKeepTheirOrder()
    {
        const PIniFile file = parsed("[z]\nb=1\na=2\n\n[ a b ]\nc=3\n[z]\nb=4\nd=5\n[empty]\n");
        QCOMPARE(file.sections(), QStringList({"z", "a b", "empty"}));
        QCOMPARE(file.keys("z"), QStringList({"b", "a", "d"}));
        QCOMPARE(file.keys("empty"), QStringList());
        QVERIFY(file.hasSection("empty"));
        QVERIFY(!file.hasSection("b"));
        QVERIFY(!file.hasSection(""));
    }
    void lastOfTwoEqualKeysCounts()
    {
        const PIniFile file = parsed("[s]\nk=1\nk=2\n[t]\n[s]\nk=3\n");
        QCOMPARE(file.value("s", "k"), QString("3"));
        QCOMPARE(file.line("s", "k"), 6);
    }
    void namesAreComparedExactly()
    {
        const PIniFile file = parsed("[S]\nKey=1\n");
        QVERIFY(!file.contains("s", "Key"));
        QVERIFY(!file.contains("S", "key"));
        QCOMPARE(file.value("S", "key", "def"), QString("def"));
    }
    void linesAreCountedFromOneAndForgottenOnChange()
    {
        PIniFile file = parsed("\n; c\n[s]\r\nk=1\n");
        QCOMPARE(file.line("s", "k"), 4);
        QCOMPARE(file.line("s", "none"), 0);
        file.setValue("s", "k", "2");
        QCOMPARE(file.line("s", "k"), 0);
    }

    void diagnostics_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("expected");
        QTest::newRow("neither") << QByteArray("a=1\nnonsense\n")
                                 << "x.ini:2: neither section, key nor comment";
        QTest::newRow("no key") << QByteArray("= 1") << "x.ini:1: neither section, key nor comment";
        QTest::newRow("quoted key without value")
            << QByteArray("\"a\" b = 1") << "x.ini:1: neither section, key nor comment";
        QTest::newRow("heading without end")
            << QByteArray("\n[abc\n") << "x.ini:2: section heading without end";
        QTest::newRow("quoted heading without end")
            << QByteArray("[\"abc]\n") << "x.ini:1: section heading without end";
        QTest::newRow("text between quoted name and end")
            << QByteArray("[\"abc\" d]\n") << "x.ini:1: section heading without end";
        QTest::newRow("behind heading")
            << QByteArray("[a] b\n") << "x.ini:1: text behind the section heading is ignored";
        QTest::newRow("quote without end")
            << QByteArray("a=\"b") << "x.ini:1: quote without end; the text is taken as it stands";
        QTest::newRow("behind quotes")
            << QByteArray("a=\"b\" c")
            << "x.ini:1: text behind the quotes; all is taken as it stands";
        QTest::newRow("unknown escape")
            << QByteArray("a=\"C:\\data\"") << "x.ini:1: unknown escape \\d is taken as it stands";
        QTest::newRow("short code")
            << QByteArray("a=\"\\u0x1\"") << "x.ini:1: unknown escape \\u is taken as it stands";
        QTest::newRow("not UTF-8") << QByteArray("a=1\nb=\xe4\n") << "x.ini:2: not UTF-8";
        QTest::newRow("carriage returns alone")
            << QByteArray("a=1\rb=2\r")
            << "x.ini:1: the lines end with carriage returns alone; save the file with line feeds";
    }
    void diagnostics()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, expected);
        const PIniFile file = parsed(content);
        QCOMPARE(file.diagnosticTexts(), QStringList{expected});
        QCOMPARE(file.toByteArray(), content);
    }
    void commentsBehindHeadingsAreInOrder()
    {
        const PIniFile file = parsed("[ a ] ; comment\nk=1\n");
        QCOMPARE(file.diagnosticTexts(), QStringList());
        QCOMPARE(file.value("a", "k"), QString("1"));
    }
    void utf16IsNamed_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("little endian") << QByteArray("\xff\xfe[\0S\0]\0\n\0", 10);
        QTest::newRow("big endian") << QByteArray("\xfe\xff\0[\0S\0]\0\n", 10);
    }
    void utf16IsNamed()
    {
        QFETCH(QByteArray, content);
        QCOMPARE(parsed(content).diagnosticTexts().value(0),
                 "x.ini:1: the file is UTF-16; save it as UTF-8");
    }
    void aHeadingWithoutNameIsThePartBeforeTheFirst()
    {
        const PIniFile file = parsed("[s]\na=1\n[]\na=2\n");
        QCOMPARE(file.diagnosticTexts(), QStringList());
        QCOMPARE(file.value("", "a"), "2");
        QCOMPARE(file.value("s", "a"), "1");
    }
    void whatMakesNoSenseIsTakenAsItStands()
    {
        QCOMPARE(parsed("a=\"b").value("", "a"), QString("\"b"));
        QCOMPARE(parsed("a=\"b\" c").value("", "a"), QString("\"b\" c"));
        QCOMPARE(parsed("a=\"C:\\data\"").value("", "a"), QString("C:\\data"));
        QCOMPARE(parsed("a=\"\\u0x1\"").value("", "a"), QString("\\u0x1"));
    }

    void rewritingKeepsAllElse()
    {
        PIniFile file = parsed("; head\n\n[s] ; why\n  a =  1\n# note\nbad line\nb=\"2\" ; two\n"
                               "\n; next\n[t]\nc=3");
        file.setValue("s", "b", "zwei");
        file.setValue("s", "n", "new");
        file.setValue("t", "d", " 4");
        file.setValue("u v", "e", "5");
        QCOMPARE(file.toByteArray(),
                 QByteArray("; head\n\n[s] ; why\n  a =  1\n# note\nbad line\nb = \"zwei\" ; two\n"
                            "n = new\n\n; next\n[t]\nc=3\nd = \" 4\"\n\n[u v]\ne = 5\n"));
        QCOMPARE(file.value("s", "n"), QString("new"));
        QCOMPARE(file.value("t", "d"), QString(" 4"));
    }
    void anEqualValueChangesNoByte()
    {
        PIniFile file = parsed("a  =   1\n");
        file.setValue("", "a", "1");
        QCOMPARE(file.toByteArray(), QByteArray("a  =   1\n"));
    }
    void newLinesEndAsTheFileDoes()
    {
        PIniFile file = parsed("[s]\r\na=1");
        file.setValue("s", "b", "2");
        QCOMPARE(file.toByteArray(), QByteArray("[s]\r\na=1\r\nb = 2\r\n"));
    }
    void keyWithoutSectionGoesBeforeTheFirstHeading()
    {
        PIniFile file = parsed("; head\n\n[s]\na=1\n");
        file.setValue("", "k", "1");
        QCOMPARE(file.toByteArray(), QByteArray("; head\nk = 1\n\n[s]\na=1\n"));
    }
    void keyOfASectionWithoutKeysGoesBelowItsHeading()
    {
        PIniFile file = parsed("[s]\n\n; of t\n[t]\n");
        file.setValue("s", "k", "1");
        QCOMPARE(file.toByteArray(), QByteArray("[s]\nk = 1\n\n; of t\n[t]\n"));
    }
    void removeTakesEveryLineOfTheKey()
    {
        PIniFile file = parsed("[s]\nk=1\na=0\nk=2\n[t]\nk=9\n[s]\nk=3");
        file.remove("s", "k");
        file.remove("s", "none");
        QCOMPARE(file.toByteArray(), QByteArray("[s]\na=0\n[t]\nk=9\n[s]\n"));
        QVERIFY(!file.contains("s", "k"));
        QCOMPARE(file.keys("s"), QStringList{"a"});
        file.setValue("s", "k", "4");
        QCOMPARE(file.toByteArray(), QByteArray("[s]\na=0\n[t]\nk=9\n[s]\nk = 4\n"));
    }
    void builtFromNothing()
    {
        PIniFile file;
        file.setValue("s", "a", "1");
        file.setValue("", "top", "0");
        file.setValue("s", "b", "");
        QCOMPARE(file.toByteArray(), QByteArray("top = 0\n[s]\na = 1\nb = \n"));
    }

    void anyTextComesBack_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 40; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }
    /// Random changes on a file and on a plain map of maps end in the same content, also after
    /// writing and reading.
    void anyTextComesBack()
    {
        QFETCH(quint32, seed);
        QRandomGenerator random(seed);
        PIniFile file;
        QMap<QString, QMap<QString, QString>> expected;
        QStringList names{QString()};
        for (int i = 0; i < 12; ++i)
            names.append(randomText(random));
        const auto name = [&] {
            return names.at(random.bounded(int(names.size())));
        };
        for (int i = 0; i < 150; ++i) {
            const QString section = name();
            const QString key = name();
            if (random.bounded(20) < 16) {
                const QString text = randomText(random);
                file.setValue(section, key, text);
                expected[section][key] = text;
            } else {
                file.remove(section, key);
                expected[section].remove(key);
            }
            if (i % 30 == 29)
                file.parse(file.toByteArray());
            QCOMPARE(file.diagnosticTexts(), QStringList());
        }
        QStringList filled;
        for (auto it = expected.cbegin(); it != expected.cend(); ++it) {
            QStringList keys = file.keys(it.key());
            keys.sort();
            QStringList wanted = it->keys();
            wanted.sort();
            QCOMPARE(keys, wanted);
            for (const QString &key : std::as_const(wanted))
                QCOMPARE(file.value(it.key(), key), it->value(key));
        }
        const QByteArray bytes = file.toByteArray();
        PIniFile again = parsed(bytes);
        QCOMPARE(again.toByteArray(), bytes);
    }

    void savesAndLoads()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath("größe.ini");
        PIniFile file;
        file.setValue("s", "k", "a\nb");
        QVERIFY2(file.save(path), qPrintable(file.errorText()));
        PIniFile other;
        QVERIFY2(other.load(path), qPrintable(other.errorText()));
        QCOMPARE(other.value("s", "k"), QString("a\nb"));
        QCOMPARE(other.fileName(), path);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files).size(), 1);
    }
    void missingFileIsAnErrorThatNamesIt()
    {
        PIniFile file;
        file.parse("a=1");
        QVERIFY(!file.load("/no/such/file.ini"));
        QVERIFY2(file.errorText().startsWith("/no/such/file.ini: cannot be read: "),
                 qPrintable(file.errorText()));
        QVERIFY(!file.contains("", "a"));
    }
    void onlyRegularFilesAreOpened_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        QTest::newRow("pipe") << "pipe"
                              << "it is no regular file";
        QTest::newRow("link to a pipe") << "link"
                                        << "it is no regular file";
        QTest::newRow("directory") << "directory"
                                   << "it is a directory";
        QTest::newRow("name with a NUL") << QString("file") + QChar(u'\0') + "x"
                                         << "the name has a NUL in it";
    }
    void onlyRegularFilesAreOpened()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        const QTemporaryDir dir;
        QCOMPARE(mkfifo(QFile::encodeName(dir.filePath("pipe")).constData(), 0600), 0);
        QVERIFY(QFile::link(dir.filePath("pipe"), dir.filePath("link")));
        QVERIFY(QDir(dir.path()).mkdir("directory"));
        PIniFile there;
        there.setValue("", "a", "1");
        QVERIFY(there.save(dir.filePath("file")));
        PIniFile file;
        QVERIFY(!file.load(dir.path() + u'/' + name));
        QVERIFY2(file.errorText().endsWith(": cannot be read: " + reason),
                 qPrintable(file.errorText()));
    }
    void fileThatCannotBeWrittenStaysAsItWas()
    {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkdir("x.ini"));
        PIniFile file;
        file.setValue("", "a", "1");
        QVERIFY(!file.save(dir.filePath("x.ini")));
        QVERIFY2(file.errorText().startsWith(dir.filePath("x.ini") + ": cannot be written: "),
                 qPrintable(file.errorText()));
        QVERIFY(QFileInfo(dir.filePath("x.ini")).isDir());
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    }
    void hugeAndBinaryContentIsSurvived()
    {
        QByteArray binary;
        QRandomGenerator random(5);
        for (int i = 0; i < 200000; ++i)
            binary += char(random.bounded(256));
        QCOMPARE(parsed(binary).toByteArray(), binary);
        QByteArray longLine("a=" + QByteArray(3000000, 'x'));
        QCOMPARE(parsed(longLine).value("", "a").size(), 3000000);
    }
};

QTEST_GUILESS_MAIN(tst_PIniFile)
#include "tst_PIniFile.moc"
