#pragma once

#include "LocatorItem.h"

#include <QDialog>

class LocatorModel;
class LocatorSearch;

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
class QTreeView;
QT_END_NAMESPACE

/// A field in which projects, lines, commands and settings are looked for, with what was found
/// below. Up and Down choose without leaving the field, Enter goes there, Escape closes it.
class LocatorDialog : public QDialog
{
    Q_OBJECT

public:
    /// \a search must live as long, and serves one dialog at a time.
    LocatorDialog(LocatorSearch *search, QWidget *parent);
    ~LocatorDialog() override;

    void setWords(const QString &words);

Q_SIGNALS:
    /// After it closed.
    void chosen(const LocatorItem &item);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void seek();
    void showHits(const LocatorHits &hits);
    void choose(const QModelIndex &index);
    /// Chooses the next row in a direction that can be chosen.
    void step(int rows);

    LocatorSearch *const m_search;
    LocatorModel *const m_model;
    QLineEdit *const m_input;
    QTreeView *const m_list;
    QLabel *const m_note;
    QString m_shown;          ///< the words of the hits
    bool m_isEntered = false; ///< Enter was pressed before the hits were there
};
