#include "dlgEditValueRangeMappings.h"

#include <core/text/PString.h>
#include <gui/application/PApplication.h>

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>

dlgEditValueRangeMappings::dlgEditValueRangeMappings(const QString &text, QWidget *parent)
    : QDialog(parent)
    , m_edit(new QPlainTextEdit(text, this))
{
    setObjectName(QStringLiteral("dlgEditValueRangeMappings"));
    setWindowTitle(PString::translate("Wertebereichszuordnungen bearbeiten", "VelkLinkDbGui"));
    m_edit->setAccessibleName(windowTitle());
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_edit);
    layout->addWidget(buttons);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    PApplication::setupWindow(this);
}

dlgEditValueRangeMappings::~dlgEditValueRangeMappings()
{
    PApplication::saveWindow(this);
}

QString dlgEditValueRangeMappings::text() const
{
    return m_edit->toPlainText();
}
