#include <gui/application/PCommandKeys.h>

#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>

namespace {

using Place = PCommandKeys::Place;

QKeySequence key(const char *text)
{
    return QKeySequence(QLatin1String(text));
}

} // namespace

class tst_PCommandKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_keys = std::make_unique<PCommandKeys>();
        m_keys->declare({{"save", Place::Window, {key("Ctrl+S")}},
                         {"next", Place::Window, {key("F8")}},
                         {"quiet", Place::Window, {}},
                         {"find", Place::Table, {key("Ctrl+F")}},
                         {"larger", Place::Table, {key("Ctrl++"), key("Ctrl+=")}}});
    }

    void standardKeys()
    {
        QCOMPARE(m_keys->key("next"), key("F8"));
        QCOMPARE(m_keys->keys("larger"), (QList{key("Ctrl++"), key("Ctrl+=")}));
        QVERIFY(m_keys->keys("quiet").isEmpty());
        QVERIFY(m_keys->keys("unknown").isEmpty());
        QVERIFY(m_keys->isStandard("larger"));
        QVERIFY(m_keys->isDeclared("quiet") && !m_keys->isDeclared("unknown"));
        QCOMPARE(m_keys->keyText("next"), QString("F8"));
    }

    void events()
    {
        const QKeyEvent plus(QEvent::KeyPress, Qt::Key_Plus,
                             Qt::ControlModifier | Qt::KeypadModifier);
        QVERIFY(m_keys->isPressed("larger", plus));
        QVERIFY(!m_keys->isPressed("find", plus));
        const QKeyEvent shifted(QEvent::KeyPress, Qt::Key_F8, Qt::ShiftModifier);
        QVERIFY(!m_keys->isPressed("next", shifted));
    }

    void choiceGoesBefore_data()
    {
        QTest::addColumn<PCommandKeys::Choice>("choice");
        QTest::addColumn<QString>("keys");
        QTest::newRow("none") << PCommandKeys::Choice{}
                              << "save=Ctrl+S next=F8 quiet= find=Ctrl+F larger=Ctrl++,Ctrl+=";
        QTest::newRow("free key")
            << PCommandKeys::Choice{{"quiet", key("F9")}}
            << "save=Ctrl+S next=F8 quiet=F9 find=Ctrl+F larger=Ctrl++,Ctrl+=";
        QTest::newRow("no key") << PCommandKeys::Choice{{"next", QKeySequence()}}
                                << "save=Ctrl+S next= quiet= find=Ctrl+F larger=Ctrl++,Ctrl+=";
        QTest::newRow("key of another")
            << PCommandKeys::Choice{{"next", key("Ctrl+S")}}
            << "save= next=Ctrl+S quiet= find=Ctrl+F larger=Ctrl++,Ctrl+=";
        QTest::newRow("changed with another")
            << PCommandKeys::Choice{{"next", key("Ctrl+S")}, {"save", key("F8")}}
            << "save=F8 next=Ctrl+S quiet= find=Ctrl+F larger=Ctrl++,Ctrl+=";
        QTest::newRow("one of two keys of a table")
            << PCommandKeys::Choice{{"next", key("Ctrl+=")}}
            << "save=Ctrl+S next=Ctrl+= quiet= find=Ctrl+F larger=Ctrl++";
        QTest::newRow("one key instead of two") << PCommandKeys::Choice{{"larger", key("F8")}}
                                                << "save=Ctrl+S next= quiet= find=Ctrl+F larger=F8";
        QTest::newRow("of an unknown command")
            << PCommandKeys::Choice{{"unknown", key("F8")}}
            << "save=Ctrl+S next=F8 quiet= find=Ctrl+F larger=Ctrl++,Ctrl+=";
    }
    void choiceGoesBefore()
    {
        QFETCH(PCommandKeys::Choice, choice);
        m_keys->setChoice(choice);
        QStringList all;
        for (const PCommandKeys::Command &command : m_keys->commands()) {
            QStringList own;
            for (const QKeySequence &each : m_keys->keys(command.id))
                own << each.toString();
            all << command.id + '=' + own.join(',');
        }
        QTEST(all.join(' '), "keys");
    }

    void clashes()
    {
        QVERIFY(m_keys->clashesOf({{"next", key("F9")}}).isEmpty());
        using Clash = PCommandKeys::Clash;
        QCOMPARE(m_keys->clashesOf({{"next", key("Ctrl+F")}}),
                 QList{(Clash{"next", "find", key("Ctrl+F"), true})});
        const QList<Clash> both = m_keys->clashesOf({{"next", key("F9")}, {"find", key("F9")}});
        QCOMPARE(both, (QList{Clash{"next", "find", key("F9"), false},
                              Clash{"find", "next", key("F9"), false}}));
        // Only one of two places has the focus.
        m_keys->declare({{"other", Place::Table, {key("F2")}}});
        QCOMPARE(m_keys->clashesOf({{"find", key("F2")}}).size(), 1);
    }

    void changesAreTold()
    {
        const QSignalSpy changed(m_keys.get(), &PCommandKeys::changed);
        m_keys->setChoice({{"next", key("F9")}});
        QCOMPARE(changed.size(), 1);
        m_keys->setChoice({{"next", key("F9")}});
        QCOMPARE(changed.size(), 1);
        // Nobody has the key of a command that is not there.
        m_keys->setChoice({{"later", key("Ctrl+S")}});
        QCOMPARE(m_keys->key("save"), key("Ctrl+S"));
        m_keys->declare({{"later", Place::Window, {}}});
        QCOMPARE(m_keys->key("later"), key("Ctrl+S"));
        QVERIFY(m_keys->keys("save").isEmpty());
        QVERIFY(!m_keys->isStandard("save"));
        m_keys->withdraw({"later"});
        QCOMPARE(m_keys->key("save"), key("Ctrl+S"));
    }

    void librariesDeclare()
    {
        {
            const DeclaredCommands commands({{"ofALibrary", Place::Table, {key("F4")}}});
            QCOMPARE(PCommandKeys::instance().key("ofALibrary"), key("F4"));
        }
        QVERIFY(!PCommandKeys::instance().isDeclared("ofALibrary"));
    }

private:
    std::unique_ptr<PCommandKeys> m_keys;
};

QTEST_MAIN(tst_PCommandKeys)
#include "tst_PCommandKeys.moc"
