#include "../support/EnglishTexts.h"
#include "../support/ForeignLocale.h"

#include <core/config/PConfigInst.h>
#include <core/config/PConfigService.h>
#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

namespace {

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

} // namespace

class tst_PConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }
    void cleanup() { PConfigService::setDirectories(PStringList(QStringList("$TORMEVA_SETUP"))); }

    void boolOf_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("withFalse");
        QTest::addColumn<bool>("withTrue");
        const QList<std::pair<const char *, bool>> known = {
            {"1", true},   {"true", true}, {"TRUE", true}, {" yes ", true},
            {"on", true},  {"ja", true},   {"0", false},   {"false", false},
            {"no", false}, {"Off", false}, {"nein", false}};
        for (const auto &[text, yes] : known)
            QTest::newRow(text) << QString(text) << yes << yes;
        QTest::newRow("empty") << "" << false << true;
        QTest::newRow("other") << "2" << false << true;
    }
    void boolOf()
    {
        QFETCH(QString, text);
        QTEST(PConfigVal(text).GetBool(false), "withFalse");
        QTEST(PConfigVal(text).GetBool(true), "withTrue");
    }
    void intOf_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");
        QTest::newRow("number") << " 42 " << 42;
        QTest::newRow("negative") << "-3" << -3;
        QTest::newRow("no number") << "4x" << 7;
        QTest::newRow("grouped") << "1.000" << 7;
        QTest::newRow("too large") << "99999999999" << 7;
        QTest::newRow("empty") << "" << 7;
    }
    void intOf()
    {
        QFETCH(QString, text);
        QTEST(PConfigVal(text).GetInt(7), "expected");
    }
    void foreignLocaleIsThere()
    {
        if (qEnvironmentVariableIsSet("LOCPATH"))
            QVERIFY(ForeignLocale::isThere());
    }
    void otherLocales_data() { ForeignLocale::addRows(); }
    /// Runs the tests of numbers again in such an environment.
    void otherLocales() { ForeignLocale::runAgain({"intOf", "boolOf"}); }
    void setValueOfAValue()
    {
        PConfigVal value;
        value.SetValue(true);
        QCOMPARE(QString(value.GetString()), QString("1"));
        value.SetValue(-5);
        QCOMPARE(value.GetInt(), -5);
        value.SetValue("text");
        QCOMPARE(QString(value.GetString()), QString("text"));
    }

    void readsByKeyAndSection()
    {
        write(file(), "[Info Text]\nde = Größe\n[a b.prj]\nVERSION=\"v2 \"\n");
        const PConfigInst config(file(), true);
        QCOMPARE(QString(config.getItemValue("de", "Info Text", "x").GetString()),
                 QString("Größe"));
        QCOMPARE(QString(config.getItemValue("VERSION", "a b.prj", "").GetString()),
                 QString("v2 "));
        QCOMPARE(QString(config.getItemValue("en", "Info Text", "x").GetString()), QString("x"));
        QCOMPARE(QString(config.getItemValue("de", "Other", "x").GetString()), QString("x"));
        QCOMPARE(config.sections(), QStringList({"Info Text", "a b.prj"}));
        QCOMPARE(config.keys("Info Text"), QStringList{"de"});
    }
    void pathMayHoldReferences()
    {
        write(file(), "k=1\n");
        qputenv("VELK_TEST_CONF", m_dir->path().toUtf8());
        QCOMPARE(PConfigInst("$VELK_TEST_CONF\\x.cfg", true).getItemValue("k", "", "0").GetInt(),
                 1);
    }
    void missingFileGivesDefaultsAndReadOnlyMakesNone()
    {
        PConfigInst config(file(), true);
        QVERIFY(config.getItemValue("k", "s", "true").GetBool());
        QVERIFY(!config.SetValue("k", "s", "1"));
        QCOMPARE(QString(config.lastError()), file() + ": is read only");
        QVERIFY(!QFile::exists(file()));
    }
    void whatIsSetIsThereForTheNextOne()
    {
        const QString path = m_dir->filePath("sub/dir/app.cfg");
        {
            PConfigInst config(path, false);
            QVERIFY(config.SetValue("ShowFileNames", "CatalogMapping", "0"));
            QVERIFY(!config.getItemValue("ShowFileNames", "CatalogMapping", "1").GetBool());
        }
        const PConfigInst again(path, true);
        QCOMPARE(QString(again.getItemValue("ShowFileNames", "CatalogMapping", "1").GetString()),
                 QString("0"));
    }
    void settingKeepsCommentsAndWhatOthersWrote()
    {
        write(file(), "; ours\n[s]\na=1\n");
        PConfigInst first(file(), false);
        PConfigInst second(file(), false);
        QVERIFY(first.SetValue("b", "s", "2"));
        QVERIFY(second.SetValue("c", "s", "3"));
        QCOMPARE(read(file()), QByteArray("; ours\n[s]\na=1\nb = 2\nc = 3\n"));
    }
    void anEqualValueWritesNothing()
    {
        write(file(), "[s]\na=1\n");
        PConfigInst config(file(), false);
        QVERIFY(QFile::setPermissions(file(), QFile::ReadOwner));
        const auto inode = QFileInfo(file()).lastModified();
        QVERIFY(config.SetValue("a", "s", "1"));
        QCOMPARE(read(file()), QByteArray("[s]\na=1\n"));
        QCOMPARE(QFileInfo(file()).lastModified(), inode);
    }
    void failureToWriteIsTold()
    {
        QVERIFY(QDir(m_dir->path()).mkdir("x.cfg"));
        PConfigInst config(file(), false);
        QVERIFY(!config.SetValue("a", "s", "1"));
        QVERIFY2(config.lastError().startsWith(file() + ": cannot be "),
                 qPrintable(config.lastError()));
    }
    void errorsNameFileAndLine()
    {
        write(file(), "a=1\nnonsense\n");
        const PConfigInst config(file(), true);
        QCOMPARE(QString(config.lastError()), file() + ":2: neither section, key nor comment");
        QCOMPARE(config.getItemValue("a", "", "").GetInt(), 1);
    }

    void serviceSearchesItsDirectoriesInOrder()
    {
        QVERIFY(QDir(m_dir->path()).mkpath("one"));
        QVERIFY(QDir(m_dir->path()).mkpath("two"));
        write(m_dir->filePath("two/velkopt.cfg"), "k=2\n");
        PConfigService::setDirectories(
            PStringList(QStringList{m_dir->filePath("one"), m_dir->filePath("two")}));
        QCOMPARE(PConfigService::getConfig(0, "velkopt")->getItemValue("k", "", "").GetInt(), 2);
        write(m_dir->filePath("one/velkopt.cfg"), "k=1\n");
        PConfigService::setDirectories(PConfigService::directories());
        QCOMPARE(PConfigService::getConfig(0, "velkopt")->getItemValue("k", "", "").GetInt(), 1);
    }
    void serviceLooksInTheSetUpDirectoryByDefault()
    {
        QCOMPARE(PConfigService::directories(), QStringList{"$TORMEVA_SETUP"});
        write(m_dir->filePath("pproject.cfg"), "[CatalogMappingWidget]\nAllowVerifyAllOnDir=1\n");
        qputenv("TORMEVA_SETUP", m_dir->path().toUtf8());
        const PRefPtr<PConfig> config = PConfigService::getConfig(0, "pproject");
        QVERIFY(config);
        QVERIFY(
            config->getItemValue("AllowVerifyAllOnDir", "CatalogMappingWidget", "false").GetBool());
        QVERIFY(config == PConfigService::getConfig(0, "pproject"));
    }
    void serviceGivesNullWithoutAFile()
    {
        PConfigService::setDirectories(PStringList(QStringList{m_dir->path()}));
        QVERIFY(!PConfigService::getConfig(0, "none"));
        QVERIFY(!PConfigService::getConfig(0, ""));
        write(m_dir->filePath("none.cfg"), "");
        QVERIFY(PConfigService::getConfig(0, "none"));
        QVERIFY(!PConfigService::getConfig(1, "none"));
        QVERIFY(QDir(m_dir->path()).mkdir("dir.cfg"));
        QVERIFY(!PConfigService::getConfig(0, "dir"));
    }
    void serviceTellsBadLinesOnce()
    {
        const auto sink = std::make_shared<PScriptedMessageSink>();
        const PMessageSinkScope scope(sink);
        PConfigService::setDirectories(PStringList(QStringList{m_dir->path()}));
        write(m_dir->filePath("bad.cfg"), "x\n");
        QVERIFY(PConfigService::getConfig(0, "bad"));
        QVERIFY(PConfigService::getConfig(0, "bad"));
        QCOMPARE(sink->logged(),
                 QStringList{m_dir->filePath("bad.cfg") + ":1: neither section, key nor comment"});
    }
    void manyThreadsAskAndSet()
    {
        write(m_dir->filePath("t.cfg"), "k=1\n");
        PConfigService::setDirectories(PStringList(QStringList{m_dir->path()}));
        PConfigInst config(file(), false);
        std::vector<std::thread> threads;
        std::atomic<int> failures = 0;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&, t] {
                for (int i = 0; i < 20; ++i) {
                    if (PConfigService::getConfig(0, "t")->getItemValue("k", "", "").GetInt() != 1)
                        ++failures;
                    if (!config.SetValue(QString::number(i), QString::number(t), "x"))
                        ++failures;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(failures.load(), 0);
        const PConfigInst again(file(), true);
        QCOMPARE(again.sections().size(), 4);
        for (const QString &section : again.sections())
            QCOMPARE(again.keys(section).size(), 20);
    }

private:
    QString file() const { return m_dir->filePath("x.cfg"); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(tst_PConfig)
#include "tst_PConfig.moc"
