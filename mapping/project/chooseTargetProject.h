#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Lets the user search or choose a project of the catalogs, beginning in the catalog of the source
/// project. The path is relative to the catalog root, as mappings store it; empty if the user
/// cancels.
[[nodiscard]] QString chooseTargetProject(QWidget *parent, const QString &sourcePath);
