#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/table/proxyTableC.h>
#include <script/objects/prxTextWriterC.h>
#include <script/objects/prxVelkC.h>
#include <TestPaths.h>
#include <tools/velkmap/Commands.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using velkmap::ExitStatus;

/// The manual's chapter on scripts and the example scripts, on the example catalog.
class tst_ScriptDocuments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void manualExamples_data();
    void manualExamples();
    void manualTellsAllMembers_data();
    void manualTellsAllMembers();
    void openLines();
    void checkErpNumbers();

private:
    ExitStatus run(const QStringList &arguments)
    {
        m_out.clear();
        m_err.clear();
        QTextStream out(&m_out);
        QTextStream err(&m_err);
        return velkmap::run(arguments, out, err);
    }
    [[nodiscard]] QString path(const QString &name) const { return m_dir.filePath(name); }
    [[nodiscard]] QStringList withMapping(const QString &script) const
    {
        return {"run",      script,   "--mapping", path("m.json"),
                "--source", m_source, "--target",  m_target};
    }
    static QString contentOf(const QString &file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? QString::fromUtf8(in.readAll()) : QString();
    }

    const QString m_source = QStringLiteral(VELK_SOURCE_DIR "/examples/release-1");
    const QString m_target = QStringLiteral(VELK_SOURCE_DIR "/examples/release-2");
    const QString m_manual = contentOf(QStringLiteral(VELK_SOURCE_DIR "/docs/manual/scripts.md"));
    QTemporaryDir m_dir;
    QString m_out;
    QString m_err;
};

void tst_ScriptDocuments::initTestCase()
{
    QVERIFY(run({"create", "--source", m_source, "--target", m_target, "--catalog", "standardparts",
                 "--mapping", path("m.json")}) != ExitStatus::WrongUsage);
    QVERIFY(run({"assign", "--source", m_source, "--target", m_target, "--mapping",
                 path("m.json")}) != ExitStatus::WrongUsage);
    QVERIFY(QFile::exists(path("m.json")));
}

void tst_ScriptDocuments::manualExamples_data()
{
    QTest::addColumn<QString>("program");
    static const QRegularExpression block("```js\\n(.*?)```",
                                          QRegularExpression::DotMatchesEverythingOption);
    int number = 0;
    for (auto found = block.globalMatch(m_manual); found.hasNext();)
        QTest::addRow("%d", ++number) << found.next().captured(1);
    QVERIFY(number >= 5);
}

/// What a comment behind a print says is what it prints.
void tst_ScriptDocuments::manualExamples()
{
    QFETCH(QString, program);
    QFile file(path("example.js"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QString(program).replace("\"examples/", "\"" VELK_SOURCE_DIR "/examples/").toUtf8());
    file.close();
    const ExitStatus status =
        run(withMapping(path("example.js")) + QStringList{"--output", path("out.csv")});
    QVERIFY2(status == ExitStatus::Done, qPrintable(m_err));
    QString expected;
    for (const QString &line : program.split('\n')) {
        if (line.contains("print("))
            expected += line.section("// ", 1) + '\n';
    }
    QCOMPARE(m_out, expected);
    QCOMPARE(m_err, QString());
}

void tst_ScriptDocuments::manualTellsAllMembers_data()
{
    QTest::addColumn<const proxyMemberDescListS *>("type");
    for (const proxyMemberDescListS *type :
         {prxVelkC::getStaticProxyTypeInfo(), prxErpNumbersC::getStaticProxyTypeInfo(),
          prxReleaseMappingC::getStaticProxyTypeInfo(),
          prxProjectMappingC::getStaticProxyTypeInfo(), prxTextWriterC::getStaticProxyTypeInfo(),
          VKTab::proxyTableC::getStaticProxyTypeInfo()})
        QTest::newRow(type->className) << type;
}

void tst_ScriptDocuments::manualTellsAllMembers()
{
    QFETCH(const proxyMemberDescListS *, type);
    for (const proxyMemberDescS &member : type->members) {
        const bool isMethod = member.kind == proxyMemberDescS::Method;
        const QString name = '`' + QString::fromLatin1(member.name) + (isMethod ? "(" : "`");
        QVERIFY2(m_manual.contains(name), qPrintable(name));
    }
}

void tst_ScriptDocuments::openLines()
{
    const QString script = QStringLiteral(VELK_SOURCE_DIR "/examples/scripts/open-lines.js");
    const ExitStatus status =
        run(withMapping(script) + QStringList{"--output", path("open.csv"), "screws/iso4014"});
    QCOMPARE(m_err, QString());
    QCOMPARE(int(status), 10);
    QCOMPARE(m_out, QString("standardparts/screws/iso4014.prj: 1\n1 open lines\n"));
    const QStringList rows = contentOf(path("open.csv")).split('\n');
    QCOMPARE(rows.size(), 3);
    QCOMPARE(rows.at(0), QString("project,line,designation,why,target,target line"));
    QVERIFY2(rows.at(1).startsWith("standardparts/screws/iso4014.prj,"), qPrintable(rows.at(1)));
    QCOMPARE(run(withMapping(script) + QStringList{"no such project"}), ExitStatus::Done);
    QCOMPARE(m_out, QString("0 open lines\n"));
}

void tst_ScriptDocuments::checkErpNumbers()
{
    {
        PLinkDbC linkDb;
        QVERIFY(linkDb.open(LinkDbSettings::fromText(path("links.db"))));
        const auto insert = [&linkDb](int line, const QString &number) {
            PLinkDbRecordC record = linkDb.createRecord("plm_document");
            record.setValue("PRJ_PATH", "standardparts/screws/din933.prj");
            record.setValue("LINE_ID", line);
            record.setValue("PDMID1", number);
            QVERIFY(linkDb.executeInsertStatement(
                linkDb.createSqlStatement("plm_document", record, false)));
        };
        insert(1, "4711");
        insert(9999, "4711");
    }
    const QString script = QStringLiteral(VELK_SOURCE_DIR "/examples/scripts/check-erp-numbers.js");
    const ExitStatus status = run(withMapping(script) + QStringList{"--linkdb", path("links.db")});
    QCOMPARE(m_err, QString());
    QCOMPARE(int(status), 10);
    const QString place = "standardparts/screws/din933.prj, line ";
    QCOMPARE(m_out, place + "1: 4711 - the line is open\n" + place +
                        "9999: 4711 - the mapping does not know the line\n" + place +
                        "9999: 4711 - line 1 has it, too\n3 findings\n");
    QCOMPARE(run(withMapping(script)), ExitStatus::ScriptFailed);
}

QTEST_GUILESS_MAIN(tst_ScriptDocuments)
#include "tst_ScriptDocuments.moc"
