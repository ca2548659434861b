#pragma once

#include <core/text/PString.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QIcon>

/// A kind of node of the index tree and how it is shown.
class VELKGEOMCORE_EXPORT IndexTreeIconTableItemC
{
public:
    IndexTreeIconTableItemC(const PString &type, const QIcon &icon);

    /// Name of the kind, with "/" at its end.
    [[nodiscard]] PString getType() const { return m_type; }
    /// Drawn at whatever size is asked for, readable on light and dark ground.
    [[nodiscard]] QIcon getIcon() const { return m_icon; }

private:
    PString m_type;
    QIcon m_icon;
};
