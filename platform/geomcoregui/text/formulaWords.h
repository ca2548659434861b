#pragma once

#include "FormulaItem.h"

#include <geomcore/expression/Token.h>

QT_BEGIN_NAMESPACE
class QPlainTextEdit;
QT_END_NAMESPACE

/// The word that ends at a place of a statement: a name with its prefix, or the beginning of an
/// operator in points. Empty between words; not to be completed within quotes and numbers.
struct FormulaWord
{
    QString text;
    bool canBeCompleted = true;
    /// Nothing stands before it.
    bool isFirst = false;
};

[[nodiscard]] FormulaWord formulaWordBefore(const QString &text, qsizetype position);
/// The token that the place lies in, a name with its prefix; one of kind Unknown without text if
/// there is none.
[[nodiscard]] VKTab::Token formulaTokenAt(const QString &text, qsizetype position);
/// Name of the innermost function whose brackets hold the place; empty if none do.
[[nodiscard]] QString enclosingFunction(const QString &text, qsizetype position);

/// Writes an item at the cursor, in the place of the selection or of that many characters before
/// the cursor, as one step of undo. Operators get blanks around them; a function gets brackets,
/// with the former selection or the cursor in them.
void insertFormulaItem(QPlainTextEdit *edit, const FormulaItem &item, int replaced);
