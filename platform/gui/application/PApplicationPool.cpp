#include "PApplicationPool.h"

#include <QAction>
#include <QApplication>
#include <QPointer>

PApplicationPool::PApplicationPool() = default;
PApplicationPool::~PApplicationPool() = default;

PApplicationPool &PApplicationPool::instance()
{
    static QPointer<PApplicationPool> pool;
    if (!pool) {
        pool = new PApplicationPool;
        pool->setParent(qApp);
    }
    return *pool;
}

QAction *PApplicationPool::registerAction(const QString &name, const QString &text,
                                          const QString &shortcut)
{
    QAction *&action = m_byName[name];
    if (!action) {
        action = new QAction(this);
        action->setObjectName(name);
        m_actions << action;
    }
    if (!text.isEmpty())
        action->setText(text);
    if (!shortcut.isEmpty())
        action->setShortcut(QKeySequence::fromString(shortcut, QKeySequence::PortableText));
    return action;
}

QAction *PApplicationPool::action(const QString &name) const
{
    return m_byName.value(name);
}

void PApplicationPool::enableActions(const PStringList &names, bool enable)
{
    for (const QString &name : names) {
        if (QAction *action = m_byName.value(name))
            action->setEnabled(enable);
    }
}
