#include "PApplication.h"

#include <core/message/PMessage.h>

#include <QDir>
#include <QEvent>
#include <QFile>
#include <QLayout>
#include <QScreen>
#include <QUiLoader>
#include <QWidget>

#include <algorithm>
#include <memory>

namespace {

const QString windowSection = QStringLiteral("Windows");
const QString stateSection = QStringLiteral("WindowStates");

PApplication *hostApplication = nullptr;

/// Configuration of a program without host: has nothing and keeps nothing.
class NoConfig : public PConfig
{
public:
    PConfigVal getItemValue(const QString &, const QString &,
                            const QString &defaultValue) const override
    {
        return PConfigVal(defaultValue);
    }
    bool SetValue(const QString &, const QString &, const PConfigVal &) override { return false; }
    PStringList sections() const override { return {}; }
    PStringList keys(const QString &) const override { return {}; }
    PString lastError() const override { return {}; }
};

void logForm(const QString &form, const QString &cause)
{
    PMessage::LogToWindow(
        PString::translate("Die Maske %1 kann nicht geladen werden: %2", "VelkGui")
            .arg(form, cause));
}

constexpr int titleHeight = 40; ///< of a window, about: it is not known before it is shown

/// A dialog that is about as high as the screen has its title above it where Qt puts it over the
/// middle of its parent, for that knows nothing of titles.
class TitleInSight : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *const window = qobject_cast<QWidget *>(object);
        if (event->type() != QEvent::Show || event->spontaneous() || !window->parentWidget() ||
            window->testAttribute(Qt::WA_Moved))
            return false;
        const QRect screen = window->screen()->availableGeometry();
        const QRect over = window->parentWidget()->window()->frameGeometry();
        const QSize size = window->size();
        const int top = over.center().y() - size.height() / 2 - titleHeight;
        if (top < screen.top() + titleHeight)
            window->move(std::clamp(over.center().x() - size.width() / 2, screen.left(),
                                    std::max(screen.left(), screen.right() - size.width())),
                         screen.top() + titleHeight);
        return false;
    }
};

} // namespace

PApplication::PApplication(const PRefPtr<PConfig> &configuration)
    : m_configuration(configuration ? configuration : PRefPtr<PConfig>(new NoConfig))
{
    if (!QDir::searchPaths("forms").contains(":/forms"))
        QDir::addSearchPath("forms", ":/forms");
    hostApplication = this;
}

PApplication::~PApplication()
{
    if (hostApplication == this)
        hostApplication = nullptr;
}

PRefPtr<PConfig> PApplication::getAppConfig()
{
    return VelkApp()->m_configuration;
}

QWidget *PApplication::createWidget(const QString &form, QWidget *parent, bool show)
{
    // It knows the places of forms, also where no host made it.
    static_cast<void>(VelkApp());
    QFile file(form);
    if (!file.open(QIODevice::ReadOnly)) {
        logForm(form, file.errorString());
        return nullptr;
    }
    QUiLoader loader;
    QWidget *widget = loader.load(&file, parent);
    if (!widget)
        logForm(form, loader.errorString());
    else if (show)
        widget->show();
    return widget;
}

void PApplication::setupWindow(QWidget *window)
{
    if (window->objectName().isEmpty())
        return;
    const QString stored =
        getAppConfig()->getItemValue(window->objectName(), windowSection, QString()).GetString();
    const QByteArray geometry = QByteArray::fromBase64(stored.toLatin1());
    // Qt restores what was cut off too, to a window without extent.
    if (geometry.size() >= window->saveGeometry().size()) {
        window->restoreGeometry(geometry);
        // In another language or font its texts may want more rows.
        const QLayout *const layout = window->layout();
        if (layout && layout->hasHeightForWidth())
            window->resize(
                window->size().expandedTo({0, layout->totalHeightForWidth(window->width())}));
    } else {
        window->resize(
            window->size().boundedTo(window->screen()->availableSize() - QSize(0, titleHeight)));
        window->installEventFilter(new TitleInSight(window));
    }
    if (window->metaObject()->indexOfMethod("restoreState(QByteArray)") < 0)
        return;
    const QString state =
        getAppConfig()->getItemValue(window->objectName(), stateSection, QString()).GetString();
    QMetaObject::invokeMethod(window, "restoreState",
                              Q_ARG(QByteArray, QByteArray::fromBase64(state.toLatin1())));
}

void PApplication::saveWindow(const QWidget *window)
{
    if (window->objectName().isEmpty())
        return;
    getAppConfig()->SetValue(window->objectName(), windowSection,
                             QString::fromLatin1(window->saveGeometry().toBase64()));
    if (window->metaObject()->indexOfMethod("saveState()") < 0)
        return;
    QByteArray state;
    QMetaObject::invokeMethod(const_cast<QWidget *>(window), "saveState",
                              Q_RETURN_ARG(QByteArray, state));
    getAppConfig()->SetValue(window->objectName(), stateSection,
                             QString::fromLatin1(state.toBase64()));
}

void PApplication::setInitialized()
{
    if (m_initialized)
        return;
    m_initialized = true;
    Q_EMIT applicationInitialized();
}

PApplication *VelkApp()
{
    if (hostApplication)
        return hostApplication;
    // Lives until the process ends, since windows may be closed as late as that.
    static auto *const withoutHost = [] {
        auto *const application = new PApplication({});
        hostApplication = nullptr;
        return application;
    }();
    return withoutHost;
}
