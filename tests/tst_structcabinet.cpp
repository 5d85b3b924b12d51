#include "support/testcase.h"

#include <buttontype.h>
#include <structcabinet.h>

#include <cstring>
#include <limits>
#include <new>
#include <type_traits>

namespace
{

/// A record with a value of its own in every field.
StructCabinet filledRecord()
{
    StructCabinet record;
    record.cabinetSize = QSize(192, 108);
    record.cabinetCount = 2;
    record.extraText1 = QStringLiteral("three");
    record.extraText2 = QStringLiteral("four 微软");
    record.extraValue1 = 5;
    record.extraValue2 = -6;
    record.extraValue3 = 7;
    record.extraValue4 = std::numeric_limits<int>::min();
    record.extraValue5 = std::numeric_limits<int>::max();
    record.extraText3 = QStringLiteral("ten");
    record.extraText4 = QString();
    record.extraValue6 = 12;
    record.extraValue7 = 13;
    record.cabinetweight = 14;
    record.cabinetpower = 15.25F;
    record.cabinetVoltage = -16.5F;
    record.cabinetuisize = 17;
    record.cabinetuiHsize = 18;
    record.cabinetPointspace = 19;
    return record;
}

/// Where a field lies in the record, and how many bytes it takes.
template <typename Field> std::pair<quintptr, int> place(Field StructCabinet::*field)
{
    static const StructCabinet record = filledRecord();
    return {reinterpret_cast<quintptr>(&(record.*field)) - reinterpret_cast<quintptr>(&record),
            int(sizeof(Field))};
}

/// Makes a record in \a memory, out of the compiler's sight: it may not conclude that what lay
/// there before is without use.
void constructRecord(void *memory)
{
    new (memory) StructCabinet;
}
void (*volatile construct)(void *) = constructRecord;

static_assert(!std::is_polymorphic<StructCabinet>::value, "the first bytes are the size");
static_assert(std::is_standard_layout<StructCabinet>::value, "the order is that of the fields");
static_assert(std::is_copy_constructible<StructCabinet>::value
                  && std::is_copy_assignable<StructCabinet>::value,
              "records are values");
// A scoped enumeration would not convert, and hosts pass raw values both ways.
static_assert(std::is_convertible<ButtonType, int>::value, "hosts compare with raw values");
static_assert(sizeof(ButtonType) == 4, "hosts store it in 32 bits");

} // namespace

