#pragma once

#include "ProgressDisplayI.h"

#include <QObject>
#include <QPointer>

#include <memory>

/// Keeps the user from changing what a piece of work is busy with, as long as it lives: drops key,
/// mouse, close and drop events of the application except for the progress display and for modal
/// dialogs that opened since. Escape outside of those asks for the work to be cancelled, wherever
/// the focus is. A request to quit is repeated at the end. Input passes to widgets with the
/// property CancelsProgress, too: buttons that end the work.
class ProgressInputFilter : public QObject
{
    Q_OBJECT

public:
    static constexpr const char *CancelsProgress = "cancelsProgress";

    explicit ProgressInputFilter(std::shared_ptr<ProgressDisplayI> display);
    ~ProgressInputFilter() override;

    bool eventFilter(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    void cancelRequested();

private:
    [[nodiscard]] bool takeEscape(const QObject *receiver, QEvent *event);
    [[nodiscard]] bool isInNewDialog(const QWidget *widget) const;
    [[nodiscard]] bool mayPass(const QObject *receiver) const;
    [[nodiscard]] bool mayClose(const QObject *receiver) const;

    const std::shared_ptr<ProgressDisplayI> m_display;
    const QPointer<QWidget> m_modalBefore;
    bool m_quitWaits = false;
};
