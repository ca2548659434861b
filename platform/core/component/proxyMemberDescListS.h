#pragma once

/// Description of a script class, a static object of it.
struct proxyMemberDescListS
{
    const char *className = nullptr;
    /// Null for a class that scripts cannot create by an id.
    const char *componentId = nullptr;
    const char *file = nullptr; ///< where the class is declared
    int line = 0;
};
