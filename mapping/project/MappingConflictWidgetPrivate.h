#pragma once

#include <core/text/PPrivateData.h>
#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/records/MappingChange.h>
#include <geomcore/table/ContentRef.h>

#include <QHash>

QT_BEGIN_NAMESPACE
class QLabel;
class QScrollArea;
class QWidget;
QT_END_NAMESPACE

class MappingConflictWidget;

class MappingConflictWidgetPrivate : public PPrivateData<MappingConflictWidget>
{
public:
    explicit MappingConflictWidgetPrivate(MappingConflictWidget *owner)
        : PPrivateData(owner)
    {
    }

    void buildLayout();
    /// Marks the lines of the local changes once both maps hold an entry; once.
    void markLocalConflicts();
    void setChangeConflicted(const MappingChange &change, bool conflicted);
    [[nodiscard]] bool isChangeConflicted(const MappingChange &change) const;
    /// Value of a target line in its target's table; empty if there is none. One text reads each
    /// table once.
    [[nodiscard]] QString targetLineText(const PrjMappingTargetC &target,
                                         const PrjMappingTargetLineC &line);
    /// One line of text for a change, may be empty. For a local change in conflict it also emits
    /// targetLineConflict.
    [[nodiscard]] QString describeChange(const MappingChange &change, bool local);
    void updateConflictText(const PrjMappingC &projectMapping);
    void acceptLine(int lineId);

    MappingChangeMap localChanges;
    MappingChangeMap onlineChanges;
    /// Asking for the last release of a record is not const.
    CatalogMappingC catalogMapping;
    QScrollArea *scrollArea = nullptr;
    QLabel *messageLabel = nullptr;
    QLabel *titleLabel = nullptr;
    QWidget *contentsWidget = nullptr;
    PrjMappingC mapping;
    bool conflictsMarked = false;
    VKTab::ContentRef content;

private:
    /// The strip grows with its text up to so many lines, then it scrolls.
    static constexpr int MaxTextLines = 10;

    void giveTextRoom();
    [[nodiscard]] QPair<QString, QString> key();
    /// Index of the first target that holds the line, or -1.
    [[nodiscard]] int targetOfLine(int lineId) const;
    [[nodiscard]] QString changeList(const QList<MappingChange> &changes, bool local);
    [[nodiscard]] QString changedLineText(const MappingChange &change) const;
    [[nodiscard]] QString conflictMessage(const MappingChange &change);

    QHash<QString, VKTab::ContentRef> m_targetTables; ///< by target path; while a text is made
};
