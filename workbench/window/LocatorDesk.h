#pragma once

#include <workbench/locator/LocatorItem.h>

#include <QObject>

#include <functional>

class LocatorSearch;
class MainWindow;
class WorkbenchSettings;

/// Opens the locator over the window, with all that can be found in it, and goes to what is chosen.
class LocatorDesk : public QObject
{
    Q_OBJECT

public:
    /// Neither is owned.
    LocatorDesk(MainWindow *window, WorkbenchSettings *settings);
    ~LocatorDesk() override;

    void open();

Q_SIGNALS:
    void settingChosen(const QString &field);

private:
    [[nodiscard]] QList<LocatorItem> commands() const;
    [[nodiscard]] QList<LocatorItem> settings();
    /// What takes in those of the project that is shown; may be called on any thread.
    [[nodiscard]] std::function<LocatorLines()> lines() const;
    void goTo(const LocatorItem &item);

    MainWindow *const m_window;
    WorkbenchSettings *const m_settings;
    LocatorSearch *const m_search;
    QList<LocatorItem> m_settingItems;
    QString m_settingLanguage; ///< of their texts
};
