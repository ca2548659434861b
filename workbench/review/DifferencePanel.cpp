#include "DifferencePanel.h"

#include "CandidateModel.h"
#include "DifferenceDelegate.h"
#include "DifferenceModel.h"
#include "PairModel.h"
#include "PatternText.h"

#include <core/text/countText.h>
#include <workbench/session/tasks/ReviewWork.h>

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

DifferencePanel::DifferencePanel(QWidget *parent)
    : QDockWidget(parent)
    , m_differences(new DifferenceModel(this))
    , m_candidates(new CandidateModel(this))
    , m_pairs(new PairModel(this))
{
    setObjectName("DifferencePanel");
    auto *const content = new QWidget(this);
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    m_head = new QLabel(content);
    m_head->setObjectName("DifferenceHead");
    m_head->setTextFormat(Qt::PlainText);
    m_head->setWordWrap(true);
    auto *const panes = new QSplitter(Qt::Horizontal, content);
    m_values = new QTableView(panes);
    m_values->setObjectName("DifferenceTable");
    m_values->setModel(m_differences);
    DifferenceDelegate::prepare(m_values, DifferenceModel::Variable);
    m_list = new QTreeView(panes);
    m_list->setObjectName("CandidateList");
    m_list->setModel(m_candidates);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_several = new QTableView(content);
    m_several->setObjectName("PairTable");
    m_several->setModel(m_pairs);
    m_several->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_several->setTabKeyNavigation(false); // Tab goes on
    m_several->setWordWrap(false);
    m_several->verticalHeader()->hide();
    m_several->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_several->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    m_several->horizontalHeader()->setStretchLastSection(true);
    m_several->horizontalHeader()->resizeSection(PairModel::OldLine,
                                                 30 * fontMetrics().averageCharWidth());
    m_several->horizontalHeader()->resizeSection(PairModel::NewLine,
                                                 30 * fontMetrics().averageCharWidth());
    m_several->hide();
    m_single = panes;
    panes->setStretchFactor(0, 1);
    panes->setStretchFactor(1, 1);
    layout->addWidget(m_head);
    layout->addWidget(panes, 1);
    layout->addWidget(m_several, 1);
    setWidget(content);
    connect(m_list, &QTreeView::activated, this,
            [this](const QModelIndex &index) { Q_EMIT candidateChosen(index.row() + 1); });
    retranslate();
}

DifferencePanel::~DifferencePanel() = default;

void DifferencePanel::show(const LineExplanation &explanation)
{
    clear();
    QString head = explanation.line.project.path + u':' + QString::number(explanation.line.line);
    if (!explanation.designation.isEmpty())
        head += QStringLiteral("  ") + explanation.designation;
    if (!explanation.isRead) {
        m_head->setText(head + u'\n' +
                        (explanation.errors.isEmpty() ? tr("Die Tabelle hat die Zeile nicht.")
                                                      : explanation.errors.join(u'\n')));
        return;
    }
    const auto &assigned = explanation.assigned;
    const QList<LineCandidateC> &candidates = explanation.candidates.candidates;
    head += u'\n';
    if (!assigned)
        head += tr("Ohne Ziel. %1").arg(explanation.candidates.explanation);
    else if (assigned->probability > 0)
        head += percentText(assigned->probability) + QStringLiteral(": ") + assigned->reason;
    else if (candidates.isEmpty())
        head += explanation.isConfirmed ? tr("Bestätigt.") : tr("Sicher zugeordnet.");
    else
        head += tr("Die zugeordnete Zeile ist keiner der Kandidaten.");
    m_head->setText(head);
    m_differences->setVariables(assigned               ? assigned->variables
                                : candidates.isEmpty() ? QList<ComparedVariableC>()
                                                       : candidates.first().variables);
    m_candidates->setCandidates(explanation.candidates, assigned ? assigned->target : -1,
                                assigned ? assigned->targetLine : -1);
    m_values->scrollToTop();
}

void DifferencePanel::show(const LinePairs &pairs)
{
    clear();
    m_single->hide();
    m_several->show();
    QString head = pairs.project.path + QStringLiteral(": ") +
                   tr("%Ln Zeile(n)", nullptr, int(pairs.lines.size()));
    if (pairs.lines.size() > qsizetype(pairs.rows.size()))
        head += QStringLiteral(", ") +
                tr("verglichen: die ersten %1").arg(countText(pairs.rows.size()));
    const QString common = PatternText::of(pairs.common);
    m_head->setText(head + u'\n' +
                    (common.isEmpty() ? tr("Keine gemeinsamen Unterschiede.")
                                      : tr("Gemeinsam: %1").arg(common)));
    m_pairs->setPairs(pairs);
}

void DifferencePanel::clear()
{
    m_several->hide();
    m_single->show();
    m_pairs->setPairs({});
    m_head->clear();
    m_differences->setVariables({});
    m_candidates->clear();
}

const LineCandidateC *DifferencePanel::candidate(int key) const
{
    const QList<LineCandidateC> &candidates = m_candidates->candidates().candidates;
    return key >= 1 && key <= candidates.size() ? &candidates[key - 1] : nullptr;
}

void DifferencePanel::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void DifferencePanel::retranslate()
{
    setWindowTitle(tr("Alt und neu"));
    m_values->setAccessibleName(windowTitle());
    m_list->setAccessibleName(tr("Kandidaten"));
    m_several->setAccessibleName(tr("Markierte Zeilen"));
    m_pairs->retranslate();
    m_differences->retranslate();
    m_candidates->retranslate();
}
