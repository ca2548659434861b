#pragma once

#include <QStringList>

/// The part of a test that is killed: "--victim FILE DEED...". Opens the mapping file, does the
/// deeds one after the other, says "ready" and waits for its end. 1 for an unknown deed.
[[nodiscard]] int runVictim(const QStringList &arguments);
