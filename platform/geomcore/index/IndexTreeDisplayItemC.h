#pragma once

#include "IndexTreeDisplayItemI.h"
#include "IndexTreeNodeC.h"

/// A node of the index tree as views show it. Icons are for the GUI thread only, all else for any.
class VELKGEOMCORE_EXPORT IndexTreeDisplayItemC : public IndexTreeDisplayItemI
{
public:
    /// Null for no node.
    [[nodiscard]] static PRefPtr<IndexTreeDisplayItemI>
    createFromNode(const PRefPtr<IndexTreeNodeC> &node);

    explicit IndexTreeDisplayItemC(const PRefPtr<IndexTreeNodeC> &node);
    ~IndexTreeDisplayItemC() override;

    /// Never null.
    [[nodiscard]] const PRefPtr<IndexTreeNodeC> &node() const { return m_node; }
    /// Says whether the project bears the ERP mark, which is else asked when it is first shown. GUI
    /// thread.
    void setErpMark(bool marked) { m_erpMark = marked; }

    [[nodiscard]] QVariant data(const DisplayIndexC &index) const override;
    [[nodiscard]] bool canSelect() const override;
    [[nodiscard]] bool canActivate() const override;
    [[nodiscard]] bool hasChildren() const override;
    [[nodiscard]] QList<PRefPtr<IndexTreeDisplayItemI>> children() const override;

private:
    [[nodiscard]] QVariant icon(int form) const;
    [[nodiscard]] bool hasErpMark() const;

    const PRefPtr<IndexTreeNodeC> m_node;
    mutable std::optional<bool> m_erpMark;
};
