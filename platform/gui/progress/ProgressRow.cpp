#include "ProgressRow.h"

#include "ProgressText.h"

#include <core/text/PString.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

/// Width of the bar in its own units; counts may be larger than an int.
constexpr int BarSteps = 1000;

} // namespace

ProgressRow::ProgressRow(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_details(new QLabel(this))
    , m_cancel(new QPushButton(this))
{
    m_text->setObjectName("progressText");
    m_text->setTextFormat(Qt::PlainText);
    m_bar->setObjectName("progressBar");
    m_bar->setTextVisible(false);
    m_details->setObjectName("progressDetails");
    m_cancel->setObjectName("progressCancel");
    const QString description = PString::translate("Bricht die Arbeit ab", "VelkGui");
    m_cancel->setAccessibleDescription(description);
    m_cancel->setToolTip(description + QLatin1String(" (Esc)"));
    auto *const middle = new QHBoxLayout;
    middle->addWidget(m_bar, 1);
    middle->addWidget(m_cancel);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);
    layout->addLayout(middle);
    layout->addWidget(m_details);
    connect(m_cancel, &QPushButton::clicked, this, &ProgressRow::cancel);
}

void ProgressRow::setInfo(const PProgressInfo &info)
{
    m_info = info;
    m_text->setText(info.text);
    m_details->setText(progressDetails(info));
    m_bar->setAccessibleName(info.text);
    showBar(info);
    showButton();
}

void ProgressRow::showBar(const PProgressInfo &info)
{
    if (info.total < 0) {
        m_bar->setRange(0, 0);
        return;
    }
    m_bar->setRange(0, BarSteps);
    const double part = info.total > 0 ? double(info.count) / double(info.total) : 1;
    m_bar->setValue(int(qBound(0.0, part, 1.0) * BarSteps));
}

void ProgressRow::showButton()
{
    const bool requested = m_info.cancel && m_info.cancel->isRequested();
    m_cancel->setVisible(m_info.cancellable);
    m_cancel->setEnabled(!requested);
    m_cancel->setText(requested ? PString::translate("Wird abgebrochen...", "VelkGui")
                                : PString::translate("Abbrechen", "VelkGui"));
}

void ProgressRow::cancel()
{
    if (m_info.cancel)
        m_info.cancel->request();
    showButton();
}
