#include "RemoteCatalogs.h"

#include "RepositoryLoginDialog.h"

#include <geomcore/index/IndexTreeC.h>
#include <geomcore/repository/CatalogRepository.h>

#include <QCoreApplication>
#include <QThread>

RemoteCatalogs::RemoteCatalogs(const QString &cacheDirectory, QWidget *window)
    : QObject(window)
    , m_cacheDirectory(cacheDirectory)
    , m_window(window)
{
}

RemoteCatalogs::~RemoteCatalogs()
{
    close();
}

void RemoteCatalogs::close()
{
    if (m_repository && AddressedFiles::installed() == m_repository)
        AddressedFiles::install(nullptr);
    if (m_repository && IndexTreeC::instance()->repository() == m_repository)
        IndexTreeC::instance()->setRepository(nullptr);
    m_repository.reset();
}

void RemoteCatalogs::apply(const RepositorySettings &settings)
{
    if (m_settings == settings)
        return;
    m_settings = settings;
    close();
    if (!settings.isUsed)
        return;
    CatalogRepository::Options options;
    options.cacheDirectory = m_cacheDirectory;
    options.cacheBytes = qint64(settings.cacheMegabytes) << 20;
    options.silence = std::chrono::seconds(settings.silenceSeconds);
    options.servers = settings.serversByCatalog();
    options.revision = settings.revision;
    const QPointer<RemoteCatalogs> self(this);
    // Only this thread may ask whether the window is still there, whichever reads.
    QThread *const own = thread();
    options.tell = [self](const QString &text) {
        const auto emitTold = [self, text] {
            if (self)
                Q_EMIT self->told(text);
        };
        QMetaObject::invokeMethod(QCoreApplication::instance(), emitTold);
    };
    options.askForLogin = [self, own](const QString &url,
                                      const QString &answer) -> std::optional<RepositoryLogin> {
        // A worker that waited for the dialog could be waited for by the window.
        if (QThread::currentThread() != own || !self)
            return {};
        RepositoryLoginDialog dialog(url, answer, self->m_user, self->m_window);
        if (dialog.exec() != QDialog::Accepted || !self)
            return {};
        self->m_user = dialog.login().user;
        return dialog.login();
    };
    m_repository = std::make_shared<CatalogRepository>(std::move(options));
    AddressedFiles::install(m_repository);
    IndexTreeC::instance()->setRepository(m_repository);
}

void RemoteCatalogs::refresh()
{
    if (m_repository)
        m_repository->refresh();
}
