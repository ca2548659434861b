#pragma once

#include <geomcoregui/VelkGeomCoreGuiGlobal.h>

#include <geomcore/expression/MapVarValueC.h>

#include <QHash>
#include <QObject>
#include <QString>

#include <memory>

QT_BEGIN_NAMESPACE
class QPlainTextEdit;
QT_END_NAMESPACE

class FormulaEditPrivate;
class VkTableHighlighter;
namespace VKTab {
class Content;
} // namespace VKTab

/// Makes a plain text editor one for statements of the formula language. Its context menu inserts
/// functions, operators, logic and variables at the cursor; the same come as completions of a word
/// while it is typed (from two letters on, or by Ctrl+Space: arrows choose, Return or Tab inserts,
/// Esc closes the list). F1 and the mouse show what a word means, with examples. With
/// setStatement() the first error is underlined and told, and unknown names have a colour of their
/// own. GUI thread.
class VELKGEOMCOREGUI_EXPORT FormulaEditLineEvH : public QObject
{
    Q_OBJECT

public:
    /// Offers functions, operators and logic, and no variables.
    FormulaEditLineEvH();
    /// The editor may live on, without what this adds to it, or be gone already.
    ~FormulaEditLineEvH() override;

    /// Null gives up the editor. Only the last one given is served.
    void setEdit(QPlainTextEdit *edit);
    /// Told which names are unknown; belongs to the editor's document.
    void setHighlighter(VkTableHighlighter *highlighter);
    /// What the statement is parsed against, see VarsetParserC; with a variable name only an
    /// assignment to it is right. Without this call nothing is checked.
    void setStatement(const QHash<QString, MapVarValueC> &source,
                      const QHash<QString, MapVarValueC> &target, const QString &variableName);

    void setShowFunctions(bool show);
    void setShowOperators(bool show);
    void setShowLogic(bool show);

    /// Offers these variables under the label, in the place of those of an earlier call; with
    /// \a prefixed the label is written before each name.
    void setContent(const QHash<QString, MapVarValueC> &varset, const QString &label,
                    bool prefixed);
    void setContent(const VKTab::Content &table, const QString &label, bool prefixed);
    /// Offers those of a second table as well, always with the label before the name. A table that
    /// is not valid offers none.
    void setAdditionalContent(const VKTab::Content &table, const QString &label);
    /// Offers no variables any more, of neither table.
    void initWithoutContent();

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    const std::unique_ptr<FormulaEditPrivate> d;
};
