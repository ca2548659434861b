#pragma once

#include "VarsetConditionI.h"
#include <geomcore/expression/ExpressionText.h>
#include <geomcore/expression/MapVarValueC.h>

#include <QStringList>

/// A condition in the formula language over the variables of the source table.
class VELKGEOMCORE_EXPORT VarsetConditionC : public VarsetConditionI
{
public:
    ~VarsetConditionC() override;

    /// Null, and a message "error: ...", if the text does not parse, names a variable that the
    /// varset lacks, or is no comparison. Appends the names that the condition reads, each once;
    /// on null usedVariables stays as it is. The caller owns the result.
    [[nodiscard]] static VarsetConditionC *create(const QString &text,
                                                  const QHash<QString, MapVarValueC> &source,
                                                  QStringList &usedVariables);
    [[nodiscard]] static VarsetConditionC *create(const QString &text,
                                                  const QHash<QString, MapVarValueC> &source);
    /// For text out of a mapping file, when no table is at hand: never null. Parsed at the first
    /// evaluation, with any names; if it does not parse, it never holds and the log window is told
    /// once. The caller owns the result.
    [[nodiscard]] static VarsetConditionC *fromText(const QString &text);

    /// The text as it was given.
    [[nodiscard]] QString getCondition() const override;
    /// What is wrong with the text; empty if it parses.
    [[nodiscard]] QString error() const { return m_expression.error(); }

    [[nodiscard]] bool holds(const QHash<QString, MapVarValueC> &varset) const override;
    [[nodiscard]] bool holds(const VKTab::LineView &line) const override;
    [[nodiscard]] std::shared_ptr<const VKTab::Program> program() const override;

private:
    explicit VarsetConditionC(const QString &text);
    VarsetConditionC(const QString &text, const VKTab::NodeBase &statement);

    VKTab::ExpressionText m_expression;
};
