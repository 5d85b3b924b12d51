#ifndef RANDOMUSE_LIFE_H
#define RANDOMUSE_LIFE_H

#include "dice.h"
#include "protocol.h"
#include "values.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

namespace randomuse
{

/// What one object of a class is tried in: a window to stand in, widgets to be given, and what
/// happens inside its signals and in event loops that it starts. All of it goes with the life.
class Life : public QObject
{
    Q_OBJECT

public:
    explicit Life(quint64 seed);
    ~Life() override;

    Dice &dice() { return m_dice; }
    /// For a moment other dice, to do a step again with equal throws.
    void setDice(const Dice &dice) { m_dice = dice; }

    /// The window that subjects and helpers stand in.
    QWidget *room() const { return m_room; }
    /// A parent for a subject: mostly the room, else none.
    QWidget *parentOrNone();

    /// Makes \a subject the object that is tried, until it is deleted.
    void setSubject(QObject *subject);
    QObject *subject() const { return m_subject; }
    QWidget *widget() const { return qobject_cast<QWidget *>(m_subject.data()); }

    /// A value of any type, written into the protocol.
    template <class T> T value()
    {
        T result = made<T>(m_dice);
        protocol::note(toText(result));
        return result;
    }
    int small();
    /// For a layout or a position: odd, but no more than a few screens.
    int space();
    int index(int count);

    /// A new widget of one of Qt's classes.
    QWidget *newWidget();
    /// An object made for this life: it goes with it unless it found an owner.
    template <class T> T *keep(T *object)
    {
        m_kept.append(object);
        return object;
    }
    /// One of the kept objects of this class that still exist, null if there is none.
    template <class T> T *kept()
    {
        QList<T *> found;
        for (const QPointer<QObject> &object : qAsConst(m_kept)) {
            if (T *match = qobject_cast<T *>(object.data()))
                found.append(match);
        }
        return found.isEmpty() ? nullptr : found.at(m_dice.below(found.size()));
    }

    /// From now on \a signal of the subject deletes it, at once or by the event loop.
    void deleteInSignal(int signal);

    /// Handles what is queued, deferred deletions included.
    static void processEvents();

public Q_SLOTS:
    void deleteSubject();

private:
    void driveInnerLoop();

    Dice m_dice;
    QWidget *m_room = nullptr;
    QPointer<QObject> m_subject;
    QVector<QPointer<QObject>> m_kept;
    QTimer m_innerLoopTimer;
    bool m_isAtOnce = false;
    bool m_isEnding = false;
};

} // namespace randomuse

#endif // RANDOMUSE_LIFE_H
