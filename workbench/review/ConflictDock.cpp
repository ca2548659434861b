#include "ConflictDock.h"

#include "ConflictModel.h"
#include "ConflictSidesModel.h"
#include "DifferenceDelegate.h"

#include <core/text/countText.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

ConflictDock::ConflictDock(ConflictList *list, QWidget *parent)
    : QDockWidget(parent)
    , m_list(list)
    , m_model(new ConflictModel(list, this))
    , m_sidesModel(new ConflictSidesModel(this))
{
    setObjectName("ConflictDock");
    auto *const content = new QWidget(this);
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    auto *const head = new QHBoxLayout;
    m_counter = new QLabel(content);
    m_counter->setObjectName("ConflictCounter");
    m_counter->setMinimumWidth(1); // beside other parts of a small window
    head->addWidget(m_counter, 1);
    layout->addLayout(head);
    auto *const panes = new QSplitter(Qt::Horizontal, content);
    m_view = new QTreeView(panes);
    m_view->setObjectName("ConflictView");
    m_view->setModel(m_model);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->installEventFilter(this);
    m_values = new QTableView(panes);
    m_values->setObjectName("ConflictSides");
    m_values->setModel(m_sidesModel);
    DifferenceDelegate::prepare(m_values, ConflictSidesModel::Name);
    panes->setStretchFactor(0, 2);
    panes->setStretchFactor(1, 3);
    layout->addWidget(panes, 1);
    setWidget(content);
    addButton("conflictOurs", MergeState::Side::Ours);
    addButton("conflictTheirs", MergeState::Side::Theirs);
    addButton("conflictAnew", MergeState::Side::Neither);
    for (QPushButton *const button : std::as_const(m_buttons))
        head->addWidget(button);
    connect(m_view, &QTreeView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT lineWanted(index.row()); });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ConflictDock::showSides);
    connect(list, &ConflictList::reset, this, [this] {
        setCurrent(m_list->nextOpen(-1));
        showSides();
        for (const int column : {ConflictModel::Project, ConflictModel::Ours, ConflictModel::Theirs,
                                 ConflictModel::SourceLine})
            m_view->resizeColumnToContents(column);
    });
    connect(list, &ConflictList::entriesChanged, this, &ConflictDock::writeCounter);
    connect(this, &QDockWidget::visibilityChanged, this, &ConflictDock::showSides);
    retranslate();
}

ConflictDock::~ConflictDock() = default;

void ConflictDock::addButton(const char *name, MergeState::Side side)
{
    auto *const button = new QPushButton(widget());
    button->setObjectName(name);
    button->setFocusPolicy(Qt::NoFocus); // the keys stay with the list
    connect(button, &QPushButton::clicked, this, [this, side] { Q_EMIT decided(side); });
    m_buttons += button;
}

void ConflictDock::setRoots(const CatalogRoots &roots)
{
    m_roots = roots;
    m_sides.clear();
    showSides();
}

int ConflictDock::current() const
{
    return m_view->currentIndex().isValid() ? m_view->currentIndex().row() : -1;
}

void ConflictDock::setCurrent(int place)
{
    m_view->setCurrentIndex(m_model->index(place, 0));
}

void ConflictDock::focusList()
{
    m_view->setFocus();
}

void ConflictDock::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    writeCounter();
}

/// Tables are read for who looks.
void ConflictDock::showSides()
{
    const int place = current();
    m_sidesModel->setRows(isVisible() && place >= 0 ? m_sides.rowsOf(m_list->at(place), m_roots)
                                                    : QList<ConflictSides::Row>());
    writeCounter();
}

void ConflictDock::writeCounter()
{
    const int place = current();
    const int open = m_list->openCount();
    QString text = m_list->count() == 0 ? tr("Keine Zeile ist in Konflikt.")
                   : open == 0          ? tr("Alle Konflikte sind entschieden.")
                               : tr("%1 von %Ln Konflikt(en) noch offen.", nullptr, m_list->count())
                                     .arg(countText(open));
    if (place >= 0 && m_list->at(place).outcome == ConflictEntry::Open) {
        const int alike = int(m_list->openAlike(place).size()) - 1;
        if (alike > 0)
            text += u' ' + tr("%Ln weitere Zeile(n) widersprechen sich wie diese.", nullptr, alike);
    }
    m_counter->setText(text);
    for (QPushButton *const button : std::as_const(m_buttons))
        button->setEnabled(place >= 0 && !m_readOnly);
}

bool ConflictDock::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_view || event->type() != QEvent::KeyPress)
        return QDockWidget::eventFilter(watched, event);
    const auto *const key = static_cast<QKeyEvent *>(event);
    if ((key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) ||
        (key->modifiers() & ~Qt::KeypadModifier) || current() < 0)
        return false;
    Q_EMIT lineWanted(current());
    return true;
}

void ConflictDock::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ConflictDock::retranslate()
{
    setWindowTitle(tr("Konflikte"));
    m_view->setAccessibleName(windowTitle());
    m_values->setAccessibleName(tr("Seiten des Konflikts"));
    m_buttons[0]->setText(tr("Eigene"));
    m_buttons[1]->setText(tr("Andere"));
    m_buttons[2]->setText(tr("Neu entscheiden"));
    m_model->retranslate();
    m_sidesModel->retranslate();
    showSides();
}
