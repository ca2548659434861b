#include "../support/GermanTexts.h"

#include <release/assign/AssignmentPart.h>
#include <release/import/FolderImport.h>
#include <release/import/TypeRecognition.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace VelkRelease;
using VKTab::FieldKind;
using VKTab::FieldType;
using VKTab::TableField;

namespace {

/// Folder "csv" of one table to import, into "catalog" beside it.
class ImportCase
{
public:
    ImportCase() { options.root = into(); }

    [[nodiscard]] QString from() const { return m_directory.filePath("csv"); }
    [[nodiscard]] QString into() const { return m_directory.filePath("catalog"); }
    [[nodiscard]] bool write(const QString &name, const QByteArray &bytes) const
    {
        const QString path = m_directory.filePath(name);
        QFile file(path);
        return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
               file.write(bytes) == bytes.size();
    }
    /// Errors, behind the place, and notes.
    QStringList run()
    {
        QStringList said;
        const FolderImport::Listener listener{
            .error = [&](const QString &text) { said += text.section(": ", 1); },
            .table = [&](const QString &, const TableImport &table) { said += table.notes(); },
            .progress = {}};
        (void)FolderImport(from(), options, listener).run();
        return said;
    }

    ImportOptions options;

private:
    QTemporaryDir m_directory;
};

AssignmentPart partOf(int share, const QByteArray &origin = "origin")
{
    AssignmentPart part;
    part.number = {share, 2};
    part.origin = origin;
    part.projects = 4;
    return part;
}

} // namespace

/// What a user of the windows reads of an import and of work on whole releases.
class tst_ReleaseTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { PTranslateManager::instance().setLanguage("de"); }

    void eachLanguageHasACatalog_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language :
             {"cs", "da", "de", "en", "es", "fi", "fr", "hu", "id", "it",    "ja",
              "ko", "nb", "pl", "pt", "ru", "sl", "sv", "tr", "zh", "zh_CHT"})
            QTest::newRow(language) << language;
    }
    void eachLanguageHasACatalog()
    {
        QFETCH(QString, language);
        PTranslateManager::instance().setLanguage(language);
        QVERIFY(PTranslateManager::instance().translatedModules().contains("VelkRelease"));
    }

    void importing_data();
    void importing();
    void importingAgain_data();
    void importingAgain();
    void faultsOfFiles_data();
    void faultsOfFiles();
    void anotherLanguage();
    void fields_data();
    void fields();
    void parts_data();
    void parts();
};

void tst_ReleaseTexts::importing_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QStringList>("said");
    const auto row = [](const char *name, const QByteArray &csv, const QStringList &said) {
        QTest::newRow(name) << csv << said;
    };
    row("semicolons", "k;v\na;1\n", {"die Zellen sind durch Semikolons getrennt"});
    row("tabs", "k\tv\na\t1\n", {"die Zellen sind durch Tabulatoren getrennt"});
    row("UTF-16", QByteArray("\xff\xfek\0\n\0a\0\n\0", 10), {"gelesen als UTF-16"});
    row("carriage returns", "k,v\ra,1\r",
        {"Zeile 1: die Zeile endet nur mit einem Wagenrücklauf; speichern Sie die Datei mit "
         "Zeilenvorschüben"});
    row("inch marks", "k,v\n1/4\" bolt,1\n",
        {"Anführungszeichen innerhalb von Zellen gelten als Zeichen, zuerst in Zeile 2, Spalte 1"});
    row("another encoding", "k,v\n\xe4,1\n",
        {"Zeile 2, Spalte 1: die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8",
         "wenn sie anders kodiert ist, nennen Sie die Kodierung mit --encoding"});
    row("column without a name", "k,\na,1\n",
        {"die Spalte 2 hat keinen Namen und heißt jetzt „Column2“"});
    row("name once more", "k,k\na,1\n",
        {"die Spalte 2 trägt noch einmal den Namen „k“ und heißt jetzt „k_2“"});
    row("names alike", "k,K\na,1\n",
        {"nur in der Groß- und Kleinschreibung verschieden: „k“, „K“"});
    row("header of data", "1,2\n3,4\n",
        {"die erste Zeile sieht nach Daten aus; sie gilt als Namen der Spalten, setzen Sie also "
         "eine Zeile mit Namen davor"});
    row("one column", "k|a;b;c\nx\n",
        {"die einzige Spalte heißt „k|a;b;c“; wenn es mehrere sind, nennen Sie ihr Trennzeichen "
         "mit "
         "--separator"});
    row("repeated key", "k\na\na\nb\nc\nd\ne\nf\ng\nh\ni\n",
        {"der Schlüssel „k“ fehlt oder wiederholt sich in 1 von 10 Zeilen"});
    row("no key", "v,w\n1,1.5\n1,1.5\n1,1.5\n",
        {"keine Schlüsselspalte gefunden; die Id einer Zeile ist ihr Platz in der Datei"});
}

