#pragma once

#include <core/text/PPathName.h>

/// Makes a directory the root of the process's catalogs while it lives, then the former one again.
/// GUI thread, while nothing reads projects.
class TargetRoot
{
public:
    explicit TargetRoot(const QString &directory);
    ~TargetRoot();
    TargetRoot(const TargetRoot &) = delete;
    TargetRoot &operator=(const TargetRoot &) = delete;

private:
    const PPathName m_former;
};
