#pragma once

#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/value/LineId.h>

#include <QList>
#include <QString>

#include <functional>

class ApplicationHandlerI;
class TableMappingWidget;

/// What the target widgets of one project share. The copied texts live here so that a row copied
/// from one target can be pasted into another one; they survive a change of project.
struct TargetMappingParamSet
{
    ApplicationHandlerI *application = nullptr;       ///< not owned, may be null
    TableMappingWidget *tableMappingWidget = nullptr; ///< not owned
    CatalogMappingC catalogMapping;
    PrjMappingC projectMapping; ///< the one copy that the project column writes to
    bool assignEnabled = false; ///< whether the targets' assign buttons are enabled
    QString copiedTargetVariable;
    QString copiedSourceText;
    bool copiedIsFormula = false;
    bool copiedIsIgnored = false;
    QString copiedCondition;
    /// Of tableMappingWidget, whose class stands above this one.
    std::function<VKTab::LineId()> selectedSourceLine;
    std::function<QList<int>()> selectedSourceLines; ///< may be empty
    std::function<void()> focusSourceLines;          ///< may be empty
};