void tst_ReleaseTexts::importing()
{
    QFETCH(QByteArray, csv);
    ImportCase work;
    QVERIFY(work.write("csv/t.csv", csv));
    if (QTest::currentDataTag() == QByteArray("one column"))
        work.options.form.separator = ',';
    QTEST(work.run(), "said");
}

void tst_ReleaseTexts::importingAgain_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QStringList>("said");
    QTest::newRow("new column") << QByteArray("k,v,n\na,1,x\nb,2,y\n") << QString()
                                << QStringList{"neue Spalte „n“"};
    QTest::newRow("column gone") << QByteArray("k\na\nb\n") << QString()
                                 << QStringList{"die Spalte „v“ ist weggefallen"};
    QTest::newRow("another kind")
        << QByteArray("k,v\na,10;20\nb,2\n") << QString()
        << QStringList{"die Spalte „v“ ist laut Deskriptor: ganze Zahl; ihre Zellen sehen aus wie: "
                       "Wertebereich (ganze Zahl)"};
    QTest::newRow("key that is not there")
        << QByteArray("k,v\na,1\nb,2\n") << "x" << QStringList{"es gibt keine Spalte „x“"};
}

void tst_ReleaseTexts::importingAgain()
{
    QFETCH(QByteArray, csv);
    QFETCH(QString, key);
    ImportCase work;
    QVERIFY(work.write("csv/t.csv", "k,v\na,1\nb,2\n"));
    QCOMPARE(work.run(), QStringList());
    QVERIFY(work.write("csv/t.csv", csv));
    work.options.keyColumn = key;
    QTEST(work.run(), "said");
}

void tst_ReleaseTexts::faultsOfFiles_data()
{
    QTest::addColumn<QString>("file"); // what is written before
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("said");
    QTest::newRow("former table") << "catalog/t.csv" << QByteArray("\"")
                                  << "die Tabelle aus dem früheren Import ist nicht lesbar, ihre "
                                     "Zeilen-Ids ließen sich nicht behalten; berichtigen Sie sie, "
                                     "oder löschen Sie sie, um neu zu beginnen";
    QTest::newRow("outside") << "catalog/t.json" << QByteArray(R"({"path": "../../x.csv"})")
                             << " liegt außerhalb des Katalogs und wird nicht geschrieben; "
                                "berichtigen Sie „path“ im Deskriptor, oder entfernen Sie die "
                                "Verknüpfung";
    QTest::newRow("name twice") << "csv/t.CSV" << QByteArray("k\na\n")
                                << "ergäbe dieselbe Tabelle wie t.CSV; benennen Sie eine davon um";
    QTest::newRow("a file as the catalog's folder")
        << "catalog" << QByteArray() << "das Verzeichnis lässt sich nicht anlegen";
    QTest::newRow("a folder in place of the project")
        << "catalog/t.prj/x" << QByteArray() << "lässt sich nicht schreiben: ";
}

