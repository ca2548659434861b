#include <gui/print/PdfPages.h>

#include <QTest>

#include <thread>

namespace {

qsizetype pagesOf(const QByteArray &pdf)
{
    return pdf.count("/Type /Page\n");
}

QString tableOf(int rows)
{
    QString html = "<table border=\"1\">";
    for (int i = 0; i < rows; ++i)
        html += QString("<tr><td>row %1</td><td align=\"right\">%2</td></tr>").arg(i).arg(i * i);
    return html + "</table>";
}

} // namespace

class tst_PdfPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        s_warnings.clear();
        s_former = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { s_warnings += text; });
    }
    void cleanup()
    {
        qInstallMessageHandler(s_former);
        QCOMPARE(s_warnings, QStringList());
    }
    void isAFile();
    void longTablesGoOn();
    void onAnyThread();

private:
    static inline QStringList s_warnings;
    static inline QtMessageHandler s_former = nullptr;
};

void tst_PdfPages::isAFile()
{
    const QByteArray pdf = PdfPages::ofHtml("<h1>Report</h1><p>A &amp; B</p>", "A <title>");
    QVERIFY(pdf.startsWith("%PDF-"));
    QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    QCOMPARE(pagesOf(pdf), 1);
    QCOMPARE(pagesOf(PdfPages::ofHtml(QString(), QString())), 1);
}

void tst_PdfPages::longTablesGoOn()
{
    const qsizetype few = pagesOf(PdfPages::ofHtml(tableOf(100), QString()));
    const qsizetype many = pagesOf(PdfPages::ofHtml(tableOf(400), QString()));
    QVERIFY2(few >= 1 && many >= 3 * few, qPrintable(QString("%1 %2").arg(few).arg(many)));
}

void tst_PdfPages::onAnyThread()
{
    const QByteArray here = PdfPages::ofHtml(tableOf(50), "t");
    QByteArray there;
    std::thread([&] { there = PdfPages::ofHtml(tableOf(50), "t"); }).join();
    QCOMPARE(pagesOf(there), pagesOf(here));
}

QTEST_MAIN(tst_PdfPages)
#include "tst_PdfPages.moc"
