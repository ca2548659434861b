#pragma once

/// What a node may be besides: one that has children for certain, so that nobody has to ask for
/// them only to learn that.
class FilledNodeI
{
public:
    virtual ~FilledNodeI() = default;
};
