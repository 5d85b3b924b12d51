#include "life.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDrag>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPushButton>
#include <QThread>
#include <QToolButton>

namespace randomuse
{

Life::Life(quint64 seed)
    : m_dice(seed)
{
    m_room = new QWidget;
    m_room->resize(400, 300);
    m_room->show();
    connect(&m_innerLoopTimer, &QTimer::timeout, this, &Life::driveInnerLoop);
    m_innerLoopTimer.start(0);
    processEvents();
}

Life::~Life()
{
    m_isEnding = true;
    delete m_subject;
    delete m_room;
    for (const QPointer<QObject> &object : qAsConst(m_kept)) {
        if (object && !object->parent())
            delete object;
    }
    processEvents();
}

QWidget *Life::parentOrNone()
{
    return m_dice.chance(80) ? m_room : nullptr;
}

void Life::setSubject(QObject *subject)
{
    m_subject = subject;
}

int Life::small()
{
    const int number = smallNumber(m_dice);
    protocol::note(toText(number));
    return number;
}

int Life::space()
{
    constexpr int most = 10000;
    const int number = m_dice.chance(80) ? smallNumber(m_dice) : m_dice.between(-most, most);
    protocol::note(toText(number));
    return number;
}

int Life::index(int count)
{
    const int number = nearIndex(m_dice, count);
    protocol::note(toText(number));
    return number;
}

QWidget *Life::newWidget()
{
    QWidget *parent = m_dice.chance(50) ? m_room : nullptr;
    QWidget *widget = nullptr;
    switch (m_dice.below(5)) {
    case 0:
        widget = new QLabel("label", parent);
        break;
    case 1:
        widget = new QPushButton("button", parent);
        break;
    case 2:
        widget = new QToolButton(parent);
        break;
    case 3:
        widget = new QLineEdit(parent);
        break;
    default:
        widget = new QWidget(parent);
        break;
    }
    if (m_dice.chance(70))
        widget->resize(m_dice.between(0, 400), m_dice.between(0, 100));
    protocol::note(QString("new ") + widget->metaObject()->className());
    return keep(widget);
}

void Life::deleteInSignal(int signal)
{
    m_isAtOnce = m_dice.chance(70);
    const QMetaObject *meta = m_subject->metaObject();
    protocol::note(QString(meta->method(signal).methodSignature())
                   + (m_isAtOnce ? " deletes" : " deletes later"));
    static const int slot = staticMetaObject.indexOfSlot("deleteSubject()");
    QMetaObject::connect(m_subject, signal, this, slot, Qt::DirectConnection);
}

void Life::processEvents()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents(QEventLoop::AllEvents, 1);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Life::deleteSubject()
{
    if (m_isEnding || !m_subject)
        return;
    protocol::note("[deleted in its signal]");
    if (m_isAtOnce)
        delete m_subject;
    else
        m_subject->deleteLater();
}

/// Modal dialogs and drags run a loop of their own: it is ended here, somehow.
void Life::driveInnerLoop()
{
    if (QThread::currentThread()->loopLevel() == 0)
        return;
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog) {
        QDrag::cancel();
        return;
    }
    const QList<QAbstractButton *> buttons = dialog->findChildren<QAbstractButton *>();
    switch (m_dice.below(buttons.isEmpty() ? 3 : 5)) {
    case 0:
        protocol::note("[reject]");
        dialog->reject();
        break;
    case 1:
        protocol::note("[close]");
        dialog->close();
        break;
    case 2: {
        protocol::note("[Return]");
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(dialog, &press);
        break;
    }
    default:
        protocol::note("[click]");
        buttons.at(m_dice.below(buttons.size()))->click();
        break;
    }
}

} // namespace randomuse
