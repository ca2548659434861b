#include "NodeVisitor.h"

namespace VKTab {

NodeVisitor::~NodeVisitor() = default;

} // namespace VKTab
