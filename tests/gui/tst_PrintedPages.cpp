#include "TextCollector.h"

#include <gui/print/HtmlPages.h>
#include <gui/print/PdfPages.h>
#include <gui/print/TablePages.h>

#include <QBuffer>
#include <QHeaderView>
#include <QPageRanges>
#include <QPainter>
#include <QPdfWriter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <thread>

namespace {

const PageHead head{"release 1 to 2", "page %1 of %2"};

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

/// A small page in a file in memory.
struct Paper
{
    Paper()
    {
        buffer.open(QIODevice::WriteOnly);
        writer.setResolution(300);
        writer.setPageSize(QPageSize(QPageSize::A5));
    }

    QByteArray bytes;
    QBuffer buffer{&bytes};
    QPdfWriter writer{&buffer};
};

PageTexts pageOf(const PrintedPages &pages, const Paper &paper, int page)
{
    TextCollector texts(QSize(paper.writer.width(), paper.writer.height()), 300);
    QPainter painter(&texts);
    pages.paintPage(painter, page);
    painter.end();
    return texts.page();
}

/// A view of cells "r0c0", "r0c1", ...
struct Table
{
    Table(int rows, int columns)
        : model(rows, columns)
    {
        for (int column = 0; column < columns; ++column) {
            model.setHeaderData(column, Qt::Horizontal, QString("caption%1").arg(column));
            for (int row = 0; row < rows; ++row)
                model.setItem(row, column,
                              new QStandardItem(QString("r%1c%2").arg(row).arg(column)));
        }
        view.setModel(&model);
    }

    QStandardItemModel model;
    QTableView view;
};

} // namespace

class tst_PrintedPages : public QObject
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
        QCOMPARE(s_warnings.join(QChar(59)), QString());
    }
    void isAFile();
    void longTablesGoOn();
    void onAnyThread();
    void headOfEachPage();
    void longHeadIsCut();
    void rangeOfPages();
    void darkOnWhite();
    void rowsGoOn();
    void wholeRowsOnly();
    void columnsAsShown();
    void aLittleTooWideIsMadeSmaller();
    void muchTooWideGoesOnBeside();
    void wideFirstColumnsAreNotRepeated();
    void longTextsAreWrapped();
    void icons();
    void moreRowsAreCounted();
    void noRows();
    void unwritable();

private:
    static inline QStringList s_warnings;
    static inline QtMessageHandler s_former = nullptr;
};

void tst_PrintedPages::isAFile()
{
    const QByteArray pdf = PdfPages::ofHtml("<h1>Report</h1><p>A &amp; B</p>", "A <title>", head);
    QVERIFY(pdf.startsWith("%PDF-"));
    QVERIFY(pdf.trimmed().endsWith("%%EOF"));
    QCOMPARE(pagesOf(pdf), 1);
    QCOMPARE(pagesOf(PdfPages::ofHtml(QString(), QString(), {})), 1);
}

void tst_PrintedPages::longTablesGoOn()
{
    const qsizetype few = pagesOf(PdfPages::ofHtml(tableOf(100), QString(), head));
    const qsizetype many = pagesOf(PdfPages::ofHtml(tableOf(400), QString(), head));
    QVERIFY2(few >= 1 && many >= 3 * few, qPrintable(QString("%1 %2").arg(few).arg(many)));
}

void tst_PrintedPages::onAnyThread()
{
    const QByteArray here = PdfPages::ofHtml(tableOf(50), "t", head);
    QByteArray there;
    std::thread([&] { there = PdfPages::ofHtml(tableOf(50), "t", head); }).join();
    QCOMPARE(pagesOf(there), pagesOf(here));
}

void tst_PrintedPages::headOfEachPage()
{
    Paper paper;
    const HtmlPages pages(paper.writer, tableOf(200), head);
    QVERIFY(pages.count() > 2);
    QStringList rows;
    for (int page = 0; page < pages.count(); ++page) {
        const PageTexts texts = pageOf(pages, paper, page);
        const auto *const left = texts.find("release 1 to 2");
        const auto *const right =
            texts.find(QString("page %1 of %2").arg(page + 1).arg(pages.count()));
        QVERIFY(left && right);
        QCOMPARE(left->place.x(), 0);
        QCOMPARE(left->place.y(), right->place.y());
        QVERIFY(right->place.x() > paper.writer.width() / 2.0);
        for (const PageTexts::Text &text : texts.texts) {
            QVERIFY(&text == left || &text == right || text.place.y() > left->place.y());
            if (text.text.startsWith("row "))
                rows << text.text;
        }
    }
    // Each row once; one may be cut by the end of a page and stand on both.
    rows.removeDuplicates();
    QCOMPARE(rows.size(), 200);
}

