#include "PatternDock.h"

#include "PatternModel.h"
#include "PatternText.h"

#include <gui/views/WrappingDelegate.h>
#include <workbench/session/tasks/ReviewWork.h>

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using VelkRelease::DifferencePatterns;

PatternDock::PatternDock(ReviewWork *work, QWidget *parent)
    : QDockWidget(parent)
    , m_work(work)
    , m_model(new PatternModel(this))
{
    setObjectName("PatternDock");
    auto *const content = new QWidget(this);
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    m_sum = new QLabel(content);
    m_sum->setObjectName("PatternSum");
    m_sum->setWordWrap(true);
    m_list = new QTreeView(content);
    m_list->setObjectName("PatternList");
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(PatternModel::Changes, QHeaderView::Fixed);
    m_list->header()->setMinimumSectionSize(40);
    new WrappingDelegate(m_list, PatternModel::Changes);
    // Else nothing of the differences is seen.
    content->setMinimumWidth(30 * fontMetrics().averageCharWidth());
    m_list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->installEventFilter(this);
    m_list->viewport()->installEventFilter(this);
    connect(m_list->header(), &QHeaderView::sectionResized, this, &PatternDock::fitColumns);
    layout->addWidget(m_sum);
    layout->addWidget(m_list);
    setWidget(content);
    connect(m_list, &QTreeView::doubleClicked, this,
            [this](const QModelIndex &index) { choose(m_model->patternAt(index.row())); });
    connect(work, &ReviewWork::patternsMade, this, &PatternDock::takePatterns);
    connect(work, &ReviewWork::patternsChanged, this, &PatternDock::takeChanges);
    connect(work, &ReviewWork::readingChanged, this, &PatternDock::writeSum);
    retranslate();
}

PatternDock::~PatternDock() = default;

/// The differences have what the numbers leave, and in a narrow dock enough to be read: the numbers
/// then are scrolled to.
void PatternDock::fitColumns()
{
    constexpr int LeastLetters = 24;
    QHeaderView *const header = m_list->header();
    const int former = header->sectionSize(PatternModel::Changes);
    const int numbers = header->length() - former;
    const int wide = std::max(LeastLetters * m_list->fontMetrics().averageCharWidth(),
                              m_list->viewport()->width() - numbers);
    if (wide != former)
        header->resizeSection(PatternModel::Changes, wide);
}

void PatternDock::takePatterns()
{
    m_model->setPatterns(m_work->hasPatterns() ? &m_work->patterns() : nullptr);
    if (m_model->rowCount() > 0)
        m_list->setCurrentIndex(m_model->index(0, 0));
    choose(-1);
    writeSum();
}

void PatternDock::takeChanges()
{
    m_model->update();
    if (m_chosen >= 0 && m_model->rowOf(m_chosen) < 0)
        choose(-1);
    writeSum();
}

void PatternDock::choose(int pattern)
{
    const int row = m_model->rowOf(pattern);
    const int wanted = row < 0 ? -1 : pattern;
    if (row >= 0)
        m_list->setCurrentIndex(m_model->index(row, 0));
    if (wanted == m_chosen)
        return;
    m_chosen = wanted;
    m_takenOut = 0;
    writeSum();
    Q_EMIT chosenChanged(m_chosen);
}

void PatternDock::chooseNext()
{
    if (m_model->rowCount() == 0)
        return choose(-1);
    const int row = m_model->rowOf(m_chosen);
    choose(m_model->patternAt((row + 1) % m_model->rowCount()));
}

int PatternDock::nextOpen() const
{
    const int rows = m_model->rowCount();
    const int from = m_model->rowOf(m_chosen);
    for (int i = 1; i <= rows; ++i) {
        const int pattern = m_model->patternAt((from + i) % rows);
        if (pattern != m_chosen && m_work->patterns().numbers(pattern).lines > 0)
            return pattern;
    }
    return -1;
}

void PatternDock::setTakenOut(int lines)
{
    m_takenOut = lines;
    writeSum();
}

void PatternDock::focusList()
{
    m_list->setFocus();
}

/// All open lines, and what the chosen pattern has of them.
void PatternDock::writeSum()
{
    QStringList texts;
    if (m_work->isReading())
        texts += tr("Die Tabellen werden verglichen: %Ln Projekt(e) gelesen", nullptr,
                    m_work->projectsRead());
    if (m_work->hasPatterns()) {
        const int pending = m_work->patterns().pendingLines();
        texts += tr("%Ln offene Zeile(n) mit Vorschlag", nullptr, m_work->patterns().openLines()) +
                 u' ' + tr("in %Ln Muster(n)", nullptr, int(m_work->patterns().ranked().size()));
        if (const int gone = m_work->patterns().goneLines(); gone > 0)
            texts += tr("%Ln offene Zeile(n) ohne Nachfolger", nullptr, gone) + u' ' +
                     tr("in %Ln Muster(n)", nullptr, int(m_work->patterns().rankedGone().size()));
        if (pending > 0)
            texts += tr("%Ln davon wird/werden noch verglichen", nullptr, pending);
    }
    if (m_chosen >= 0) {
        const DifferencePatterns::Numbers chosen = m_work->patterns().numbers(m_chosen);
        texts += tr("Gewählt: %Ln Zeile(n)", nullptr, chosen.lines) + u' ' +
                 tr("in %Ln Projekt(en)", nullptr, chosen.projects) +
                 (m_takenOut > 0
                      ? QStringLiteral(", ") + tr("%Ln davon herausgenommen", nullptr, m_takenOut)
                      : QString());
    }
    m_sum->setText(texts.join(u'\n'));
}

bool PatternDock::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list->viewport() && event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &PatternDock::fitColumns, Qt::QueuedConnection);
    if (watched != m_list || event->type() != QEvent::KeyPress)
        return QDockWidget::eventFilter(watched, event);
    const auto *const key = static_cast<QKeyEvent *>(event);
    if (key->modifiers() & ~Qt::KeypadModifier)
        return false;
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
        choose(m_model->patternAt(m_list->currentIndex().row()));
    else if (key->key() == Qt::Key_Escape)
        choose(-1);
    else
        return false;
    return true;
}

void PatternDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void PatternDock::retranslate()
{
    setWindowTitle(tr("Unterschiede der offenen Zeilen"));
    m_list->setAccessibleName(windowTitle());
    m_model->retranslate();
    writeSum();
}
