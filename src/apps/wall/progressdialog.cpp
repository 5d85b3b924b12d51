#include "progressdialog.h"

#include <theme.h>

#include <labelex.h>
#include <pushbuttonex.h>

#include <QCoreApplication>
#include <QPainter>
#include <QProgressBar>
#include <QVBoxLayout>

namespace wall
{

namespace
{

constexpr int textWidth = 80 * theme::unit;

} // namespace

ProgressDialog::ProgressDialog(const QString &text, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_bar(new QProgressBar(this))
{
    setWindowModality(Qt::WindowModal);
    setWindowTitle(text);
    QPalette colors = palette();
    colors.setColor(QPalette::Window, theme::raised);
    setPalette(colors);

    auto *label = new LabelEx(this);
    label->setFixedWidth(textWidth);
    label->setText(text); // a long name is cut to the width
    auto *cancel = new PushButtonEx(this, NoActivatedBtn);
    cancel->setFixedSize(20 * theme::unit, theme::controlHeight);
    cancel->setText("Cancel");
    connect(cancel, &QPushButton::clicked, this, &ProgressDialog::reject);

    m_bar->setRange(0, 100);
    m_bar->setTextVisible(false);
    m_bar->setFixedHeight(2 * theme::unit);
    m_bar->setAccessibleName(text);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    layout->setSpacing(theme::gap);
    layout->addWidget(label);
    layout->addWidget(m_bar);
    layout->addSpacing(theme::unit);
    layout->addWidget(cancel, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
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

void ProgressDialog::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(QColor(99, 99, 99));
    painter.drawRect(rect().adjusted(0, 0, -1, -1)); // no window manager draws one
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
