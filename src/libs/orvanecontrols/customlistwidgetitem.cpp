#include "customlistwidgetitem.h"

#include "internal/imagebutton.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMouseEvent>
#include <QPointer>

CustomListWidgetItem::CustomListWidgetItem(QWidget *parent)
    : QWidget(parent)
    , m_textLabel(new QLabel(this))
    , m_deleteButton(new orvane::ImageButton(this))
    , m_iconButton(new QToolButton(this))
    , m_layout(new QHBoxLayout(this))
{
    m_deleteButton->setMinimumWidth(15);
    m_deleteButton->setMaximumWidth(17);
    orvane::applyStyleSheet(m_deleteButton, orvane::imageButtonSheet(u"listwidget/trash"));
    m_deleteButton->hide();
    orvane::speakAs(m_deleteButton, tr("Delete"));

    m_iconButton->setFixedSize(20, 20);
    m_iconButton->setContentsMargins(0, 0, 6, 0);

    m_layout->addWidget(m_iconButton);
    m_layout->addWidget(m_textLabel);
    m_layout->addWidget(m_deleteButton);
    m_layout->setSpacing(6);
    m_layout->setContentsMargins(10, 0, 20, 0);

    connect(m_deleteButton, &QToolButton::clicked, this, &CustomListWidgetItem::slot_deleteItem);
}

void CustomListWidgetItem::setDisplayInfo(QString text)
{
    m_textLabel->setText(text);
}

void CustomListWidgetItem::setValueInfo(QString path)
{
    m_projectPath = path;
    setToolTip(path);
}

QString CustomListWidgetItem::getProjectPath() const
{
    return m_projectPath;
}

void CustomListWidgetItem::setValidIcon(bool isWarned)
{
    m_iconButton->setIcon(
        isWarned ? QIcon(":/Resource/Images/globalResource/listwidget/pathWarning.png") : QIcon());
    orvane::applyStyleSheet(m_iconButton, "border:none");
    orvane::speakAs(m_iconButton, isWarned ? tr("Not found") : QString(),
                    isWarned ? QString() : tr("Not found"));
}

void CustomListWidgetItem::slot_deleteItem()
{
    Q_EMIT signal_notifyDeleteItem(this);
}

void CustomListWidgetItem::mousePressEvent(QMouseEvent *event)
{
    const QPointer<CustomListWidgetItem> self(this);
    if (event->button() == Qt::LeftButton)
        Q_EMIT signal_notifyProjectPath(this, m_projectPath);
    // A host may close the list as it opens the project.
    if (self)
        QWidget::mousePressEvent(event);
}

void CustomListWidgetItem::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event);
    setCursor(Qt::PointingHandCursor);
    m_deleteButton->show();
}

void CustomListWidgetItem::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    setCursor(Qt::ArrowCursor);
    m_deleteButton->hide();
}
