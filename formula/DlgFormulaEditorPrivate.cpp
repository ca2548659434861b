#include "DlgFormulaEditorPrivate.h"

#include <core/text/PString.h>
#include <geomcore/expression/NodeBase.h>

bool DlgFormulaEditorPrivate::isCorrect(const VKTab::NodeBase *node,
                                        const QHash<QString, QStringList> &messages)
{
    return node && node->getType() != VKTab::InvalidType && messages.isEmpty();
}

QString DlgFormulaEditorPrivate::errorText(const QHash<QString, QStringList> &messages)
{
    QString text = PString::translate("Der Algorithmus enthält Fehler:\n", "VelkLinkDbGui");
    for (const QStringList &list : messages) {
        for (const QString &message : list)
            text += message + u'\n';
    }
    return text;
}
