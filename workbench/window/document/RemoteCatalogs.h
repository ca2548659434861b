#pragma once

#include <workbench/window/settings/RepositorySettings.h>

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

class CatalogRepository;

/// Has the process read target projects, the index tree and the search from the catalogs'
/// repositories while the settings want it.
/// GUI thread.
class RemoteCatalogs : public QObject
{
    Q_OBJECT

public:
    /// Copies of what was read lie in \a cacheDirectory. Who has to log in is asked in front of
    /// \a window.
    RemoteCatalogs(const QString &cacheDirectory, QWidget *window);
    ~RemoteCatalogs() override;

    void apply(const RepositorySettings &settings);
    /// The repositories are asked for what is new when something is read again.
    void refresh();

Q_SIGNALS:
    /// Something that does not stop the work; what another thread met comes with the next events.
    void told(const QString &text);

private:
    void close();

    const QString m_cacheDirectory;
    const QPointer<QWidget> m_window;
    RepositorySettings m_settings;
    std::shared_ptr<CatalogRepository> m_repository;
    QString m_user; ///< who logged in last
};
