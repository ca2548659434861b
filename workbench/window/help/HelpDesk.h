#pragma once

#include <QObject>
#include <QPointer>

class HelpWindow;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Opens the manual at the place for where the user is, from the window by its command, from
/// dialogs by the same key.
class HelpDesk : public QObject
{
    Q_OBJECT

public:
    /// \a window is not owned.
    explicit HelpDesk(QWidget *window);
    ~HelpDesk() override;

    /// At the place for a widget of the window; null stands for the window.
    void showFor(const QWidget *widget);
    /// The topic for a widget: its own, else that of what it lies in, else the editor's.
    [[nodiscard]] static QString topicOf(const QWidget *widget);
    /// All that topicOf() gives.
    [[nodiscard]] static QStringList topics();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void open(QWidget *above, const QString &topic);

    QWidget *const m_window;
    QPointer<HelpWindow> m_help;
};
