#include "focusring.h"

#include "sample.h"
#include "theme.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QPlainTextEdit>

namespace
{

constexpr int distance = 2; // between a control and its ring, in pixels

} // namespace

FocusRing::FocusRing(QWidget *window)
    : QWidget(window)
    , m_window(window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    qApp->installEventFilter(this);
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn: {
        auto *control = qobject_cast<QWidget *>(watched);
        if (!control || control->window() != m_window || QApplication::focusWidget() != control)
            break;
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason == Qt::MouseFocusReason)
            follow(nullptr);
        else if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            follow(control);
        break;
    }
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        if (watched == m_control)
            moveToControl();
        break;
    case QEvent::Hide:
        if (watched == m_control)
            hide();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::follow(QWidget *control)
{
    // Samples draw their own frame.
    if (control && qobject_cast<SampleFrame *>(control))
        control = nullptr;
    m_control = control;
    if (!control) {
        hide();
        return;
    }
    // As a sibling it scrolls, and is clipped, with the control.
    setParent(control->parentWidget() ? control->parentWidget() : m_window.data());
    moveToControl();
    show();
    raise();
}

void FocusRing::moveToControl()
{
    setGeometry(m_control->geometry().adjusted(-distance, -distance, distance, distance));
}

void FocusRing::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    theme::drawFrame(painter, rect(), theme::accent, distance);
}
