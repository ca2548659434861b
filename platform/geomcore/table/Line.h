#pragma once

#include "LineI.h"

#include <boost/container/flat_map.hpp>

#include <memory>

namespace VKTab {

class ContentData;
class ContentStructure;
class LineView;

/// Working view of one line of a table, made by Content::getLine. Small; keeps the table alive. A
/// copy shows the values that were put into the original so far, later ones go separate ways. Each
/// thread needs a Line of its own.
class VELKGEOMCORE_EXPORT Line : public LineI
{
public:
    /// No line.
    Line();
    Line(const Line &other);
    Line(Line &&other) noexcept;
    Line &operator=(const Line &other);
    Line &operator=(Line &&other) noexcept;
    ~Line() override;

    /// All variables of the table; the list is shared, not built.
    [[nodiscard]] QList<Var> getVarList() const override;
    [[nodiscard]] LineInfo getLineInfo() const override;
    [[nodiscard]] bool isValid() const override { return m_info.isValid(); }
    [[nodiscard]] QVariant getValue(ValueId id, EvalFlags eval = {}) const override;
    [[nodiscard]] Value getValue(const Var &var, FormatFlags format,
                                 EvalFlags eval = {}) const override;
    [[nodiscard]] QVariant getLineKeyValue(const QString &key) const override;
    [[nodiscard]] bool hasValue(const Var &var, const Value &value,
                                bool rangeContains) const override;
    void putValue(const VarId &id, const Value &value) override;
    void takeValue(const VarId &id) override;
    void takeValues() override;
    bool apply() override;

private:
    friend class Content;
    friend class LineFilters;
    friend class LineView;
    using Overlay = boost::container::flat_map<VarId, Value>;

    Line(std::shared_ptr<ContentData> content, std::shared_ptr<const ContentStructure> structure,
         const LineInfo &info);

    std::shared_ptr<ContentData> m_content;
    std::shared_ptr<const ContentStructure> m_structure;
    std::unique_ptr<Overlay> m_overlay; // null while nothing is put in
    LineInfo m_info;
};

} // namespace VKTab
