#ifndef ORVANE_TESTS_TESTCASE_H
#define ORVANE_TESTS_TESTCASE_H

#include <QApplication>
#include <QObject>
#include <QStringList>
#include <QtTest>

/**
 * The base of every test class: a test function fails on any Qt warning that it does not expect.
 *
 * Between init() and cleanup() all messages are recorded. Warnings and worse fail the function
 * unless expectWarning() announced them; debug messages can be read with debugMessages().
 */
class TestCase : public QObject
{
    Q_OBJECT

public:
    ~TestCase() override;

protected:
    /// Announces one warning that contains \a part. It has to come before the function ends.
    void expectWarning(const QString &part);
    /// The debug messages since the function began, or since the last call.
    QStringList takeDebugMessages();

private Q_SLOTS:
    void init();
    void cleanup();

private:
    static void record(QtMsgType type, const QMessageLogContext &context, const QString &text);
    void restoreHandler();

    QtMessageHandler m_previousHandler = nullptr;
    QStringList m_expectedWarnings;
    QStringList m_unexpectedWarnings;
    QStringList m_debugMessages;
};

/// The main function of a test program: an application without a display unless one is asked for.
#define ORVANE_TEST_MAIN(TestClass)                                                                \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))                                        \
            qputenv("QT_QPA_PLATFORM", "offscreen");                                               \
        QApplication application(argc, argv);                                                      \
        TestClass test;                                                                            \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&test, argc, argv);                                                    \
    }

#endif // ORVANE_TESTS_TESTCASE_H
