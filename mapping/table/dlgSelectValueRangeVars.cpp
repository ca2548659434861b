#include "dlgSelectValueRangeVars.h"

#include <core/text/countText.h>
#include <core/text/PString.h>
#include <gui/application/PApplication.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

dlgSelectValueRangeVars::dlgSelectValueRangeVars(const QStringList &names, QWidget *parent)
    : QDialog(parent)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel,
                                     Qt::Horizontal, this))
{
    setObjectName(QStringLiteral("dlgSelectValueRangeVars"));
    setWindowTitle(PString::translate("Wertebereichsvariablen auswählen", "VelkLinkDbGui"));
    auto *const layout = new QVBoxLayout(this);
    for (const QString &name : names) {
        auto *const box = new QCheckBox(name, this);
        connect(box, SIGNAL(toggled(bool)), this, SLOT(updateOkButton()));
        layout->addWidget(box);
        m_boxes.append(box);
    }
    layout->addWidget(m_buttons);
    connect(m_buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(m_buttons, SIGNAL(rejected()), this, SLOT(reject()));
    updateOkButton();
    PApplication::setupWindow(this);
}

dlgSelectValueRangeVars::~dlgSelectValueRangeVars()
{
    PApplication::saveWindow(this);
}

QStringList dlgSelectValueRangeVars::selectedNames() const
{
    QStringList names;
    for (const QCheckBox *const box : m_boxes) {
        if (box->isChecked())
            names.append(box->text());
    }
    return names;
}

void dlgSelectValueRangeVars::updateOkButton()
{
    m_buttons->button(QDialogButtonBox::Ok)
        ->setEnabled(std::any_of(m_boxes.begin(), m_boxes.end(),
                                 [](const QCheckBox *box) { return box->isChecked(); }));
    writeCount();
}

void dlgSelectValueRangeVars::setCounter(const Counter &counter)
{
    m_counter = counter;
    m_count = new QLabel(this);
    m_count->setObjectName(QStringLiteral("combinationCount"));
    auto *const box = static_cast<QVBoxLayout *>(layout());
    box->insertWidget(box->indexOf(m_buttons), m_count);
    writeCount();
}

void dlgSelectValueRangeVars::writeCount()
{
    if (m_count)
        m_count->setText(PString::translate("Wertkombinationen: %1", "VelkLinkDbGui")
                             .arg(countText(m_counter(selectedNames()))));
}
