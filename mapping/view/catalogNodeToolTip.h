#pragma once

#include <QString>

class CatalogStructureNodeI;

/// What is to be said of a node's state, one sentence a line; empty if nothing is. A conflict
/// stands on the same line as the sentence before it.
[[nodiscard]] QString catalogNodeToolTip(const CatalogStructureNodeI &node);
