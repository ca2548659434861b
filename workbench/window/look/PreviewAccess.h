#pragma once

#include <QAccessibleWidget>

QT_BEGIN_NAMESPACE
class QGraphicsView;
class QPrintPreviewDialog;
QT_END_NAMESPACE

/// The pages of a print preview for screen readers, which get neither a role nor a name from Qt.
class PreviewAccess : public QAccessibleWidget
{
public:
    explicit PreviewAccess(QGraphicsView *view);
    ~PreviewAccess() override;
    PreviewAccess(const PreviewAccess &) = delete;
    PreviewAccess &operator=(const PreviewAccess &) = delete;

    /// \a pages names the pages, \a number the field with the page's number.
    static void name(QPrintPreviewDialog &dialog, const QString &pages, const QString &number);
};
