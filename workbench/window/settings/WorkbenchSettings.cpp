#include "WorkbenchSettings.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

QString normalised(const QString &file)
{
    return file.isEmpty() ? file : QFileInfo(file).absoluteFilePath();
}

/// Group names must not hold "/".
QString groupOf(const QString &file)
{
    return "Places/" + QString::fromLatin1(normalised(file).toUtf8().toBase64(
                           QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

} // namespace

WorkbenchSettings::WorkbenchSettings(const QString &file, QObject *parent)
    : QObject(parent)
    , m_store(file, QSettings::IniFormat)
{
    read();
}

void WorkbenchSettings::read()
{
    const Values standard;
    const QString language = m_store.value("Settings/language").toString();
    m_values.language = EditorLanguages::all().contains(language) ? language : standard.language;
    m_values.theme = m_store.value("Settings/theme").toString();
    m_values.fontPercent =
        std::clamp(m_store.value("Settings/fontPercent", standard.fontPercent).toInt(),
                   MinFontPercent, MaxFontPercent);
    m_values.autosaveMinutes =
        std::clamp(m_store.value("Settings/autosaveMinutes", standard.autosaveMinutes).toInt(), 0,
                   MaxAutosaveMinutes);
    m_values.goesOn = m_store.value("Settings/goesOn", standard.goesOn).toBool();
    m_values.keys = readKeys();
    m_values.repository = readRepository();
    m_values.allowedPlaces = m_store.value("Settings/allowedPlaces").toStringList();
    m_values.linkDb = m_store.value("LinkDb/address").toString();
}

RepositorySettings WorkbenchSettings::readRepository() const
{
    const RepositorySettings standard;
    const auto number = [this](const char *name, int standardValue, int min, int max) {
        return std::clamp(m_store.value(name, standardValue).toInt(), min, max);
    };
    RepositorySettings repository;
    repository.isUsed = m_store.value("Repository/use").toBool();
    repository.servers = m_store.value("Repository/servers").toStringList();
    repository.revision =
        number("Repository/revision", standard.revision, -1, std::numeric_limits<int>::max());
    repository.cacheMegabytes = number("Repository/cacheMegabytes", standard.cacheMegabytes, 1,
                                       RepositorySettings::MaxCacheMegabytes);
    repository.silenceSeconds = number("Repository/silenceSeconds", standard.silenceSeconds, 1,
                                       RepositorySettings::MaxSilenceSeconds);
    return repository;
}

PCommandKeys::Choice WorkbenchSettings::readKeys()
{
    PCommandKeys::Choice keys;
    m_store.beginGroup("Keys");
    const QStringList ids = m_store.childKeys();
    for (const QString &id : ids)
        keys[id] =
            QKeySequence::fromString(m_store.value(id).toString(), QKeySequence::PortableText);
    m_store.endGroup();
    // Settings of before had keys for these two alone.
    const std::pair<const char *, std::pair<const char *, const char *>> former[]{
        {"Settings/keyNextLine", {"goNext", "F8"}},
        {"Settings/keyPreviousLine", {"goPrevious", "Shift+F8"}}};
    for (const auto &[name, command] : former) {
        const QVariant value = m_store.value(name);
        const QString id = QLatin1String(command.first);
        if (value.isValid() && !keys.contains(id) &&
            value.toString() != QLatin1String(command.second))
            keys[id] = QKeySequence::fromString(value.toString(), QKeySequence::PortableText);
    }
    return keys;
}

void WorkbenchSettings::writeKeys()
{
    m_store.remove("Settings/keyNextLine");
    m_store.remove("Settings/keyPreviousLine");
    m_store.remove("Keys");
    for (auto each = m_values.keys.cbegin(); each != m_values.keys.cend(); ++each)
        m_store.setValue("Keys/" + each.key(), each->toString(QKeySequence::PortableText));
}

void WorkbenchSettings::setValues(const Values &values)
{
    Values wanted = values;
    wanted.fontPercent = std::clamp(wanted.fontPercent, MinFontPercent, MaxFontPercent);
    wanted.autosaveMinutes = std::clamp(wanted.autosaveMinutes, 0, MaxAutosaveMinutes);
    if (wanted == m_values)
        return;
    const Values before = std::exchange(m_values, wanted);
    // What the desktop or the command line gave stays theirs until it is chosen here.
    if (m_values.language != before.language)
        m_store.setValue("Settings/language", m_values.language);
    if (m_values.theme != before.theme)
        m_store.setValue("Settings/theme", m_values.theme);
    writeValues();
    Q_EMIT valuesChanged();
}

void WorkbenchSettings::setValuesForNow(const Values &values)
{
    if (values == m_values)
        return;
    m_values = values;
    Q_EMIT valuesChanged();
}

void WorkbenchSettings::writeValues()
{
    m_store.setValue("Settings/fontPercent", m_values.fontPercent);
    m_store.setValue("Settings/autosaveMinutes", m_values.autosaveMinutes);
    m_store.setValue("Settings/goesOn", m_values.goesOn);
    writeKeys();
    const RepositorySettings &repository = m_values.repository;
    m_store.setValue("Settings/allowedPlaces", m_values.allowedPlaces);
    m_store.setValue("LinkDb/address", m_values.linkDb);
    m_store.setValue("Repository/use", repository.isUsed);
    m_store.setValue("Repository/servers", repository.servers);
    m_store.setValue("Repository/revision", repository.revision);
    m_store.setValue("Repository/cacheMegabytes", repository.cacheMegabytes);
    m_store.setValue("Repository/silenceSeconds", repository.silenceSeconds);
}

QStringList WorkbenchSettings::recentFiles() const
{
    return m_store.value("Files/recent").toStringList();
}

void WorkbenchSettings::addRecentFile(const QString &file)
{
    QStringList files = recentFiles();
    files.removeAll(normalised(file));
    files.prepend(normalised(file));
    m_store.setValue("Files/recent", files.mid(0, RecentLimit));
    Q_EMIT recentFilesChanged();
}

void WorkbenchSettings::removeRecentFile(const QString &file)
{
    QStringList files = recentFiles();
    if (files.removeAll(normalised(file)) == 0)
        return;
    m_store.setValue("Files/recent", files);
    Q_EMIT recentFilesChanged();
}

void WorkbenchSettings::clearRecentFiles()
{
    m_store.remove("Files/recent");
    Q_EMIT recentFilesChanged();
}

QString WorkbenchSettings::sessionFile() const
{
    return m_store.value("Files/session").toString();
}

void WorkbenchSettings::setSessionFile(const QString &file)
{
    m_store.setValue("Files/session", normalised(file));
}

WorkbenchSettings::Place WorkbenchSettings::place(const QString &file) const
{
    const QString group = groupOf(file);
    return {m_store.value(group + "/sourceDate").toString(),
            m_store.value(group + "/project").toString(),
            m_store.value(group + "/line", -1).toInt()};
}

void WorkbenchSettings::setPlace(const QString &file, const Place &place)
{
    const QString group = groupOf(file);
    m_store.setValue(group + "/sourceDate", place.sourceDate);
    m_store.setValue(group + "/project", place.project);
    m_store.setValue(group + "/line", place.line);
}

bool WorkbenchSettings::flag(const QString &name) const
{
    return m_store.value("Flags/" + name, false).toBool();
}

void WorkbenchSettings::setFlag(const QString &name, bool value)
{
    m_store.setValue("Flags/" + name, value);
}

QString WorkbenchSettings::repositoryCache() const
{
    return QFileInfo(m_store.fileName()).absolutePath() + QStringLiteral("/repository");
}

QString WorkbenchSettings::linkDbFile() const
{
    return QFileInfo(m_store.fileName()).absolutePath() + QStringLiteral("/linkdb.db");
}

QString WorkbenchSettings::linkDbGroup() const
{
    return m_store.value("LinkDb/group").toString();
}

void WorkbenchSettings::setLinkDbGroup(const QString &group)
{
    m_store.setValue("LinkDb/group", group);
}

QByteArray WorkbenchSettings::state(const QString &name) const
{
    return m_store.value("States/" + name).toByteArray();
}

void WorkbenchSettings::setState(const QString &name, const QByteArray &state)
{
    m_store.setValue("States/" + name, state);
}
