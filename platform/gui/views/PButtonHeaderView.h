#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QHash>
#include <QHeaderView>
#include <QIcon>
#include <QList>

class QStyleOption;

/// A header in whose sections buttons can stand. Section 0 is as wide as its contents, the last one
/// takes the rest. With a button it can be reached by Tab: the arrow keys go from button to button,
/// the blank and Return press the one that is framed.
class VELKGUI_EXPORT PButtonHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    /// \a buttonSize is in device independent pixels.
    PButtonHeaderView(const QSize &buttonSize, Qt::Orientation orientation, QWidget *parent);
    ~PButtonHeaderView() override;

    /// Puts a button at the beginning of a section, in place of a former one. \a text stands beside
    /// the icon and is what assistive tools read; the tool tip serves them if it is empty.
    void setButtonForSection(int section, const QString &text, const QIcon &icon,
                             const QString &toolTip);
    /// Where the button of a section stands in the viewport; empty if it has none.
    [[nodiscard]] QRect buttonRect(int section) const;

    void setModel(QAbstractItemModel *model) override;

Q_SIGNALS:
    /// The left mouse button was pressed and released on the button of that section, or the key.
    void buttonClicked(int section);

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int section) const override;
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;
    QSize sectionSizeFromContents(int section) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    struct Button
    {
        QString text;
        QIcon icon;
        QString toolTip;
    };
    [[nodiscard]] int buttonAt(const QPoint &position) const;
    [[nodiscard]] int buttonWidth(const Button &button) const;
    [[nodiscard]] QRect rectIn(const QRect &sectionRect, const Button &button) const;
    [[nodiscard]] QList<int> sectionsWithButton() const;
    void paintFocus(const QStyleOption &button, QPainter *painter) const;
    void fitFirstSection();
    void setHovered(int section);
    void setCurrent(int section);

    QSize m_buttonSize;
    QHash<int, Button> m_buttons;
    int m_hovered = -1;
    int m_pressed = -1;
    int m_current = -1; ///< which the keys press; -1 without focus
};
