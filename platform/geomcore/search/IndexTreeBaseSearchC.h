#pragma once

#include <core/text/PRefPtr.h>
#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/VelkGeomCoreGlobal.h>

/// One kind of search in a request. It only says what is wanted; CatalogSearch carries it out.
class VELKGEOMCORE_EXPORT IndexTreeBaseSearchC : public PRefObject
{
public:
    enum ActivatedType { NotActivated = 0, Activated = 1 };
    /// How it is combined with the other searches of the request.
    enum UsedType { NotUsed = 0, UsedWithAnd = 1 };

    ~IndexTreeBaseSearchC() override;

    /// By which a request knows it.
    [[nodiscard]] virtual QString getName() const = 0;
    /// A copy that shares nothing with this one.
    [[nodiscard]] virtual PRefPtr<IndexTreeBaseSearchC> clone() const = 0;

    [[nodiscard]] const PRefPtr<IndexTreeC> &getTree() const { return m_tree; }
    /// One that is not activated, or not used, restricts nothing. A new one is both.
    void setActivatedType(int type) { m_activatedType = type; }
    [[nodiscard]] int getActivatedType() const { return m_activatedType; }
    void setUsedType(int type) { m_usedType = type; }
    [[nodiscard]] int getUsedType() const { return m_usedType; }
    [[nodiscard]] bool isActivated() const
    {
        return m_activatedType != NotActivated && m_usedType != NotUsed;
    }

protected:
    explicit IndexTreeBaseSearchC(const PRefPtr<IndexTreeC> &tree);
    IndexTreeBaseSearchC(const IndexTreeBaseSearchC &) = default;

private:
    PRefPtr<IndexTreeC> m_tree;
    int m_activatedType = Activated;
    int m_usedType = UsedWithAnd;
};
