#include "StepListDialog.h"

#include "StepListModel.h"

#include <gui/application/PApplication.h>
#include <workbench/session/history/UndoHistory.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

StepListDialog::StepListDialog(MappingDocument *document, QWidget *parent)
    : QDialog(parent)
    , m_document(document)
    , m_model(new StepListModel(document, this))
    , m_shown(new QSortFilterProxyModel(this))
    , m_search(new QLineEdit(this))
    , m_view(new QTreeView(this))
    , m_hint(new QLabel(this))
    , m_refresh(new QTimer(this))
{
    setObjectName("StepListDialog");
    setWindowTitle(tr("Schritte"));
    m_search->setObjectName("search");
    m_search->setPlaceholderText(tr("Wer, was oder Zeilen suchen"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_shown->setSourceModel(m_model);
    m_shown->setFilterKeyColumn(-1);
    m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_view->setObjectName("steps");
    m_view->setAccessibleName(windowTitle());
    m_view->setModel(m_shown);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_hint->setObjectName("hint");
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    const auto addButton = [&](const char *name) {
        QPushButton *const button = buttons->addButton(QString(), QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    };
    m_move = addButton("move");
    m_undoTo = addButton("undoTo");
    m_undoTo->setText(tr("&Bis hier zurücknehmen"));
    m_undoTo->setToolTip(tr("Nimmt diesen und alle späteren Schritte zurück, die gelten"));
    m_goTo = addButton("goTo");
    m_goTo->setText(tr("Zur Z&eile"));
    QPushButton *const close = buttons->addButton(tr("&Schließen"), QDialogButtonBox::RejectRole);
    close->setObjectName("close");
    close->setAutoDefault(false);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_view);
    layout->addWidget(m_hint);
    layout->addWidget(buttons);
    m_refresh->setSingleShot(true);
    m_refresh->setInterval(0);
    connect(m_refresh, &QTimer::timeout, this, &StepListDialog::refresh);
    connect(document, &MappingDocument::undoChanged, m_refresh, qOverload<>(&QTimer::start));
    connect(document, &MappingDocument::modifiedChanged, m_refresh, qOverload<>(&QTimer::start));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_search, &QLineEdit::textChanged, m_shown,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &StepListDialog::look);
    connect(m_view, &QTreeView::activated, this, &StepListDialog::goToLine);
    connect(m_goTo, &QPushButton::clicked, this, &StepListDialog::goToLine);
    connect(m_move, &QPushButton::clicked, this, [this] { move(m_plan); });
    connect(m_undoTo, &QPushButton::clicked, this, [this] { move(m_planTo); });
    resize(900, 480);
    PApplication::setupWindow(this);
    const QFontMetrics metrics(font());
    m_view->header()->resizeSection(StepListModel::What, metrics.averageCharWidth() * 60);
    for (const int column : {StepListModel::State, StepListModel::Time, StepListModel::Author})
        m_view->resizeColumnToContents(column);
    select(m_document->steps().nextUndo());
    look();
    m_view->setFocus();
}

StepListDialog::~StepListDialog()
{
    PApplication::saveWindow(this);
}

void StepListDialog::refresh()
{
    const int step = selected();
    m_model->refresh();
    select(step);
    look();
}

int StepListDialog::selected() const
{
    const QModelIndex index = m_shown->mapToSource(m_view->currentIndex());
    return index.isValid() ? m_model->stepAt(index.row()) : -1;
}

void StepListDialog::select(int step)
{
    const int row = step < 0 ? 0 : m_model->rowOf(step);
    m_view->setCurrentIndex(m_shown->mapFromSource(m_model->index(row, 0)));
}

/// What can be done with the selected step, before it is done.
void StepListDialog::look()
{
    const int step = selected();
    m_plan = m_planTo = StepPlan();
    const bool isEditable = m_document->isOpen() && !m_document->isReadOnly();
    const bool isApplied =
        step >= 0 && m_document->steps().at(step).state == UndoStep::State::Applied;
    if (step >= 0 && isEditable)
        m_plan = m_document->planStep(step);
    if (isApplied && isEditable)
        m_planTo = m_document->planUndoTo(step);
    const int others = int(m_plan.steps.size()) - 1;
    if (step < 0 || isApplied)
        m_move->setText(others > 0 ? tr("Mit %Ln abhängigen &zurücknehmen", nullptr, others)
                                   : tr("Nur diesen &zurücknehmen"));
    else
        m_move->setText(others > 0 ? tr("Mit %Ln früheren &wieder ausführen", nullptr, others)
                                   : tr("&Wieder ausführen"));
    m_move->setEnabled(m_plan.fits);
    m_undoTo->setEnabled(m_planTo.fits);
    m_goTo->setEnabled(step >= 0);
    m_hint->setText(step < 0 ? tr("Noch kein Schritt") : hint(step));
}

QString StepListDialog::hint(int step) const
{
    const bool isApplied = m_document->steps().at(step).state == UndoStep::State::Applied;
    const QList<int> others = m_plan.steps.mid(0, m_plan.steps.size() - 1);
    if (m_plan.fits && others.isEmpty())
        return isApplied ? tr("Kein anderer Schritt hängt davon ab.")
                         : tr("Der Schritt kann für sich wieder ausgeführt werden.");
    if (m_plan.fits && isApplied)
        return tr("Darauf bauen auf: %1").arg(namesOf(others));
    if (m_plan.fits)
        return tr("Er baut auf: %1").arg(namesOf(others));
    if (m_document->isReadOnly())
        return m_document->readOnlyText();
    if (!m_plan.inTheWay.isEmpty())
        return tr("Dem stehen entgegen, weil sie etwas anderes entschieden haben: %1")
            .arg(namesOf(m_plan.inTheWay));
    return tr("Dort steht jetzt etwas anderes, das in keinem Schritt dieser Liste entschieden "
              "wurde, etwa von einem anderen Programm. Der Schritt lässt sich nicht mehr bewegen.");
}

QString StepListDialog::namesOf(const QList<int> &steps) const
{
    constexpr int MaxNames = 5;
    QStringList names;
    for (const int step : steps.mid(0, MaxNames))
        names += QStringLiteral("„%1“").arg(m_document->steps().at(step).text);
    const int more = int(steps.size()) - MaxNames;
    if (more > 0)
        names += tr("und %Ln weitere", nullptr, more);
    return names.join(QStringLiteral(", "));
}

void StepListDialog::move(const StepPlan &plan)
{
    m_document->moveSteps(plan);
    refresh();
}

void StepListDialog::goToLine()
{
    const int step = selected();
    if (step < 0)
        return;
    const StepChanges changes = m_document->steps().at(step).allChanges();
    if (!changes.mappings.empty())
        Q_EMIT lineWanted(changes.mappings.front().project.path,
                          changes.mappings.front().firstLine());
}
