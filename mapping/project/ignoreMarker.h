#pragma once

#include <QString>

/// What stands in place of a source variable for a target variable that is to be ignored. Made when
/// the library loads, in the language that is known then, and never again.
[[nodiscard]] const QString &ignoreMarker();
