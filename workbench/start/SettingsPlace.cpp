#include "SettingsPlace.h"

#include <QDir>
#include <QStandardPaths>

SettingsPlace::SettingsPlace(const QString &directory)
    : m_directory(directory.isEmpty()
                      ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                            "/velkworkbench"
                      : QDir(directory).absolutePath())
{
    QDir().mkpath(m_directory);
}
