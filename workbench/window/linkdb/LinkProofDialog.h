#pragma once

#include <release/link/LinkProof.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QTreeWidget;
class QTreeWidgetItem;
QT_END_NAMESPACE

/// Shows which numbers of the link database the mapping leaves in a bad place. A double click leads
/// to the line.
class LinkProofDialog : public QDialog
{
    Q_OBJECT

public:
    LinkProofDialog(const VelkRelease::LinkProof &proof, QWidget *parent);
    ~LinkProofDialog() override;

Q_SIGNALS:
    /// A line of the old release.
    void lineWanted(const QString &path, int line);

private:
    QTreeWidgetItem *addKind(const QString &title, qsizetype count);
    void fill(const VelkRelease::LinkProof &proof);

    QTreeWidget *const m_list;
};
