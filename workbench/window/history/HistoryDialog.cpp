#include "HistoryDialog.h"

#include "HistoryModel.h"

#include <core/files/DurableFile.h>
#include <core/text/countText.h>
#include <gui/application/PApplication.h>
#include <workbench/window/document/FileNames.h>
#include <workbench/window/message/Question.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

using VelkRelease::DecisionHistory;

HistoryDialog::HistoryDialog(const QString &mappingFile, const LineRef &here, QWidget *parent)
    : QDialog(parent)
    , m_file(mappingFile)
    , m_here(here)
    , m_model(new HistoryModel(this))
    , m_scope(new QComboBox(this))
    , m_search(new QLineEdit(this))
    , m_view(new QTreeView(this))
    , m_sum(new QLabel(this))
{
    setObjectName("HistoryDialog");
    setWindowTitle(tr("Verlauf der Entscheidungen"));
    m_scope->setObjectName("scope");
    m_scope->addItem(tr("Gewählte Zeile"), OfLine);
    m_scope->addItem(tr("Gewähltes Projekt"), OfProject);
    m_scope->addItem(tr("Alle Projekte"), OfAll);
    m_scope->setCurrentIndex(here.isValid() ? OfLine : here.project.isValid() ? OfProject : OfAll);
    m_search->setObjectName("search");
    m_search->setPlaceholderText(tr("Wer, Projekt, Ziel oder Grund suchen"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_view->setObjectName("decisions");
    m_view->setAccessibleName(windowTitle());
    m_view->setModel(m_model);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_sum->setObjectName("sum");
    m_sum->setTextFormat(Qt::PlainText);
    m_sum->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(this);
    const auto addButton = [&](const QString &text, const char *name) {
        QPushButton *const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setObjectName(name);
        button->setAutoDefault(false);
        return button;
    };
    connect(addButton(tr("&Neu lesen"), "reload"), &QPushButton::clicked, this,
            &HistoryDialog::load);
    connect(addButton(tr("Als &CSV speichern..."), "save"), &QPushButton::clicked, this,
            &HistoryDialog::save);
    buttons->addButton(tr("&Schließen"), QDialogButtonBox::RejectRole)->setObjectName("close");
    auto *above = new QHBoxLayout;
    above->addWidget(m_scope);
    above->addWidget(m_search);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(above);
    layout->addWidget(m_view);
    layout->addWidget(m_sum);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_scope, &QComboBox::currentIndexChanged, this, &HistoryDialog::fill);
    connect(m_search, &QLineEdit::textChanged, this, &HistoryDialog::fill);
    connect(m_view, &QTreeView::activated, this, [this](const QModelIndex &index) {
        const HistoryModel::Decision &decision = m_model->at(index.row());
        Q_EMIT lineWanted(decision.path, decision.line);
    });
    resize(1000, 500);
    PApplication::setupWindow(this);
    load();
    for (int column = 0; column < HistoryModel::ColumnCount; ++column)
        m_view->resizeColumnToContents(column);
}

HistoryDialog::~HistoryDialog()
{
    PApplication::saveWindow(this);
}

void HistoryDialog::load()
{
    m_error.clear();
    if (m_history.read(m_file, &m_error) && m_history.damagedRows() > 0)
        m_error =
            tr("Nicht lesbare Zeilen des Journals: %1").arg(countText(m_history.damagedRows()));
    fill();
}

void HistoryDialog::setHere(const LineRef &here)
{
    if (here == m_here)
        return;
    m_here = here;
    if (m_scope->currentIndex() != OfAll)
        fill();
}

QList<DecisionHistory::Decision> HistoryDialog::shown() const
{
    const int scope = m_scope->currentIndex();
    QList<DecisionHistory::Decision> decisions =
        scope == OfAll ? m_history.decisions()
                       : m_history.of(m_here.project.path, scope == OfLine ? m_here.line : -1);
    const QString search = m_search->text();
    if (search.isEmpty())
        return decisions;
    decisions.removeIf([&search](const DecisionHistory::Decision &decision) {
        const QStringList texts{decision.author, decision.path,
                                DecisionHistory::text(decision.former),
                                DecisionHistory::text(decision.next), decision.reason};
        return texts.filter(search, Qt::CaseInsensitive).isEmpty();
    });
    return decisions;
}

void HistoryDialog::fill()
{
    m_model->setDecisions(shown());
    const QString sum = tr("Entscheidungen: %1").arg(countText(m_model->rowCount()));
    m_sum->setText(m_error.isEmpty() ? sum : sum + QStringLiteral(" · ") + m_error);
}

/// What is shown, the oldest first.
void HistoryDialog::save()
{
    const QString file = FileNames::askForTable(this, m_file + QStringLiteral(".csv"));
    if (file.isEmpty())
        return;
    QByteArray rows = DecisionHistory::csvHeader();
    const QList<DecisionHistory::Decision> decisions = shown();
    for (const DecisionHistory::Decision &decision : decisions)
        rows += DecisionHistory::csvRow(decision);
    QString error;
    if (!DurableFile::write(file, rows, &error))
        Question::tell(this, tr("Die Datei kann nicht geschrieben werden."), error);
}
