#include "support/testcase.h"

#include <definecommondata.h>

class TestDefineCommonData : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void fontTextsAreExact_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("normal") << DefineCommonData::getNormalFont()
                                << QStringLiteral("9pt \"微软雅黑\" ");
        QTest::newRow("big") << DefineCommonData::getBigFont()
                             << QStringLiteral("10.5pt \"微软雅黑\" ");
        QTest::newRow("bigger") << DefineCommonData::getBiggerFont()
                                << QStringLiteral("12pt  \"微软雅黑\" ");
    }

    void fontTextsAreExact()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(text, expected);
    }

    void biggerFontHasTwoBlanksAndThirteenCharacters()
    {
        const QString text = DefineCommonData::getBiggerFont();
        QCOMPARE(text.size(), 13);
        QVERIFY(text.endsWith(' '));
        QCOMPARE(text.indexOf("12pt  \""), 0);
    }

    void familyIsTheFourCharacterName()
    {
        // U+5FAE U+8F6F U+96C5 U+9ED1, whatever encoding the sources are read in.
        const ushort family[] = {'"', 0x5fae, 0x8f6f, 0x96c5, 0x9ed1, '"', 0};
        QVERIFY(DefineCommonData::getNormalFont().contains(QString::fromUtf16(family)));
    }

    void canBeBuilt()
    {
        const DefineCommonData data;
        Q_UNUSED(data)
        QVERIFY(std::is_nothrow_default_constructible<DefineCommonData>::value);
    }
};

ORVANE_TEST_MAIN(TestDefineCommonData)
#include "tst_definecommondata.moc"
