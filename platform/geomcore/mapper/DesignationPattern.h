#pragma once

#include <QString>

#include <string>
#include <vector>

namespace VKTab {
class TableDescriptor;
}

namespace Mapper {

/// How the norm number and the norm designation of a table's lines are made: from columns that the
/// descriptor names, or from patterns with the names of variables in braces.
class DesignationPattern
{
public:
    DesignationPattern() = default;
    explicit DesignationPattern(const VKTab::TableDescriptor &descriptor);
    /// The designation alone.
    [[nodiscard]] static DesignationPattern ofDesignation(const VKTab::TableDescriptor &descriptor);

    /// Lines of the table have neither.
    [[nodiscard]] bool isEmpty() const { return m_parts.empty(); }

    /// The text of a line, UTF-8; empty if the line has none of the values. \a value gives the text
    /// of a variable by its name.
    template<class Value>
    [[nodiscard]] std::string text(Value value) const
    {
        std::string result;
        bool any = false;
        for (const Part &part : m_parts) {
            const std::string piece = part.variable ? value(part.text) : part.text.toStdString();
            any = any || (part.variable && !piece.empty());
            result += piece;
        }
        return any ? result : std::string();
    }

private:
    struct Part
    {
        QString text; ///< Name or literal text.
        bool variable;
    };
    void add(const QString &source);

    std::vector<Part> m_parts;
};

} // namespace Mapper
