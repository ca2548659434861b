#include "TableEditorFixture.h"

#include <geomcore/project/PrjClass.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/Reader.h>
#include <geomcore/table/TabOptions.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QTest>

namespace {

QModelIndex indexOf(VkTableView *view, int line, const QString &key = {})
{
    const VkTableModel *const model = view->model();
    int column = model->statusColumnCount();
    for (int i = 0; !key.isEmpty() && i < model->statusColumnCount(); ++i) {
        if (model->headerData(i, Qt::Horizontal, VkTableModel::StatusKeyRole).toString() == key ||
            model->index(0, i).data(VkTableModel::StatusKeyRole).toString() == key)
            column = i;
    }
    const QModelIndex index = model->index(model->rowOf(VKTab::LineId(line)), column);
    if (index.isValid())
        view->grid()->scrollTo(index);
    return index;
}

} // namespace

TableEditorFixture::TableEditorFixture()
    : mapping(mappingOf("old/a.prj", {"new/a.prj"}))
    , widget(std::make_unique<TableMappingWidget>(nullptr))
    , source(widget->findChild<VkTableView *>("sourceView"))
    , target(widget->findChild<VkTableView *>("targetView"))
{
    qputenv("TORMEVA_DATA", QFile::encodeName(data.path()));
    QFile::link(catalog.root(), data.filePath("23d-libs"));
    QObject::connect(widget.get(), &TableMappingWidget::projectMappingUpdated, widget.get(),
                     [this](const PrjMappingC &changed) {
                         published.append(changed);
                         order.append("published");
                     });
    QObject::connect(widget.get(), &TableMappingWidget::targetLineConflictAccepted, widget.get(),
                     [this](int line) {
                         accepted.append(line);
                         order.append(QStringLiteral("accepted %1").arg(line));
                     });
    widget->resize(1000, 600);
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget.get()));
    widget->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(widget.get()));
}

TableEditorFixture::~TableEditorFixture() = default;

VKTab::ContentRef TableEditorFixture::read(const QString &project) const
{
    return catalog.read(project);
}

void TableEditorFixture::load()
{
    load(read("old/a.prj"));
}

void TableEditorFixture::load(const VKTab::ContentRef &table)
{
    ReleaseMappingC release;
    release.setSourceDate("2026-01-01");
    release.setTargetDate("2026-06-01");
    release.addMapping(mapping);
    CatalogMappingC mappings;
    if (withRelease)
        mappings.addRelease(release);
    widget->loadSourceTable(table, mapping, mappings);
    QCoreApplication::processEvents();
}

PrjMappingC TableEditorFixture::current() const
{
    return published.isEmpty() ? mapping : published.last();
}

void TableEditorFixture::click(VkTableView *view, int line, Qt::KeyboardModifiers modifiers) const
{
    const QModelIndex index = indexOf(view, line);
    QVERIFY(index.isValid());
    QTest::mouseClick(view->grid()->viewport(), Qt::LeftButton, modifiers,
                      view->grid()->visualRect(index).center());
}

void TableEditorFixture::clickIcon(VkTableView *view, int line, const QString &key) const
{
    const QModelIndex index = indexOf(view, line, key);
    QVERIFY(index.isValid());
    QTest::mouseClick(view->grid()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      view->grid()->visualRect(index).center());
}

void TableEditorFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(widget->window()->windowHandle(), key, modifiers);
}

QMenu *TableEditorFixture::openMenu(VkTableView *view, int line) const
{
    const QModelIndex index = indexOf(view, line);
    QWidget *const viewport = view->grid()->viewport();
    const QPoint place = index.isValid() ? view->grid()->visualRect(index).center()
                                         : viewport->rect().bottomLeft() + QPoint(5, -5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, viewport->mapToGlobal(place));
    QCoreApplication::sendEvent(viewport, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

QAction *TableEditorFixture::rowOf(QMenu *menu, const QString &text)
{
    for (QAction *const row : menu->actions()) {
        if (row->text() == text)
            return row;
    }
    return nullptr;
}

QPushButton *TableEditorFixture::button(const char *name) const
{
    return widget->findChild<QPushButton *>(QLatin1String(name));
}

QCheckBox *TableEditorFixture::box(const char *name) const
{
    return widget->findChild<QCheckBox *>(QLatin1String(name));
}

QLabel *TableEditorFixture::label(const char *name) const
{
    return widget->findChild<QLabel *>(QLatin1String(name));
}

QString TableEditorFixture::status(const VKTab::Content &table, int line, const char *key)
{
    return table.getLine(VKTab::LineId(line), false).getLineKeyValue(QLatin1String(key)).toString();
}

QString TableEditorFixture::states() const
{
    QStringList all;
    for (const VKTab::LineId &id : sourceTable().getLineIdList()) {
        const QString state = status(sourceTable(), id.value(0), "CatalogMapper");
        all.append(state.isEmpty() ? QStringLiteral("-") : state);
    }
    return all.join(u' ');
}

QString TableEditorFixture::visibleLines(const VKTab::Content &table)
{
    QStringList all;
    for (const VKTab::LineId &id : table.getLineMapping().getOrdered())
        all.append(QString::number(id.value(0)));
    return all.join(u' ');
}

QString TableEditorFixture::iconToolTip(VkTableView *view, int line, const QString &key)
{
    return view->model()->statusToolTip(indexOf(view, line, key), view);
}
