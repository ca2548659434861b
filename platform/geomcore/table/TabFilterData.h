#pragma once

namespace VKTab {

/// What a line filter may say of one line; carries nothing beyond the line's presence.
class TabFilterData
{
public:
    friend bool operator==(const TabFilterData &, const TabFilterData &) = default;
};

} // namespace VKTab
