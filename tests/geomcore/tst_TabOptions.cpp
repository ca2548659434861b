#include "../support/SlotOrder.h"

#include <core/config/PConfigInst.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/TabOptions.h>

#include <QTemporaryDir>
#include <QTest>

using namespace VKTab;

class tst_TabOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheOrderOfItsOperations();
    void startsPlain();
    void keepsWhatIsSet();
    void statusKeysAreValues();
    void aKeyReplacesOneOfItsName();
    void cloneIsIndependent();
    void loadsWhatTheConfigurationSays();
    void loadingNothingChangesNothing();
    void statusValuesAreDressedByReference();
    void toolTipHandlersAreAskedWhenShown();
};

void tst_TabOptions::keepsTheOrderOfItsOperations()
{
    QCOMPARE(slotOf(&TabOptions::setShowOnlyPrefRanges), 2);
    QCOMPARE(slotOf(&TabOptions::setPrefRangeCondition), 3);
    QCOMPARE(slotOf(&TabOptions::setPrefRangeReadOnly), 4);
    QCOMPARE(slotOf(&TabOptions::setExportCondition), 5);
    QCOMPARE(slotOf(&TabOptions::setExportOnlyDbRows), 6);
    QCOMPARE(slotOf(&TabOptions::setSelectExportableRow), 7);
    QCOMPARE(slotOf(&TabOptions::setToolTipTextExportOn), 8);
    QCOMPARE(slotOf(&TabOptions::setToolTipTextExportOff), 9);
    QCOMPARE(slotOf(&TabOptions::getShowOnlyPrefRanges), 10);
    QCOMPARE(slotOf(&TabOptions::getPrefRangeCondition), 11);
    QCOMPARE(slotOf(&TabOptions::getPrefRangeReadOnly), 12);
    QCOMPARE(slotOf(&TabOptions::getExportCondition), 13);
    QCOMPARE(slotOf(&TabOptions::getExportOnlyDbRows), 14);
    QCOMPARE(slotOf(&TabOptions::getSelectExportableRow), 15);
    QCOMPARE(slotOf(&TabOptions::getToolTipTextExportOn), 16);
    QCOMPARE(slotOf(&TabOptions::getToolTipTextExportOff), 17);
    QCOMPARE(slotOf(&TabOptions::getStatusIcons), 18);
    QCOMPARE(slotOf(&TabOptions::getStatusKey), 19);
    QCOMPARE(slotOf(&TabOptions::setStatusKey), 20);
    QCOMPARE(slotOf(&TabOptions::clone), 21);
}

void tst_TabOptions::startsPlain()
{
    const TabOptions options;
    QVERIFY(!options.isStatusColumnsShown());
    QVERIFY(!options.getShowOnlyPrefRanges());
    QVERIFY(!options.getExportOnlyDbRows());
    QVERIFY(!options.getSelectExportableRow());
    QCOMPARE(options.getPrefRangeReadOnly(), 0);
    QVERIFY(options.getStatusIcons().isEmpty());
    QVERIFY(!options.getStatusKey("CatalogMapper").isValid());
    QVERIFY(!options.getStatusKey("").isValid());
}

namespace {

void fill(TabOptions &options)
{
    options.setShowOnlyPrefRanges(true);
    options.setPrefRangeCondition("A .EQ. 1");
    options.setPrefRangeReadOnly(1);
    options.setExportCondition("B .EQ. 2");
    options.setExportOnlyDbRows(true);
    options.setSelectExportableRow(true);
    options.setToolTipTextExportOn("an");
    options.setToolTipTextExportOff("aus");
    options.setStatusColumnsShown(true);
}

QStringList dump(const TabOptions &options)
{
    return {QString::number(options.getShowOnlyPrefRanges()),
            options.getPrefRangeCondition(),
            QString::number(options.getPrefRangeReadOnly()),
            options.getExportCondition(),
            QString::number(options.getExportOnlyDbRows()),
            QString::number(options.getSelectExportableRow()),
            options.getToolTipTextExportOn(),
            options.getToolTipTextExportOff(),
            QString::number(options.isStatusColumnsShown())};
}

const QStringList filled{"1", "A .EQ. 1", "1", "B .EQ. 2", "1", "1", "an", "aus", "1"};

} // namespace

void tst_TabOptions::keepsWhatIsSet()
{
    TabOptions options;
    fill(options);
    QCOMPARE(dump(options), filled);
}

