#pragma once

#include "ScrewsFixture.h"

#include <geomcore/table/FilterByLineId.h>
#include <geomcoregui/table/VkTableModel.h>

#include <QAbstractItemModelTester>
#include <QTest>

#include <memory>

/// A model over the screws, looked after by Qt's own tester.
class ModelFixture : protected ScrewsFixture
{
protected:
    void makeModel()
    {
        m_table = TestTables::screws();
        m_model = std::make_unique<VkTableModel>();
        new QAbstractItemModelTester(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest, m_model.get());
    }

    void clear()
    {
        m_model.reset();
        m_table = VKTab::ContentRef();
    }

    [[nodiscard]] QList<int> lines() const
    {
        QList<int> result;
        for (int row = 0; row < m_model->rowCount(); ++row)
            result.append(m_model->lineId(row).value(0));
        return result;
    }
    [[nodiscard]] int column(const char *name) const
    {
        return m_model->columnOf(m_table.getVar(QString::fromLatin1(name)).getVarId());
    }
    [[nodiscard]] QVariant cell(int row, const char *name, int role = Qt::DisplayRole) const
    {
        return m_model->index(row, column(name)).data(role);
    }
    void showOnly(const QList<int> &lines)
    {
        QHash<int, VKTab::TabFilterData> shown;
        for (const int line : lines)
            shown.insert(line, VKTab::TabFilterData());
        m_table.setFilter(VKTab::FilterByLineId(shown, true));
        m_table.invalidate(VKTab::Content::InvalidateFilter, true);
    }

    std::unique_ptr<VkTableModel> m_model;
};