void tst_ReleaseTexts::faultsOfFiles()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, said);
    ImportCase work;
    QVERIFY(work.write("csv/t.csv", "k,v\na,1\n"));
    if (file.startsWith("catalog/t.csv"))
        QCOMPARE(work.run(), QStringList());
    QVERIFY(work.write(file, bytes));
    const QString all = work.run().join('\n');
    QVERIFY2(all.contains(said), qPrintable(all));
}

void tst_ReleaseTexts::anotherLanguage()
{
    PTranslateManager::instance().setLanguage("pl");
    ImportCase work;
    QVERIFY(work.write("csv/t.csv", "k;v\na;1\n"));
    QCOMPARE(work.run(), QStringList{"komórki są rozdzielone średnikami"});
}

void tst_ReleaseTexts::fields_data()
{
    QTest::addColumn<FieldType>("type");
    QTest::addColumn<FieldKind>("kind");
    QTest::addColumn<char>("decimal");
    QTest::addColumn<QString>("german");
    QTest::addColumn<QString>("english");
    const auto row = [](FieldType type, FieldKind kind, char decimal, const char *german,
                        const char *english) {
        QTest::newRow(english) << type << kind << decimal << QString::fromUtf8(german)
                               << QString(english);
    };
    row(FieldType::String, FieldKind::Plain, '.', "Text", "string");
    row(FieldType::Number, FieldKind::Plain, ',', "Zahl mit Dezimalkomma",
        "number with decimal comma");
    row(FieldType::Integer, FieldKind::Range, '.', "Wertebereich (ganze Zahl)",
        "range of integers");
    row(FieldType::Boolean, FieldKind::Computed, '.', "berechnet (Wahrheitswert)",
        "computed boolean");
    row(FieldType::Date, FieldKind::Internal, '.', "intern (Datum)", "internal date");
    row(FieldType::DateTime, FieldKind::Topology, '.', "Topologie (Datum mit Uhrzeit)",
        "topology datetime");
}

void tst_ReleaseTexts::fields()
{
    QFETCH(FieldType, type);
    QFETCH(FieldKind, kind);
    QFETCH(char, decimal);
    TableField field;
    field.type = type;
    field.kind = kind;
    field.decimalChar = decimal;
    QTEST(describeField(field), "german");
    PTranslateManager::instance().setLanguage("en");
    QTEST(describeField(field), "english");
}

void tst_ReleaseTexts::parts_data()
{
    QTest::addColumn<QList<NamedPart>>("parts");
    QTest::addColumn<QStringList>("said");
    QTest::newRow("none") << QList<NamedPart>() << QStringList{"es gibt keinen Teil"};
    QTest::newRow("lost") << QList<NamedPart>{{"a", partOf(1)}} << QStringList{"Teil 2/2 fehlt"};
    QTest::newRow("twice") << QList<NamedPart>{{"a", partOf(1)}, {"b", partOf(2)}, {"c", partOf(2)}}
                           << QStringList{"Teil 2/2 ist mehrfach da (2): b, c"};
    QTest::newRow("another work") << QList<NamedPart>{{"a", partOf(1)},
                                                      {"b", partOf(2)},
                                                      {"c", partOf(2, "other")}}
                                  << QStringList{"c: das ist Teil 2/2 einer anderen Arbeit als a"};
    QTest::newRow("projects lost")
        << QList<NamedPart>{{"a", partOf(1)}, {"b", partOf(2)}}
        << QStringList{"Projekte in den Teilen: 0 (verschiedene: 0), in der ganzen Arbeit: 4"};
}

void tst_ReleaseTexts::parts()
{
    QFETCH(QList<NamedPart>, parts);
    QTEST(partErrors(parts), "said");
}

QTEST_GUILESS_MAIN(tst_ReleaseTexts)
#include "tst_ReleaseTexts.moc"
