#include "testcase.h"

#include <algorithm>

namespace
{

TestCase *runningTest = nullptr;

} // namespace

TestCase::~TestCase()
{
    restoreHandler();
}

void TestCase::expectWarning(const QString &part)
{
    m_expectedWarnings.append(part);
}

QStringList TestCase::takeDebugMessages()
{
    QStringList messages;
    messages.swap(m_debugMessages);
    return messages;
}

void TestCase::init()
{
    m_expectedWarnings.clear();
    m_unexpectedWarnings.clear();
    m_debugMessages.clear();
    runningTest = this;
    m_previousHandler = qInstallMessageHandler(&TestCase::record);
}

void TestCase::cleanup()
{
    restoreHandler();
    QVERIFY2(m_unexpectedWarnings.isEmpty(), qPrintable(m_unexpectedWarnings.join('\n')));
    QVERIFY2(m_expectedWarnings.isEmpty(),
             qPrintable("expected but not seen: " + m_expectedWarnings.join('\n')));
}

void TestCase::record(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    TestCase *test = runningTest;
    if (type == QtDebugMsg || type == QtInfoMsg) {
        test->m_debugMessages.append(text);
        return;
    }
    // What the offscreen platform says of popups and of windows with limits on their size.
    if (text.startsWith(QLatin1String("This plugin does not support ")))
        return;
    // Qt asks for the frames around its windows, which the window manager may just have taken away.
    if (text.contains(QLatin1String("BadWindow")) && text.contains(QLatin1String("(QueryTree)")))
        return;
    QStringList &expected = test->m_expectedWarnings;
    const auto match = std::find_if(expected.begin(), expected.end(),
                                    [&](const QString &part) { return text.contains(part); });
    if (match != expected.end()) {
        expected.erase(match);
        return;
    }
    test->m_unexpectedWarnings.append(text);
    test->m_previousHandler(type, context, text);
}

void TestCase::restoreHandler()
{
    if (runningTest != this)
        return;
    runningTest = nullptr;
    qInstallMessageHandler(m_previousHandler);
}
