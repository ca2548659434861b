#pragma once

#include <release/history/DecisionHistory.h>
#include <workbench/session/common/SessionTypes.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QComboBox;
class QLabel;
class QLineEdit;
class QTreeView;
QT_END_NAMESPACE

class HistoryModel;

/// Who decided what, when and why: of the selected line, of its project, or of all; and as a CSV
/// file. Modeless; reads the journal when it is shown and when the user wants it.
class HistoryDialog : public QDialog
{
    Q_OBJECT

public:
    enum Scope { OfLine, OfProject, OfAll };

    /// \a here may be not valid: then only all decisions can be shown.
    HistoryDialog(const QString &mappingFile, const LineRef &here, QWidget *parent);
    ~HistoryDialog() override;

    /// Reads the journal anew.
    void load();
    /// The user went to another line.
    void setHere(const LineRef &here);

Q_SIGNALS:
    void lineWanted(const QString &path, int line);

private:
    void fill();
    void save();
    [[nodiscard]] QList<VelkRelease::DecisionHistory::Decision> shown() const;

    const QString m_file;
    LineRef m_here;
    VelkRelease::DecisionHistory m_history;
    QString m_error;
    HistoryModel *const m_model;
    QComboBox *const m_scope;
    QLineEdit *const m_search;
    QTreeView *const m_view;
    QLabel *const m_sum;
};
