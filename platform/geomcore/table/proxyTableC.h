#pragma once

#include <core/component/proxyObjectC.h>
#include <geomcore/VelkGeomCoreGlobal.h>

#include "Content.h"

#include <core/component/mzComVariantC.h>

namespace VKTab {

/// A table as scripts have it: to be read, and to be given to others. Lines go by their numbers;
/// lines that differ by their second number only cannot be told apart here. Cells are read as they
/// are stored, with a decimal point and untranslated. An unknown column is an error of the script,
/// a line that is not there has empty cells.
class VELKGEOMCORE_EXPORT proxyTableC : public proxyObjectC
{
public:
    explicit proxyTableC(const Content &content);

    [[nodiscard]] ContentRef getContent() const;

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    /// Scripts have all of the below.
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

    [[nodiscard]] bool isValid() const;
    /// Of the table's project, as KeyProjectPath has it.
    [[nodiscard]] QString path() const;
    [[nodiscard]] QString normNumber() const;

    [[nodiscard]] int lineCount() const;
    /// Number of the line in a row of the file, from 0; -1 beyond the ends.
    [[nodiscard]] int lineAt(int row) const;
    [[nodiscard]] bool hasLine(int line) const;
    /// False for one that is not there, too.
    [[nodiscard]] bool isVisible(int line) const;
    [[nodiscard]] QString normNumberOf(int line) const;
    [[nodiscard]] QString designationOf(int line) const;

    /// Hidden columns included.
    [[nodiscard]] int columnCount() const;
    /// Empty beyond the ends.
    [[nodiscard]] QString columnAt(int index) const;
    [[nodiscard]] bool hasColumn(const QString &name) const;
    [[nodiscard]] QString titleOf(const QString &name) const;

    /// A range as its text. Empty for a missing value.
    [[nodiscard]] QString value(int line, const QString &name) const;
    /// Empty if the cell is no single number.
    [[nodiscard]] mzComVariantC number(int line, const QString &name) const;
    /// Number of the first line with this text in the column; -1 without one. Numbers are equal by
    /// value.
    [[nodiscard]] int findLine(const QString &name, const QString &text) const;

private:
    ~proxyTableC() override;

    [[nodiscard]] Var column(const QString &name) const;
    [[nodiscard]] Value cell(int line, const QString &name) const;

    ContentRef m_content;
};

} // namespace VKTab
