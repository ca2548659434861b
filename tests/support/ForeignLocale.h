#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <clocale>

/// Another language and time zone of the C library and of Qt for a process, whatever is installed:
/// the locale is compiled into a folder of its own.
class ForeignLocale
{
public:
    ForeignLocale(const QString &zone, const QString &locale)
        : m_environment(QProcessEnvironment::systemEnvironment())
    {
        m_environment.insert(QStringLiteral("TZ"), zone);
        m_environment.insert(QStringLiteral("LC_ALL"), locale);
        if (locale == QLatin1String("C"))
            return;
        const QString name = locale.section(u'.', 0, 0);
        QProcess::execute(QStringLiteral("localedef"),
                          {QStringLiteral("-f"), QStringLiteral("UTF-8"), QStringLiteral("-i"),
                           name, m_folder.filePath(locale)});
        m_environment.insert(QStringLiteral("LOCPATH"), m_folder.path());
    }

    /// Exit status of a program there; \a output gets what it wrote.
    int run(const QString &program, const QStringList &arguments, QByteArray *output) const
    {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(program, arguments);
        process.waitForFinished(-1);
        *output = process.readAllStandardOutput();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    /// Rows with the zones and locales that tests run again in.
    static void addRows()
    {
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("locale");
        QTest::newRow("German") << "Europe/Berlin"
                                << "de_DE.UTF-8";
        QTest::newRow("Arabic digits") << "Asia/Kathmandu"
                                       << "ar_EG.UTF-8";
        QTest::newRow("plain") << "America/St_Johns"
                               << "C";
    }

    /// Runs these functions of the running test again in the environment of the current row, after
    /// one that makes sure of it.
    static void runAgain(const QStringList &functions)
    {
        QFETCH(QString, zone);
        QFETCH(QString, locale);
        QByteArray output;
        const ForeignLocale foreign(zone, locale);
        const int status = foreign.run(QCoreApplication::applicationFilePath(),
                                       QStringList("foreignLocaleIsThere") + functions, &output);
        QVERIFY2(status == 0, output.constData());
    }

    /// In that process: the C library knows the locale, and a German one has a decimal comma.
    [[nodiscard]] static bool isThere()
    {
        if (!std::setlocale(LC_ALL, ""))
            return false;
        const bool comma = qgetenv("LC_ALL").startsWith("de_");
        return *std::localeconv()->decimal_point == (comma ? ',' : '.') ||
               qgetenv("LC_ALL").startsWith("ar_");
    }

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
};
