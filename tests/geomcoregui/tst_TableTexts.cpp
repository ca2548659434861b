#include "ViewTables.h"

#include <geomcore/value/LangThreadSettings.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QTest>

#include <memory>

using VKTab::ContentRef;
using VKTab::LangThreadSettings;

/// What a view reads of its table: in the user's language, whatever its caller reads in, and no
/// more of a text than can be seen.
class tst_TableTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        view.reset();
        LangThreadSettings::setCommonLanguage(QString());
    }

    void readsTranslatedUnderAGuard()
    {
        showTranslated();
        LangThreadSettings guard;
        guard.disableTranslation(true);
        QCOMPARE(texts(), QStringList({"bare", "a rather long translated text"}));
        QVERIFY(LangThreadSettings::isTranslationDisabled()); // the caller's own reading goes on so
        QCOMPARE(table.getLine(VKTab::LineId(1), false)
                     .getValue(table.getVar(u"Finish"), {}, {})
                     .toString(),
                 QString("Blank"));
    }

    void measuresTranslatedUnderAGuard()
    {
        showTranslated();
        const int width = grid()->columnWidth(0);
        LangThreadSettings guard;
        guard.disableTranslation(true);
        view->setTable(ContentRef());
        view->setTable(table);
        QCOMPARE(grid()->columnWidth(0), width);
        view->setZoomFactor(2);
        view->setZoomFactor(1);
        QCOMPARE(grid()->columnWidth(0), width);
        QCOMPARE(view->findChild<QLabel *>("tableTitle")->text(), QString("N 1 – Screw"));
    }

    void filtersTranslatedUnderAGuard()
    {
        showTranslated();
        const VKTab::VarId finish = table.getVar(u"Finish").getVarId();
        {
            LangThreadSettings guard;
            guard.disableTranslation(true);
            model()->setQuickFilter(finish, "bare");
            QCOMPARE(texts(), QStringList{"bare"});
        }
        QCOMPARE(texts(), QStringList{"bare"});
        table.invalidate(VKTab::Content::InvalidateValues, true);
        QCOMPARE(texts(), QStringList{"bare"});
        {
            LangThreadSettings guard;
            guard.disableTranslation(true);
            model()->clearQuickFilters();
            QCOMPARE(model()->find("rather", {}, false), model()->index(1, 0));
            QVERIFY(!model()->find("Blank", {}, false).isValid());
            model()->sort(0, Qt::AscendingOrder);
        }
        QCOMPARE(texts(), QStringList({"a rather long translated text", "bare"}));
    }

    void longTextsAreCut_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QString &text, const QString &shown) {
            QTest::newRow(name) << text << shown;
        };
        const QString dots(QChar(0x2026));
        row("as long as is shown", QString(1000, 'x'), QString(1000, 'x'));
        row("longer", QString(1001, 'x'), QString(1000, 'x') + dots);
        row("far longer", QString(100000, 'x'), QString(1000, 'x') + dots);
        row("of more bytes", QString(1000, QChar(0x20AC)), QString(1000, QChar(0x20AC)));
        row("far longer of more bytes", QString(5000, QChar(0x20AC)),
            QString(1000, QChar(0x20AC)) + dots);
        row("pairs", QStringLiteral("x") + QString::fromUcs4(U"\U0001F600").repeated(9000),
            QStringLiteral("x") + QString::fromUcs4(U"\U0001F600").repeated(499) + dots);
        row("in quotes", QString(5000, '"'), QString(1000, '"') + dots);
    }
    void longTextsAreCut()
    {
        QFETCH(QString, text);
        QString field = text;
        show(plainDescriptor(), "Finish\n\"" + field.replace('"', "\"\"") + "\"\nz\n");
        QTEST(model()->index(0, 0).data().toString(), "shown");
        QVERIFY(model()->index(0, 0).data().toString().isValidUtf16());
        QCOMPARE(model()->index(0, 0).data(VkTableModel::WholeTextRole).toString(), text);
        QCOMPARE(model()->index(1, 0).data().toString(), QString("z"));
        // Whoever copies gets all of it, and finding and filtering look at all of it.
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                          grid()->visualRect(model()->index(0, 0)).center());
        QTest::keyClick(grid(), Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().size() > text.size());
        model()->setQuickFilter(model()->variable(0).getVarId(), text.right(900));
        QCOMPARE(model()->rowCount(), 1);
    }

    void longChangedTextIsCut()
    {
        show(plainDescriptor(), "Finish\na\nb\n");
        const VKTab::VarId id = table.getVar(u"Finish").getVarId();
        table.getModifyLayer()->setValue(id, VKTab::LineId(1), VKTab::Value(QString(3000, 'y')));
        QCOMPARE(model()->index(0, 0).data().toString().size(), 1001);
        QCOMPARE(model()->index(0, 0).data(VkTableModel::WholeTextRole).toString().size(), 3000);
    }

    void longRangeIsCutAndHasNoListOfValues()
    {
        VKTab::TableDescriptor descriptor = TestTables::screwDescriptor();
        QString range;
        for (int i = 0; i < 5000; ++i)
            range += QString::number(i) + ';';
        show(descriptor, "Dia,L,Note,Weight\n10,\"" + range.chopped(1) + "\",x,1\n11,1;2,x,1\n");
        const int column = model()->columnOf(table.getVar(u"L").getVarId());
        QCOMPARE(model()->index(0, column).data(VkTableModel::RangeRole).toString().size(), 1001);
        QCOMPARE(model()->index(0, column).data(Qt::ToolTipRole).toString(), QString());
        QVERIFY(!model()->index(1, column).data(Qt::ToolTipRole).toString().isEmpty());
    }

    // So wide as what is seen, at most.
    void widthOfLongTexts()
    {
        show(plainDescriptor(), "Finish\n" + QString(2'000'000, 'i') + "\n");
        const int width = grid()->columnWidth(0);
        QVERIFY(width > 100 && width <= 360);
        grid()->grab();
        // The same by a double click on the edge of its caption.
        const QHeaderView *const header = grid()->horizontalHeader();
        grid()->setColumnWidth(0, 203);
        const QPoint edge(header->sectionViewportPosition(0) + 202, header->height() / 2);
        QTest::mouseMove(header->viewport(), edge);
        QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, edge);
        QCOMPARE(grid()->columnWidth(0), width);
    }

