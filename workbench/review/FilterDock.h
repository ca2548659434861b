#pragma once

#include <release/review/LineFilter.h>

#include <QDockWidget>
#include <QHash>

class FilterWork;

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
QT_END_NAMESPACE

/// The filter over all lines of the release: for each trait its values with the numbers of their
/// lines, to be ticked, and "not". The numbers are those that the other choices leave.
class FilterDock : public QDockWidget
{
    Q_OBJECT

public:
    /// \a work must live as long; it reads while the dock is to be seen.
    FilterDock(FilterWork *work, QWidget *parent);
    ~FilterDock() override;

    void focusList();
    void retranslate();

    /// "zu unähnlich": a value in words.
    [[nodiscard]] static QString valueText(VelkRelease::LineTrait trait, const QString &value);

protected:
    void changeEvent(QEvent *event) override;

private:
    void fill();
    void fillGroup(VelkRelease::LineTrait trait);
    void addValue(QTreeWidgetItem *group, VelkRelease::LineTrait trait, const QString &value,
                  int lines);
    void take(QTreeWidgetItem *item);
    void writeSum();

    FilterWork *const m_work;
    QLabel *m_sum = nullptr;
    QTreeWidget *m_list = nullptr;
    QPushButton *m_clear = nullptr;
    bool m_isFilling = false;
};
