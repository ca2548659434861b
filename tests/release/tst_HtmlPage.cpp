#include <release/report/HtmlPage.h>

#include <QTest>

using VelkRelease::HtmlPage;

namespace {

/// What stands in the page below its title.
QString bodyOf(HtmlPage &page)
{
    const QString html = page.end();
    const qsizetype begin = html.indexOf("</h1>\n") + 6;
    return html.mid(begin, html.indexOf("</body>") - begin);
}

} // namespace

class tst_HtmlPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWholePage()
    {
        HtmlPage page({});
        page.begin("a < b", "d\"e");
        const QString html = page.end();
        QVERIFY(html.startsWith("<!DOCTYPE html>\n<html lang=\"d&quot;e\">\n"));
        QVERIFY(html.contains("<title>a &lt; b</title>"));
        QVERIFY(html.contains("<h1>a &lt; b</h1>"));
        QVERIFY(html.endsWith("</body>\n</html>\n"));
    }

    void textsArePlain()
    {
        HtmlPage page({});
        page.begin({}, {});
        page.heading("<1>");
        page.paragraph({"<2>", "3"});
        page.strongParagraph("<4>");
        page.list({"<5>", "6"});
        QCOMPARE(bodyOf(page), QString("<h2>&lt;1&gt;</h2>\n<p>&lt;2&gt;<br>3</p>\n"
                                       "<p><b>&lt;4&gt;</b></p>\n"
                                       "<ul>\n<li>&lt;5&gt;</li>\n<li>6</li>\n</ul>\n"));
    }

    void cellsOfATable()
    {
        HtmlPage page({});
        page.begin({}, {});
        page.beginTable();
        page.beginHead();
        page.heads({"<a>"});
        page.numberHeads({"<n>"});
        page.endHead();
        page.rows(1, 2, [&](std::size_t) {
            page.cell("<b>");
            page.number(7);
            page.number(QString("<8>"));
            page.emptyCells(2);
        });
        page.endTable();
        QCOMPARE(bodyOf(page),
                 QString("<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n"
                         "<thead><tr><th align=\"left\">&lt;a&gt;</th>"
                         "<th class=\"n\" align=\"right\">&lt;n&gt;</th></tr></thead>\n"
                         "<tr><td>&lt;b&gt;</td><td class=\"n\" align=\"right\">7</td>"
                         "<td class=\"n\" align=\"right\">&lt;8&gt;</td>"
                         "<td colspan=\"2\"></td></tr>\n</table>\n"));
    }

    void rowsOfATable_data()
    {
        QTest::addColumn<int>("most");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("rows");
        QTest::newRow("all") << -1 << 3 << "0 1 2";
        QTest::newRow("just as many") << 3 << 3 << "0 1 2";
        QTest::newRow("more") << 2 << 5 << "0 1 and 3 <more>";
        QTest::newRow("none at all") << -1 << 0 << "nothing";
        QTest::newRow("none are told") << 0 << 2 << "and 2 <more>";
    }

    void rowsOfATable()
    {
        QFETCH(const int, most);
        QFETCH(const int, count);
        HtmlPage page({most, "nothing", "and %1 <more>"});
        page.begin({}, {});
        page.rows(std::size_t(count), 4, [&](std::size_t i) { page.cell(QString::number(i)); });
        QString rows = bodyOf(page);
        rows.replace("<td colspan=\"4\">", "<td>").replace("&lt;", "<").replace("&gt;", ">");
        rows.remove("<tr><td>").replace("</td></tr>\n", " ");
        QTEST(rows.trimmed(), "rows");
    }
};

QTEST_GUILESS_MAIN(tst_HtmlPage)
#include "tst_HtmlPage.moc"
