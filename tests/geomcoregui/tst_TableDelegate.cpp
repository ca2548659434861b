// Cells of a table view are drawn without the style's help where that is slow; the picture is the
// style's.
#include "ViewFixture.h"

#include <geomcoregui/table/TableDelegate.h>

#include <QPainter>
#include <QStyledItemDelegate>

class tst_TableDelegate : public QObject, private ViewFixture
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { clear(); }

    void looksAsTheStyleDraws_data();
    void looksAsTheStyleDraws();
    void textsFollowTheirFontAndRoom();
    void rangesLookLikeLinks();

private:
    [[nodiscard]] QStyleOptionViewItem optionOf(int width) const;
    [[nodiscard]] QImage drawn(const QModelIndex &cell, const QStyleOptionViewItem &option) const;
    [[nodiscard]] static QImage expected(const QModelIndex &cell,
                                         const QStyleOptionViewItem &option);

    const TableDelegate m_delegate{nullptr};
};

namespace {

struct Plain : QStyledItemDelegate
{
    using QStyledItemDelegate::initStyleOption;
};

QImage emptyPicture()
{
    QImage picture(220, 60, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::white);
    return picture;
}

} // namespace

QStyleOptionViewItem tst_TableDelegate::optionOf(int width) const
{
    QStyleOptionViewItem option;
    option.initFrom(grid());
    option.widget = grid();
    option.font = grid()->font();
    option.fontMetrics = QFontMetrics(option.font);
    option.rect = QRect(11, 7, width, 25);
    option.showDecorationSelected = true;
    option.textElideMode = Qt::ElideRight;
    option.state &= ~QStyle::State_HasFocus;
    return option;
}

QImage tst_TableDelegate::drawn(const QModelIndex &cell, const QStyleOptionViewItem &option) const
{
    QImage picture = emptyPicture();
    QPainter painter(&picture);
    m_delegate.paint(&painter, option, cell);
    return picture;
}

QImage tst_TableDelegate::expected(const QModelIndex &cell, const QStyleOptionViewItem &option)
{
    QStyleOptionViewItem whole = option;
    Plain().initStyleOption(&whole, cell);
    const QChar thin(0x2009);
    whole.text = whole.displayAlignment & Qt::AlignRight ? whole.text + thin : thin + whole.text;
    QImage picture = emptyPicture();
    QPainter painter(&picture);
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &whole, &painter, option.widget);
    return picture;
}

void tst_TableDelegate::looksAsTheStyleDraws_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<int>("zoom");
    const QStyle::State usual = QStyle::State_Enabled | QStyle::State_Active;
    QTest::newRow("wide") << 180 << usual << 100;
    QTest::newRow("cut") << 22 << usual << 100;
    QTest::newRow("without any room") << 3 << usual << 100;
    QTest::newRow("selected") << 180 << (usual | QStyle::State_Selected) << 100;
    QTest::newRow("another window")
        << 180 << (QStyle::State_Enabled | QStyle::State_Selected) << 100;
    QTest::newRow("disabled") << 180 << QStyle::State(QStyle::State_None) << 100;
    QTest::newRow("large") << 180 << usual << 170;
}

void tst_TableDelegate::looksAsTheStyleDraws()
{
    makeView();
    QFETCH(int, width);
    QFETCH(QStyle::State, state);
    QFETCH(int, zoom);
    QStyleOptionViewItem option = optionOf(width);
    option.state = state;
    option.font.setPointSizeF(option.font.pointSizeF() * zoom / 100);
    const VkTableModel &model = *m_view->model();
    int texts = 0;
    QSet<int> alignments;
    for (int column = model.statusColumnCount(); column < model.columnCount(); ++column) {
        const QModelIndex cell = model.index(1, column);
        if (!cell.data(VkTableModel::RangeRole).toString().isEmpty())
            continue;
        QVERIFY2(drawn(cell, option) == expected(cell, option), qPrintable(cell.data().toString()));
        texts += cell.data().toString().isEmpty() ? 0 : 1;
        alignments += cell.data(Qt::TextAlignmentRole).toInt();
    }
    QVERIFY(texts > 2);
    QCOMPARE(alignments.size(), 2);
}

/// What was laid out once serves for no other font and no other room.
void tst_TableDelegate::textsFollowTheirFontAndRoom()
{
    makeView();
    const VkTableModel &model = *m_view->model();
    for (const int zoom : {100, 150, 100}) {
        for (const int width : {180, 20, 26, 180}) {
            QStyleOptionViewItem option = optionOf(width);
            option.font.setPointSizeF(option.font.pointSizeF() * zoom / 100);
            for (int column = model.statusColumnCount(); column < model.columnCount(); ++column) {
                const QModelIndex cell = model.index(1, column);
                if (cell.data(VkTableModel::RangeRole).toString().isEmpty())
                    QVERIFY(drawn(cell, option) == expected(cell, option));
            }
        }
    }
}

/// Alone in their colour, by which they are seen to open a list of values.
void tst_TableDelegate::rangesLookLikeLinks()
{
    makeView();
    QStyleOptionViewItem option = optionOf(180);
    option.palette.setColor(QPalette::Text, Qt::black);
    option.palette.setColor(QPalette::Link, Qt::red);
    const VkTableModel &model = *m_view->model();
    int ranges = 0;
    for (int column = model.statusColumnCount(); column < model.columnCount(); ++column) {
        const QModelIndex cell = model.index(1, column);
        const bool isRange = !cell.data(VkTableModel::RangeRole).toString().isEmpty();
        const QImage picture = drawn(cell, option);
        bool hasRed = false;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                hasRed = hasRed || pixel.red() > pixel.green() + 100;
            }
        }
        QVERIFY2(hasRed == isRange, qPrintable(cell.data().toString()));
        ranges += isRange ? 1 : 0;
    }
    QVERIFY(ranges > 0);
}

QTEST_MAIN(tst_TableDelegate)
#include "tst_TableDelegate.moc"
