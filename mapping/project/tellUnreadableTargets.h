#pragma once

#include <QStringList>

/// Says that lines were not assigned anew, because the tables of these targets cannot be read.
void tellUnreadableTargets(const QStringList &targetPaths);
