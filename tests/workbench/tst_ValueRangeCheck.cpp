#include "SessionFixture.h"
#include "TableFixture.h"

#include <workbench/session/tasks/ValueRangeCheck.h>

#include <core/progress/PProgressObserverBase.h>

#include <QTest>

namespace {

const QString Path = QStringLiteral("cat/a.prj");
const QString Target = QStringLiteral("new/t.prj");

ReleaseMappingC releaseWith(const QList<SampleLine> &lines, const QString &target = Target)
{
    ReleaseMappingC release;
    release.setSourceDate(QStringLiteral("2022-01-01"));
    release.addMapping(SessionFixture::mapping(Path, lines, target));
    return release;
}

/// Has whatever it hears of broken off.
class Impatient : public PProgressObserverBase
{
public:
    Impatient() { activate(Thread); }
    Impatient(const Impatient &) = delete;
    Impatient &operator=(const Impatient &) = delete;
    ~Impatient() override { deactivate(); }

    void progressStarted(const PProgressInfo &info) override
    {
        text = info.text;
        info.cancel->request();
    }
    void progressChanged(const PProgressInfo &info) override { text = info.text; }
    void progressDone(const PProgressInfo &info) override { text = info.text; }

    QString text;
};

} // namespace

class tst_ValueRangeCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findings_data();
    void findings();
    void aMissingTableIsToldOnce();
    void manyTargets();
    void canBeCancelled();
    void summaries_data();
    void summaries();

private:
    std::unique_ptr<SessionFixture> m_files;
};

void tst_ValueRangeCheck::init()
{
    m_files = std::make_unique<SessionFixture>();
    TableFixture::write(m_files->path(QString()), Target,
                        {{2, QStringLiteral("a")}, {17, QStringLiteral("b")}});
}

void tst_ValueRangeCheck::findings_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("found"); ///< kind, row, target line
    QTest::addColumn<int>("rows");
    QTest::newRow("known lines") << QStringLiteral("{L=1} -> 2\n{L=2}{D=3} -> 17") << Target
                                 << QStringList() << 2;
    QTest::newRow("empty rows") << QStringLiteral("\n{L=1} -> 2\n\n") << Target << QStringList()
                                << 1;
    QTest::newRow("unknown line") << QStringLiteral("{L=1} -> 2\n{L=2} -> 3") << Target
                                  << QStringList(QStringLiteral("1 2 3")) << 2;
    QTest::newRow("no line") << QStringLiteral("{L=1} -> -1") << Target
                             << QStringList(QStringLiteral("1 1 -1")) << 1;
    QTest::newRow("other text") << QStringLiteral("siehe Norm\n{L=1} -> 2") << Target
                                << QStringList(QStringLiteral("0 1 -1")) << 2;
    QTest::newRow("open brace") << QStringLiteral("{L=1 -> 2") << Target
                                << QStringList(QStringLiteral("0 1 -1")) << 1;
    QTest::newRow("no number") << QStringLiteral("{L=1} -> x") << Target
                               << QStringList(QStringLiteral("0 1 -1")) << 1;
    QTest::newRow("no arrow") << QStringLiteral("{L=1} 2") << Target
                              << QStringList(QStringLiteral("0 1 -1")) << 1;
    QTest::newRow("escaped brace")
        << QStringLiteral("{L=\\}1} -> 2") << Target << QStringList() << 1;
    QTest::newRow("no target") << QStringLiteral("{L=1} -> 2") << QString()
                               << QStringList(QStringLiteral("3 1 2")) << 1;
    QTest::newRow("missing table") << QStringLiteral("{L=1} -> 2") << QStringLiteral("new/x.prj")
                                   << QStringList(QStringLiteral("2 0 -1")) << 1;
    QTest::newRow("wrong text of a missing table")
        << QStringLiteral("{L=1}") << QStringLiteral("new/x.prj")
        << QStringList(QStringLiteral("0 1 -1")) << 1;
}

