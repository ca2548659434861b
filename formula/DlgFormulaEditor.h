#pragma once

#include <mapping/VelkLinkDbGuiGlobal.h>

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/ContentRef.h>

#include <QDialog>
#include <QHash>

class DlgFormulaEditorPrivate;

/// Dialog in which a modeller writes a condition or the formula of a variable mapping. The usual
/// order: construct, setShowContextMenu(), setFormula(), exec(), getFormula().
class VELKLINKDBGUI_EXPORT DlgFormulaEditor : public QDialog
{
    Q_OBJECT

public:
    /// The varsets are sample values of both tables, of which the names matter. An empty
    /// \a variableName stands for a condition or a free statement; with a name only an assignment
    /// to that variable is right.
    DlgFormulaEditor(const QHash<QString, MapVarValueC> &sourceVariables,
                     const QHash<QString, MapVarValueC> &targetVariables,
                     const QString &variableName, QWidget *parent);
    ~DlgFormulaEditor() override;

    void setFormula(const QString &formula);
    /// The text as typed, also if it is not correct.
    [[nodiscard]] QString getFormula() const;
    /// True: Ok closes the dialog on a correct formula only. False at the start.
    void setForceSyntaxCheck(bool force);
    /// Tells the errors, and with \a showSuccess also that there are none. Any message of the
    /// parser makes a formula incorrect.
    bool checkSyntax(bool showSuccess);
    /// What the context menu offers. Without variables a table set before is not offered either.
    void setShowContextMenu(bool functions, bool operators, bool logic, bool variables);
    /// The context menu offers this table's variables in the place of the sample ones.
    void setSourceTabContent(VKTab::ContentRef table);
    /// The context menu also offers this table's variables, with "SOURCE@" before their names.
    void setTargetTabContent(VKTab::ContentRef table);

    void accept() override;

    static QString trUtf8(const char *text, const char *disambiguation = nullptr, int n = -1)
    {
        return tr(text, disambiguation, n);
    }

private Q_SLOTS:
    void onCheckSyntax();

private:
    DlgFormulaEditorPrivate *const d;
};
