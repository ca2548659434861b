#pragma once

#include <geomcore/records/PrjMappingC.h>

#include <QWidget>

/// Base of the editor's columns that work on one project's mapping. Each has a copy of its own;
/// being connected through these signals and slots keeps the copies equal. GUI thread.
class PrjMappingWidgetBase : public QWidget
{
    Q_OBJECT

public:
    explicit PrjMappingWidgetBase(QWidget *parent);
    ~PrjMappingWidgetBase() override;

Q_SIGNALS:
    /// The column changed its mapping: the others and the handler have to take it over.
    void projectMappingUpdated(const PrjMappingC &mapping);
    /// The modeller settled the conflict of a source line.
    void targetLineConflictAccepted(int);
    /// The lines of the project are to be assigned anew.
    void remapLinesClicked();

public Q_SLOTS:
    /// Takes over a mapping that was changed elsewhere.
    virtual void onProjectMappingUpdated(const PrjMappingC &mapping);
};
