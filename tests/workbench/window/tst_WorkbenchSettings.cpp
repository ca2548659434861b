#include <workbench/window/SettingsDialog.h>
#include <workbench/window/WorkbenchSettings.h>

#include <QComboBox>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

class tst_WorkbenchSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithStandardValues()
    {
        const WorkbenchSettings settings(m_directory.filePath("standard.ini"));
        QCOMPARE(settings.values(), WorkbenchSettings::Values());
        QCOMPARE(settings.values().language, EditorLanguages::firstOn());
        QCOMPARE(settings.values().nextLine, QKeySequence("F8"));
        QCOMPARE(settings.values().previousLine, QKeySequence("Shift+F8"));
        QCOMPARE(settings.values().autosaveMinutes, 3);
        QVERIFY(settings.recentFiles().isEmpty());
        QVERIFY(!settings.flag("started"));
    }

    void keepsValues()
    {
        const QString file = m_directory.filePath("kept.ini");
        WorkbenchSettings::Values values;
        values.language = "en";
        values.theme = "dark";
        values.fontPercent = 125;
        values.autosaveMinutes = 0;
        values.nextLine = QKeySequence("Ctrl+Down");
        values.previousLine = QKeySequence();
        {
            WorkbenchSettings settings(file);
            const QSignalSpy changed(&settings, &WorkbenchSettings::valuesChanged);
            settings.setValues(values);
            QCOMPARE(changed.size(), 1);
            settings.setValues(values);
            QCOMPARE(changed.size(), 1);
        }
        QCOMPARE(WorkbenchSettings(file).values(), values);
    }

    void forgetsValuesForNow()
    {
        const QString file = m_directory.filePath("now.ini");
        {
            WorkbenchSettings settings(file);
            WorkbenchSettings::Values values;
            values.theme = "dark";
            settings.setValuesForNow(values);
            QCOMPARE(settings.values().theme, QStringLiteral("dark"));
        }
        QCOMPARE(WorkbenchSettings(file).values().theme, QString());
    }

    void bringsNumbersIntoTheirLimits()
    {
        WorkbenchSettings settings(m_directory.filePath("limits.ini"));
        WorkbenchSettings::Values values;
        values.fontPercent = 1000;
        values.autosaveMinutes = -5;
        settings.setValues(values);
        QCOMPARE(settings.values().fontPercent, WorkbenchSettings::MaxFontPercent);
        QCOMPARE(settings.values().autosaveMinutes, 0);
    }

    void listsRecentFiles()
    {
        WorkbenchSettings settings(m_directory.filePath("recent.ini"));
        for (int i = 0; i < 12; ++i)
            settings.addRecentFile(QStringLiteral("/d/%1.json").arg(i));
        QCOMPARE(settings.recentFiles().size(), WorkbenchSettings::RecentLimit);
        QCOMPARE(settings.recentFiles().first(), QStringLiteral("/d/11.json"));
        settings.addRecentFile("/d/./8.json");
        QCOMPARE(settings.recentFiles().mid(0, 2), (QStringList{"/d/8.json", "/d/11.json"}));
        QCOMPARE(settings.recentFiles().size(), WorkbenchSettings::RecentLimit);
        settings.removeRecentFile("/d/8.json");
        QCOMPARE(settings.recentFiles().first(), QStringLiteral("/d/11.json"));
        settings.clearRecentFiles();
        QVERIFY(settings.recentFiles().isEmpty());
    }

    void keepsPlacesByFile()
    {
        WorkbenchSettings settings(m_directory.filePath("places.ini"));
        settings.setPlace("/a b/ü.json", {"2021-01-01T00:00:00Z", "c/d.prj", 7});
        settings.setPlace("/other.json", {"", "e.prj", -1});
        const WorkbenchSettings::Place same = settings.place("/a b/ü.json");
        QCOMPARE(same.sourceDate, QStringLiteral("2021-01-01T00:00:00Z"));
        QCOMPARE(same.project, QStringLiteral("c/d.prj"));
        QCOMPARE(same.line, 7);
        QCOMPARE(settings.place("/unknown.json").line, -1);
    }

    void dialogGivesWhatWasEntered()
    {
        WorkbenchSettings::Values values;
        SettingsDialog dialog(values, {}, QString(), nullptr);
        QCOMPARE(dialog.values(), values);
        dialog.findChild<QComboBox *>("language")->setCurrentText("English");
        dialog.findChild<QComboBox *>("theme")->setCurrentText("Dunkel");
        dialog.findChild<QSpinBox *>("font")->setValue(150);
        dialog.findChild<QSpinBox *>("autosave")->setValue(0);
        QCOMPARE(dialog.findChild<QSpinBox *>("autosave")->text(), QStringLiteral("nie"));
        dialog.show();
        auto *next = dialog.findChild<QKeySequenceEdit *>("nextLine");
        next->clear();
        QTest::keyClick(next, Qt::Key_F9);
        values.language = "en";
        values.theme = "dark";
        values.fontPercent = 150;
        values.autosaveMinutes = 0;
        values.nextLine = QKeySequence("F9");
        QTRY_COMPARE(dialog.values(), values);
    }

    void dialogRefusesKeysOfOthers_data()
    {
        QTest::addColumn<QString>("next");
        QTest::addColumn<QString>("previous");
        QTest::addColumn<QString>("problem");
        QTest::newRow("free") << "F9"
                              << "Shift+F9"
                              << "";
        QTest::newRow("none") << ""
                              << ""
                              << "";
        QTest::newRow("both the same") << "F9"
                                       << "F9"
                                       << "Beide Richtungen haben dieselbe Taste.";
        QTest::newRow("taken") << "Ctrl+S"
                               << "F9"
                               << "Die Taste Ctrl+S ist schon vergeben.";
        QTest::newRow("taken, other way") << "F9"
                                          << "V"
                                          << "Die Taste V ist schon vergeben.";
    }
    void dialogRefusesKeysOfOthers()
    {
        QFETCH(QString, next);
        QFETCH(QString, previous);
        QFETCH(QString, problem);
        SettingsDialog dialog({}, {QKeySequence("Ctrl+S"), QKeySequence("V")}, QString(), nullptr);
        dialog.findChild<QKeySequenceEdit *>("nextLine")->setKeySequence(QKeySequence(next));
        dialog.findChild<QKeySequenceEdit *>("previousLine")
            ->setKeySequence(QKeySequence(previous));
        QCOMPARE(dialog.findChild<QLabel *>("problem")->text(), problem);
        QCOMPARE(dialog.findChild<QPushButton *>("ok")->isEnabled(), problem.isEmpty());
    }

private:
    QTemporaryDir m_directory;
};

QTEST_MAIN(tst_WorkbenchSettings)
#include "tst_WorkbenchSettings.moc"
