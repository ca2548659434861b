#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QLabel>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QAbstractItemView;
QT_END_NAMESPACE

/// Over a view while its model has no row: why it is empty and what to do. Clicks go through to the
/// view.
class VELKGUI_EXPORT EmptyViewLabel : public QLabel
{
    Q_OBJECT

public:
    /// \a view shows \a model, or will.
    EmptyViewLabel(QAbstractItemView *view, const QAbstractItemModel *model);
    ~EmptyViewLabel() override;

    /// Plain text; nothing is shown for an empty one.
    void tell(const QString &text);

protected:
    [[nodiscard]] virtual bool isEmpty() const;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void refresh();
    void place();

    const QAbstractItemView *const m_view;
    const QAbstractItemModel *const m_model;
};
