#include "progressdialog.h"

#include <theme.h>

#include <pushbuttonex.h>

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace wall
{

ProgressDialog::ProgressDialog(const QString &text, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_bar(new QProgressBar(this))
{
    setWindowModality(Qt::WindowModal);
    auto *cancel = new PushButtonEx(this, NoActivatedBtn);
    cancel->setFixedSize(80, theme::controlHeight);
    cancel->setText("Cancel");
    connect(cancel, &QPushButton::clicked, this, &ProgressDialog::reject);

    m_bar->setRange(0, 100);
    m_bar->setAccessibleName(text);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    layout->setSpacing(theme::gap);
    layout->addWidget(new QLabel(text, this));
    layout->addWidget(m_bar);
    layout->addWidget(cancel, 0, Qt::AlignRight);
    setMinimumWidth(90 * theme::unit);
    m_elapsed.start();
}

Progress ProgressDialog::progress()
{
    return [this](int percent) { return update(percent); };
}

bool ProgressDialog::isCancelled() const
{
    return m_isCancelled;
}

void ProgressDialog::setDelay(int milliseconds)
{
    m_delay = milliseconds;
}

void ProgressDialog::reject()
{
    m_isCancelled = true; // the work ends at its next step, and the dialog with it
}

bool ProgressDialog::update(int percent)
{
    m_bar->setValue(percent);
    if (!isVisible() && m_elapsed.hasExpired(m_delay))
        show();
    if (isVisible())
        QCoreApplication::processEvents();
    return !m_isCancelled;
}

} // namespace wall
