#pragma once

#include "DisplayIndexC.h"

#include <core/text/PRefPtr.h>
#include <core/text/PString.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include <QMap>

/// A column of IndexTreeModelC: which piece of an item's data it shows under which role. GUI
/// thread.
class VELKGEOMCORE_EXPORT IndexTreeModelColumnC : public PRefObject
{
public:
    /// \a display is shown as the item's text.
    IndexTreeModelColumnC(const PString &name, const PString &title, const DisplayIndexC &display);
    ~IndexTreeModelColumnC() override;

    [[nodiscard]] const PString &getName() const { return m_name; }
    [[nodiscard]] const PString &getTitle() const { return m_title; }
    /// Adds or replaces. The models that show the column notice with
    /// IndexTreeModelC::updateData().
    void addRole(int role, const DisplayIndexC &index);
    /// Null for a role that the column does not have.
    [[nodiscard]] const DisplayIndexC *findRole(int role) const;

private:
    PString m_name;
    PString m_title;
    QMap<int, DisplayIndexC> m_roles;
};
