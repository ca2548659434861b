#pragma once

#include <release/decide/RangeCoverage.h>

#include <QDockWidget>

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

/// A bar of the values of an old range: given to one new line, to none, to several.
class RangeBar : public QWidget
{
    Q_OBJECT

public:
    explicit RangeBar(QWidget *parent);

    void setCoverage(const VelkRelease::RangeCoverage &coverage);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    [[nodiscard]] int valueAt(int x) const;

    QList<VelkRelease::RangeCoverage::Value> m_values;
};

/// Tells of a line with ranges that becomes several lines which of its values are covered.
class RangeDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit RangeDock(QWidget *parent);
    ~RangeDock() override;

    /// German: "3 von 5 Werten zugeordnet, fehlend: 20, 30".
    [[nodiscard]] static QString text(const VelkRelease::RangeCoverage &coverage);
    void setCoverage(const VelkRelease::RangeCoverage &coverage);
    void retranslate();

protected:
    void changeEvent(QEvent *event) override;

private:
    VelkRelease::RangeCoverage m_coverage;
    QLabel *m_text = nullptr;
    RangeBar *m_bar = nullptr;
};
