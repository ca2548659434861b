#pragma once

/// Marks, while it lives, that this thread tells an observer what happened on another: events are
/// being processed already.
class ProgressDelivery
{
public:
    ProgressDelivery();
    ~ProgressDelivery();
    ProgressDelivery(const ProgressDelivery &) = delete;
    ProgressDelivery &operator=(const ProgressDelivery &) = delete;

    [[nodiscard]] static bool isUnderWay();
};
