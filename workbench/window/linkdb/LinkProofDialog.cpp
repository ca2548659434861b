#include "LinkProofDialog.h"

#include <core/text/countText.h>
#include <gui/application/PApplication.h>
#include <workbench/review/PatternText.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

using VelkRelease::LinkProof;
using VelkRelease::ValueChange;

enum ProofColumn { ProofNumber, ProofLine, ProofDetails };

QString placeName(const LinkProof::Place &place)
{
    return place.path + u':' + QString::number(place.line);
}

} // namespace

LinkProofDialog::LinkProofDialog(const LinkProof &proof, QWidget *parent)
    : QDialog(parent)
    , m_list(new QTreeWidget(this))
{
    setObjectName("LinkProofDialog");
    setWindowTitle(tr("Prüfung der Nummern"));
    m_list->setObjectName("findings");
    m_list->setAccessibleName(windowTitle());
    m_list->setUniformRowHeights(true);
    m_list->setHeaderLabels({tr("Nummer"), tr("Zeile"), tr("Befund")});
    auto *sum = new QLabel(tr("Nummern an Projekten dieses Mappings: %1, an anderen Projekten: %2")
                               .arg(countText(proof.numbers()), countText(proof.elsewhere())),
                           this);
    sum->setObjectName("sum");
    auto *errors = new QLabel(tr("Nicht verglichen, da nicht lesbar: %1")
                                  .arg(proof.errors().mid(0, 3).join(QStringLiteral("; "))),
                              this);
    errors->setObjectName("errors");
    errors->setWordWrap(true);
    errors->setTextFormat(Qt::PlainText);
    errors->setVisible(!proof.errors().isEmpty());
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("&Schließen"), QDialogButtonBox::RejectRole)->setObjectName("close");
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(sum);
    layout->addWidget(m_list);
    layout->addWidget(errors);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem *item) {
        if (item->parent())
            Q_EMIT lineWanted(item->data(0, Qt::UserRole).toString(),
                              item->data(1, Qt::UserRole).toInt());
    });
    fill(proof);
    resize(800, 500);
    PApplication::setupWindow(this);
}

LinkProofDialog::~LinkProofDialog()
{
    PApplication::saveWindow(this);
}

QTreeWidgetItem *LinkProofDialog::addKind(const QString &title, qsizetype count)
{
    auto *item =
        new QTreeWidgetItem(m_list, {QStringLiteral("%1: %2").arg(title, countText(count))});
    item->setFirstColumnSpanned(true);
    item->setExpanded(count > 0);
    return item;
}

void LinkProofDialog::fill(const LinkProof &proof)
{
    const auto add = [](QTreeWidgetItem *kind, const QString &number, const LinkProof::Place &place,
                        const QString &details) {
        auto *item = new QTreeWidgetItem(kind, {number, placeName(place), details});
        item->setData(0, Qt::UserRole, place.path);
        item->setData(1, Qt::UserRole, place.line);
    };
    QTreeWidgetItem *kind = addKind(tr("Zeile ausgelaufen oder nicht da"), proof.gone().size());
    for (const LinkProof::Gone &each : proof.gone())
        add(kind, each.number, each.place,
            each.confirmed ? tr("als ausgelaufen bestätigt") : tr("das Projekt hat sie nicht"));
    kind = addKind(tr("Von mehreren Zeilen beansprucht"), proof.claimed().size());
    for (const LinkProof::Claimed &each : proof.claimed()) {
        QStringList places;
        for (const LinkProof::Place &place : each.places)
            places.append(placeName(place));
        add(kind, each.number, each.origins.first(), places.join(QStringLiteral(", ")));
    }
    const ValueChange::Words words = PatternText::words();
    kind = addKind(proof.hasCompared() ? tr("Teil weicht ab")
                                       : tr("Teil weicht ab (nicht verglichen)"),
                   proof.differing().size());
    for (const LinkProof::Differing &each : proof.differing()) {
        QStringList changes;
        for (const ValueChange &change : each.changes)
            changes.append(change.text(words));
        add(kind, each.number, each.before,
            placeName(each.after) + QStringLiteral(": ") + changes.join(QStringLiteral("; ")));
    }
    kind = addKind(tr("Offene Zeilen mit Nummern"), proof.open().size());
    for (const LinkProof::Open &each : proof.open())
        add(kind, each.numbers.join(QStringLiteral(", ")), each.place,
            tr("Nummern: %1").arg(countText(each.numbers.size())));
    for (int column = 0; column < m_list->columnCount(); ++column)
        m_list->resizeColumnToContents(column);
}
