#pragma once

#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/records/MappingChange.h>
#include <geomcore/table/ContentRef.h>

#include <QWidget>

class MappingConflictWidgetPrivate;

/// The strip that tells what an update from the server did to the selected project, and what of the
/// modeller's own work was not taken over. Visible, yet empty, until the first project; from then
/// on only for projects with such local changes.
class MappingConflictWidget : public QWidget
{
    Q_OBJECT

public:
    explicit MappingConflictWidget(QWidget *parent);
    ~MappingConflictWidget() override;

    /// The call that makes both maps hold an entry marks the lines of the local changes as
    /// conflicted, once in the life of this widget. The release has to be set before.
    void setConflictedLocalChanges(const MappingChangeMap &changes);
    /// As setConflictedLocalChanges.
    void setConflictedOnlineChanges(const MappingChangeMap &changes);
    void setCatalogMapping(const CatalogMappingC &catalog);
    /// Shows one project; emits targetLineConflict for each of its lines in conflict.
    void loadSourceProject(const PrjMappingC &mapping, const VKTab::ContentRef &content);
    /// Whether a mapping of the last release holds a line in conflict.
    [[nodiscard]] bool hasConflicts() const;

Q_SIGNALS:
    /// A mark was set or taken away: the mapping has to be taken over.
    void conflictsChanged(const PrjMappingC &);
    /// What a line's conflict is about, as HTML.
    void targetLineConflict(const QString &conflictMessage, int lineId);

public Q_SLOTS:
    /// Replaces the mapping; the text stays.
    void onMappingUpdated(const PrjMappingC &mapping);
    void onTargetLineConflictAccepted(int lineId);

private:
    friend class MappingConflictWidgetPrivate;
    MappingConflictWidgetPrivate *const d;
};
