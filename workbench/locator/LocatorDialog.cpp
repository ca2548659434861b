#include "LocatorDialog.h"

#include "LocatorModel.h"
#include "LocatorSearch.h"

#include <core/text/countText.h>
#include <gui/application/PApplication.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int rowsOfAPage = 10;

} // namespace

LocatorDialog::LocatorDialog(LocatorSearch *search, QWidget *parent)
    : QDialog(parent)
    , m_search(search)
    , m_model(new LocatorModel(this))
    , m_input(new QLineEdit(this))
    , m_list(new QTreeView(this))
    , m_note(new QLabel(this))
{
    setObjectName("LocatorDialog");
    setWindowTitle(tr("Finden"));
    m_input->setObjectName("locatorInput");
    m_input->setAccessibleName(tr("Projekt, Zeile, Befehl oder Einstellung"));
    m_input->setPlaceholderText(tr("Projekt, Zeile, Befehl oder Einstellung"));
    m_input->setClearButtonEnabled(true);
    m_input->installEventFilter(this);
    m_list->setObjectName("locatorList");
    m_list->setAccessibleName(tr("Gefunden"));
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setHeaderHidden(true);
    m_note->setObjectName("locatorNote");
    m_note->setTextFormat(Qt::PlainText);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_input);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_note);
    connect(m_input, &QLineEdit::textChanged, this, &LocatorDialog::seek);
    connect(m_search, &LocatorSearch::found, this, &LocatorDialog::showHits);
    connect(m_list, &QTreeView::clicked, this, &LocatorDialog::choose);
    connect(m_list, &QTreeView::activated, this, &LocatorDialog::choose);
    seek();
    resize(680, 420);
    PApplication::setupWindow(this);
}

LocatorDialog::~LocatorDialog()
{
    PApplication::saveWindow(this);
}

void LocatorDialog::setWords(const QString &words)
{
    m_input->setText(words);
}

void LocatorDialog::seek()
{
    m_isEntered = false;
    m_search->find(m_input->text());
}

void LocatorDialog::showHits(const LocatorHits &hits)
{
    m_shown = hits.words;
    m_model->setItems(hits.items);
    const QFontMetrics metrics = m_list->fontMetrics();
    m_list->header()->resizeSection(LocatorModel::Title, metrics.averageCharWidth() * 34);
    m_list->header()->resizeSection(LocatorModel::Detail, metrics.averageCharWidth() * 44);
    if (hits.words.trimmed().isEmpty())
        m_note->setText(tr("Teile der Wörter genügen; eine Zahl dahinter meint eine Zeile."));
    else if (hits.count == 0)
        m_note->setText(tr("Nichts gefunden"));
    else if (hits.count > hits.items.size())
        m_note->setText(tr("Die ersten %1 von %Ln Treffer(n)", nullptr, hits.count)
                            .arg(countText(hits.items.size())));
    else
        m_note->setText(tr("%Ln Treffer", nullptr, hits.count));
    step(1);
    if (std::exchange(m_isEntered, false))
        choose(m_list->currentIndex());
}

void LocatorDialog::choose(const QModelIndex &index)
{
    // A click may be both, the choice of a row and its activation.
    if (result() == Accepted || !index.isValid() || !index.flags().testFlag(Qt::ItemIsEnabled))
        return;
    const LocatorItem item = m_model->itemAt(index.row());
    accept();
    Q_EMIT chosen(item);
}

void LocatorDialog::step(int rows)
{
    const int count = m_model->rowCount();
    const int before = m_list->currentIndex().row();
    const int way = rows > 0 ? 1 : -1;
    const auto canBeChosen = [this](int row) {
        return m_model->itemAt(row).isEnabled;
    };
    int row = std::clamp(before + rows, 0, std::max(0, count - 1));
    while (row >= 0 && row < count && !canBeChosen(row))
        row += way;
    if (row < 0 || row >= count)
        return;
    m_list->setCurrentIndex(m_model->index(row, 0));
}

bool LocatorDialog::eventFilter(QObject *object, QEvent *event)
{
    if (object != m_input || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(object, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Down:
        step(1);
        return true;
    case Qt::Key_Up:
        step(-1);
        return true;
    case Qt::Key_PageDown:
        step(rowsOfAPage);
        return true;
    case Qt::Key_PageUp:
        step(-rowsOfAPage);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Of a quick hand the hits come after the key.
        m_isEntered = m_shown != m_input->text();
        if (!m_isEntered)
            choose(m_list->currentIndex());
        return true;
    default:
        return QDialog::eventFilter(object, event);
    }
}
