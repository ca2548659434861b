#include "DlgFormulaEditor.h"

#include "DlgFormulaEditorPrivate.h"

#include <core/message/PMessage.h>
#include <core/message/PStringMessageImpl.h>
#include <core/text/PString.h>
#include <geomcore/binding/VarsetParserC.h>
#include <geomcore/expression/Tokenizer.h>
#include <geomcoregui/text/VkTableHighlighter.h>
#include <gui/application/PApplication.h>

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

#include <functional>
#include <memory>

namespace {

QString translated(const char *text)
{
    return PString::translate(text, "VelkLinkDbGui");
}

} // namespace

DlgFormulaEditor::DlgFormulaEditor(const QHash<QString, MapVarValueC> &sourceVariables,
                                   const QHash<QString, MapVarValueC> &targetVariables,
                                   const QString &variableName, QWidget *parent)
    : QDialog(parent)
    , d(new DlgFormulaEditorPrivate(this))
{
    d->variableName = variableName;
    d->sourceVariables = sourceVariables;
    d->targetVariables = targetVariables;
    setWindowTitle(translated("Formel bearbeiten"));
    setObjectName(QStringLiteral("dlgEditMapoingFormula"));
    auto *const layout = new QVBoxLayout(this);
    d->edit = new QPlainTextEdit(this);
    d->edit->setObjectName(QStringLiteral("formulaEdit"));
    d->edit->setAccessibleName(windowTitle());
    d->edit->setTabChangesFocus(true);
    layout->addWidget(d->edit);
    const std::function<QList<VKTab::Token>(const QString &)> tokenizer = VKTab::Tokenizer();
    auto *const highlighter = new VkTableHighlighter(tokenizer, d->edit->document());
    d->editHandler.setEdit(d->edit);
    d->editHandler.setHighlighter(highlighter);
    d->editHandler.setStatement(sourceVariables, targetVariables, variableName);
    auto *const row = new QHBoxLayout;
    row->addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    auto *const checkButton = new QPushButton(translated("Syntax prüfen"), this);
    checkButton->setObjectName(QStringLiteral("checkSyntax"));
    checkButton->setAutoDefault(false);
    connect(checkButton, SIGNAL(clicked()), this, SLOT(onCheckSyntax()));
    row->addWidget(checkButton);
    layout->addLayout(row);
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    layout->addWidget(buttons);
    VelkApp()->setupWindow(this);
}

DlgFormulaEditor::~DlgFormulaEditor()
{
    VelkApp()->saveWindow(this);
    delete d;
}

void DlgFormulaEditor::setFormula(const QString &formula)
{
    d->edit->setPlainText(formula);
}

QString DlgFormulaEditor::getFormula() const
{
    return d->edit->toPlainText();
}

void DlgFormulaEditor::setForceSyntaxCheck(bool force)
{
    d->forceSyntaxCheck = force;
}

bool DlgFormulaEditor::checkSyntax(bool showSuccess)
{
    VarsetParserC parser(d->sourceVariables, d->targetVariables);
    PStringMessageImpl capture(PMsgReply::Cancel, false, false);
    const QString text =
        VarsetParserC::resolveSourceVars(getFormula(), d->targetVariables, nullptr);
    const bool isFree = d->variableName.isEmpty();
    const std::unique_ptr<VKTab::NodeBase> node(
        parser.parseStatement(text, isFree ? QString() : d->variableName, isFree));
    capture.deactivate();
    const bool isCorrect = d->isCorrect(node.get(), capture.getMessages());
    if (!isCorrect)
        PMessage::Show(d->errorText(capture.getMessages()));
    else if (showSuccess)
        PMessage::Show(translated("Keine Fehler gefunden"));
    return isCorrect;
}

void DlgFormulaEditor::setShowContextMenu(bool functions, bool operators, bool logic,
                                          bool variables)
{
    d->editHandler.setShowFunctions(functions);
    d->editHandler.setShowOperators(operators);
    d->editHandler.setShowLogic(logic);
    if (variables)
        d->editHandler.setContent(d->sourceVariables, QStringLiteral("VAR"), false);
    else
        d->editHandler.initWithoutContent();
}

void DlgFormulaEditor::setSourceTabContent(VKTab::ContentRef table)
{
    d->sourceTable = std::move(table);
    d->editHandler.setContent(d->sourceTable, QStringLiteral("VAR"), false);
}

void DlgFormulaEditor::setTargetTabContent(VKTab::ContentRef table)
{
    d->targetTable = std::move(table);
    d->editHandler.setAdditionalContent(d->targetTable, QStringLiteral("SOURCE@"));
}

void DlgFormulaEditor::accept()
{
    if (d->forceSyntaxCheck && !checkSyntax(false))
        return;
    QDialog::accept();
}

void DlgFormulaEditor::onCheckSyntax()
{
    checkSyntax(true);
}
