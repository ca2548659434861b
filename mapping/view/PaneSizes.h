#pragma once

#include <QByteArray>

class QWidget;

/// Sizes of the editor's panes: the positions of its splitters by their names.
class PaneSizes
{
public:
    [[nodiscard]] static QByteArray save(const QWidget &editor);
    /// False if there is nothing to restore.
    static bool restore(QWidget &editor, const QByteArray &state);
    /// A narrow tree, little room for conflicts, most of it for the tables.
    static void setStandard(QWidget &editor);
};
