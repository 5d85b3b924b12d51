#include "customwidget.h"

#include "internal/stylesheet.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

CustomWidget::CustomWidget(QWidget *parent)
    : QWidget(parent)
{
    m_leftLabel = new QLabel(this);
    m_leftLabel->setFixedWidth(36);
    orvane::applyStyleSheet(m_leftLabel, QStringLiteral("background:rgb(69,69,69);"));

    m_textLabel = new QLabel(this);
    m_textLabel->setText("unknow"); // spelled so: hosts rely on it
    orvane::applyStyleSheet(m_textLabel, QStringLiteral("background:rgb(66,145,240);"));

    m_button = new QToolButton(this);
    m_button->setFixedSize(20, 20);

    m_layout = new QHBoxLayout(this);
    m_layout->addWidget(m_leftLabel);
    m_layout->addWidget(m_textLabel);
    m_layout->addWidget(m_button);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(1, 0, 12, 0);
}