class TestStructCabinet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void newRecordHasNoSizeAndNoTexts()
    {
        StructCabinet record;
        QCOMPARE(record.cabinetSize, QSize(-1, -1));
        QVERIFY(!record.cabinetSize.isValid());
        QCOMPARE(record.extraText1, QString());
        QCOMPARE(record.extraText2, QString());
        QCOMPARE(record.extraText3, QString());
        QCOMPARE(record.extraText4, QString());
    }

    // Whoever makes a record fills its numbers: a default there would come to be relied on.
    void newRecordLeavesItsNumbersAsTheyWere()
    {
        alignas(StructCabinet) unsigned char memory[sizeof(StructCabinet)];
        std::memset(memory, 0x5a, sizeof memory);
        construct(memory);
        for (const auto &field :
             {place(&StructCabinet::cabinetCount), place(&StructCabinet::extraValue1),
              place(&StructCabinet::extraValue2), place(&StructCabinet::extraValue3),
              place(&StructCabinet::extraValue4), place(&StructCabinet::extraValue5),
              place(&StructCabinet::extraValue6), place(&StructCabinet::extraValue7),
              place(&StructCabinet::cabinetweight), place(&StructCabinet::cabinetpower),
              place(&StructCabinet::cabinetVoltage), place(&StructCabinet::cabinetuisize),
              place(&StructCabinet::cabinetuiHsize), place(&StructCabinet::cabinetPointspace)}) {
            for (quintptr i = 0; i < quintptr(field.second); ++i)
                QCOMPARE(int(memory[field.first + i]), 0x5a);
        }
        reinterpret_cast<StructCabinet *>(memory)->~StructCabinet();
    }

    void fieldsLieInTheirOrderAndWidths()
    {
        const QVector<std::pair<quintptr, int>> fields = {
            place(&StructCabinet::cabinetSize),      place(&StructCabinet::cabinetCount),
            place(&StructCabinet::extraText1),       place(&StructCabinet::extraText2),
            place(&StructCabinet::extraValue1),      place(&StructCabinet::extraValue2),
            place(&StructCabinet::extraValue3),      place(&StructCabinet::extraValue4),
            place(&StructCabinet::extraValue5),      place(&StructCabinet::extraText3),
            place(&StructCabinet::extraText4),       place(&StructCabinet::extraValue6),
            place(&StructCabinet::extraValue7),      place(&StructCabinet::cabinetweight),
            place(&StructCabinet::cabinetpower),     place(&StructCabinet::cabinetVoltage),
            place(&StructCabinet::cabinetuisize),    place(&StructCabinet::cabinetuiHsize),
            place(&StructCabinet::cabinetPointspace)};
        QCOMPARE(fields.size(), 19);
        const int text = sizeof(void *);
        const QVector<int> widths = {8,    4, text, text, 4, 4, 4, 4, 4, text,
                                     text, 4, 4,    4,    4, 4, 4, 4, 4};
        quintptr next = 0;
        for (int i = 0; i < fields.size(); ++i) {
            const int width = widths.at(i);
            QCOMPARE(fields.at(i).second, width);
            // A text begins at a multiple of its width; nothing else leaves a gap.
            if (width == text)
                next = (next + text - 1) / text * text;
            QCOMPARE(fields.at(i).first, next);
            next += width;
        }
        QCOMPARE(quintptr(sizeof(StructCabinet)), next);
        QCOMPARE(int(sizeof(StructCabinet)), text == 8 ? 104 : 80);
    }

    void copyHasEveryField()
    {
        const StructCabinet original = filledRecord();
        StructCabinet copy = original;
        StructCabinet assigned = StructCabinet{};
        assigned = copy;
        copy.extraText1 = QStringLiteral("changed"); // a copy's change is its own
        QCOMPARE(assigned.cabinetSize, QSize(192, 108));
        QCOMPARE(assigned.cabinetCount, 2);
        QCOMPARE(assigned.extraText1, QStringLiteral("three"));
        QCOMPARE(assigned.extraText2, QStringLiteral("four 微软"));
        QCOMPARE(assigned.extraValue1, 5);
        QCOMPARE(assigned.extraValue2, -6);
        QCOMPARE(assigned.extraValue3, 7);
        QCOMPARE(assigned.extraValue4, std::numeric_limits<int>::min());
        QCOMPARE(assigned.extraValue5, std::numeric_limits<int>::max());
        QCOMPARE(assigned.extraText3, QStringLiteral("ten"));
        QVERIFY(assigned.extraText4.isNull());
        QCOMPARE(assigned.extraValue6, 12);
        QCOMPARE(assigned.extraValue7, 13);
        QCOMPARE(assigned.cabinetweight, 14);
        QVERIFY(assigned.cabinetpower == 15.25F);
        QVERIFY(assigned.cabinetVoltage == -16.5F);
        QCOMPARE(assigned.cabinetuisize, 17);
        QCOMPARE(assigned.cabinetuiHsize, 18);
        QCOMPARE(assigned.cabinetPointspace, 19);
        QCOMPARE(original.extraText1, QStringLiteral("three"));
    }

    void copiesShareTheirTexts()
    {
        StructCabinet original = filledRecord();
        original.extraText1 = QString(1000, 'x');
        const StructCabinet copy = original;
        QCOMPARE(copy.extraText1.constData(), original.extraText1.constData());
    }

    void listsHoldCopies()
    {
        StructCabinet record = filledRecord();
        QList<StructCabinet> records{record};
        record.cabinetCount = 9;
        records << record;
        QList<StructCabinet> copies = records;
        copies[0].extraText1 = QStringLiteral("changed");
        QCOMPARE(records.at(0).cabinetCount, 2);
        QCOMPARE(records.at(1).cabinetCount, 9);
        QCOMPARE(records.at(0).extraText1, QStringLiteral("three"));
        QVERIFY(&copies.at(1) != &records.at(1));
    }

    void kindsHaveTheirValues_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("value");
        QTest::newRow("left to right") << int(LeftToRightType) << 0;
        QTest::newRow("top to bottom") << int(TopToBottomType) << 1;
        QTest::newRow("cabinet") << int(CabinetType) << 2;
        QTest::newRow("cabinet model") << int(CabinetModelType) << 3;
        QTest::newRow("add cabinet") << int(AddCabinetType) << 4;
        QTest::newRow("activated") << int(ActivatedType) << 5;
        QTest::newRow("not activated") << int(NoActivatedType) << 6;
        QTest::newRow("default") << int(DefaultType) << 7;
    }

    void kindsHaveTheirValues()
    {
        QFETCH(int, kind);
        QFETCH(int, value);
        QCOMPARE(kind, value);
    }
};

ORVANE_TEST_MAIN(TestStructCabinet)
#include "tst_structcabinet.moc"
