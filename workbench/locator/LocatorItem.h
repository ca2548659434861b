#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <vector>

/// Something that the locator finds and goes to.
struct LocatorItem
{
    /// Of things that fit as well as each other the first kind comes first.
    enum Kind { Line, Project, Command, Setting };

    Kind kind = Project;
    QString title;  ///< what is searched, but for a project, where it is the path
    QString detail; ///< says more, is not searched
    QString id;     ///< of a command or setting
    LineRef line;   ///< without a number for a project
    bool isEnabled = true;
};

/// Lines of one project, as many as its table has.
struct LocatorLines
{
    ProjectId project;
    std::vector<int> numbers;
    QStringList names; ///< beside the numbers; may be empty for all of them

    [[nodiscard]] QString title(size_t line) const
    {
        const QString name = names.value(qsizetype(line));
        return (QString::number(numbers[line]) + u' ' + name).trimmed();
    }
    [[nodiscard]] LocatorItem item(size_t line) const
    {
        return {.kind = LocatorItem::Line,
                .title = title(line),
                .detail = project.path,
                .line = {project, numbers[line]}};
    }
};

/// What was found for some words.
struct LocatorHits
{
    QString words;
    QList<LocatorItem> items; ///< the best ones, in order
    int count = 0;            ///< of all
};
Q_DECLARE_METATYPE(LocatorHits)
