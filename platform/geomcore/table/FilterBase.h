#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

#include <memory>

namespace VKTab {

class FilterRule;

/// Filter of a table. A handle to an immutable rule: passes by value without losing its kind. A
/// default filter shows every line and has no class.
class VELKGEOMCORE_EXPORT FilterBase
{
public:
    FilterBase();
    explicit FilterBase(std::shared_ptr<const FilterRule> rule);
    FilterBase(const FilterBase &other);
    FilterBase &operator=(const FilterBase &other);
    virtual ~FilterBase();

    /// Name under which a table keeps the filter; empty for a default one.
    [[nodiscard]] QString getClassName() const;
    /// False if it shows every line, whatever the table.
    [[nodiscard]] bool isUsed() const;
    /// Null for a default filter.
    [[nodiscard]] const std::shared_ptr<const FilterRule> &rule() const { return m_rule; }

protected:
    void setRule(std::shared_ptr<const FilterRule> rule);

private:
    std::shared_ptr<const FilterRule> m_rule;
};

} // namespace VKTab