void tst_TabOptions::statusKeysAreValues()
{
    TabOptions options;
    StatusKey key(static_cast<StatusKey::KeyType>(1), "CatalogMapper");
    key.addValue("M").setImageFile(":/m.png");
    options.setStatusKey(key);
    key.addValue("late");
    const StatusKey stored = options.getStatusKey("CatalogMapper");
    QVERIFY(stored.isValid());
    QCOMPARE(stored.getKeyType(), StatusKey::IconColumn);
    QCOMPARE(stored.getName(), "CatalogMapper");
    QVERIFY(!stored.findValue("late"));
    QCOMPARE(stored.findValue("M")->getImageFile(), ":/m.png");
    QVERIFY(!options.getStatusKey("catalogmapper").isValid());
    options.setStatusKey(StatusKey());
    QCOMPARE(options.getStatusIcons().size(), 1);
}

void tst_TabOptions::aKeyReplacesOneOfItsName()
{
    TabOptions options;
    options.setStatusKey(StatusKey(StatusKey::IconColumn, "A"));
    options.setStatusKey(StatusKey(StatusKey::IconColumn, "B"));
    StatusKey key(StatusKey::IconColumn, "A");
    key.addValue("x");
    options.setStatusKey(key);
    QCOMPARE(options.getStatusIcons().size(), 2);
    QCOMPARE(options.getStatusIcons().at(0).getName(), "A");
    QVERIFY(options.getStatusIcons().at(0).findValue("x"));
    QCOMPARE(options.getStatusIcons().at(1).getName(), "B");
}

void tst_TabOptions::cloneIsIndependent()
{
    TabOptions options;
    fill(options);
    options.setStatusKey(StatusKey(StatusKey::IconColumn, "A"));
    const auto copy = options.clone();
    QCOMPARE(dump(*copy), filled);
    QVERIFY(copy->getStatusKey("A").isValid());
    copy->setPrefRangeReadOnly(5);
    copy->setStatusKey(StatusKey(StatusKey::IconColumn, "B"));
    QCOMPARE(dump(options), filled);
    QVERIFY(!options.getStatusKey("B").isValid());
}

void tst_TabOptions::loadsWhatTheConfigurationSays()
{
    QTemporaryDir dir;
    const QString path = dir.filePath("velkopt.cfg");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[TabOptions]\nShowOnlyPrefRanges=true\nPrefRangeCondition=A .EQ. 1\n"
               "PrefRangeReadOnly=1\nExportCondition=B .EQ. 2\nExportOnlyDbRows=1\n"
               "SelectExportableRow=yes\nToolTipTextExportOn=an\nToolTipTextExportOff=aus\n");
    file.close();
    TabOptions options;
    options.setStatusColumnsShown(true);
    options.load(PRefPtr<PConfig>(new PConfigInst(path, true)));
    QCOMPARE(dump(options), filled);
}

void tst_TabOptions::loadingNothingChangesNothing()
{
    TabOptions options;
    fill(options);
    options.load(PRefPtr<PConfig>());
    QCOMPARE(dump(options), filled);
    QTemporaryDir dir;
    options.load(PRefPtr<PConfig>(new PConfigInst(dir.filePath("none.cfg"), true)));
    QCOMPARE(dump(options), filled);
}

void tst_TabOptions::statusValuesAreDressedByReference()
{
    StatusKey key(StatusKey::IconColumn, "K");
    StatusValue &first = key.addValue("M");
    for (int i = 0; i < 100; ++i)
        key.addValue(QString::number(i));
    first.setImageFile("m.png");
    first.setToolTipText("tip");
    QCOMPARE(key.findValue("M")->getImageFile(), "m.png");
    QCOMPARE(key.findValue("M")->getToolTipText(), "tip");
    QCOMPARE(&key.addValue("M"), &first);
    QCOMPARE(key.getValues().size(), 101u);
    QCOMPARE(key.getValues().front().getText(), "M");
    QVERIFY(!key.findValue("N"));
}

void tst_TabOptions::toolTipHandlersAreAskedWhenShown()
{
    StatusValue value("C");
    QVERIFY(!value.getToolTipHandler2());
    int asked = 0;
    value.setToolTipHandler2([&](const LineI &, int row, int icon, QWidget *) {
        ++asked;
        return QString("%1/%2").arg(row).arg(icon);
    });
    QCOMPARE(asked, 0);
    QCOMPARE(value.getToolTipHandler2()(Line(), 3, 1, nullptr), "3/1");
    QCOMPARE(asked, 1);
}

QTEST_GUILESS_MAIN(tst_TabOptions)
#include "tst_TabOptions.moc"
