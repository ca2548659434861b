#include <workbench/window/settings/SettingsDialog.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
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
        QVERIFY(settings.values().keys.isEmpty());
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
        values.allowedPlaces = QStringList{"/a b", "/c;d, \"e\""};
        values.keys["goNext"] = QKeySequence("Ctrl+Down");
        values.keys["lineConfirm"] = QKeySequence();
        {
            WorkbenchSettings settings(file);
            const QSignalSpy changed(&settings, &WorkbenchSettings::valuesChanged);
            settings.setValues(values);
            QCOMPARE(changed.size(), 1);
            settings.setValues(values);
            QCOMPARE(changed.size(), 1);
        }
        QCOMPARE(WorkbenchSettings(file).values(), values);
        values.keys.remove("lineConfirm");
        WorkbenchSettings(file).setValues(values);
        QCOMPARE(WorkbenchSettings(file).values(), values);
    }

    void takesOverFormerKeys()
    {
        const QString file = m_directory.filePath("former.ini");
        {
            QSettings store(file, QSettings::IniFormat);
            store.setValue("Settings/keyNextLine", "F9");
            store.setValue("Settings/keyPreviousLine", "Shift+F8");
        }
        WorkbenchSettings settings(file);
        const PCommandKeys::Choice keys{{"goNext", QKeySequence("F9")}};
        QCOMPARE(settings.values().keys, keys);
        WorkbenchSettings::Values values = settings.values();
        values.keys.clear();
        settings.setValues(values);
        QVERIFY(WorkbenchSettings(file).values().keys.isEmpty());
    }

    void leavesLanguageAndColoursToTheDesktopUntilTheyAreChosen()
    {
        const QString file = m_directory.filePath("desktop.ini");
        WorkbenchSettings settings(file);
        WorkbenchSettings::Values values = settings.values();
        values.language = "fr";
        values.theme = "dark";
        settings.setValuesForNow(values); // of the command line
        values.fontPercent = 110;
        settings.setValues(values);
        QCOMPARE(WorkbenchSettings(file).values().fontPercent, 110);
        QCOMPARE(WorkbenchSettings(file).values().language, EditorLanguages::firstOn());
        QCOMPARE(WorkbenchSettings(file).values().theme, QString());
        QVERIFY(!QSettings(file, QSettings::IniFormat).contains("Settings/language"));
        values.language = "it";
        values.theme = "light";
        settings.setValues(values);
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
        SettingsDialog dialog(values, QString(), nullptr);
        QCOMPARE(dialog.values(), values);
        dialog.findChild<QComboBox *>("language")->setCurrentText("English");
        dialog.findChild<QComboBox *>("theme")->setCurrentText("Dunkel");
        dialog.findChild<QSpinBox *>("font")->setValue(150);
        dialog.findChild<QSpinBox *>("autosave")->setValue(0);
        QCOMPARE(dialog.findChild<QSpinBox *>("autosave")->text(), QStringLiteral("nie"));
        dialog.show();
        values.language = "en";
        values.theme = "dark";
        values.fontPercent = 150;
        values.autosaveMinutes = 0;
        QCOMPARE(dialog.values(), values);
    }

    void allowedPlaces()
    {
        WorkbenchSettings::Values values;
        values.allowedPlaces = QStringList{m_directory.path()};
        SettingsDialog dialog(values, QString(), nullptr);
        QCOMPARE(dialog.values(), values);
        auto *const places = dialog.findChild<QPlainTextEdit *>("allowedPlaces");
        const auto *const ok = dialog.findChild<QPushButton *>("ok");
        QVERIFY(ok->isEnabled());
        for (const QString &wrong :
             {QString("relative"), m_directory.filePath("none"), m_directory.filePath("file")}) {
            QFile(m_directory.filePath("file")).open(QIODevice::WriteOnly);
            places->setPlainText(m_directory.path() + '\n' + wrong);
            QVERIFY(!ok->isEnabled());
            QCOMPARE(dialog.findChild<QLabel *>("problem")->text(),
                     "Erlaubte Ordner: \"" + wrong + "\" ist kein Ordner mit vollständigem Pfad.");
        }
        places->setPlainText("\n " + m_directory.path() + " \n\n");
        QVERIFY(ok->isEnabled());
        QCOMPARE(dialog.values().allowedPlaces, QStringList(m_directory.path()));
        places->clear();
        QVERIFY(ok->isEnabled());
        QVERIFY(dialog.values().allowedPlaces.isEmpty());
    }

    void dialogTellsItsFields()
    {
        WorkbenchSettings::Values values;
        values.keys["goNext"] = QKeySequence("F9");
        SettingsDialog dialog(values, QString(), nullptr);
        QCOMPARE(dialog.values(), values);
        QStringList names;
        const QList<SettingsDialog::Field> fields = dialog.fields();
        for (const SettingsDialog::Field &field : fields) {
            QVERIFY2(dialog.findChild<QWidget *>(field.name), qPrintable(field.text));
            QVERIFY2(!field.text.contains(u'&') && !field.text.endsWith(u':'),
                     qPrintable(field.text));
            names << field.name + '=' + field.text + '=' + field.group;
        }
        QVERIFY(names.contains("language=Sprache="));
        QVERIFY(names.contains("linkDbHost=Rechner=Linkdatenbank verwenden"));
        QVERIFY(names.contains("linkDb=Linkdatenbank verwenden="));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(dialog.focusField("autosave"));
        QVERIFY(dialog.findChild<QSpinBox *>("autosave")->hasFocus());
        // Its box is off.
        QVERIFY(dialog.focusField("repositoryCache"));
        QVERIFY(dialog.findChild<QGroupBox *>("repository")->hasFocus());
        QVERIFY(!dialog.focusField("none"));
        dialog.findChild<QGroupBox *>("repository")->setChecked(true);
        QVERIFY(dialog.focusField("repositoryCache"));
        QVERIFY(dialog.findChild<QSpinBox *>("repositoryCache")->hasFocus());
    }

private:
    QTemporaryDir m_directory;
};

QTEST_MAIN(tst_WorkbenchSettings)
#include "tst_WorkbenchSettings.moc"
