#include "protocol.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstring>
#include <thread>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#include <sanitizer/lsan_interface.h>
#define RANDOMUSE_SANITIZED

/// What is undefined ends in an abort, which is told here: the callback for dying programs is not
/// called for it.
extern "C" Q_DECL_EXPORT const char *__ubsan_default_options();
extern "C" const char *__ubsan_default_options()
{
    return "abort_on_error=1:print_stacktrace=1";
}
#endif

namespace randomuse::protocol
{

namespace
{

constexpr int keptSteps = 20;
constexpr int textSize = 240;

/// A text of fixed size: what does not fit is cut off.
template <int size> class FixedText
{
public:
    void set(const char *text, int length)
    {
        m_length = 0;
        add(text, length);
    }
    void add(const char *text, int length)
    {
        const int taken = std::min(length, size - m_length);
        std::memcpy(m_text + m_length, text, size_t(taken));
        m_length += taken;
    }
    void set(const QByteArray &text) { set(text.constData(), text.size()); }
    void add(const QByteArray &text) { add(text.constData(), text.size()); }
    void write() const { writeAll(m_text, m_length); }

    static void writeAll(const char *text, int length)
    {
        while (length > 0) {
            const ssize_t written = ::write(STDERR_FILENO, text, size_t(length));
            if (written <= 0)
                return;
            text += written;
            length -= int(written);
        }
    }

private:
    char m_text[size] = {};
    int m_length = 0;
};

FixedText<textSize> steps[keptSteps];
FixedText<textSize> lifeText;
FixedText<textSize> replayText;
std::atomic<int> stepCount{0}; ///< of this life
std::atomic<long> pulse{0};
std::atomic<bool> isRunning{false};
std::atomic<bool> isPrinted{false};
bool isEchoed = false;
#ifdef RANDOMUSE_SANITIZED
std::atomic<int> patience{240}; // seconds
#else
std::atomic<int> patience{90}; // seconds
#endif

void writeText(const char *text)
{
    FixedText<1>::writeAll(text, int(std::strlen(text)));
}

/// Only what a signal handler may call.
void print(const char *reason)
{
    if (isPrinted.exchange(true))
        return;
    writeText("\ntst_randomuse: failed: ");
    writeText(reason);
    writeText("\n");
    lifeText.write();
    const int last = stepCount;
    for (int step = std::max(1, last - keptSteps + 1); step <= last; ++step) {
        steps[step % keptSteps].write();
        writeText("\n");
    }
    writeText("again: ");
    replayText.write();
    writeText("\n");
}

void printSignal(int signal)
{
    switch (signal) {
    case SIGSEGV:
        print("segmentation fault");
        break;
    case SIGABRT:
        print("abort");
        break;
    case SIGFPE:
        print("arithmetic fault");
        break;
    case SIGILL:
        print("illegal instruction");
        break;
    default:
        print("bus error");
        break;
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

#ifdef RANDOMUSE_SANITIZED
void printReported()
{
    if (isRunning)
        print("the sanitizer's report is above");
}
#endif

/// Ends the program when a step takes too long, however slow the machine is.
void watch()
{
    long seen = -1;
    int unchanged = 0;
    for (;;) {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        const long now = pulse;
        unchanged = now == seen && isRunning ? unchanged + 1 : 0;
        seen = now;
        if (unchanged < patience)
            continue;
        print("the last step does not end");
        ::_exit(1);
    }
}

} // namespace

void install()
{
#ifdef RANDOMUSE_SANITIZED
    // The address sanitizer reports faults itself; an abort is left to the program.
    __sanitizer_set_death_callback(printReported);
    std::signal(SIGABRT, printSignal);
#else
    for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGILL, SIGBUS})
        std::signal(signal, printSignal);
#endif
    std::thread(watch).detach();
}

void beginLife(const QByteArray &className, quint64 seed, int life, const QByteArray &replay)
{
    lifeText.set("class " + className + ", seed " + QByteArray::number(seed) + ", life "
                 + QByteArray::number(life) + "\n");
    replayText.set(replay);
    stepCount = 0;
    ++pulse;
    isRunning = true;
}

void beginStep(int number, const QByteArray &text)
{
    if (isEchoed && number > 1)
        writeText("\n");
    const QByteArray line = "  step " + QByteArray::number(number) + ": " + text;
    steps[number % keptSteps].set(line);
    stepCount = number;
    ++pulse;
    if (isEchoed)
        steps[number % keptSteps].write();
}

void note(const QString &text)
{
    const QByteArray added = ' ' + text.toUtf8();
    steps[stepCount % keptSteps].add(added);
    if (isEchoed)
        FixedText<1>::writeAll(added.constData(), added.size());
}

void setPatience(int seconds)
{
    patience = seconds;
}

void setEcho(bool echo)
{
    isEchoed = echo;
}

void end()
{
    if (isEchoed)
        writeText("\n");
    isRunning = false;
}

void fail(const QByteArray &reason)
{
    print(reason.constData());
    // No destructor runs: what has just failed may not survive it.
    ::_exit(1);
}

bool leaks()
{
#ifdef RANDOMUSE_SANITIZED
    return __lsan_do_recoverable_leak_check() != 0;
#else
    return false;
#endif
}

} // namespace randomuse::protocol