private:
    static VKTab::TableDescriptor plainDescriptor()
    {
        VKTab::TableDescriptor descriptor;
        descriptor.normNumber = QStringLiteral("N 1");
        descriptor.designation = QStringLiteral("Schraube");
        descriptor.fields = {TestTables::field(QStringLiteral("Finish"))};
        return descriptor;
    }
    void showTranslated()
    {
        LangThreadSettings::setCommonLanguage(QStringLiteral("en"));
        VKTab::TableDescriptor descriptor = plainDescriptor();
        descriptor.fields[0].translations[QStringLiteral("en")] = {
            {QStringLiteral("Blank"), QStringLiteral("bare")},
            {QStringLiteral("Zn"), QStringLiteral("a rather long translated text")}};
        descriptor.translations[QStringLiteral("en")] = {
            {QStringLiteral("Schraube"), QStringLiteral("Screw")}};
        show(descriptor, QStringLiteral("Finish\nBlank\nZn\n"));
    }
    void show(const VKTab::TableDescriptor &descriptor, const QString &csv)
    {
        table = TestTables::table(descriptor, csv);
        view = std::make_unique<VkTableView>();
        view->resize(700, 300);
        view->setTable(table);
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view.get()));
    }
    [[nodiscard]] VkTableModel *model() const
    {
        return qobject_cast<VkTableModel *>(grid()->model());
    }
    [[nodiscard]] QTableView *grid() const { return view->findChild<QTableView *>("grid"); }
    [[nodiscard]] QStringList texts() const
    {
        QStringList result;
        for (int row = 0; row < model()->rowCount(); ++row)
            result.append(model()->index(row, 0).data().toString());
        return result;
    }

    ContentRef table;
    std::unique_ptr<VkTableView> view;
};

QTEST_MAIN(tst_TableTexts)
#include "tst_TableTexts.moc"
