#include "KeyEditAccess.h"

#include <QKeySequenceEdit>

namespace {

QAccessibleInterface *makeKeyEditAccess(const QString & /*className*/, QObject *object)
{
    auto *const edit = qobject_cast<QKeySequenceEdit *>(object);
    return edit ? new KeyEditAccess(edit) : nullptr;
}

} // namespace

KeyEditAccess::KeyEditAccess(QKeySequenceEdit *edit)
    : QAccessibleWidget(edit, QAccessible::HotkeyField)
    , m_edit(edit)
{
}

KeyEditAccess::~KeyEditAccess() = default;

void KeyEditAccess::install()
{
    QAccessible::installFactory(&makeKeyEditAccess);
}

QString KeyEditAccess::text(QAccessible::Text which) const
{
    return which == QAccessible::Value ? m_edit->keySequence().toString(QKeySequence::NativeText)
                                       : QAccessibleWidget::text(which);
}
