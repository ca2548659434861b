#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

#include <functional>

class QWidget;

namespace VKTab {

class LineI;

/// One state of a status column: the text that stands for it on a line, its image and its tool tip.
class VELKGEOMCORE_EXPORT StatusValue
{
public:
    /// Gives the tool tip at the moment it is shown, for a line, its row in the view (from 1) and
    /// the number of the icon in the row.
    using ToolTipHandler = std::function<QString(const LineI &, int, int, QWidget *)>;

    StatusValue() = default;
    explicit StatusValue(const QString &text)
        : m_text(text)
    {
    }

    [[nodiscard]] QString getText() const { return m_text; }
    [[nodiscard]] QString getImageFile() const { return m_imageFile; }
    void setImageFile(const QString &path) { m_imageFile = path; }
    [[nodiscard]] QString getToolTipText() const { return m_toolTipText; }
    void setToolTipText(const QString &text) { m_toolTipText = text; }
    /// A handler wins over the text.
    [[nodiscard]] const ToolTipHandler &getToolTipHandler2() const { return m_handler; }
    void setToolTipHandler2(const ToolTipHandler &handler) { m_handler = handler; }

private:
    QString m_text;
    QString m_imageFile;
    QString m_toolTipText;
    ToolTipHandler m_handler;
};

} // namespace VKTab
