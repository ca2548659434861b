#pragma once

#include "PrintedPages.h"

#include <QFontMetricsF>
#include <QIcon>

#include <vector>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QTableView;
QT_END_NAMESPACE

/// The rows that a view shows on pages of paper: columns as they stand beside each other, without
/// those that are hidden; captions on each page; icons; long texts wrapped. A table that is a
/// little too wide for the page gets a smaller font, a wider one goes on beside on more pages, the
/// pages of the same rows behind one another. Black on white in every theme. Looks at each cell:
/// some hundred thousand take a second. GUI thread.
class VELKGUI_EXPORT TablePages : public PrintedPages
{
public:
    struct Form
    {
        /// Of a cell's whole text; cells without it have their Qt::DisplayRole.
        int textRole = Qt::DisplayRole;
        /// So many of the first columns that are shown stand on each page.
        int repeated = 0;
        /// Of rows behind these \a more tells at the end; -1: all are printed.
        int mostRows = -1;
        /// "and 12 more"
        QString more;
    };

    /// \a view and its model must live as long and stay as they are.
    TablePages(QPagedPaintDevice &device, const QTableView &view, const Form &form,
               const PageHead &head);

    [[nodiscard]] int count() const override { return int(m_slices.size() * m_bands.size()); }

protected:
    void paintBody(QPainter &painter, int page) const override;

private:
    struct Column
    {
        int number = 0; ///< of the model
        QString caption;
        Qt::Alignment alignment;
        qreal width = 0;
    };
    struct Rows
    {
        int first = 0;
        int count = 0;
    };

    void findColumns();
    void measureColumns();
    void divideColumns();
    void divideRows();
    [[nodiscard]] QString text(int row, const Column &column) const;
    [[nodiscard]] QIcon icon(int row, const Column &column) const;
    [[nodiscard]] qreal textHeight(const QString &text, const Column &column) const;
    [[nodiscard]] qreal rowHeight(int row) const;
    void paintCell(QPainter &painter, const QRectF &cell, const Column &column,
                   const QString &text) const;

    QPagedPaintDevice &m_device;
    const QTableView &m_view;
    const QAbstractItemModel &m_model;
    const Form m_form;
    const QFontMetricsF m_metrics;
    const qreal m_pad;
    const int m_rowCount;
    std::vector<Column> m_columns;
    qreal m_scale = 1;
    qreal m_captionHeight = 0;
    std::vector<std::vector<int>> m_bands; ///< columns that stand beside each other
    std::vector<Rows> m_slices;            ///< that stand on one page
};
