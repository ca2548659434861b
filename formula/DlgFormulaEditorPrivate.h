#pragma once

#include <core/text/PPrivateData.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/ContentRef.h>
#include <geomcoregui/text/FormulaEditLineEvH.h>

#include <QHash>
#include <QStringList>

class DlgFormulaEditor;
namespace VKTab {
class NodeBase;
} // namespace VKTab

/// State of DlgFormulaEditor.
class DlgFormulaEditorPrivate : public PPrivateData<DlgFormulaEditor>
{
public:
    using PPrivateData::PPrivateData;

    /// What the parser gave, and the messages meanwhile by severity: any one makes it incorrect.
    [[nodiscard]] static bool isCorrect(const VKTab::NodeBase *node,
                                        const QHash<QString, QStringList> &messages);
    [[nodiscard]] static QString errorText(const QHash<QString, QStringList> &messages);

    QString variableName;
    QHash<QString, MapVarValueC> sourceVariables;
    QHash<QString, MapVarValueC> targetVariables;
    QPlainTextEdit *edit = nullptr;
    FormulaEditLineEvH editHandler;
    VKTab::ContentRef sourceTable;
    VKTab::ContentRef targetTable;
    bool forceSyntaxCheck = false;
};
