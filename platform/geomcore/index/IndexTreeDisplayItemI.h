#pragma once

#include "DisplayIndexC.h"

#include <core/text/PRefPtr.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QList>
#include <QMetaType>

/// Something that views of the index tree show and let choose. The virtual operations keep their
/// order: other libraries implement and call them.
class VELKGEOMCORE_EXPORT IndexTreeDisplayItemI : public PRefObject
{
public:
    ~IndexTreeDisplayItemI() override;

    /// Not valid for a field that the item does not have.
    [[nodiscard]] virtual QVariant data(const DisplayIndexC &index) const = 0;
    /// Whether the item is a project.
    [[nodiscard]] virtual bool canSelect() const = 0;
    /// Whether the item can be opened.
    [[nodiscard]] virtual bool canActivate() const = 0;
    /// Whether there are items below; tells it without reading them all.
    [[nodiscard]] virtual bool hasChildren() const = 0;
    /// The items below, in the order in which they are shown; read anew at each call.
    [[nodiscard]] virtual QList<PRefPtr<IndexTreeDisplayItemI>> children() const = 0;
};

Q_DECLARE_METATYPE(PRefPtr<IndexTreeDisplayItemI>)
