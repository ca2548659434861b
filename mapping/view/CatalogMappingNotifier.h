#pragma once

#include <QObject>

/// Tells a host what the user does in the mapping editor. It stands beside the widget because that
/// has no signals of its own; hosts connect by name.
class CatalogMappingNotifier : public QObject
{
    Q_OBJECT

public:
    explicit CatalogMappingNotifier(QObject *parent);

Q_SIGNALS:
    /// Another project is shown, none any more, or the same one with everything read anew.
    void currentProjectChanged();
    /// Other lines of the source table are selected.
    void selectedLinesChanged();
    void onlyOpenProjectsChanged(bool on);
    /// The lines of the project were assigned anew at the user's wish, with or without a change.
    void linesReassigned();
    /// The user confirmed, removed or set as expired what is selected, with or without a change;
    /// what came of it was announced before.
    void linesDecided();
    /// A condition was made of a line and put on the clipboard.
    void conditionCopied(const QString &text);
};