void tst_PrintedPages::longHeadIsCut()
{
    Paper paper;
    const HtmlPages pages(paper.writer, "x", {QString("begin").repeated(99) + "end", "%1/%2"});
    const PageTexts texts = pageOf(pages, paper, 0);
    QVERIFY(texts.find("1/1"));
    const QString shown = texts.texts.first().text;
    QVERIFY2(shown.startsWith("begin") && shown.endsWith("end") && shown.contains(u'…'),
             qPrintable(shown));
}

void tst_PrintedPages::rangeOfPages()
{
    Paper paper;
    paper.writer.setPageRanges(QPageRanges::fromString("2-3"));
    QVERIFY(HtmlPages(paper.writer, tableOf(200), head).print());
    QCOMPARE(pagesOf(paper.bytes), 2);
}

/// Also where windows are light on dark.
void tst_PrintedPages::darkOnWhite()
{
    const QPalette former = QGuiApplication::palette();
    QGuiApplication::setPalette(QPalette(Qt::white, Qt::black));
    Paper paper;
    const Table table(1, 1);
    const HtmlPages html(paper.writer, "MMMM", {});
    const TablePages rows(paper.writer, table.view, {}, {});
    for (const PrintedPages *const pages :
         {static_cast<const PrintedPages *>(&html), static_cast<const PrintedPages *>(&rows)}) {
        QImage image(paper.writer.width(), paper.writer.height(), QImage::Format_RGB32);
        image.setDotsPerMeterX(int(300 / 0.0254));
        image.setDotsPerMeterY(int(300 / 0.0254));
        image.fill(Qt::white);
        QPainter painter(&image);
        pages->paintPage(painter, 0);
        painter.end();
        int dark = 0;
        for (int y = image.height() / 100; y < image.height() / 4; ++y) {
            for (int x = 0; x < image.width() / 4; ++x)
                dark += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
        }
        QVERIFY2(dark > 100 && dark < image.width() * image.height() / 40,
                 qPrintable(QString::number(dark)));
    }
    QGuiApplication::setPalette(former);
}

void tst_PrintedPages::rowsGoOn()
{
    Paper paper;
    const Table table(150, 3);
    const TablePages pages(paper.writer, table.view, {}, head);
    QVERIFY(pages.count() > 1);
    QStringList rows;
    for (int page = 0; page < pages.count(); ++page) {
        const PageTexts texts = pageOf(pages, paper, page);
        QVERIFY(texts.find("caption0") && texts.find("caption2"));
        for (const QString &text : texts.all()) {
            if (text.endsWith("c0"))
                rows << text;
        }
    }
    QCOMPARE(rows.size(), 150);
    QCOMPARE(rows.first(), "r0c0");
    QCOMPARE(rows.last(), "r149c0");
    QVERIFY(pages.print());
    QCOMPARE(pagesOf(paper.bytes), pages.count());
}

void tst_PrintedPages::wholeRowsOnly()
{
    Paper paper;
    const Table table(150, 1);
    const TablePages pages(paper.writer, table.view, {}, head);
    for (int page = 0; page < pages.count(); ++page) {
        for (const PageTexts::Text &text : pageOf(pages, paper, page).texts)
            QVERIFY(text.place.y() < paper.writer.height());
    }
}

void tst_PrintedPages::columnsAsShown()
{
    Paper paper;
    Table table(1, 3);
    table.view.horizontalHeader()->moveSection(0, 2); // 1 2 0
    table.view.setColumnHidden(2, true);
    const TablePages pages(paper.writer, table.view, {}, {});
    QCOMPARE(pageOf(pages, paper, 0).all(), (QStringList{"caption1", "caption0", "r0c1", "r0c0"}));
}

void tst_PrintedPages::aLittleTooWideIsMadeSmaller()
{
    Paper paper;
    int columns = 3;
    while (TablePages(paper.writer, Table(1, columns).view, {}, {}).count() == 1)
        ++columns;
    // The last number of columns that fits does by a smaller font.
    const Table table(1, columns - 1);
    const TablePages pages(paper.writer, table.view, {}, {});
    const PageTexts texts = pageOf(pages, paper, 0);
    QVERIFY(texts.texts.first().points < 0.95 * PrintedPages::font().pointSizeF());
    QVERIFY(texts.texts.first().points >= 0.7 * PrintedPages::font().pointSizeF() - 0.01);
    QVERIFY(texts.find(QString("caption%1").arg(columns - 2))->place.x() < paper.writer.width());
}

