#include <core/config/PConfigInst.h>
#include <core/message/PScriptedMessageSink.h>
#include <gui/application/PApplication.h>
#include <gui/application/PApplicationPool.h>

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

class tst_PApplication : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void worksWithoutHost()
    {
        QVERIFY(VelkApp() != nullptr);
        QCOMPARE(VelkApp(), VelkApp());
        QVERIFY(bool(PApplication::getAppConfig()));
        QCOMPARE(PApplication::getAppConfig()->getItemValue("k", "s", "d").GetString(),
                 QString("d"));
        QVERIFY(!PApplication::getAppConfig()->SetValue("k", "s", QString("v")));
        QDialog dialog;
        dialog.setObjectName("dialog");
        PApplication::saveWindow(&dialog);
        PApplication::setupWindow(&dialog);
    }

    void hostObjectTakesOverAndGoes()
    {
        PApplication *const without = VelkApp();
        {
            const PApplication host{PRefPtr<PConfig>()};
            QCOMPARE(VelkApp(), &host);
        }
        QCOMPARE(VelkApp(), without);
    }

    void keepsGeometryByObjectName()
    {
        const QTemporaryDir dir;
        const PApplication host(PRefPtr<PConfig>(new PConfigInst(dir.filePath("app.cfg"), false)));
        {
            QDialog dialog;
            dialog.setObjectName("first");
            dialog.setGeometry(40, 50, 333, 222);
            PApplication::saveWindow(&dialog);
            QDialog unnamed;
            unnamed.setGeometry(10, 10, 100, 100);
            PApplication::saveWindow(&unnamed);
        }
        QDialog again;
        again.setObjectName("first");
        PApplication::setupWindow(&again);
        QCOMPARE(again.size(), QSize(333, 222));
        QDialog other;
        other.setObjectName("second");
        const QSize before = other.size();
        PApplication::setupWindow(&other);
        QCOMPARE(other.size(), before);
        QCOMPARE(PApplication::getAppConfig()->keys("Windows").size(), 1);
    }

    void fitsTheScreen()
    {
        const PApplication host{PRefPtr<PConfig>()};
        QDialog dialog;
        dialog.setObjectName("dialog");
        dialog.resize(9000, 8000);
        PApplication::setupWindow(&dialog);
        QVERIFY(dialog.width() <= dialog.screen()->availableSize().width());
        QVERIFY(dialog.height() < dialog.screen()->availableSize().height() - 30); // title
        QVERIFY(dialog.height() > dialog.screen()->availableSize().height() / 2);
    }

    /// As high as the screen, or over a window at its upper edge.
    void titlesAreInSight()
    {
        const PApplication host{PRefPtr<PConfig>()};
        QWidget parent;
        const QRect screen = parent.screen()->availableGeometry();
        for (const int height : {screen.height() - 60, 300}) {
            parent.setGeometry(screen.x(), screen.y(), 600, 120);
            parent.show();
            QDialog dialog(&parent);
            dialog.setObjectName("dialog");
            dialog.resize(400, height);
            PApplication::setupWindow(&dialog);
            dialog.show();
            QVERIFY2(dialog.y() >= screen.y() + 30, qPrintable(QString::number(dialog.y())));
            QVERIFY(dialog.geometry().bottom() <= screen.bottom());
            QCOMPARE(dialog.height(), height);
        }
    }

    void textsOfAnotherLanguageHaveRoom()
    {
        const QTemporaryDir dir;
        const PApplication host(PRefPtr<PConfig>(new PConfigInst(dir.filePath("app.cfg"), false)));
        QSize kept;
        for (const int words : {1, 200}) {
            QDialog dialog;
            dialog.setObjectName("dialog");
            auto *const layout = new QVBoxLayout(&dialog);
            auto *const text = new QLabel(QStringLiteral("word ").repeated(words), &dialog);
            text->setWordWrap(true);
            layout->addWidget(text);
            PApplication::setupWindow(&dialog);
            if (words > 1) {
                QCOMPARE(dialog.width(), kept.width());
                QVERIFY(dialog.height() > kept.height());
                QCOMPARE(dialog.height(), layout->totalHeightForWidth(kept.width()));
            }
            dialog.show();
            dialog.resize(words == 1 ? QSize(300, 60) : dialog.size());
            kept = dialog.size();
            PApplication::saveWindow(&dialog);
        }
    }

    void keepsGeometryInTheFile()
    {
        const QTemporaryDir dir;
        const QString path = dir.filePath("app.cfg");
        {
            const PApplication host(PRefPtr<PConfig>(new PConfigInst(path, false)));
            QDialog dialog;
            dialog.setObjectName("dialog");
            dialog.setGeometry(40, 50, 333, 222);
            PApplication::saveWindow(&dialog);
            dialog.setGeometry(60, 70, 300, 200);
            PApplication::saveWindow(&dialog); // the last one counts
        }
        const PApplication host(PRefPtr<PConfig>(new PConfigInst(path, false)));
        QDialog again;
        again.setObjectName("dialog");
        PApplication::setupWindow(&again);
        QCOMPARE(again.geometry(), QRect(60, 70, 300, 200));
    }

    void keepsThatAWindowWasMaximised()
    {
        const QTemporaryDir dir;
        const PApplication host(PRefPtr<PConfig>(new PConfigInst(dir.filePath("app.cfg"), false)));
        {
            QWidget window;
            window.setObjectName("window");
            window.setGeometry(40, 50, 300, 200);
            window.showMaximized();
            PApplication::saveWindow(&window);
        }
        QWidget again;
        again.setObjectName("window");
        PApplication::setupWindow(&again);
        QVERIFY(again.isMaximized());
        QVERIFY(!again.isVisible());
        again.setWindowState(Qt::WindowNoState);
        QCOMPARE(again.normalGeometry().size(), QSize(300, 200));
    }

    void windowsComeBackOntoTheScreen()
    {
        const QTemporaryDir dir;
        const PApplication host(PRefPtr<PConfig>(new PConfigInst(dir.filePath("app.cfg"), false)));
        {
            QDialog dialog;
            dialog.setObjectName("dialog");
            dialog.setGeometry(9000, 9000, 300, 200);
            PApplication::saveWindow(&dialog);
        }
        QDialog again;
        again.setObjectName("dialog");
        PApplication::setupWindow(&again);
        QVERIFY(again.screen()->availableGeometry().intersects(again.geometry()));
    }

    void whatIsNoGeometryIsPassedOver_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::newRow("text") << "no geometry";
        QTest::newRow("number") << "0";
        QTest::newRow("cut off") << "AdnQywADAAA";
        QTest::newRow("other characters") << "\u00e4\u00f6\u00fc";
    }
    void whatIsNoGeometryIsPassedOver()
    {
        QFETCH(QString, stored);
        const QTemporaryDir dir;
        const PApplication host(PRefPtr<PConfig>(new PConfigInst(dir.filePath("app.cfg"), false)));
        QVERIFY(PApplication::getAppConfig()->SetValue("dialog", "Windows", stored));
        QDialog dialog;
        dialog.setObjectName("dialog");
        dialog.setGeometry(40, 50, 333, 222);
        PApplication::setupWindow(&dialog);
        QCOMPARE(dialog.geometry(), QRect(40, 50, 333, 222));
    }

    void whatCannotBeKeptDoesNoHarm()
    {
        const QTemporaryDir dir;
        const PApplication host(PRefPtr<PConfig>(new PConfigInst(dir.filePath("app.cfg"), true)));
        QDialog dialog;
        dialog.setObjectName("dialog");
        PApplication::saveWindow(&dialog);
        PApplication::setupWindow(&dialog);
        QVERIFY(!QFile::exists(dir.filePath("app.cfg")));
    }

    void formsThatCannotBeReadAreLogged()
    {
        const QTemporaryDir dir;
        QFile form(dir.filePath("broken.ui"));
        QVERIFY(form.open(QIODevice::WriteOnly));
        form.write("<ui version=\"4.0\"><widget");
        form.close();
        const auto sink = std::make_shared<PScriptedMessageSink>();
        const PMessageSinkScope scope(sink);
        QCOMPARE(PApplication::createWidget(form.fileName(), nullptr, false), nullptr);
        QCOMPARE(PApplication::createWidget(dir.filePath("missing.ui"), nullptr, true), nullptr);
        QCOMPARE(sink->logged().size(), 2);
        for (const QString &name : {form.fileName(), dir.filePath("missing.ui")})
            QVERIFY2(sink->logged().filter(name).size() == 1, qPrintable(name));
        QVERIFY(sink->logged().constFirst().startsWith("Die Maske "));
        QVERIFY(sink->logged().constFirst().size() >
                form.fileName().size() +
                    qsizetype(strlen("Die Maske  kann nicht geladen werden: ")));
        QVERIFY(sink->shown().isEmpty());
    }

    void aFormIsShownOrGivenToItsParent()
    {
        const QTemporaryDir dir;
        QFile form(dir.filePath("some.ui"));
        QVERIFY(form.open(QIODevice::WriteOnly));
        form.write("<ui version=\"4.0\"><class>Some</class><widget class=\"QWidget\" "
                   "name=\"Some\"/></ui>");
        form.close();
        const std::unique_ptr<QWidget> shown(
            PApplication::createWidget(form.fileName(), nullptr, true));
        QVERIFY(shown && shown->isVisible());
        QWidget parent;
        const QWidget *child = PApplication::createWidget(form.fileName(), &parent, false);
        QVERIFY(child);
        QCOMPARE(child->parentWidget(), &parent);
    }

    void createsFormsThroughTheSearchPath()
    {
        const QTemporaryDir dir;
        QFile form(dir.filePath("some.ui"));
        QVERIFY(form.open(QIODevice::WriteOnly));
        form.write("<ui version=\"4.0\"><class>Some</class><widget class=\"QWidget\" name=\"Some\">"
                   "<widget class=\"QLineEdit\" name=\"edit\"/></widget></ui>");
        form.close();
        const PApplication host{PRefPtr<PConfig>()};
        QVERIFY(QDir::searchPaths("forms").contains(":/forms"));
        QDir::addSearchPath("forms", dir.path());
        const std::unique_ptr<QWidget> widget(
            PApplication::createWidget("forms:some.ui", nullptr, false));
        QVERIFY(widget != nullptr);
        QCOMPARE(widget->objectName(), QString("Some"));
        QVERIFY(widget->findChild<QWidget *>("edit") != nullptr);
        QVERIFY(!widget->isVisible());
        QCOMPARE(PApplication::createWidget("forms:missing.ui", nullptr, false), nullptr);
    }

    void tellsOnceThatTheGuiIsUp()
    {
        PApplication host{PRefPtr<PConfig>()};
        QSignalSpy spy(&host, SIGNAL(applicationInitialized()));
        host.setInitialized();
        host.setInitialized();
        QCOMPARE(spy.size(), 1);
    }

    void poolFindsOrMakesActions()
    {
        PApplicationPool pool;
        QAction *const action = pool.registerAction("One", "Eins", "");
        QVERIFY(action != nullptr);
        QCOMPARE(action->objectName(), QString("One"));
        QCOMPARE(pool.registerAction("One", "", "Ctrl+1"), action);
        QCOMPARE(action->text(), QString("Eins"));
        QCOMPARE(action->shortcut(), QKeySequence("Ctrl+1"));
        QAction *const second = pool.registerAction("Two", "Zwei", "");
        QCOMPARE(pool.actions(), QList<QAction *>({action, second}));
        pool.enableActions(QStringList{"Two", "Unknown"}, false);
        QVERIFY(action->isEnabled());
        QVERIFY(!second->isEnabled());
        QCOMPARE(pool.action("Unknown"), nullptr);
        QCOMPARE(&PApplicationPool::instance(), &PApplicationPool::instance());
    }
};

QTEST_MAIN(tst_PApplication)
#include "tst_PApplication.moc"
