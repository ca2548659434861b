#include "WindowFixture.h"

#include <core/message/PStringMessageImpl.h>
#include <core/plugin/PTranslateManager.h>
#include <core/text/countText.h>
#include <geomcore/records/MappingFile.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressDisplayI.h>
#include <TestPaths.h>
#include <workbench/window/document/MappingMaker.h>
#include <workbench/window/look/useLanguage.h>

#include <QFile>
#include <QProcess>
#include <QTest>

namespace {

/// Cancels work with a certain text as soon as it is shown.
class CancellingDisplay : public ProgressDisplayI
{
public:
    explicit CancellingDisplay(const QString &text)
        : m_text(text)
    {
    }
    void showProgress(const QList<PProgressInfo> &running) override
    {
        for (const PProgressInfo &info : running) {
            if (info.text == m_text && info.cancel)
                info.cancel->request();
        }
    }
    [[nodiscard]] bool acceptsInput(const QWidget *) const override { return false; }

private:
    const QString m_text;
};

class DisplayScope
{
public:
    explicit DisplayScope(const QString &text)
    {
        DefaultObserverDelegate::setTimes(0, 0);
        DefaultObserverDelegate::setDisplay(std::make_shared<CancellingDisplay>(text));
    }
    ~DisplayScope()
    {
        DefaultObserverDelegate::setDisplay(nullptr);
        DefaultObserverDelegate::setTimes(500, 100);
    }
    DisplayScope(const DisplayScope &) = delete;
    DisplayScope &operator=(const DisplayScope &) = delete;
};

MappingMaker::Wish exampleWish()
{
    const CatalogRoots roots = WindowFixture::roots();
    return {.sourceRoot = roots.source,
            .targetRoot = roots.target,
            .sourceCatalog = "standardparts",
            .targetCatalog = "standardparts",
            .mappingFile = {}};
}

QByteArray bytesOf(const ReleaseMappingC &release)
{
    MappingFile file;
    file.setRelease(release);
    return file.toByteArray();
}

} // namespace

class tst_MappingMaker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        PTranslateManager::registerModule("velkworkbench");
        useLanguage("de");
    }
    void makesWhatTheBatchProgramMakes()
    {
        PStringMessageImpl messages(PMsgReply::Cancel, false);
        MappingMaker maker;
        QVERIFY(maker.make(exampleWish()));
        messages.deactivate();
        QCOMPARE(messages.buffer().count("din908.csv"), 1);
        LineCounts counts;
        for (int i = 0; i < maker.release().countMappings(); ++i)
            counts.add(maker.release().mappingAt(i).lineCounts());
        QVERIFY(counts.assigned() > 0 && counts.unverified() > 0 && counts.notFound() > 0);
        QCOMPARE(maker.summary(),
                 QStringLiteral("49 von 49 Projekten mit 1.918 Zeilen, davon %1 zugeordnet, %2 zu "
                                "prüfen, %3 ohne Ziel")
                     .arg(countText(counts.assigned()), countText(counts.unverified()),
                          countText(counts.notFound())));

        const QTemporaryDir directory;
        const QString file = directory.filePath("m.json");
        const CatalogRoots roots = WindowFixture::roots();
        const QString program = QStringLiteral(VELK_BINARY_DIR "/bin/velkmap");
        QProcess::execute(program, {"create", "--source", roots.source, "--target", roots.target,
                                    "--catalog", "standardparts", "--mapping", file});
        QProcess::execute(program, {"assign", "--source", roots.source, "--target", roots.target,
                                    "--mapping", file});
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(bytesOf(maker.release()), written.readAll());
    }

    void canLeaveTheLinesForLater()
    {
        MappingMaker::Wish wish = exampleWish();
        wish.assign = false;
        MappingMaker maker;
        QVERIFY(maker.make(wish));
        QCOMPARE(maker.summary(), QStringLiteral("49 Projekte: 31 am selben Ort, 12 an anderem, 4 "
                                                 "aufgeteilt, 1 ohne Ziel, 1 unlesbar"));
        for (int i = 0; i < maker.release().countMappings(); ++i)
            QCOMPARE(maker.release().mappingAt(i).lineCounts().lines(), 0);
    }

    void makesNothingWithoutCatalog()
    {
        PStringMessageImpl messages(PMsgReply::Cancel, false);
        MappingMaker::Wish wish = exampleWish();
        wish.sourceCatalog = "nothing";
        MappingMaker maker;
        QVERIFY(!maker.make(wish));
        QVERIFY2(messages.buffer().contains("nothing"), qPrintable(messages.buffer()));
    }

    void makesNothingWhenCalledOff()
    {
        const DisplayScope scope("Zielprojekte werden gesucht");
        MappingMaker maker;
        QVERIFY(!maker.make(exampleWish()));
        QCOMPARE(maker.summary(), QStringLiteral("Abgebrochen, es wurde nichts angelegt"));
    }

    void keepsTheTargetsWhenAssigningIsCalledOff()
    {
        const DisplayScope scope("Zeilen werden zugeordnet");
        MappingMaker maker;
        QVERIFY(maker.make(exampleWish()));
        int assigned = 0;
        for (int i = 0; i < maker.release().countMappings(); ++i)
            assigned += maker.release().mappingAt(i).lineCounts().lines() > 0 ? 1 : 0;
        QCOMPARE(maker.release().countMappings(), 49);
        QCOMPARE(assigned, 0);
        QCOMPARE(maker.summary(), QStringLiteral("Abgebrochen: 0 von 49 Projekten mit 0 Zeilen, "
                                                 "davon 0 zugeordnet, 0 zu prüfen, 0 ohne Ziel"));
    }

    void keepsConfirmedLines_data()
    {
        QTest::addColumn<bool>("force");
        QTest::newRow("lines without assignment") << false;
        QTest::newRow("all that is unconfirmed") << true;
    }
    void keepsConfirmedLines()
    {
        QFETCH(bool, force);
        MappingMaker maker;
        QVERIFY(maker.make(exampleWish()));
        ReleaseMappingC release = maker.release();
        const auto pathOf = [](const PrjMappingC &mapping) {
            return mapping.getSourcePath();
        };
        int confirmed = 0;
        for (int i = 0; i < release.countMappings(); ++i) {
            PrjMappingC mapping = release.mappingAt(i);
            if (!pathOf(mapping).endsWith("din933.prj"))
                continue;
            PrjMappingTargetC target = mapping.findTarget(0);
            target.addLineId(3, 40, PRJMAPPING::Verified, QString());
            mapping.updateTarget(0, target);
            release.addMapping(mapping);
            ++confirmed;
        }
        QCOMPARE(confirmed, 1);
        const CatalogRoots roots = WindowFixture::roots();
        maker.assign(release, roots.source, roots.target, force);
        for (int i = 0; i < release.countMappings(); ++i) {
            const PrjMappingC mapping = maker.release().mappingAt(i);
            if (pathOf(mapping).endsWith("din933.prj"))
                QCOMPARE(mapping.findTarget(0).getMappedLines().value(3).getTargetLineId(), 40);
        }
    }
};

QTEST_MAIN(tst_MappingMaker)
#include "tst_MappingMaker.moc"
