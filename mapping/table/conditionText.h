#pragma once

#include <geomcore/expression/MapVarValueC.h>

#include <QHash>

/// A condition that holds for exactly these values: a comparison for each, in the order of the
/// hash, joined by " .AND. ". Texts stand in single quotes as they are, so one with a quote in it
/// gives a condition that does not parse.
[[nodiscard]] QString conditionText(const QHash<QString, MapVarValueC> &varset);
