#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include <QString>

/// What the mapping editor asks of the application around it; the host derives from it.
class VELKLINKDBGUI_EXPORT ApplicationHandlerI
{
public:
    virtual ~ApplicationHandlerI();
    /// The user wants to see a target project. \a targetPath is the target's path, unbuilt.
    virtual void openTargetProject(const QString &targetPath) = 0;

    ApplicationHandlerI();
    ApplicationHandlerI(const ApplicationHandlerI &other);
    ApplicationHandlerI &operator=(const ApplicationHandlerI &other);
};
