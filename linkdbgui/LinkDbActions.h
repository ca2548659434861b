#pragma once

class PApplicationPool;

/// Registers the plug-in's actions with their texts, tips, icons and states, in a fixed order.
void registerLinkDbActions(PApplicationPool &pool);
