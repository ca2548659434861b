#include "TablePane.h"

#include "DesignationLabel.h"
#include "LineActionButton.h"

#include <core/text/PString.h>
#include <geomcore/table/Content.h>
#include <geomcoregui/table/VkTableView.h>
#include <gui/views/ElidedCheckBox.h>
#include <gui/views/ElidedLabel.h>

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

TablePane::TablePane(const QString &side, QWidget *parent)
    : QWidget(parent)
    , m_view(new VkTableView(this))
{
    m_view->setObjectName(side + QStringLiteral("View"));
    m_view->setHeaderVisible(false);
    m_view->setShowTopoValues(false);
    m_view->setShowInternalValues(true);
    const QString path = PString::translate("Pfad:", "VelkLinkDbGui");
    const QString designation = PString::translate("Normbezeichnung", "VelkLinkDbGui");
    const QString number = PString::translate("Normnummer", "VelkLinkDbGui");
    m_path =
        nameLabel(new ElidedLabel(Qt::ElideMiddle, this), side + QStringLiteral("PathLabel"), path);
    m_designation = nameLabel(new DesignationLabel(this), side + QStringLiteral("DesignationLabel"),
                              designation);
    m_number = createLabel(side + QStringLiteral("NumberLabel"), number);
    m_numberRow = createRow(number + QStringLiteral(": "), m_number);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(createRow(path + u' ', m_path));
    layout->addLayout(createRow(designation + QStringLiteral(": "), m_designation));
    layout->addLayout(m_numberRow);
    layout->addWidget(m_view, 1);
}

TablePane::~TablePane() = default;

QLabel *TablePane::createLabel(const QString &name, const QString &meaning)
{
    return nameLabel(new QLabel(this), name, meaning);
}

QLabel *TablePane::nameLabel(QLabel *label, const QString &name, const QString &meaning)
{
    label->setObjectName(name);
    label->setAccessibleName(meaning);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMinimumWidth(1); // a long text must not keep the pane from getting narrower
    return label;
}

/// A caption, a text and room behind them.
QHBoxLayout *TablePane::createRow(const QString &caption, QLabel *label)
{
    auto *const row = new QHBoxLayout;
    row->setContentsMargins(4, 0, 0, 0);
    row->addWidget(new QLabel(caption, this));
    row->addWidget(label);
    row->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum));
    return row;
}

QPushButton *TablePane::addButton(const char *name, const QString &icon, const QString &toolTip)
{
    auto *const button = new LineActionButton(QIcon(icon), QString(), this);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setFocusPolicy(Qt::TabFocus); // after a click the arrow keys still walk the lines
    m_numberRow->addWidget(button);
    return button;
}

QCheckBox *TablePane::addBox(const char *name, const QString &text)
{
    auto *const box = new ElidedCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    layout()->addWidget(box);
    return box;
}

void TablePane::showPath(const QString &path)
{
    m_path->setText(path);
    m_path->setToolTip(path); // where the pane is too narrow for it
}

void TablePane::showNumberOf(const VKTab::Content &table)
{
    m_number->setText(table.getKeyValue(VKTab::KeyNormNumber).toString());
}

void TablePane::clearTexts()
{
    showPath(QString());
    m_number->clear();
}
