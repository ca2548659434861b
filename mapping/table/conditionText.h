#pragma once

#include <geomcore/expression/MapVarValueC.h>

#include <QHash>

/// A condition on these values: a comparison for each, in the order of the hash, joined by " .AND.
/// ". Values stand as they are, texts in single quotes. So the text does not parse if a number is
/// missing or is a range, or if a text has a quote in it; whoever uses it has to look.
[[nodiscard]] QString conditionText(const QHash<QString, MapVarValueC> &varset);
