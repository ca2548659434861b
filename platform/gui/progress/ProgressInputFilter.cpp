#include "ProgressInputFilter.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

namespace {

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

const QWidget *nearestWidget(const QObject *object)
{
    while (object && !object->isWidgetType())
        object = object->parent();
    return static_cast<const QWidget *>(object);
}

/// The widget itself or one below it, popups that belong to it included.
bool isWithin(const QWidget *widget, const QWidget *ancestor)
{
    while (widget && widget != ancestor)
        widget = widget->parentWidget();
    return widget != nullptr;
}

const QWidget *widgetOfWindow(const QObject *window)
{
    for (const QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window)
            return widget;
    }
    return nullptr;
}

} // namespace

ProgressInputFilter::ProgressInputFilter(std::shared_ptr<ProgressDisplayI> display)
    : m_display(std::move(display))
    , m_modalBefore(QApplication::activeModalWidget())
{
    QCoreApplication::instance()->installEventFilter(this);
}

ProgressInputFilter::~ProgressInputFilter()
{
    QCoreApplication *const application = QCoreApplication::instance();
    if (application && m_quitWaits)
        QMetaObject::invokeMethod(application, &QCoreApplication::quit, Qt::QueuedConnection);
}

bool ProgressInputFilter::eventFilter(QObject *receiver, QEvent *event)
{
    if (event->type() == QEvent::Quit && receiver == QCoreApplication::instance()) {
        m_quitWaits = true;
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::Close && !mayClose(receiver)) {
        event->ignore();
        return true;
    }
    // Windows hand their events to widgets, where they are judged.
    return takeEscape(receiver, event) ||
           (isInput(event->type()) && !receiver->isWindowType() && !mayPass(receiver));
}

bool ProgressInputFilter::takeEscape(const QObject *receiver, QEvent *event)
{
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!key || !receiver->isWidgetType())
        return false;
    const auto *const pressed = static_cast<QKeyEvent *>(event);
    if (pressed->key() != Qt::Key_Escape || pressed->modifiers() != Qt::NoModifier)
        return false;
    // There it closes a menu or the dialog.
    if (QApplication::activePopupWidget() || isInNewDialog(nearestWidget(receiver)))
        return false;
    if (event->type() == QEvent::KeyPress)
        Q_EMIT cancelRequested();
    event->accept();
    return true;
}

bool ProgressInputFilter::isInNewDialog(const QWidget *widget) const
{
    const QWidget *const modal = QApplication::activeModalWidget();
    return modal && modal != m_modalBefore && isWithin(widget, modal);
}

bool ProgressInputFilter::mayPass(const QObject *receiver) const
{
    const QWidget *const widget = nearestWidget(receiver);
    if (!widget)
        return false;
    return m_display->acceptsInput(widget) || isInNewDialog(widget) ||
           widget->property(CancelsProgress).toBool();
}

bool ProgressInputFilter::mayClose(const QObject *receiver) const
{
    const QWidget *const widget =
        receiver->isWindowType() ? widgetOfWindow(receiver) : nearestWidget(receiver);
    if (!widget)
        return true;
    const bool passing = widget->windowType() == Qt::Popup || widget->windowType() == Qt::ToolTip ||
                         widget->windowType() == Qt::SplashScreen;
    return passing || !widget->isWindow() || mayPass(widget);
}
