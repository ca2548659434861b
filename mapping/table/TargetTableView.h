#pragma once

#include <geomcore/table/ContentRef.h>
#include <geomcore/value/LineId.h>

#include <boost/shared_ptr.hpp>

#include <QString>

class MapVarValueC;
class VkTableView;
namespace VKTab {
class TabOptions;
}

template<class Key, class T>
class QHash;

/// The table of the project that the selected source line went to. Stays as long as the lines that
/// are selected one after the other went to the same project.
class TargetTableView
{
public:
    /// How tables are read.
    struct Reading
    {
        boost::shared_ptr<VKTab::TabOptions> options;
        bool showHiddenCols = false;
        bool withLineNumbers = false; ///< a column of them is added
    };
    struct Shown
    {
        VKTab::ContentRef table; ///< not valid if it could not be read
        bool isReused = false;
    };

    /// Neither view is owned. A table that is read gives both views the larger of their zoom
    /// factors.
    TargetTableView(VkTableView *view, VkTableView *sourceView);

    [[nodiscard]] VKTab::ContentRef table() const;
    /// Shows the table of a project, whose path is complete. One that cannot be read leaves the
    /// former table in the view.
    Shown show(const QString &path, const Reading &reading);
    void clear();

    /// Selects a line of the table and puts the values into it that the source line has for the
    /// target. A line filter that hides the line is switched off if it \a givesWay.
    void showLine(int line, const QHash<QString, MapVarValueC> &values, bool givesWay);
    /// The selected line alone has the mark of the assigned one.
    void markSelection();

private:
    [[nodiscard]] bool isShown(const QString &path) const;
    [[nodiscard]] VKTab::ContentRef read(const QString &path, const Reading &reading);
    void showHiddenLine(const VKTab::LineId &line) const;

    VkTableView *const m_view;
    VkTableView *const m_sourceView;
    VKTab::LineId m_marked; ///< line of the table in the view
};
