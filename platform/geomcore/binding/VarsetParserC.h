#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/expression/NodeBase.h>

#include <geomcore/value/VarId.h>

#include <QHash>
#include <QString>

#include <memory>

class VarsetNames;
namespace VKTab {
class Line;
struct ParsedStatement;
} // namespace VKTab

/// Parser of the formula language against sample values of two tables, of which only the names
/// matter. A plain name reads a variable of the source varset. "SOURCE@NAME" reads a variable of
/// the target varset or, as lines hand on what no mapping names, of the source varset. An
/// assignment names a variable of the target varset. Any other name is an error.
class VELKGEOMCORE_EXPORT VarsetParserC
{
public:
    VarsetParserC(const QHash<QString, MapVarValueC> &source,
                  const QHash<QString, MapVarValueC> &target);
    ~VarsetParserC();
    VarsetParserC(const VarsetParserC &) = delete;
    VarsetParserC &operator=(const VarsetParserC &) = delete;

    /// Parses one statement: with anyStatement whatever it is, else only an assignment to the named
    /// variable. The caller deletes the result. A text that does not parse gives a node of type
    /// 127, an empty one null, both with one message "error: ..." that tells the place, counted
    /// from 1.
    [[nodiscard]] VKTab::NodeBase *parseStatement(const QString &text, const QString &variableName,
                                                  bool anyStatement);

    /// The same without a message and with the error in the result, for use while a text is typed.
    [[nodiscard]] VKTab::ParsedStatement parse(const QString &text, const QString &variableName,
                                               bool anyStatement);

    /// Whether a statement may read the variable, with "SOURCE@" before its name or without.
    [[nodiscard]] bool isReadable(const QString &name, bool prefixed) const;
    [[nodiscard]] bool isAssignable(const QString &name) const;

    /// Name of a variable that a statement of this parser assigns; empty for other ids.
    [[nodiscard]] QString getVarName(const VKTab::VarId &id) const;

    /// The text with the value in the place of each "SOURCE@NAME" outside of quotes: of the line's
    /// variable, or without such a one that of the varset. Numbers go in as they are, with a sign
    /// in brackets, all else as a text in quotes. A name that neither knows stays as it is. Blanks
    /// fill up to the former length, so that places in the text stay where they were unless a value
    /// is longer than its name.
    [[nodiscard]] static QString resolveSourceVars(const QString &text,
                                                   const QHash<QString, MapVarValueC> &varset,
                                                   const VKTab::Line *line);

private:
    std::unique_ptr<VarsetNames> m_names;
};
