#pragma once

#include "RepositorySettings.h"

#include <gui/application/PCommandKeys.h>
#include <workbench/start/EditorLanguages.h>

#include <QObject>
#include <QSettings>
#include <QStringList>

/// What the workbench remembers for its user, in one file. GUI thread.
class WorkbenchSettings : public QObject
{
    Q_OBJECT

public:
    /// What the settings dialog changes.
    struct Values
    {
        QString language = EditorLanguages::firstOn();
        QString theme;             ///< of ApplicationTheme; empty: as the desktop
        int fontPercent = 100;     ///< of the desktop's font size
        int autosaveMinutes = 3;   ///< 0: never
        bool goesOn = true;        ///< to the next open line after a decision
        PCommandKeys::Choice keys; ///< of commands that have other keys than the standard ones
        RepositorySettings repository;
        QStringList allowedPlaces; ///< native; beside the catalogs, what their files may name
        QString linkDb;            ///< address as LinkDbSettings has it; empty: none is used

        friend bool operator==(const Values &, const Values &) = default;
    };
    /// Where the user was when a mapping file was closed.
    struct Place
    {
        QString sourceDate;
        QString project; ///< source path
        int line = -1;
    };

    static constexpr int MinFontPercent = 75;
    static constexpr int MaxFontPercent = 200;
    static constexpr int MaxAutosaveMinutes = 60;
    static constexpr int RecentLimit = 9;

    explicit WorkbenchSettings(const QString &file, QObject *parent = nullptr);

    [[nodiscard]] const Values &values() const { return m_values; }
    /// Stores what differs and tells it. Numbers are brought into their limits.
    void setValues(const Values &values);
    /// For this run of the program only.
    void setValuesForNow(const Values &values);

    /// Native paths, the latest first.
    [[nodiscard]] QStringList recentFiles() const;
    void addRecentFile(const QString &file);
    void removeRecentFile(const QString &file);
    void clearRecentFiles();

    /// The file that was open at the last end of the program; empty if none was.
    [[nodiscard]] QString sessionFile() const;
    void setSessionFile(const QString &file);
    [[nodiscard]] Place place(const QString &file) const;
    void setPlace(const QString &file, const Place &place);

    /// A yes/no that is remembered, such as "tourSeen"; no at first.
    [[nodiscard]] bool flag(const QString &name) const;
    void setFlag(const QString &name, bool value);
    [[nodiscard]] QByteArray state(const QString &name) const;
    void setState(const QString &name, const QByteArray &state);

    /// For copies of what was read from repositories; beside the file.
    [[nodiscard]] QString repositoryCache() const;
    /// Where a link database of one's own may lie; beside the file.
    [[nodiscard]] QString linkDbFile() const;
    /// The group of the link database that was chosen last.
    [[nodiscard]] QString linkDbGroup() const;
    void setLinkDbGroup(const QString &group);
    /// The same store, for documents.
    [[nodiscard]] QSettings *store() { return &m_store; }

Q_SIGNALS:
    void valuesChanged();
    void recentFilesChanged();

private:
    void read();
    [[nodiscard]] RepositorySettings readRepository() const;
    [[nodiscard]] PCommandKeys::Choice readKeys();
    void writeValues();
    void writeKeys();

    QSettings m_store;
    Values m_values;
};
