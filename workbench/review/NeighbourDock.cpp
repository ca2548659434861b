#include "NeighbourDock.h"

#include "NeighbourModel.h"

#include <gui/views/WrappingDelegate.h>

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QTreeView>
#include <QVBoxLayout>

NeighbourDock::NeighbourDock(NeighbourWork *work, QWidget *parent)
    : QDockWidget(parent)
    , m_work(work)
    , m_model(new NeighbourModel(work, this))
{
    setObjectName("NeighbourDock");
    auto *const content = new QWidget(this);
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    m_sum = new QLabel(content);
    m_sum->setObjectName("NeighbourSum");
    m_sum->setWordWrap(true);
    m_list = new QTreeView(content);
    m_list->setObjectName("NeighbourList");
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    // Whatever the width: all of it can be read.
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(QHeaderView::Stretch);
    for (int column = 0; column < NeighbourModel::ColumnCount; ++column)
        new WrappingDelegate(m_list, column);
    m_list->header()->setMinimumSectionSize(40);
    content->setMinimumWidth(30 * fontMetrics().averageCharWidth());
    layout->addWidget(m_sum);
    layout->addWidget(m_list);
    setWidget(content);
    connect(m_list, &QTreeView::activated, this, &NeighbourDock::chosen);
    connect(work, &NeighbourWork::changed, this, &NeighbourDock::update);
    // Behind another tab it stays as it is.
    connect(this, &QDockWidget::visibilityChanged, work,
            [this, work] { work->setWanted(!isHidden()); });
    retranslate();
}

NeighbourDock::~NeighbourDock() = default;

const NeighbourWork::Place *NeighbourDock::current() const
{
    return m_model->placeAt(m_list->currentIndex().row());
}

void NeighbourDock::focusList()
{
    m_list->setFocus();
}

void NeighbourDock::update()
{
    m_model->update();
    if (!m_list->currentIndex().isValid() && m_model->rowCount() > 0)
        m_list->setCurrentIndex(m_model->index(0, 0));
    writeSum();
}

void NeighbourDock::writeSum()
{
    QString text;
    if (m_work->isReading())
        text = tr("Die Tabellen werden verglichen") + u'\n';
    text += tr("%Ln zugeordnete Zeile(n) angesehen", nullptr, m_work->checkedLines()) +
            QStringLiteral(", ") + tr("%Ln Fundstelle(n)", nullptr, m_model->rowCount());
    m_sum->setText(text);
}

void NeighbourDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void NeighbourDock::retranslate()
{
    setWindowTitle(tr("Nachbarschaft"));
    m_list->setAccessibleName(windowTitle());
    m_model->retranslate();
    writeSum();
}
