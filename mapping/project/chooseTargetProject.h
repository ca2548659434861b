#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Asks the user for a project below the local catalog root, beginning in the catalog of the source
/// project. The path is relative to that root, as mappings store it; empty if the user cancels or
/// chooses a file elsewhere.
[[nodiscard]] QString chooseTargetProject(QWidget *parent, const QString &sourcePath);
