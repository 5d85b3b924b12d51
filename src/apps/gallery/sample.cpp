#include "sample.h"

#include "theme.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QHoverEvent>
#include <QMetaProperty>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace
{

/// The pointer comes to a part of a sample through what the part stands in.
void enterParents(const QWidget *sample, QWidget *part, const QPointF &global)
{
    if (part == sample)
        return;
    QWidget *parent = part->parentWidget();
    enterParents(sample, parent, global);
    const QPointF local(parent->mapFromGlobal(global.toPoint()));
    parent->setAttribute(Qt::WA_UnderMouse);
    QEnterEvent enter(local, local, global);
    QCoreApplication::sendEvent(parent, &enter);
}

} // namespace

SampleFrame::SampleFrame(const Sample &sample, const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_sample(sample)
    , m_title(title)
    , m_live(true)
{
    layOut();
    QList<QWidget *> parts = m_sample.widget->findChildren<QWidget *>();
    parts.append(m_sample.widget);
    for (QWidget *part : qAsConst(parts))
        part->installEventFilter(this);
}

SampleFrame::SampleFrame(const std::function<Sample(QWidget *)> &make, const QString &title,
                         const StateColumn &column, QWidget *parent)
    : QWidget(parent)
    , m_sample(make(this))
    , m_title(title)
    , m_column(column)
    , m_live(false)
{
    layOut();
    setFocusPolicy(Qt::ClickFocus);
    m_sample.widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_sample.widget->setFocusPolicy(Qt::NoFocus);
    const QList<QWidget *> parts = m_sample.widget->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->setFocusPolicy(Qt::NoFocus);
    m_sample.widget->installEventFilter(this);
    if (column.state == State::Disabled)
        m_sample.widget->setEnabled(false);
    if (column.state == State::Focus) {
        connect(qApp, &QApplication::focusChanged, this,
                [this](QWidget *, QWidget *now) { borrowFocus(now); });
        borrowFocus(QApplication::focusWidget());
    }
}

SampleFrame::~SampleFrame()
{
    qApp->disconnect(this); // the focus still moves while the parts go
}

void SampleFrame::layOut()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(theme::gap, theme::gap, theme::gap, theme::gap);
    layout->addWidget(m_sample.widget);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SampleFrame::setSelected(bool selected)
{
    m_selected = selected;
    update();
}

void SampleFrame::force()
{
    if (m_live || !m_sample.widget)
        return;
    QWidget *part = m_column.part ? m_column.part(m_sample.widget) : m_sample.widget.data();
    if (!part)
        return;
    const QPoint position = m_column.pointer
        ? m_column.pointer(part)
        : QPoint(qMin(theme::gap, part->width() / 2), part->height() / 2);
    switch (m_column.state) {
    case State::Hover:
        pointAt(part, position, false);
        break;
    case State::Pressed:
        pointAt(part, position, true);
        break;
    case State::Normal:
    case State::Focus:
    case State::Disabled:
        break;
    }
    part->update();
}

void SampleFrame::pointAt(QWidget *widget, QPoint position, bool press)
{
    // A press steps a spin box: what is shown goes back to the value that the page gave it.
    const QMetaProperty value = widget->metaObject()->userProperty();
    const QVariant before = value.isValid() ? value.read(widget) : QVariant();

    const QPointF local(position);
    const QPointF global(widget->mapToGlobal(position));
    enterParents(m_sample.widget, widget, global);
    widget->setAttribute(Qt::WA_UnderMouse);
    QEnterEvent enter(local, local, global);
    QCoreApplication::sendEvent(widget, &enter);
    QHoverEvent hoverEnter(QEvent::HoverEnter, local, QPointF(-1, -1));
    QCoreApplication::sendEvent(widget, &hoverEnter);
    QHoverEvent hoverMove(QEvent::HoverMove, local, QPointF(-1, -1));
    QCoreApplication::sendEvent(widget, &hoverMove);
    QMouseEvent move(QEvent::MouseMove, local, global, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
    if (press) {
        QMouseEvent mousePress(QEvent::MouseButtonPress, local, global, Qt::LeftButton,
                               Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &mousePress);
    }

    if (before.isValid() && value.isWritable() && value.read(widget) != before)
        value.write(widget, before);
}

void SampleFrame::borrowFocus(QWidget *focusWidget)
{
    // Only one widget has the focus. A widget whose focus proxy has it draws itself as focused too,
    // so the sample takes whatever has the focus as its proxy.
    if (!focusWidget || !m_sample.widget || m_sample.widget->isAncestorOf(focusWidget))
        return;
    m_sample.widget->setFocusProxy(focusWidget);
    m_sample.widget->update();
}

bool SampleFrame::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && m_sample.widget && !m_live) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           m_sample.widget->toolTip(), this);
        return true;
    }
    return QWidget::event(event);
}

bool SampleFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (m_live) {
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::FocusIn)
            Q_EMIT chosen(this);
    } else if (event->type() == QEvent::Timer) {
        return true; // a spin box or a scroll bar held down would step for ever
    }
    return QWidget::eventFilter(watched, event);
}

void SampleFrame::paintEvent(QPaintEvent *)
{
    if (!m_selected && !hasFocus())
        return;
    QPainter painter(this);
    theme::drawFrame(painter, rect(), theme::accent, hasFocus() ? 2 : 1);
}

void SampleFrame::mousePressEvent(QMouseEvent *)
{
    Q_EMIT chosen(this);
}

void SampleFrame::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    Q_EMIT chosen(this);
}

void SampleFrame::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // Once the sizes are settled: the pointer's place depends on them.
    QMetaObject::invokeMethod(this, &SampleFrame::force, Qt::QueuedConnection);
}
