#pragma once

/// What a root node may be besides: the root of a tree that drops its nodes' states at once. A host
/// that wraps such a root hands this on, or else pays for a walk that loads all of its tree.
class StateTreeI
{
public:
    virtual ~StateTreeI() = default;
    /// As if invalidateState were called on the root and on each node below.
    virtual void invalidateTree() = 0;
};
