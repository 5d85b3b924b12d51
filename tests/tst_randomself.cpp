// The program of random use itself: it knows every public function, and what fails in it is told
// with the way to see it fail again.

#include "support/testcase.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

namespace
{

struct Outcome {
    bool isNormal = false;
    int exitCode = -1;
    QString output;
    QString errors;
};

Outcome runProgram(const QStringList &arguments)
{
    QProcess process;
    process.start(RANDOM_PROGRAM, arguments);
    constexpr int patience = 240000;
    if (!process.waitForFinished(patience))
        process.kill();
    return {process.exitStatus() == QProcess::NormalExit, process.exitCode(),
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// From the line that tells what failed to the one that tells how to see it again.
QStringList protocolOf(const Outcome &outcome)
{
    const QStringList lines = outcome.errors.split('\n');
    const int begin = lines.indexOf(QRegularExpression("^tst_randomuse: failed: .*"));
    const int end = lines.indexOf(QRegularExpression("^again: .*"));
    return begin < 0 || end < begin ? QStringList() : lines.mid(begin, end - begin + 1);
}

QString withoutComments(QString text)
{
    text.remove(QRegularExpression("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption));
    text.remove(QRegularExpression("//[^\n]*"));
    return text;
}

/// The public functions of the class whose body is \a body, a name for each declaration.
QStringList publicFunctions(const QString &className, const QString &body)
{
    static const QRegularExpression function("(~?\\w+)\\s*\\(");
    QStringList names;
    bool isPublic = false;
    const QRegularExpression borders("(?<=[;{}:])\\s*\n");
    for (const QString &statement : body.split(borders)) {
        const QString text = statement.simplified();
        if (text.endsWith(':') && !text.contains('(')) {
            isPublic = text.endsWith("public:") || text.endsWith("public Q_SLOTS:");
            continue;
        }
        const QRegularExpressionMatch match = function.match(text);
        const bool isMade = match.hasMatch() && !text.contains("= delete");
        if (isPublic && isMade && match.captured(1) != className
            && match.captured(1) != "~" + className)
            names.append(match.captured(1));
    }
    return names;
}

/// The classes and records in the public headers, with what stands in their braces.
QMap<QString, QString> publicBodies()
{
    static const QRegularExpression declaration(
        "\n(?:class ORVANECONTROLS_EXPORT|struct) (\\w+)(?: : public \\w+)?\\s*\\{(.*?)\n\\};",
        QRegularExpression::DotMatchesEverythingOption);
    QMap<QString, QString> bodies;
    const QStringList headers = QString(ORVANE_HEADERS).split(',');
    for (const QString &header : headers) {
        QFile file(QString(ORVANE_HEADER_DIR "/") + header);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        auto matches = declaration.globalMatch(withoutComments(QString::fromUtf8(file.readAll())));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            bodies.insert(match.captured(1), match.captured(2).remove("Q_OBJECT"));
        }
    }
    return bodies;
}

/// Those classes and records, with the names of their public functions.
QMap<QString, QStringList> publicClasses()
{
    const QMap<QString, QString> bodies = publicBodies();
    QMap<QString, QStringList> classes;
    for (auto one = bodies.begin(); one != bodies.end(); ++one)
        classes.insert(one.key(), publicFunctions(one.key(), one.value()));
    return classes;
}

} // namespace

class TestRandomSelf : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // A function with several declarations needs as many entries.
    void everyPublicFunctionIsCalled()
    {
        const QMap<QString, QStringList> classes = publicClasses();
        constexpr int classesAtLeast = 45;
        QVERIFY(classes.size() >= classesAtLeast);
        QCOMPARE(classes.value("DefineCommonData"),
                 QStringList({"getNormalFont", "getBigFont", "getBiggerFont"}));
        QCOMPARE(classes.value("Drawer").count("removeDrawerItem"), 2);
        const Outcome outcome = runProgram({"--list"});
        QCOMPARE(outcome.exitCode, 0);
        QStringList called = outcome.output.split('\n');
        QStringList missing;
        for (auto one = classes.begin(); one != classes.end(); ++one) {
            if (!called.contains(one.key()))
                missing.append(one.key());
            for (const QString &name : one.value()) {
                if (!called.removeOne(one.key() + ' ' + name))
                    missing.append(one.key() + ' ' + name);
            }
        }
        QVERIFY2(missing.isEmpty(), qPrintable("not called: " + missing.join(", ")));
    }

    void everyExclusionNamesWhatIsThere()
    {
        const QMap<QString, QString> bodies = publicBodies();
        const Outcome outcome = runProgram({"--excluded"});
        QCOMPARE(outcome.exitCode, 0);
        static const QRegularExpression form("^(\\w+) (\\w*): .+$");
        QStringList named;
        for (const QString &line : outcome.output.split('\n', Qt::SkipEmptyParts)) {
            const QRegularExpressionMatch match = form.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            const QString className = match.captured(1);
            named.append(className);
            if (className.startsWith('Q')) // Qt's
                continue;
            QVERIFY2(bodies.contains(className), qPrintable(line));
            const QRegularExpression member("\\b" + match.captured(2) + "\\b");
            QVERIFY2(bodies.value(className).contains(member), qPrintable(line));
        }
        QVERIFY(named.contains("ScrollBarEx"));
        QVERIFY(named.contains("QWidget"));
    }

    void failureIsToldAndRepeats_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("reason");
        QTest::newRow("warning") << "warn"
                                 << "unexpected warning: told to warn";
        QTest::newRow("fatal") << "abort"
                               << "qFatal: told to abort";
        QTest::newRow("crash") << "crash" << QString();
#ifdef __SANITIZE_ADDRESS__ // without the checks of what is undefined, it goes on
        QTest::newRow("overflow") << "overflow"
                                  << "abort";
#endif
        QTest::newRow("growth") << "grow"
                                << "misbehave adds children each time it is called";
        QTest::newRow("hang") << "hang"
                              << "the last step does not end";
    }

    void failureIsToldAndRepeats()
    {
        QFETCH(QString, fault);
        QFETCH(QString, reason);
        const QStringList how{"--fault", fault, "--patience", "5"};
        const QStringList options{"--class", "Faulty", "--seed", "7"};
        const Outcome first = runProgram(how + options + QStringList{"--steps", "100000"});
        QVERIFY2(!first.isNormal || first.exitCode != 0, "no failure");
        const QStringList told = protocolOf(first);
        constexpr int linesAtLeast = 4; // what, where, a step, and again
        QVERIFY2(told.size() >= linesAtLeast, qPrintable(first.errors));
        if (!reason.isEmpty())
            QCOMPARE(told.first(), "tst_randomuse: failed: " + reason);
        QVERIFY2(told.at(1).startsWith("class Faulty, seed 7, life "), qPrintable(told.at(1)));
        QVERIFY2(told.at(told.size() - 2).contains(": misbehave"),
                 qPrintable(told.at(told.size() - 2)));

        // The command as it is told, program and all, fails in the same way at the same step.
        const QString program = "again: " RANDOM_PROGRAM " ";
        QVERIFY2(told.last().startsWith(program), qPrintable(told.last()));
        QStringList again = told.last().mid(program.size()).split(' ');
        QVERIFY(again.removeOne("--replay"));
        const Outcome second = runProgram(how + again);
        QCOMPARE(protocolOf(second), told);
    }

    void equalSeedsTakeEqualSteps()
    {
        const QStringList life{"--class", "DefineCommonData", "--life", "3", "--replay"};
        const Outcome first = runProgram(life);
        QCOMPARE(first.exitCode, 0);
        QVERIFY(first.errors.contains("  step 2: "));
        QCOMPARE(runProgram(life).errors, first.errors);
        QVERIFY(runProgram(life + QStringList{"--seed", "2"}).errors != first.errors);
    }

    void unknownClassIsAnError()
    {
        QCOMPARE(runProgram({"--class", "Nothing"}).exitCode, 2);
    }
};

ORVANE_TEST_MAIN(TestRandomSelf)
#include "tst_randomself.moc"