void tst_ValueRangeCheck::findings()
{
    QFETCH(QString, text);
    QFETCH(QString, target);
    QFETCH(QStringList, found);
    QFETCH(int, rows);
    const ReleaseMappingC release =
        releaseWith({{4, 2, 0, QString(), false}, {5, 2, 2, text, false}}, target);
    const ValueRangeCheck::Result result = ValueRangeCheck::run(release, m_files->path(QString()));
    QStringList told;
    for (const ValueRangeCheck::Finding &finding : result.findings) {
        told += QStringLiteral("%1 %2 %3")
                    .arg(int(finding.kind))
                    .arg(finding.row)
                    .arg(finding.targetLine);
        QCOMPARE(finding.line.project.path, Path);
        QCOMPARE(finding.line.line, 5);
        QCOMPARE(finding.targetPath, target);
        QVERIFY2(finding.text.startsWith(Path), qPrintable(finding.text));
        QVERIFY2(finding.text.contains(QStringLiteral("Bitte")), qPrintable(finding.text));
    }
    QCOMPARE(told, found);
    QCOMPARE(result.texts, 1);
    QCOMPARE(result.rows, rows);
    QVERIFY(!result.cancelled);
}

void tst_ValueRangeCheck::aMissingTableIsToldOnce()
{
    QList<SampleLine> lines;
    for (int i = 1; i <= 600; ++i)
        lines.append({i, 2, 0, QStringLiteral("{L=1} -> 2\n{L=2} -> 2"), false});
    const ValueRangeCheck::Result result = ValueRangeCheck::run(
        releaseWith(lines, QStringLiteral("new/x.prj")), m_files->path(QString()));
    QCOMPARE(result.findings.size(), 1);
    QCOMPARE(result.findings.first().kind, ValueRangeCheck::TableMissing);
    QVERIFY(result.findings.first().text.contains(QStringLiteral("new/x.prj")));
    QVERIFY(result.findings.first().text.contains(m_files->path(QString())));
    QCOMPARE(result.texts, 600);
    QCOMPARE(result.rows, 1200);
}

void tst_ValueRangeCheck::manyTargets()
{
    ReleaseMappingC release;
    for (int i = 0; i < 40; ++i) {
        const QString target = QStringLiteral("new/%1.prj").arg(i);
        TableFixture::write(m_files->path(QString()), target, {{i, QStringLiteral("a")}});
        release.addMapping(SessionFixture::mapping(
            QStringLiteral("cat/%1.prj").arg(i),
            {{1, i, 0, QStringLiteral("{L=1} -> %1\n{L=2} -> 7").arg(i), false}}, target));
    }
    const ValueRangeCheck::Result result = ValueRangeCheck::run(release, m_files->path(QString()));
    QCOMPARE(result.findings.size(), 39); // the seventh alone has that line
    QCOMPARE(result.findings.first().line.project.path, QStringLiteral("cat/0.prj"));
    QCOMPARE(result.findings.last().line.project.path, QStringLiteral("cat/39.prj"));
}

void tst_ValueRangeCheck::canBeCancelled()
{
    Impatient observer;
    const ValueRangeCheck::Result result = ValueRangeCheck::run(
        releaseWith({{5, 2, 2, QStringLiteral("x"), false}}), m_files->path(QString()));
    QVERIFY(result.cancelled);
    QVERIFY(result.findings.isEmpty());
    QCOMPARE(observer.text, QStringLiteral("Wertebereichszuordnungen werden geprüft"));
}

void tst_ValueRangeCheck::summaries_data()
{
    QTest::addColumn<int>("texts");
    QTest::addColumn<int>("findings");
    QTest::addColumn<bool>("cancelled");
    QTest::addColumn<QString>("text");
    QTest::newRow("good") << 12 << 0 << false
                          << QStringLiteral(
                                 "12 Wertebereichszuordnungen geprüft: keine Beanstandung.");
    QTest::newRow("one") << 1 << 1 << false
                         << QStringLiteral("1 Wertebereichszuordnung geprüft: 1 Beanstandung.");
    QTest::newRow("cancelled")
        << 0 << 3 << true
        << QStringLiteral("0 Wertebereichszuordnungen geprüft (abgebrochen): 3 Beanstandungen.");
}

void tst_ValueRangeCheck::summaries()
{
    QFETCH(int, texts);
    QFETCH(int, findings);
    QFETCH(bool, cancelled);
    QFETCH(QString, text);
    ValueRangeCheck::Result result;
    result.texts = texts;
    result.findings.resize(findings);
    result.cancelled = cancelled;
    QCOMPARE(result.summary(), text);
}

QTEST_GUILESS_MAIN(tst_ValueRangeCheck)

#include "tst_ValueRangeCheck.moc"
