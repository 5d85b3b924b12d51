#ifndef RANDOMUSE_PROTOCOL_H
#define RANDOMUSE_PROTOCOL_H

#include <QByteArray>
#include <QString>

/// What was done last, kept so that it can be printed when the program dies: in memory of fixed
/// size, as text, and written without anything that a signal handler may not call.
namespace randomuse::protocol
{

/// From now on crashes, reports of the sanitizers and steps that take too long print the protocol.
void install();

/// A life begins: \a replay is the command that lives it again.
void beginLife(const QByteArray &className, quint64 seed, int life, const QByteArray &replay);
/// A step begins, numbered from 1 within the life. With echo() it is printed at once.
void beginStep(int number, const QByteArray &text);
/// Adds \a text to the present step, before what it tells of is done.
void note(const QString &text);
/// After how many seconds a step counts as hanging.
void setPatience(int seconds);
/// Prints each step when it begins.
void setEcho(bool echo);
/// The program is done with steps: what follows takes as long as it takes.
void end();

/// Prints \a reason, the life and its last steps, and ends the program with exit code 1.
[[noreturn]] void fail(const QByteArray &reason);

/// Whether leaks were found since the last call, which the leak checker has then printed. Always
/// false without it.
bool leaks();

} // namespace randomuse::protocol

#endif // RANDOMUSE_PROTOCOL_H
