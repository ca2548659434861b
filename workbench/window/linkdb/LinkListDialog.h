#pragma once

#include <geomcore/linkdb/PLinkDbC.h>

#include <QDialog>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
QT_END_NAMESPACE

/// The links of the database: documents with the lines that they hang on. A document can be hung on
/// another line: the dialog makes room, and the line that is selected then is handed over to it.
class LinkListDialog : public QDialog
{
    Q_OBJECT

public:
    /// At most this many are shown; a search finds the others.
    static constexpr int MostRows = 1000;

    LinkListDialog(const PRefPtr<PLinkDbC> &linkDb, QWidget *parent);
    ~LinkListDialog() override;

    /// The dialog waits for a selection in the catalog.
    [[nodiscard]] bool isAwaiting() const { return m_awaiting; }
    /// Hangs the document on that line, after a question if it hangs on one of another project, and
    /// shows the dialog again.
    void takeSelection(const QString &path, int line);
    void cancelSelection();

Q_SIGNALS:
    void awaitingChanged();
    /// The user wants to see a document's line.
    void lineWanted(const QString &path, int line);

private:
    void load();
    void updateButtons();
    void setAwaiting(bool awaiting);
    void restoreDeleted();
    [[nodiscard]] QString currentId() const;

    PRefPtr<PLinkDbC> m_linkDb;
    QLineEdit *const m_search;
    QTreeWidget *const m_list;
    QLabel *const m_count;
    QPushButton *m_move = nullptr;
    QPushButton *m_show = nullptr;
    bool m_awaiting = false;
};
