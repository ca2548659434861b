#pragma once

#include <gui/VelkGuiGlobal.h>

#include <core/config/PConfig.h>
#include <core/text/PRefPtr.h>

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// What windows need of the program that they live in: its configuration, the places of windows,
/// and forms. The host makes the one object, after its QApplication, and owns it; without a host
/// VelkApp() gives an object without configuration, so that windows can be used and nothing is
/// kept. GUI thread.
class VELKGUI_EXPORT PApplication : public QObject
{
    Q_OBJECT

public:
    /// Becomes the object that VelkApp() gives, until it is deleted. \a configuration may be null;
    /// else it has to be writable. Registers the search path "forms:" for the forms of all loaded
    /// libraries.
    explicit PApplication(const PRefPtr<PConfig> &configuration);
    ~PApplication() override;

    /// The application's configuration, never null; without a host one that is empty and takes
    /// nothing.
    [[nodiscard]] static PRefPtr<PConfig> getAppConfig();

    /// Makes the widget of a form, such as "forms:linkdbgui/NewRecordDialog.ui"; its children are
    /// found by name. Null if the form cannot be read or is none; the log window then tells why.
    /// The caller owns it unless there is a parent. \a show shows it at once.
    [[nodiscard]] static QWidget *createWidget(const QString &form, QWidget *parent, bool show);

    /// Puts a window where it was when saveWindow() was last called for its object name. Without an
    /// object name, and for what was never kept, nothing happens. A window whose meta object has
    /// saveState() and restoreState(QByteArray) gets its state back, too.
    static void setupWindow(QWidget *window);
    static void saveWindow(const QWidget *window);

    /// The host's call once its main window is there: emits applicationInitialized(), the first
    /// time only.
    void setInitialized();

Q_SIGNALS:
    /// The GUI is up.
    void applicationInitialized();

private:
    friend VELKGUI_EXPORT PApplication *VelkApp();

    PRefPtr<PConfig> m_configuration;
    bool m_initialized = false;
};

/// The program's application object, never null.
[[nodiscard]] VELKGUI_EXPORT PApplication *VelkApp();
