#include "PreviewAccess.h"

#include <QGraphicsView>
#include <QLineEdit>
#include <QPrintPreviewDialog>

namespace {

QAccessibleInterface *makePreviewAccess(const QString & /*className*/, QObject *object)
{
    auto *const view = qobject_cast<QGraphicsView *>(object);
    return view ? new PreviewAccess(view) : nullptr;
}

} // namespace

PreviewAccess::PreviewAccess(QGraphicsView *view)
    : QAccessibleWidget(view, QAccessible::Document)
{
}

PreviewAccess::~PreviewAccess() = default;

void PreviewAccess::name(QPrintPreviewDialog &dialog, const QString &pages, const QString &number)
{
    QAccessible::installFactory(&makePreviewAccess);
    for (QGraphicsView *const view : dialog.findChildren<QGraphicsView *>())
        view->setAccessibleName(pages);
    for (QLineEdit *const edit : dialog.findChildren<QLineEdit *>()) {
        if (edit->accessibleName().isEmpty() && !edit->parent()->inherits("QComboBox"))
            edit->setAccessibleName(number);
    }
}