void tst_PrintedPages::muchTooWideGoesOnBeside()
{
    Paper paper;
    const Table table(60, 30);
    const TablePages pages(paper.writer, table.view, {.repeated = 2}, {});
    QStringList cells;
    int firstRows = 0;
    for (int page = 0; page < pages.count(); ++page) {
        const PageTexts texts = pageOf(pages, paper, page);
        QCOMPARE(texts.texts.first().points, PrintedPages::font().pointSizeF());
        QVERIFY(texts.find("caption0") && texts.find("caption1"));
        firstRows += texts.find("r0c0") ? 1 : 0;
        for (const PageTexts::Text &text : texts.texts)
            QVERIFY(text.place.x() < paper.writer.width());
        cells += texts.all().filter(QRegularExpression("^r\\d+c\\d+$"));
    }
    // The pages of the first rows come first.
    QVERIFY(firstRows > 1 && firstRows < pages.count());
    for (int page = 0; page < firstRows; ++page)
        QVERIFY(pageOf(pages, paper, page).find("r0c1"));
    cells.removeDuplicates();
    QCOMPARE(cells.size(), 60 * 30);
}

void tst_PrintedPages::wideFirstColumnsAreNotRepeated()
{
    Paper paper;
    Table table(1, 20);
    table.model.item(0, 0)->setText(QString("wide ").repeated(50));
    table.model.item(0, 1)->setText(QString("wide ").repeated(50));
    const TablePages pages(paper.writer, table.view, {.repeated = 2}, {});
    QVERIFY(pages.count() > 1);
    QVERIFY(pageOf(pages, paper, 0).find("caption0"));
    QVERIFY(!pageOf(pages, paper, 1).find("caption0"));
}

void tst_PrintedPages::longTextsAreWrapped()
{
    Paper paper;
    Table table(2, 2);
    QStringList words;
    for (int i = 0; i < 60; ++i)
        words << QString("word%1").arg(i);
    table.model.item(0, 0)->setText(words.join(' '));
    const TablePages pages(paper.writer, table.view, {}, {});
    const PageTexts texts = pageOf(pages, paper, 0);
    QString all = texts.all().join(' ');
    for (const QString &word : words)
        QVERIFY2(all.contains(word), qPrintable(word));
    // What follows stands below.
    qreal lowest = 0;
    for (const PageTexts::Text &text : texts.texts)
        lowest = text.text.contains("word") ? std::max(lowest, text.place.y()) : lowest;
    QVERIFY(texts.find("r1c0")->place.y() > lowest);
}

void tst_PrintedPages::icons()
{
    Paper paper;
    Table table(2, 2);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    table.model.item(1, 0)->setIcon(pixmap);
    table.model.item(1, 0)->setText(QString());
    const TablePages pages(paper.writer, table.view, {}, {});
    QCOMPARE(pageOf(pages, paper, 0).pixmaps, 1);
}

void tst_PrintedPages::moreRowsAreCounted()
{
    Paper paper;
    const Table table(150, 1);
    const TablePages pages(paper.writer, table.view, {.mostRows = 100, .more = "and 50 more"}, {});
    const PageTexts last = pageOf(pages, paper, pages.count() - 1);
    QVERIFY(last.find("r99c0") && !last.find("r100c0"));
    QVERIFY(last.find("and 50 more"));
    QVERIFY(last.find("and 50 more")->place.y() > last.find("r99c0")->place.y());
    QVERIFY(!pageOf(pages, paper, 0).find("and 50 more"));
}

void tst_PrintedPages::noRows()
{
    Paper paper;
    const Table table(0, 2);
    const TablePages pages(paper.writer, table.view, {}, head);
    QCOMPARE(pages.count(), 1);
    QCOMPARE(pageOf(pages, paper, 0).all(),
             (QStringList{"release 1 to 2", "page 1 of 1", "caption0", "caption1"}));
}

void tst_PrintedPages::unwritable()
{
    QPdfWriter writer(QStringLiteral("/no such folder/pages.pdf"));
    const bool printed = HtmlPages(writer, "x", head).print();
    s_warnings.clear(); // Qt's own
    QVERIFY(!printed);
}

QTEST_MAIN(tst_PrintedPages)
#include "tst_PrintedPages.moc"
