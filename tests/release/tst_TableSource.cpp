#include "../support/EnglishTexts.h"
#include "../support/TestCatalog.h"
#include <release/import/SourceText.h>
#include <release/import/TableSource.h>

#include <QTemporaryDir>
#include <QTest>

using namespace VelkRelease;

namespace {

/// Cells separated by bars; an empty file is wrong.
class Bars : public TableSource
{
public:
    explicit Bars(QStringList endings)
        : m_endings(std::move(endings))
    {
    }
    QStringList endings() const override { return m_endings; }
    QByteArray toCsv(const QByteArray &file, VKTab::TableError *error) const override
    {
        if (file.isEmpty()) {
            error->row = 1;
            error->column = 2;
            error->text = "there is nothing";
            return {};
        }
        return QByteArray(file.constData(), file.size()).replace('|', ',');
    }

private:
    const QStringList m_endings;
};

} // namespace

class tst_TableSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void registers();
    void reads();
};

void tst_TableSource::registers()
{
    QVERIFY(!TableSource::of("a.bar"));
    QVERIFY(!TableSource::add(std::make_unique<Bars>(QStringList())));
    QVERIFY(!TableSource::add(std::make_unique<Bars>(QStringList{"csv"})));
    QVERIFY(TableSource::add(std::make_unique<Bars>(QStringList{"bar", "pipe"})));
    QVERIFY(!TableSource::add(std::make_unique<Bars>(QStringList{"tube", "pipe"})));
    QVERIFY(TableSource::of("/x/a.b.BAR"));
    QVERIFY(TableSource::of("a.pipe"));
    QVERIFY(!TableSource::of("a.tube"));
    QVERIFY(!TableSource::of("bar"));
}

void tst_TableSource::reads()
{
    const QTemporaryDir dir;
    const TestCatalog catalog(dir.path());
    catalog.writeFile("a.bar", "A|B\n1|2\n");
    SourceText text(dir.filePath("a.bar"), {});
    QVERIFY(text.read());
    QVERIFY(!text.isAsWritten());
    QCOMPARE(text.csv(), QByteArray("A,B\n1,2\n"));
    QVERIFY(text.notes().isEmpty());

    catalog.writeFile("b.bar", "");
    SourceText empty(dir.filePath("b.bar"), {});
    QVERIFY(!empty.read());
    QCOMPARE(empty.errors().size(), 1);
    QCOMPARE(empty.errors()[0].toString(),
             dir.filePath("b.bar") + ": row 1, column 2: there is nothing");
}

QTEST_GUILESS_MAIN(tst_TableSource)
#include "tst_TableSource.moc"
