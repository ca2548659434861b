#pragma once

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

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
