#pragma once

#include "VarsetModifierI.h"
#include <geomcore/expression/ExpressionText.h>
#include <geomcore/expression/MapVarValueC.h>

/// A formula that assigns the target variable. Plain names read the source line's values, names
/// with "SOURCE@" those that are being made for the target table, as the modifiers before this one
/// left them. Without a result the variable is there without a value. A formula that does not parse
/// changes nothing.
class VELKGEOMCORE_EXPORT VarsetValueMappingC : public VarsetModifierI
{
public:
    ~VarsetValueMappingC() override;

    /// Null, and a message "error: ...", if the text does not parse, names a variable that its
    /// varset lacks, or is no assignment. The caller owns the result.
    [[nodiscard]] static VarsetValueMappingC *create(const QString &text,
                                                     const QHash<QString, MapVarValueC> &source,
                                                     const QHash<QString, MapVarValueC> &target);
    /// For text out of a mapping file, when no table is at hand: never null. Parsed at the first
    /// evaluation, with any names; if it does not parse, the log window is told once. The caller
    /// owns the result.
    [[nodiscard]] static VarsetValueMappingC *fromText(const QString &text);

    /// The text as it was given.
    [[nodiscard]] QString getFormula() const { return m_expression->text(); }
    /// The assigned variable; empty if the text does not parse.
    [[nodiscard]] QString getTargetVarName() const;
    /// What is wrong with the text; empty if it parses.
    [[nodiscard]] QString error() const { return m_expression->error(); }

    [[nodiscard]] VarsetValueMappingC *clone() const override;
    void updateVarset(const QHash<QString, MapVarValueC> &in,
                      QHash<QString, MapVarValueC> &out) const override;
    void toJson(PJsonValue &out) const override;
    void bind(VKTab::BoundModifiers &bound) const override;

private:
    explicit VarsetValueMappingC(std::shared_ptr<const VKTab::ExpressionText> expression);

    std::shared_ptr<const VKTab::ExpressionText> m_expression;
};
