#include <core/config/PConfigInst.h>
#include <gui/application/PApplication.h>
#include <gui/application/PApplicationPool.h>

#include <QAction>
#include <QDialog>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

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
